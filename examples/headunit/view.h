// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_VIEW_H
#define HEADUNIT_VIEW_H

#include "context.h"
#include "theme.h"

#include <QWidget>

namespace headunit
{

/**
 * A page, or one of the views that a page shows in turn. Its form brings widgets, layouts and
 * names; the view dresses them for the screen and the look, and wires them to the models.
 */
class View : public QWidget
{
    Q_OBJECT

public:
    explicit View(Context &context, QWidget *parent = nullptr);

    /// Shows the view in another look, or for the first time.
    virtual void setTheme(const Theme &theme);

protected:
    /// Gives the widgets their pictures, colours and lengths. Called when the view has its size,
    /// and again in another look.
    virtual void dress() = 0;
    /// Writes all texts anew; those of the form first.
    virtual void retranslate() = 0;
    /// What stays free around the layout of the form; nothing by default.
    virtual QMargins margins(const Theme &theme) const;

    /// Something else that the pictures depend on is not what it was: dresses the view again, at
    /// once or when it is seen.
    void dressAgain();

    const Theme &theme() const { return m_theme; }
    Context &context() { return m_context; }

    void changeEvent(QEvent *e) override;
    void resizeEvent(QResizeEvent *e) override;
    void showEvent(QShowEvent *e) override;

private:
    void dressNow();

    Context &m_context;
    Theme m_theme;
    bool m_isDressed = false; // for the look and the size of the moment
};

} // namespace headunit

#endif // HEADUNIT_VIEW_H
