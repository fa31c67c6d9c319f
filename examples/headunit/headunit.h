// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_HEADUNIT_H
#define HEADUNIT_HEADUNIT_H

#include "context.h"
#include "theme.h"

#include <QMap>
#include <QWidget>

class QStackedWidget;
class SpBackgroundImage;

namespace headunit
{

class Page;
class Popup;
class StatusBar;

/// The whole screen: the pages over a backdrop, the status bar above them, popups over all.
class HeadUnit : public QWidget
{
    Q_OBJECT

public:
    HeadUnit(Context &context, const QSize &screen, Theme::Look look, QWidget *parent = nullptr);

    /// The names of the pages, the home page first.
    QStringList pageNames() const { return m_names; }
    QString currentPage() const;
    QWidget *page(const QString &name) const;

public slots:
    void openPage(const QString &name);
    void setLook(headunit::Theme::Look look);
    /// Says a sentence on the screen and on standard error.
    void say(const QString &title, const QString &sentence);

signals:
    void pageOpened(const QString &name);

protected:
    void resizeEvent(QResizeEvent *e) override;

private:
    void addPage(const QString &name, Page *page);
    void goBack();
    void showTitle();

    Context &m_context;
    Theme m_theme;
    SpBackgroundImage *m_backdrop;
    StatusBar *m_statusBar;
    QStackedWidget *m_stack;
    Popup *m_popup;
    QStringList m_names;
    QMap<QString, Page *> m_pages;
};

} // namespace headunit

#endif // HEADUNIT_HEADUNIT_H
