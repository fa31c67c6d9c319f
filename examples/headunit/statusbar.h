// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_STATUSBAR_H
#define HEADUNIT_STATUSBAR_H

#include <QLabel>
#include <QTimer>
#include <QWidget>

class SpIconButton;

namespace headunit
{

class Theme;

/// The strip above every page: the way back and home, what page this is, and the time of day.
class StatusBar : public QWidget
{
    Q_OBJECT

public:
    explicit StatusBar(QWidget *parent = nullptr);

    void setTheme(const Theme &theme);
    void setTitle(const QString &title);
    /// The home page itself has no way home.
    void setKeysShown(bool shown);

signals:
    void homeWanted();
    void backWanted();

private:
    void showTime();

    SpIconButton *m_home;
    SpIconButton *m_back;
    QLabel *m_title;
    QLabel *m_clock;
    QTimer m_minute;
};

} // namespace headunit

#endif // HEADUNIT_STATUSBAR_H
