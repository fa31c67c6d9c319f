// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_STATUSBAR_H
#define HEADUNIT_STATUSBAR_H

#include "context.h"

#include <QLabel>
#include <QTimer>
#include <QWidget>

class SpIconButton;

namespace headunit
{

class Theme;

/// The strip above every page: the way back and home, what page this is, how the car is connected,
/// whether it is mute, the call that is going on, the date and the time of day.
class StatusBar : public QWidget
{
    Q_OBJECT

public:
    explicit StatusBar(const Context &context, QWidget *parent = nullptr);

    void setTheme(const Theme &theme);
    void setTitle(const QString &title);
    /// The home page itself has no way home.
    void setKeysShown(bool shown);
    /// How long the call lasts that is going on; empty: there is none.
    void setCall(const QString &time);

signals:
    void homeWanted();
    void backWanted();
    void callWanted();
    void minutePassed();

protected:
    void changeEvent(QEvent *e) override;

private:
    void showTime();
    void layOut();
    void placeKeys();
    void dressCall(const Theme &theme);

    const Preferences &m_preferences;
    SpIconButton *m_home;
    SpIconButton *m_back;
    QLabel *m_title;
    SpIconButton *m_call;
    QLabel *m_mute;
    QLabel *m_bluetooth;
    QLabel *m_signal;
    QLabel *m_date;
    QLabel *m_clock;
    QTimer m_minute;
    QMargins m_margins;
    int m_keyMargin = 0; // px, where the keys are
};

} // namespace headunit

#endif // HEADUNIT_STATUSBAR_H
