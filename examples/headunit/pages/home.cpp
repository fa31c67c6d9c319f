// SPDX-License-Identifier: Apache-2.0
#include "pages/home.h"

#include "dress.h"
#include "models/musiclibrary.h"
#include "models/player.h"
#include "models/track.h"
#include "ui_home.h"

#include <QPainter>

#include <algorithm>

namespace headunit
{

namespace
{

constexpr int kCorner = 28; // units, of a tile's face
constexpr int kCaptionMargin = 8; // units, above and below a tile's caption
constexpr int kOwnPictures = 255; // alpha from which a tile takes the pressed picture it is given

// A badge in the upper right corner of nothing: it lies over the face of a tile.
QPixmap badge(const Theme &theme, int side)
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    const int size = theme.px(16);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.accent);
    painter.drawEllipse(side - size - theme.px(14), theme.px(14), size, size);
    return pixmap;
}

QPixmap face(const Theme &theme, int side, const QString &icon, const QColor &fill,
             const QColor &ink)
{
    QPixmap pixmap = theme.panel({side, side}, fill, theme.line, theme.px(kCorner));
    const int iconSide = side / 2;
    QPainter painter(&pixmap);
    painter.drawPixmap((side - iconSide) / 2, (side - iconSide) / 2,
                       theme.icon(icon, iconSide, ink));
    return pixmap;
}

} // namespace

HomePage::HomePage(Context &context, QWidget *parent)
    : Page(context, parent), m_ui(std::make_unique<Ui::Home>())
{
    m_ui->setupUi(this);
    for (SpHomeIcon *tile : findChildren<SpHomeIcon *>()) {
        connect(tile, &SpHomeIcon::itemPress, this, [this, tile] { m_pressed = tile; });
        connect(tile, &SpHomeIcon::itemMove, this, [this, tile](int) {
            if (!tile->rect().contains(tile->mapFromGlobal(QCursor::pos())))
                m_pressed = nullptr;
        });
        connect(tile, &SpHomeIcon::itemRelease, this, [this, tile] { openTile(*tile); });
    }
    for (SpHomeIcon *tile : {m_ui->navigationTile, m_ui->cameraTile, m_ui->weatherTile})
        tile->setIsReady(false);
    rollWhileShown(*m_ui->title);
    m_ui->cover->setImageAlpha(0);
    connectPlayer();
    HomePage::retranslate();
}

HomePage::~HomePage() = default;

QString HomePage::title() const { return tr("Home"); }

void HomePage::dress()
{
    dressStrip();
    layout()->activate(); // what is left for the tiles
    const int caption = theme().textPx(Theme::Small) + 2 * theme().px(kCaptionMargin);
    const QSize room = m_ui->tiles->geometry().size();
    const int row = (room.height() - theme().gap()) / 2 - caption;
    const int column = room.width() / 4 - theme().gap();
    for (SpHomeIcon *tile : findChildren<SpHomeIcon *>())
        dressTile(*tile, std::min(row, column));
    showPlaying();
    showTrack();
}

void HomePage::dressStrip()
{
    const int touch = theme().touch();
    m_ui->strip->setFixedHeight(touch + theme().px(32));
    m_ui->nowPlaying->setContentsMargins(theme().gap(), 0, theme().gap(), 0);
    m_ui->nowPlaying->setSpacing(theme().gap());
    m_ui->keyRow->setSpacing(theme().gap());
    m_ui->titles->setSpacing(theme().px(2));
    m_ui->cover->setFixedSize(touch, touch);
    m_ui->title->setFontSize(theme().textPx(Theme::Body));
    m_ui->title->setTextColor(theme().text);
    const Qt::Alignment side = leadingAlignment() & ~Qt::AlignVertical_Mask;
    m_ui->title->setTextAlignment(side | Qt::AlignBottom);
    dressLabel(*m_ui->artist, theme(), Theme::Small, true);
    m_ui->artist->setAlignment(side | Qt::AlignTop);
    for (SpIconButton *key : {m_ui->previousKey, m_ui->playKey, m_ui->nextKey})
        key->setFixedSize(touch, touch);
    dressKey(*m_ui->previousKey, theme(), Theme::Bare, QStringLiteral("previous"));
    dressKey(*m_ui->nextKey, theme(), Theme::Bare, QStringLiteral("next"));
    layout()->activate();
    m_ui->strip->setPixmap(
        theme().panel(m_ui->strip->size(), theme().face, theme().line, theme().radius()));
}

void HomePage::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->radioTile->setIconText(tr("Radio"));
    m_ui->mediaTile->setIconText(tr("Media"));
    m_ui->phoneTile->setIconText(tr("Phone"));
    m_ui->navigationTile->setIconText(tr("Navigation"));
    m_ui->soundTile->setIconText(tr("Sound"));
    m_ui->settingsTile->setIconText(tr("Settings"));
    m_ui->cameraTile->setIconText(tr("Camera"));
    m_ui->weatherTile->setIconText(tr("Weather"));
}

void HomePage::connectPlayer()
{
    Player &player = context().player;
    connect(&player, &Player::trackChanged, this, &HomePage::showTrack);
    connect(&player, &Player::playingChanged, this, &HomePage::showPlaying);
    connect(m_ui->previousKey, &SpIconButton::btnClicked, &player, &Player::previous);
    connect(m_ui->playKey, &SpIconButton::btnClicked, &player, &Player::toggle);
    connect(m_ui->nextKey, &SpIconButton::btnClicked, &player, &Player::next);
    connect(&context().music, &MusicLibrary::coverRead, this, &HomePage::takeCover);
}

// A release on the tile that was pressed opens its application; a finger that slid off opens none.
void HomePage::openTile(const SpHomeIcon &tile)
{
    if (m_pressed == &tile)
        emit pageWanted(tile.iconName());
    m_pressed = nullptr;
}

void HomePage::showTrack()
{
    const Track track = context().player.track();
    const bool isSomething = !track.path.isEmpty();
    showRolling(*m_ui->title, isSomething ? track.title : tr("Nothing is playing"));
    m_ui->artist->setText(isSomething ? track.artist : tr("Choose a track in Media"));
    const QString path = track.hasCover ? track.path : QString();
    if (path != m_coverPath) {
        m_coverPath = path;
        m_cover = QImage();
        if (!path.isEmpty())
            context().music.requestCover(path);
    }
    showCover();
}

// Others may ask for the same cover in another size: the largest is kept.
void HomePage::takeCover(const QString &path, const QImage &cover)
{
    if (path != m_coverPath || cover.width() <= m_cover.width())
        return;
    m_cover = cover;
    showCover();
}

void HomePage::showCover()
{
    const QSize size(theme().touch(), theme().touch());
    m_ui->cover->setImage(m_cover.isNull() ? theme().drawing(QStringLiteral("cover"), size)
                                           : theme().rounded(m_cover, size));
}

void HomePage::showPlaying()
{
    const bool isPlaying = context().player.isPlaying();
    dressKey(*m_ui->playKey, theme(), Theme::Primary,
             isPlaying ? QStringLiteral("pause") : QStringLiteral("play"));
    m_ui->mediaTile->setIsRunning(isPlaying);
}

void HomePage::dressTile(SpHomeIcon &tile, int side)
{
    const Theme &t = theme();
    tile.setImageAlpha(kOwnPictures);
    tile.setFontSize(t.textPx(Theme::Small));
    tile.setTextMargin(t.px(kCaptionMargin));
    for (const auto setColor : {&SpHomeIcon::setFontColor, &SpHomeIcon::setPressTextColor,
                                &SpHomeIcon::setRunningTextColor})
        (tile.*setColor)(t.text);
    tile.setGrayTextColor(t.quietText);
    tile.setNormalImage(face(t, side, tile.iconName(), t.face, t.accent));
    tile.setPressImage(face(t, side, tile.iconName(), t.pressedFace, t.accent));
    tile.setGrayImage(face(t, side, tile.iconName(), t.face, t.line));
    tile.setRunningImage(badge(t, side));
}

} // namespace headunit
