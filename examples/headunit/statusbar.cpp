// SPDX-License-Identifier: Apache-2.0
#include "statusbar.h"

#include "dress.h"
#include "theme.h"

#include <spiconbutton.h>

#include <QHBoxLayout>
#include <QLocale>
#include <QTime>

namespace headunit
{

StatusBar::StatusBar(QWidget *parent)
    : QWidget(parent), m_home(new SpIconButton(this)), m_back(new SpIconButton(this)),
      m_title(new QLabel(this)), m_clock(new QLabel(this))
{
    m_home->setObjectName(QStringLiteral("homeKey"));
    m_back->setObjectName(QStringLiteral("backKey"));
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_home);
    layout->addWidget(m_back);
    layout->addWidget(m_title, 1);
    layout->addWidget(m_clock);
    connect(m_home, &SpIconButton::btnClicked, this, &StatusBar::homeWanted);
    connect(m_back, &SpIconButton::btnClicked, this, &StatusBar::backWanted);
    m_minute.setSingleShot(true);
    m_minute.setTimerType(Qt::PreciseTimer); // a coarse one may be seconds late
    connect(&m_minute, &QTimer::timeout, this, &StatusBar::showTime);
}

void StatusBar::setTheme(const Theme &theme)
{
    layout()->setContentsMargins(theme.margin(), theme.px(8), theme.margin(), 0);
    layout()->setSpacing(theme.gap());
    for (SpIconButton *key : {m_home, m_back})
        key->setFixedSize(theme.touch(), theme.touch());
    dressKey(*m_home, theme, Theme::Bare, QStringLiteral("home"));
    dressKey(*m_back, theme, Theme::Bare, QStringLiteral("back"));
    dressLabel(*m_title, theme, Theme::Title);
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

// Sleeps until the next minute begins: nothing wakes up in between.
void StatusBar::showTime()
{
    constexpr int kMinute = 60000; // ms
    const QTime now = QTime::currentTime();
    QString format = QLocale().timeFormat(QLocale::ShortFormat);
    format.remove(QStringLiteral(":ss")); // some languages have them in their short form too
    m_clock->setText(QLocale().toString(now, format));
    m_minute.start(kMinute - now.msecsSinceStartOfDay() % kMinute + 1);
}

} // namespace headunit
