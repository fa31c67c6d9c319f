// SPDX-License-Identifier: Apache-2.0
#include "statusbar.h"

#include "dress.h"
#include "models/preferences.h"
#include "theme.h"

#include <spiconbutton.h>

#include <QDateTime>
#include <QEvent>
#include <QHBoxLayout>
#include <QLocale>

namespace headunit
{

StatusBar::StatusBar(const Preferences &preferences, QWidget *parent)
    : QWidget(parent), m_preferences(preferences), m_home(new SpIconButton(this)),
      m_back(new SpIconButton(this)), m_title(new QLabel(this)), m_date(new QLabel(this)),
      m_clock(new QLabel(this))
{
    m_home->setObjectName(QStringLiteral("homeKey"));
    m_back->setObjectName(QStringLiteral("backKey"));
    m_date->setObjectName(QStringLiteral("date"));
    m_clock->setObjectName(QStringLiteral("clock"));
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_home);
    layout->addWidget(m_back);
    layout->addWidget(m_title, 1);
    layout->addWidget(m_date);
    layout->addWidget(m_clock);
    connect(m_home, &SpIconButton::btnClicked, this, &StatusBar::homeWanted);
    connect(m_back, &SpIconButton::btnClicked, this, &StatusBar::backWanted);
    m_minute.setSingleShot(true);
    m_minute.setTimerType(Qt::PreciseTimer); // a coarse one may be seconds late
    connect(&m_minute, &QTimer::timeout, this, [this] {
        showTime();
        emit minutePassed();
    });
    connect(&preferences, &Preferences::optionChanged, this, &StatusBar::showTime);
}

void StatusBar::setTheme(const Theme &theme)
{
    layout()->setContentsMargins(theme.margin(), theme.px(8), theme.margin(), 0);
    layout()->setSpacing(theme.gap());
    for (SpIconButton *key : {m_home, m_back})
        key->setFixedSize(theme.touch(), theme.touch());
    dressKey(*m_home, theme, Theme::Bare, QStringLiteral("home"));
    dressKey(*m_back, theme, Theme::Bare,
             isRightToLeft() ? QStringLiteral("forward") : QStringLiteral("back"));
    dressLabel(*m_title, theme, Theme::Title);
    dressLabel(*m_date, theme, Theme::Body, true);
    dressLabel(*m_clock, theme, Theme::Title);
    setFixedHeight(theme.touch() + theme.px(12));
    showTime();
}

void StatusBar::setTitle(const QString &title) { m_title->setText(title); }

void StatusBar::setKeysShown(bool shown)
{
    m_home->setVisible(shown);
    m_back->setVisible(shown);
}

void StatusBar::changeEvent(QEvent *e)
{
    QWidget::changeEvent(e);
    if (e->type() == QEvent::LanguageChange)
        showTime();
}

// Sleeps until the next minute begins: nothing wakes up in between.
void StatusBar::showTime()
{
    constexpr int kMinute = 60000; // ms
    const QDateTime now = QDateTime::currentDateTime();
    const bool countsTo24 = m_preferences.isOn(Preferences::Option::Clock24);
    m_clock->setText(QLocale().toString(
        now.time(), countsTo24 ? QStringLiteral("HH:mm") : QStringLiteral("h:mm AP")));
    //: the date in the status bar, in the letters of Qt's date formats
    m_date->setText(QLocale().toString(now.date(), tr("ddd d MMM")));
    m_date->setVisible(m_preferences.isOn(Preferences::Option::DateShown));
    m_minute.start(kMinute - now.time().msecsSinceStartOfDay() % kMinute + 1);
}

} // namespace headunit
