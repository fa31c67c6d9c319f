// SPDX-License-Identifier: Apache-2.0
#include "pages/home.h"

#include "dress.h"
#include "models/musiclibrary.h"
#include "models/player.h"
#include "models/track.h"
#include "ui_home.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace headunit
{

namespace
{

constexpr int kIcon = 64; // units
constexpr int kIconToCaption = 10; // units
constexpr int kCaptionRise = 10; // px that a tile's caption stands higher than its margins say
constexpr int kColumns = 4;
constexpr int kOwnPictures = 255; // alpha from which a tile takes the pressed picture it is given

// Where icon and caption stand in a tile, as one block in its middle.
struct Arrangement {
    Arrangement(const Theme &theme, int height)
    {
        const int line = theme.textPx(Theme::Body) * 4 / 3;
        icon = std::min(theme.px(kIcon), height - line - theme.px(3 * kIconToCaption));
        iconTop = (height - icon - theme.px(kIconToCaption) - line) / 2;
        captionMiddle = height - iconTop - line / 2;
    }

    int icon; // px, side
    int iconTop; // px
    int captionMiddle; // px
};

// A badge in the upper right corner of nothing: it lies over the face of a tile.
QPixmap badge(const Theme &theme, const QSize &tile)
{
    QPixmap pixmap(tile);
    pixmap.fill(Qt::transparent);
    const int size = theme.px(16);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.accent);
    painter.drawEllipse(tile.width() - size - theme.px(14), theme.px(14), size, size);
    return pixmap;
}

QPixmap face(const Theme &theme, const QPixmap &panel, const QString &icon, const QColor &ink)
{
    QPixmap pixmap = panel;
    const Arrangement place(theme, panel.height());
    QPainter painter(&pixmap);
    painter.drawPixmap((panel.width() - place.icon) / 2, place.iconTop,
                       theme.icon(icon, place.icon, ink));
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
    layOutStrip();
    dressStrip();
    m_ui->tiles->setSpacing(theme().gap());
    layout()->activate(); // what is left for the tiles
    const QSize room = m_ui->tiles->geometry().size();
    const QSize size((room.width() - (kColumns - 1) * theme().gap()) / kColumns,
                     (room.height() - theme().gap()) / 2);
    for (SpHomeIcon *tile : findChildren<SpHomeIcon *>())
        dressTile(*tile, size);
    showPlaying();
    showTrack();
}

bool HomePage::isWide() const { return width() > theme().content(); }

// Below the tiles; on a wide screen a card beside them.
void HomePage::layOutStrip()
{
    const int gap = theme().gap();
    const int touch = theme().touch();
    const int side = isWide() ? theme().px(220) : touch;
    const auto along = isWide() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    const auto across = isWide() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    const Qt::Alignment alignment = isWide() ? Qt::AlignCenter : Qt::Alignment();
    m_ui->columns->setDirection(along);
    m_ui->nowPlaying->setDirection(across);
    m_ui->nowPlaying->setAlignment(m_ui->cover, alignment);
    m_ui->nowPlaying->setAlignment(m_ui->keys, alignment);
    m_ui->nowPlaying->setContentsMargins(gap, isWide() ? theme().px(40) : 0, gap,
                                         isWide() ? theme().px(28) : 0);
    m_ui->nowPlaying->setSpacing(gap);
    m_ui->keyRow->setSpacing(isWide() ? theme().px(32) : gap);
    m_ui->titles->setSpacing(theme().px(2));
    m_ui->cover->setFixedSize(side, side);
    m_ui->strip->setMinimumSize(0, 0);
    m_ui->strip->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    if (isWide())
        m_ui->strip->setFixedWidth(theme().px(420));
    else
        m_ui->strip->setFixedHeight(touch + theme().px(32));
}

void HomePage::dressStrip()
{
    const int touch = theme().touch();
    m_ui->title->setFontSize(theme().textPx(Theme::Body));
    m_ui->title->setTextColor(theme().text);
    standOnFace(*m_ui->title, theme());
    const Qt::Alignment side =
        isWide() ? Qt::AlignHCenter : leadingAlignment() & ~Qt::AlignVertical_Mask;
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
    if (std::exchange(m_pressed, nullptr) != &tile)
        return;
    if (tile.getIsReady())
        emit pageWanted(tile.iconName());
    else
        emit popupWanted(tile.iconText(), tr("Not available in this car."));
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
    const QSize size = m_ui->cover->size();
    if (size.isEmpty())
        return;
    const QImage shown =
        m_cover.isNull() ? theme().drawing(QStringLiteral("cover"), size).toImage() : m_cover;
    m_ui->cover->setImage(theme().rounded(shown, size));
}

void HomePage::showPlaying()
{
    const bool isPlaying = context().player.isPlaying();
    dressKey(*m_ui->playKey, theme(), Theme::Primary,
             isPlaying ? QStringLiteral("pause") : QStringLiteral("play"));
    m_ui->mediaTile->setIsRunning(isPlaying);
}

void HomePage::dressTile(SpHomeIcon &tile, const QSize &size)
{
    const Theme &t = theme();
    const int font = t.textPx(Theme::Body);
    const int fromBottom = size.height() - Arrangement(t, size.height()).captionMiddle;
    tile.setImageAlpha(kOwnPictures);
    tile.setTextInPic(true);
    tile.setFontSize(font);
    tile.setTextMargin(2 * (fromBottom - kCaptionRise) - font);
    for (const auto setColor : {&SpHomeIcon::setFontColor, &SpHomeIcon::setPressTextColor,
                                &SpHomeIcon::setRunningTextColor})
        (tile.*setColor)(t.text);
    const QColor faint = t.ink(Theme::Key, Theme::Disabled);
    tile.setGrayTextColor(faint);
    const QPixmap panel = t.panel(size, t.face, t.line, t.radius());
    const QPixmap pressed = t.panel(size, t.pressedFace, t.accent, t.radius());
    tile.setNormalImage(face(t, panel, tile.iconName(), t.accent));
    tile.setPressImage(face(t, pressed, tile.iconName(), t.accent));
    tile.setGrayImage(face(t, panel, tile.iconName(), faint));
    tile.setRunningImage(badge(t, size));
}

} // namespace headunit
