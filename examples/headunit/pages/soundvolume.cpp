// SPDX-License-Identifier: Apache-2.0
#include "pages/soundvolume.h"

#include "dress.h"
#include "models/player.h"
#include "ui_soundvolume.h"

#include <QSettings>
#include <QtMath>

#include <algorithm>

namespace headunit
{

namespace
{

const QString kVolumeKey = QStringLiteral("sound/volume");
const QString kMutedKey = QStringLiteral("sound/muted");
constexpr int kRepeat = 150; // ms, of a key that is held
constexpr double kKnob = 0.85; // of the dial's radius: up to its ticks
constexpr double kMark = 0.74; // likewise, from the middle
constexpr double kArc = 120; // degrees from the lowest volume to the highest, around the top

} // namespace

SoundVolume::SoundVolume(Context &context, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::SoundVolume>())
{
    m_ui->setupUi(this);
    for (QLabel *label : {m_ui->knob, m_ui->mark, m_ui->level, m_ui->state})
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_ui->muteLock->setShowMode(SpLockButton::HighlightMode);
    Player &player = context.player;
    player.setVolume(context.settings.value(kVolumeKey, player.volume()).toInt());
    player.setMuted(context.settings.value(kMutedKey).toBool());
    connectPlayer();
    SoundVolume::retranslate();
}

SoundVolume::~SoundVolume() = default;

void SoundVolume::dress()
{
    m_ui->volumeKeys->setSpacing(theme().gap());
    const int width = std::max(theme().touch(), theme().px(150));
    m_ui->louderKey->setFixedWidth(width);
    m_ui->muteLock->setFixedWidth(width);
    m_ui->quieterKey->setFixedWidth(width);
    layout()->activate();
    dressPanel(*m_ui->dialPanel, theme());
    layOutDial();
    dressKeys();
    showVolume();
}

void SoundVolume::retranslate()
{
    m_ui->retranslateUi(this);
    showVolume();
}

void SoundVolume::connectPlayer()
{
    Player &player = context().player;
    QSettings &settings = context().settings;
    connect(m_ui->dial, &MCircularDial::currentValueChange, this, &SoundVolume::turnTo);
    connect(m_ui->dial, &MCircularDial::valueChanged, this, &SoundVolume::turnTo);
    connect(m_ui->muteLock, &SpLockButton::btnPressed, this,
            [this, &player] { player.setMuted(m_ui->muteLock->isDown()); });
    for (SpIconButton *key : {m_ui->louderKey, m_ui->quieterKey}) {
        const int change = key == m_ui->louderKey ? 1 : -1;
        const auto step = [&player, change] { player.setVolume(player.volume() + change); };
        key->setSupportLongPress(true);
        key->setTimerInt2(kRepeat);
        connect(key, &SpIconButton::btnClicked, this, step);
        connect(key, &SpIconButton::btnLongPress, this, step);
    }
    connect(&player, &Player::volumeChanged, this, &SoundVolume::showVolume);
    connect(&player, &Player::mutedChanged, this, &SoundVolume::showVolume);
    connect(&player, &Player::volumeChanged, this,
            [&settings](int volume) { settings.setValue(kVolumeKey, volume); });
    connect(&player, &Player::mutedChanged, this,
            [&settings](bool isMuted) { settings.setValue(kMutedKey, isMuted); });
}

// A finger finds fractions; the volume is a whole number, and so is what the dial shows.
void SoundVolume::turnTo(double volume)
{
    context().player.setVolume(qRound(volume));
    showVolume();
}

void SoundVolume::showVolume()
{
    const Player &player = context().player;
    m_ui->dial->setValue(player.volume());
    m_ui->muteLock->setIsDown(player.isMuted());
    m_ui->level->setNum(player.volume());
    m_ui->state->setText(player.isMuted() ? tr("Muted") : tr("Volume"));
    m_ui->level->setEnabled(!player.isMuted());

    const QRect dial = m_ui->dial->geometry();
    const double angle =
        qDegreesToRadians(kArc * (player.volume() * 1.0 / Player::kMostVolume - 0.5));
    const double way = kMark * m_ui->dial->radius();
    QRect mark = m_ui->mark->geometry();
    mark.moveCenter(dial.center()
                    + QPoint(qRound(way * std::sin(angle)), qRound(-way * std::cos(angle))));
    m_ui->mark->setGeometry(mark);
}

// The dial is larger than its panel: what is seen of it is the half with the arc. Its numbers would
// be too small in a car: a knob with a large one covers them, and leaves the ticks.
void SoundVolume::layOutDial()
{
    const QSize panel = m_ui->dialPanel->size();
    const int margin = theme().px(24);
    const int radius = std::min(panel.width() / 2, panel.height()) - margin;
    const QPoint middle(panel.width() / 2, panel.height() - 1);
    const auto around = [&middle](int reach) {
        return QRect(middle - QPoint(reach, reach), QSize(2 * reach, 2 * reach));
    };
    m_ui->dial->setGeometry(around(radius));
    m_ui->dial->setRadius(radius);
    m_ui->dial->setBgColor(theme().pressedFace);
    m_ui->dial->setTextColor(theme().text);
    m_ui->dial->setCenterColor(theme().accent);

    const int knob = int(kKnob * radius);
    QColor face = theme().face;
    face.setAlpha(255);
    m_ui->knob->setGeometry(around(knob));
    m_ui->knob->setPixmap(theme().panel({2 * knob, 2 * knob}, face, theme().line, knob));
    const int mark = theme().px(26);
    m_ui->mark->resize(mark, mark);
    m_ui->mark->setPixmap(theme().panel({mark, mark}, theme().accent, QColor(), mark / 2));
    const int line = theme().textPx(Theme::Huge) * 4 / 3;
    const int state = theme().textPx(Theme::Body) * 3 / 2;
    const int top = middle.y() - theme().gap() - state - line;
    m_ui->level->setGeometry(middle.x() - knob / 2, top, knob, line);
    m_ui->state->setGeometry(middle.x() - knob / 2, top + line, knob, state);
    dressLabel(*m_ui->level, theme(), Theme::Huge);
    QPalette palette = m_ui->level->palette();
    palette.setColor(QPalette::Disabled, QPalette::WindowText, theme().quietText);
    m_ui->level->setPalette(palette);
    dressLabel(*m_ui->state, theme(), Theme::Body, true);
}

void SoundVolume::dressKeys()
{
    dressKey(*m_ui->louderKey, theme(), Theme::Key, QStringLiteral("plus"));
    dressKey(*m_ui->quieterKey, theme(), Theme::Key, QStringLiteral("minus"));
    const QSize size = m_ui->muteLock->size();
    const int icon = theme().px(44);
    m_ui->muteLock->setNormalImage(
        theme().key(size, Theme::Key, Theme::Normal, QStringLiteral("mute"), icon));
    m_ui->muteLock->setPressImage(
        theme().key(size, Theme::Key, Theme::Selected, QStringLiteral("mute"), icon));
}

} // namespace headunit
