// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_PAGE_H
#define HEADUNIT_PAGE_H

#include "context.h"
#include "theme.h"

#include <QWidget>

namespace headunit
{

/**
 * A page of the head unit. Its form brings widgets, layouts and names; the page dresses them for
 * the screen and the look, and wires them to the models.
 */
class Page : public QWidget
{
    Q_OBJECT

public:
    explicit Page(Context &context, QWidget *parent = nullptr);

    /// What the status bar shows while the page is open, in the language of the moment.
    virtual QString title() const = 0;

    /// Shows the page in another look, or for the first time.
    void setTheme(const Theme &theme);

    /// Where the back key leads within the page; false if that is the home page.
    virtual bool goBack() { return false; }

signals:
    /// Another page is to be opened, by its name.
    void pageWanted(const QString &name);
    /// A popup with a sentence.
    void popupWanted(const QString &title, const QString &sentence);
    void titleChanged();

protected:
    /// Gives the widgets their pictures, colours and lengths. Called when the page has its size,
    /// and again in another look.
    virtual void dress() = 0;
    /// Writes all texts anew; those of the form first.
    virtual void retranslate() = 0;

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

#endif // HEADUNIT_PAGE_H
