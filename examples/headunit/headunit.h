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

class Dimmer;
class Page;
class Popup;
class StatusBar;

/// The whole screen: the pages over a backdrop, the status bar above them, popups over all.
class HeadUnit : public QWidget
{
    Q_OBJECT

public:
    /// Begins with a look; the settings may ask for another.
    HeadUnit(Context &context, const QSize &screen, Theme::Look look, QWidget *parent = nullptr);

    /// The names of the pages, the home page first.
    QStringList pageNames() const { return m_names; }
    QString currentPage() const;
    QWidget *page(const QString &name) const;
    /// The look that the settings ask for at this time of day.
    static Theme::Look wantedLook(const Preferences &preferences);

public slots:
    void openPage(const QString &name);
    void setLook(headunit::Theme::Look look);
    /// Says a sentence on the screen and on standard error.
    void say(const QString &title, const QString &sentence);

signals:
    void pageOpened(const QString &name);

protected:
    bool event(QEvent *e) override;
    void resizeEvent(QResizeEvent *e) override;

private:
    void addPage(const QString &name, Page *page);
    void followPreferences();
    void followTheSun();
    void goBack();
    void showTitle();

    Context &m_context;
    Theme m_theme;
    SpBackgroundImage *m_backdrop;
    StatusBar *m_statusBar;
    QStackedWidget *m_stack;
    Popup *m_popup;
    Dimmer *m_dimmer;
    Theme::Look m_wantedLook;
    QStringList m_names;
    QMap<QString, Page *> m_pages;
};

} // namespace headunit

#endif // HEADUNIT_HEADUNIT_H
