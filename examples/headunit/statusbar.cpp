// SPDX-License-Identifier: Apache-2.0
#include "statusbar.h"

#include "dress.h"
#include "models/player.h"
#include "models/preferences.h"
#include "theme.h"

#include <spiconbutton.h>

#include <QDateTime>
#include <QEvent>
#include <QHBoxLayout>
#include <QLocale>
#include <QPainter>

#include <initializer_list>
#include <utility>

namespace headunit
{

namespace
{

constexpr int kKeyInk = 32; // units, width of what is drawn in a key

// A pill in the middle of a key, with the icon where reading begins.
QPixmap chip(const Theme &theme, const QSize &size, Theme::State state, bool isMirrored)
{
    const int height = theme.px(44);
    const int icon = theme.px(24);
    const QPixmap pill = theme.key({size.width(), height}, Theme::Positive, state);
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.drawPixmap(0, (size.height() - height) / 2, pill);
    painter.drawPixmap(isMirrored ? size.width() - icon - theme.px(12) : theme.px(12),
                       (size.height() - icon) / 2,
                       theme.icon(QStringLiteral("call"), icon, theme.onAccent));
    return picture;
}

} // namespace

StatusBar::StatusBar(const Context &context, QWidget *parent)
    : QWidget(parent), m_preferences(context.preferences), m_home(new SpIconButton(this)),
      m_back(new SpIconButton(this)), m_title(new QLabel(this)), m_call(new SpIconButton(this)),
      m_mute(new QLabel(this)), m_bluetooth(new QLabel(this)), m_signal(new QLabel(this)),
      m_date(new QLabel(this)), m_clock(new QLabel(this))
{
    m_home->setObjectName(QStringLiteral("homeKey"));
    m_back->setObjectName(QStringLiteral("backKey"));
    m_call->setObjectName(QStringLiteral("callChip"));
    m_mute->setObjectName(QStringLiteral("muteSign"));
    m_date->setObjectName(QStringLiteral("date"));
    m_clock->setObjectName(QStringLiteral("clock"));
    m_call->hide();
    layOut();
    connect(m_home, &SpIconButton::btnClicked, this, &StatusBar::homeWanted);
    connect(m_back, &SpIconButton::btnClicked, this, &StatusBar::backWanted);
    m_minute.setSingleShot(true);
    m_minute.setTimerType(Qt::PreciseTimer); // a coarse one may be seconds late
    connect(&m_minute, &QTimer::timeout, this, [this] {
        showTime();
        emit minutePassed();
    });
    connect(&m_preferences, &Preferences::optionChanged, this, &StatusBar::showTime);
    connect(m_call, &SpIconButton::btnClicked, this, &StatusBar::callWanted);
    connect(&context.player, &Player::mutedChanged, m_mute, &QLabel::setVisible);
    m_mute->setVisible(context.player.isMuted());
}

void StatusBar::layOut()
{
    auto *layout = new QHBoxLayout(this);
    auto *keys = new QHBoxLayout;
    keys->setSpacing(0);
    keys->addWidget(m_home);
    keys->addWidget(m_back);
    layout->addLayout(keys);
    layout->addWidget(m_title, 1);
    for (QWidget *widget :
         std::initializer_list<QWidget *>{m_call, m_mute, m_bluetooth, m_signal, m_date, m_clock})
        layout->addWidget(widget);
}

void StatusBar::setTheme(const Theme &theme)
{
    m_margins = {theme.margin(), theme.px(8), theme.margin(), 0};
    m_keyMargin = theme.margin() - (theme.touch() - theme.px(kKeyInk)) / 2;
    placeKeys();
    layout()->setSpacing(theme.gap());
    for (SpIconButton *key : {m_home, m_back})
        key->setFixedSize(theme.touch(), theme.touch());
    dressKey(*m_home, theme, Theme::Bare, QStringLiteral("home"));
    dressKey(*m_back, theme, Theme::Bare,
             isRightToLeft() ? QStringLiteral("forward") : QStringLiteral("back"));
    dressLabel(*m_title, theme, Theme::Title);
    const auto sign = [&theme](const char *name) {
        return theme.icon(QLatin1String(name), theme.px(28), theme.text);
    };
    const std::initializer_list<std::pair<QLabel *, const char *>> signs{
        {m_mute, "mute"}, {m_bluetooth, "bluetooth"}, {m_signal, "signal"}};
    for (const auto &each : signs) {
        each.first->setPixmap(sign(each.second));
        each.first->setContentsMargins(0, theme.px(4), 0, 0); // as high as the digits beside them
    }
    dressCall(theme);
    dressLabel(*m_date, theme, Theme::Body, true);
    dressLabel(*m_clock, theme, Theme::Title);
    setFixedHeight(theme.touch() + theme.px(12));
    showTime();
}

void StatusBar::dressCall(const Theme &theme)
{
    const QSize size(theme.px(150), theme.touch());
    m_call->setFixedSize(size);
    m_call->setShowMode(SpIconButton::HighlightMode);
    m_call->setNormalImage(chip(theme, size, Theme::Normal, isRightToLeft()));
    m_call->setPressImage(chip(theme, size, Theme::Pressed, isRightToLeft()));
    m_call->setNormalTextColor(theme.onAccent);
    m_call->setPressTextColor(theme.onAccent);
    m_call->setFontSize(theme.textPx(Theme::Body));
    m_call->setTextTopMargin(0);
    m_call->setTextHeight(size.height());
}

void StatusBar::setTitle(const QString &title) { m_title->setText(title); }

void StatusBar::setKeysShown(bool shown)
{
    m_home->setVisible(shown);
    m_back->setVisible(shown);
    placeKeys();
}

void StatusBar::setCall(const QString &time)
{
    m_call->setDisplayText(time);
    m_call->setHidden(time.isEmpty());
    showTime();
}

// The drawing in the first key begins where everything below it does.
void StatusBar::placeKeys()
{
    QMargins margins = m_margins;
    if (!m_home->isHidden() && isRightToLeft())
        margins.setRight(m_keyMargin);
    else if (!m_home->isHidden())
        margins.setLeft(m_keyMargin);
    layout()->setContentsMargins(margins);
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
    // A call needs the room.
    m_date->setVisible(m_preferences.isOn(Preferences::Option::DateShown) && m_call->isHidden());
    m_minute.start(kMinute - now.time().msecsSinceStartOfDay() % kMinute + 1);
}

} // namespace headunit
