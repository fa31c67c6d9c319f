// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_STATUSBAR_H
#define HEADUNIT_STATUSBAR_H

#include <QLabel>
#include <QTimer>
#include <QWidget>

class SpIconButton;

namespace headunit
{

class Preferences;
class Theme;

/// The strip above every page: the way back and home, what page this is, the date and the time of
/// day.
class StatusBar : public QWidget
{
    Q_OBJECT

public:
    explicit StatusBar(const Preferences &preferences, QWidget *parent = nullptr);

    void setTheme(const Theme &theme);
    void setTitle(const QString &title);
    /// The home page itself has no way home.
    void setKeysShown(bool shown);

signals:
    void homeWanted();
    void backWanted();
    void minutePassed();

protected:
    void changeEvent(QEvent *e) override;

private:
    void showTime();

    const Preferences &m_preferences;
    SpIconButton *m_home;
    SpIconButton *m_back;
    QLabel *m_title;
    QLabel *m_date;
    QLabel *m_clock;
    QTimer m_minute;
};

} // namespace headunit

#endif // HEADUNIT_STATUSBAR_H
