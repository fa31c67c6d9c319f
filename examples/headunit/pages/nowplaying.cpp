// SPDX-License-Identifier: Apache-2.0
#include "pages/nowplaying.h"

#include "dress.h"
#include "models/musiclibrary.h"
#include "models/player.h"
#include "texts.h"
#include "ui_nowplaying.h"

#include <multiplestatebutton.h>
#include <playbutton.h>

#include <QPainter>

#include <algorithm>

namespace headunit
{

namespace
{

enum GifState : int { Playing, Still };

constexpr qint64 kSecond = 1000; // ms

} // namespace

NowPlaying::NowPlaying(Context &context, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::NowPlaying>())
{
    m_ui->setupUi(this);
    m_ui->cover->setImageAlpha(0);
    m_ui->title->setAutoRoll(false);
    for (QLabel *label : {m_ui->elapsed, m_ui->remaining})
        label->setAttribute(Qt::WA_TransparentForMouseEvents); // they lie on the bar
    m_ui->equaliser->setGifState(Still);
    QSizePolicy place = m_ui->equaliser->sizePolicy();
    place.setRetainSizeWhenHidden(true); // the titles stay where they are
    m_ui->equaliser->setSizePolicy(place);
    connectPlayer();
    connectKeys();
    NowPlaying::retranslate();
}

NowPlaying::~NowPlaying() = default;

void NowPlaying::dress()
{
    const int side = theme().touch() + theme().px(24);
    m_ui->times->setFixedHeight(theme().touch() + theme().px(14));
    m_ui->keys->setFixedHeight(side);
    layout()->activate();
    dressPanel(*m_ui->panel, theme());
    const int inset = theme().inset();
    m_ui->track->setContentsMargins(inset, inset, inset, inset);
    const int cover = m_ui->panel->height() - 2 * inset;
    m_ui->cover->setFixedSize(cover, cover);
    m_ui->track->setSpacing(theme().margin());
    dressTitles();
    m_ui->track->activate();
    dressProgress();
    dressKeys();
    m_coverPath.clear();
    showTrack();
    showPosition();
    showPlaying();
}

void NowPlaying::retranslate()
{
    m_ui->retranslateUi(this);
    showTrack();
}

void NowPlaying::showEvent(QShowEvent *e)
{
    View::showEvent(e);
    showPlaying();
}

// What nobody sees does not move.
void NowPlaying::hideEvent(QHideEvent *e)
{
    View::hideEvent(e);
    showPlaying();
}

void NowPlaying::connectPlayer()
{
    const Player &player = context().player;
    connect(&player, &Player::trackChanged, this, &NowPlaying::showTrack);
    connect(&player, &Player::playingChanged, this, &NowPlaying::showPlaying);
    connect(&player, &Player::positionChanged, this, &NowPlaying::showPosition);
    connect(&player, &Player::durationChanged, this, &NowPlaying::showDuration);
    connect(&player, &Player::repeatChanged, this, &NowPlaying::showRepeat);
    connect(&player, &Player::shuffledChanged, this, &NowPlaying::showShuffle);
    connect(&context().music, &MusicLibrary::coverRead, this, &NowPlaying::showCover);
}

void NowPlaying::connectKeys()
{
    Player &player = context().player;
    connect(m_ui->previousKey, &SpIconButton::btnClicked, &player, &Player::previous);
    connect(m_ui->nextKey, &SpIconButton::btnClicked, &player, &Player::next);
    connect(m_ui->repeatKey, &SpMultipleButton::clicked, &player,
            [&player](int, int state) { player.setRepeat(Player::Repeat(state)); });
    connect(m_ui->progress, &MProgressBar::valueChangedSig, &player,
            [&player](int, int position) { player.seek(position); });
    connect(m_ui->progress, &MProgressBar::valueChanging, this,
            [this](int, int position) { m_ui->elapsed->setText(timeText(position / kSecond)); });
}

// The titles begin where the cover does, and the animation ends where it ends.
void NowPlaying::dressTitles()
{
    m_ui->titles->setSpacing(theme().px(8));
    m_ui->title->setFixedHeight(theme().textPx(Theme::Title) * 3 / 2);
    m_ui->title->setFont(theme().font(Theme::Title, true));
    m_ui->title->setFontSize(theme().textPx(Theme::Title));
    m_ui->title->setTextColor(theme().text);
    m_ui->title->setTextAlignment(leadingAlignment());
    m_ui->artist->setAlignment(leadingAlignment());
    m_ui->album->setAlignment(leadingAlignment());
    dressLabel(*m_ui->artist, theme(), Theme::Body);
    dressLabel(*m_ui->album, theme(), Theme::Body, true);
    m_ui->equaliser->setFixedSize(theme().px(64), theme().px(64));
    m_ui->equaliser->setGifImage(Theme::file(theme().look() == Theme::Day
                                                 ? QStringLiteral("equaliser-day.gif")
                                                 : QStringLiteral("equaliser-night.gif")));
}

// The bar reaches from edge to edge and is as high as a finger needs; the times lie under its ends.
void NowPlaying::dressProgress()
{
    for (QLabel *label : {m_ui->elapsed, m_ui->remaining})
        dressLabel(*label, theme(), Theme::Body, true);
    MProgressBar &bar = *m_ui->progress;
    bar.setFixedHeight(theme().touch());
    const QSize groove(m_ui->times->width(), theme().px(10));
    const int knob = theme().px(28);
    bar.setPonitRadius(knob / 2);
    bar.setSliderNormalImage(theme().panel(groove, theme().accent, {}, groove.height() / 2));
    bar.setSliderPressImage(theme().panel(groove, grooveColor(theme()), {}, groove.height() / 2));
    bar.setPointNormalImage(theme().panel({knob, knob}, theme().accent, {}, knob / 2));
    bar.setPointPressImage(theme().panel({knob, knob}, theme().text, {}, knob / 2));
}

void NowPlaying::dressKeys()
{
    const int side = m_ui->keys->height();
    m_ui->keyRow->setContentsMargins(0, 0, 0, 0);
    m_ui->keyRow->setSpacing(theme().gap());
    for (QWidget *place :
         {static_cast<QWidget *>(m_ui->previousKey), static_cast<QWidget *>(m_ui->nextKey),
          m_ui->playPlace, m_ui->shufflePlace, static_cast<QWidget *>(m_ui->repeatKey)})
        place->setFixedSize(side, side);
    dressKey(*m_ui->previousKey, theme(), Theme::Key, QStringLiteral("previous"));
    dressKey(*m_ui->nextKey, theme(), Theme::Key, QStringLiteral("next"));

    QList<QPixmap> normal;
    QList<QPixmap> pressed;
    for (const char *icon : {"repeat-off", "repeat-all", "repeat-one"}) {
        const bool isOn = !normal.isEmpty();
        normal << modeFace(QLatin1String(icon), Theme::Normal, isOn);
        pressed << modeFace(QLatin1String(icon), Theme::Pressed, isOn);
    }
    m_ui->repeatKey->setPixmapList(normal, pressed);
    showRepeat();
    makePlayKeys(side);
    makeShuffleKey();
}

// That of a key for a mode: the play key is the only filled one.
QPixmap NowPlaying::modeFace(const QString &icon, Theme::State state, bool isOn) const
{
    const int side = m_ui->keys->height();
    const int size = theme().px(40);
    QPixmap face = theme().key({side, side}, Theme::Key, state);
    QPainter(&face).drawPixmap((side - size) / 2, (side - size) / 2,
                               theme().icon(icon, size, isOn ? theme().accent : theme().text));
    return face;
}

// Keys that are given files are made anew in each look.
void NowPlaying::makePlayKeys(int side)
{
    delete m_play;
    delete m_pause;
    m_play = makePlayKey(QStringLiteral("play"), side);
    m_pause = makePlayKey(QStringLiteral("pause"), side);
}

PlayButton *NowPlaying::makePlayKey(const QString &icon, int side)
{
    const auto file = [&](const QString &name, Theme::State state) {
        const QPixmap face = theme().key({side, side}, Theme::Primary, state, icon, theme().px(48));
        return m_files.write(name, face);
    };
    auto *key =
        new PlayButton(0, 0, 0, file(icon, Theme::Normal),
                       file(icon + QStringLiteral("-pressed"), Theme::Pressed), m_ui->playPlace);
    key->setObjectName(icon + QStringLiteral("Key"));
    connect(key, &PlayButton::clicked, &context().player, &Player::toggle);
    return key;
}

void NowPlaying::makeShuffleKey()
{
    if (m_shuffle)
        m_shuffle->deleteLater(); // it may be saying that it was touched
    const auto file = [this](bool isOn, Theme::State state, const char *ending) {
        const QString icon = isOn ? QStringLiteral("shuffle-on") : QStringLiteral("shuffle-off");
        return m_files.write(icon + QLatin1String(ending), modeFace(icon, state, isOn));
    };
    m_shuffle = new MultipleStateButton(
        0, 0, 0, {file(false, Theme::Normal, ""), file(true, Theme::Normal, "")},
        {file(false, Theme::Pressed, "-pressed"), file(true, Theme::Pressed, "-pressed")}, {},
        m_ui->shufflePlace);
    m_shuffle->setObjectName(QStringLiteral("shuffleKey"));
    connect(m_shuffle, &MultipleStateButton::clicked, &context().player,
            [this](int, int state) { context().player.setShuffled(state == 1); });
    m_shuffle->show();
    if (context().player.isShuffled())
        m_shuffle->setButtonValue(1);
}

void NowPlaying::showTrack()
{
    const Track track = context().player.track();
    const bool isSomething = !track.path.isEmpty();
    showRolling(*m_ui->title, isSomething ? track.title : tr("Nothing is playing"));
    m_ui->artist->setText(isSomething ? track.artist : tr("Choose a track or a folder"));
    m_ui->album->setText(track.album);
    m_ui->progress->setEnabled(isSomething);
    if (m_coverPath.isNull() || m_coverPath != track.path) {
        m_coverPath = track.path.isNull() ? QLatin1String("") : track.path;
        showCover(m_coverPath, {});
        const bool isDressed = m_play; // before, the cover has no size of its own
        if (track.hasCover && isDressed)
            context().music.requestCover(track.path, m_ui->cover->size());
    }
    showDuration();
}

// A null cover is that of a track without one.
void NowPlaying::showCover(const QString &path, const QImage &cover)
{
    const QSize size = m_ui->cover->size();
    if (path != m_coverPath || size.isEmpty())
        return;
    const QImage shown =
        cover.isNull() ? theme().drawing(QStringLiteral("cover"), size).toImage() : cover;
    m_ui->cover->setImage(theme().rounded(shown, size));
}

void NowPlaying::showPlaying()
{
    const bool isPlaying = context().player.isPlaying();
    const bool isMoving = isPlaying && isVisible();
    if (m_play)
        m_play->setVisible(!isPlaying);
    if (m_pause)
        m_pause->setVisible(isPlaying);
    m_ui->equaliser->setVisible(isPlaying);
    m_ui->equaliser->setGifState(isMoving ? Playing : Still);
    if (m_ui->title->autoRoll() != isMoving)
        m_ui->title->setAutoRoll(isMoving);
}

void NowPlaying::showPosition()
{
    const qint64 position = context().player.position();
    m_ui->progress->setRealValue(int(position));
    m_ui->elapsed->setText(timeText(position / kSecond));
    const qint64 remaining = context().player.duration() - position;
    const QString sign = remaining >= kSecond ? QString(kMinus) : QString();
    m_ui->remaining->setText(sign + timeText(remaining / kSecond));
}

void NowPlaying::showDuration()
{
    const int most = int(std::max<qint64>(context().player.duration(), 1));
    if (m_ui->progress->maxValue() != most)
        m_ui->progress->setMaxValue(most);
    showPosition();
}

void NowPlaying::showRepeat() { m_ui->repeatKey->setCurrentValue(int(context().player.repeat())); }

// The key cannot be told to go back to its first state: then another one takes its place.
void NowPlaying::showShuffle()
{
    if (!m_shuffle || (m_shuffle->getButtonValue() == 1) == context().player.isShuffled())
        return;
    makeShuffleKey();
}

} // namespace headunit
