// SPDX-License-Identifier: Apache-2.0
#include "pages/soundvolume.h"

#include "dress.h"
#include "models/player.h"
#include "ui_soundvolume.h"

#include <QPainter>
#include <QPainterPath>
#include <QSettings>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace headunit
{

namespace
{

const QString kVolumeKey = QStringLiteral("sound/volume");
const QString kMutedKey = QStringLiteral("sound/muted");
constexpr int kRepeat = 150; // ms, of a key that is held
constexpr double kArc = 120; // degrees from the lowest volume to the highest, around the top
// Units of a length
constexpr int kBar = 14; // thickness
constexpr int kKnob = 44; // diameter
constexpr int kMostRadius = 430;
constexpr double kTicks = 0.83; // of the dial's radius: where its ticks have ended

// From the right, as a painter counts, to the left of the top.
double degreesOf(int volume) { return 90 + kArc / 2 - kArc * volume / Player::kMostVolume; }

// The part of the bar up to a volume.
void drawBar(QPainter &painter, const QRectF &circle, const QPen &pen, int volume)
{
    const double start = degreesOf(0);
    painter.setPen(pen);
    QPainterPath path;
    path.arcMoveTo(circle, start);
    path.arcTo(circle, start, degreesOf(volume) - start);
    painter.drawPath(path);
}

} // namespace

SoundVolume::SoundVolume(Context &context, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::SoundVolume>())
{
    m_ui->setupUi(this);
    for (QLabel *label : {m_ui->level, m_ui->state, m_ui->least, m_ui->most})
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
    m_ui->least->setNum(0);
    m_ui->most->setNum(Player::kMostVolume);
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

    showArc();
}

// The widest arc that has room with the numbers below its ends. Its texts are below its middle.
void SoundVolume::layOutDial()
{
    const Theme &t = theme();
    const QSize panel = m_ui->dialPanel->size();
    const double half = qDegreesToRadians(kArc / 2);
    const int knob = t.px(kKnob);
    const int numbers = knob / 2 + t.textPx(Theme::Small) * 3 / 2;
    const int across = qRound((panel.width() / 2.0 - knob / 2.0 - t.margin()) / std::sin(half));
    const int down =
        qRound((panel.height() - knob / 2.0 - numbers - 2 * t.gap()) / (1 - std::cos(half)));
    m_arc.bar = std::min({across, down, t.px(kMostRadius)});
    m_arc.ticks = m_arc.bar - knob / 2;
    const int height = knob / 2 + qRound(m_arc.bar * (1 - std::cos(half))) + numbers;
    m_arc.middle = QPoint(panel.width() / 2, (panel.height() - height) / 2 + knob / 2 + m_arc.bar);

    // What lies within the ticks is left to the texts; fingers and ticks have the ring.
    const int reach = m_arc.bar + knob / 2;
    const QPoint corner(reach, reach);
    const int inner = int(kTicks * m_arc.ticks);
    m_ui->dial->setGeometry(QRect(m_arc.middle - corner, 2 * QSize(reach, reach)));
    m_ui->dial->setMask(
        QRegion(m_ui->dial->rect(), QRegion::Ellipse)
        - QRegion(QRect(corner - QPoint(inner, inner), 2 * QSize(inner, inner)), QRegion::Ellipse));
    m_ui->dial->setRadius(m_arc.ticks);
    m_ui->dial->setBgColor(Qt::transparent);
    m_ui->dial->setCenterColor(Qt::transparent); // its pointer is a hair
    m_ui->dial->setTextColor(t.quietText);
    m_ui->arc->setGeometry(QRect(QPoint(), panel));
    layOutTexts();
}

void SoundVolume::layOutTexts()
{
    const Theme &t = theme();
    const int line = t.textPx(Theme::Huge) * 4 / 3;
    const int state = t.textPx(Theme::Body) * 3 / 2;
    const int number = t.textPx(Theme::Small) * 3 / 2;
    const QPoint end = onArc(0).toPoint();
    const int numberTop = end.y() + t.px(kKnob) / 2;
    const int width = m_arc.ticks;
    const int left = m_arc.middle.x() - width / 2;
    const int ticksEnd = m_arc.middle.y() - int(kTicks * m_arc.ticks);
    const int top = ticksEnd + (numberTop + number - ticksEnd - line - state) / 2;
    m_ui->level->setGeometry(left, top, width, line);
    m_ui->state->setGeometry(left, top + line, width, state);
    const int end40 = onArc(Player::kMostVolume).toPoint().x();
    m_ui->least->setGeometry(end.x() - number, numberTop, 2 * number, number);
    m_ui->most->setGeometry(end40 - number, numberTop, 2 * number, number);
    dressLabel(*m_ui->level, t, Theme::Huge);
    QPalette palette = m_ui->level->palette();
    palette.setColor(QPalette::Disabled, QPalette::WindowText, t.quietText);
    m_ui->level->setPalette(palette);
    dressLabel(*m_ui->state, t, Theme::Body, true);
    for (QLabel *label : {m_ui->least, m_ui->most})
        dressLabel(*label, t, Theme::Small, true);
}

// As a straight slider: a groove that is filled up to the knob.
void SoundVolume::showArc()
{
    const Theme &t = theme();
    if (m_arc.bar == 0)
        return; // not dressed yet
    QPixmap picture(m_ui->arc->size());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPoint corner(m_arc.bar, m_arc.bar);
    const QRectF circle(m_arc.middle - corner, 2 * QSizeF(m_arc.bar, m_arc.bar));
    const bool isMuted = context().player.isMuted();
    const int volume = context().player.volume();
    const QColor color = isMuted ? t.quietText : t.accent;
    const auto pen = [&t](const QColor &ink) {
        return QPen(ink, t.px(kBar), Qt::SolidLine, Qt::RoundCap);
    };
    drawBar(painter, circle, pen(grooveColor(t)), Player::kMostVolume);
    if (volume > 0)
        drawBar(painter, circle, pen(color), volume);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(onArc(volume), t.px(kKnob) / 2.0, t.px(kKnob) / 2.0);
    painter.setBrush(t.onAccent);
    painter.drawEllipse(onArc(volume), t.px(12) / 2.0, t.px(12) / 2.0);
    painter.end();
    m_ui->arc->setPixmap(picture);
}

QPointF SoundVolume::onArc(int volume) const
{
    const double angle = qDegreesToRadians(degreesOf(volume));
    return m_arc.middle + m_arc.bar * QPointF(std::cos(angle), -std::sin(angle));
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
