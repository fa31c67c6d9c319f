// SPDX-License-Identifier: Apache-2.0
#include "pages/media.h"

#include "pagetest.h"
#include "sidekeys.h"
#include "touch.h"
#include "virtualtime.h"

#include <MArcList>
#include <MArcScrollBar>
#include <MGifPlay>
#include <MProgressBar>
#include <MultipleStateButton>
#include <PlayButton>
#include <SpMultipleButton>
#include <SpTableList>

#include <QFile>
#include <QSignalSpy>

using namespace headunit;

namespace
{

constexpr int kTap = 40; // ms that a finger rests, enough for a list to take it as a tap
constexpr int kTracks = 260; // ten for each letter

// The player asks whether there is a file, and no more of it.
QVector<Track> alphabet(const QTemporaryDir &folder)
{
    QVector<Track> tracks;
    for (int i = 0; i < kTracks; ++i) {
        Track track;
        track.path = folder.filePath(QStringLiteral("%1.wav").arg(i));
        QFile(track.path).open(QIODevice::WriteOnly);
        track.title = QStringLiteral("%1 piece %2").arg(QChar('A' + i / 10)).arg(i % 10);
        track.seconds = 100;
        track.isRead = true;
        tracks.append(track);
    }
    return tracks;
}

struct Media : PageWorld {
    Media()
    {
        music.tracks()->setTracks(alphabet(folder));
        player.setModel(music.tracks());
        showPage(screen, page);
    }

    template <typename Widget> Widget *child(const char *name)
    {
        return page.findChild<Widget *>(QLatin1String(name));
    }
    void openTracks()
    {
        const auto keys = child<SideKeys>("sideKeys");
        emit keys->chosen(1);
        virtualtime::advance(0);
    }
    void tapRow(int row)
    {
        auto *list = child<SpTableList>("list");
        const QPoint place = list->visualRect(list->model()->index(row, 0)).center();
        touch(list->viewport()).press(place).hold(kTap).release().hold(200);
    }
    int topRow() { return child<SpTableList>("list")->rowAt(0); }

    MediaPage page{context};
};

} // namespace

class tst_MediaPage : public WidgetTest
{
    Q_OBJECT

private slots:
    void fingerThatRestsShowsItsRowPressed();
    void tapOnARowPlaysIt();
    void playingRowIsMarked();
    void dragOfTheBarSeeks();
    void repeatKeyAndPlayerFollowEachOther();
    void shuffleKeyAndPlayerFollowEachOther();
    void playKeyShowsWhatItDoes();
    void letterScrollsTheList();
    void arcScrollBarScrollsTheList();
    void arcsFollowTheList();
    void dragOfTheListIsNotRounded();
    void coverIsAskedForWhenItHasItsSize();
    void animationMovesOnlyWhileMusicPlays();
    void rowsAreAsWideAsTheirList();
    void fewLettersTakeNoRoom();
    void nothingHappensWhileIdle();
};

void tst_MediaPage::fingerThatRestsShowsItsRowPressed()
{
    Media media;
    media.openTracks();
    media.openTracks(); // as often as one likes
    auto *list = media.child<SpTableList>("list");
    const QRect row = list->visualRect(list->model()->index(1, 0));
    const auto picture = [&] { return list->viewport()->grab(row).toImage(); };
    const QImage resting = picture();
    Touch finger = touch(list->viewport());
    finger.press(row.center()).hold(700);
    QVERIFY(picture() != resting);
    finger.release();
}

void tst_MediaPage::tapOnARowPlaysIt()
{
    Media media;
    media.openTracks();
    media.tapRow(2);
    QVERIFY(media.player.isPlaying());
    QCOMPARE(media.player.row(), 2);
}

void tst_MediaPage::playingRowIsMarked()
{
    Media media;
    media.openTracks();
    auto *list = media.child<SpTableList>("list");
    const QRect place = list->visualRect(list->model()->index(2, 0));
    const auto picture = [&] { return list->viewport()->grab(place).toImage(); };
    const QImage before = picture();
    media.player.playRow(2);
    QVERIFY(picture() != before);
    const int repaints = paints(*list->viewport(), [&] { media.player.playRow(300); });
    QCOMPARE(repaints, 0); // there is no such row
    QVERIFY(paints(*list->viewport(), [&] { media.player.playRow(200); }) > 0);
    QCOMPARE(picture(), before);
}

void tst_MediaPage::dragOfTheBarSeeks()
{
    Media media;
    media.player.playRow(0);
    media.player.pause();
    auto *bar = media.child<MProgressBar>("progress");
    const int middle = bar->width() / 2;
    touch(bar).press(20, bar->height() / 2).moveTo(middle, bar->height() / 2).release();
    QVERIFY(qAbs(media.player.position() - 50'000) < 1000);
    QCOMPARE(qint64(bar->realValue()), media.player.position());
}

void tst_MediaPage::repeatKeyAndPlayerFollowEachOther()
{
    Media media;
    auto *key = media.child<SpMultipleButton>("repeatKey");
    QCOMPARE(key->currentValue(), int(Player::Repeat::All));
    touch(key).tap(30, 30);
    QCOMPARE(media.player.repeat(), Player::Repeat::One);
    touch(key).tap(30, 30);
    QCOMPARE(media.player.repeat(), Player::Repeat::Off);
    media.player.setRepeat(Player::Repeat::One);
    QCOMPARE(key->currentValue(), int(Player::Repeat::One));
}

void tst_MediaPage::shuffleKeyAndPlayerFollowEachOther()
{
    Media media;
    const auto key = [&] {
        virtualtime::advance(0); // a key that has been replaced is gone then
        return media.child<MultipleStateButton>("shuffleKey");
    };
    touch(key()).tap(30, 30);
    QVERIFY(media.player.isShuffled());
    media.player.setShuffled(false);
    QCOMPARE(key()->getButtonValue(), 0);
    media.player.setShuffled(true);
    QCOMPARE(key()->getButtonValue(), 1);
    touch(key()).tap(30, 30);
    QVERIFY(!media.player.isShuffled());
}

void tst_MediaPage::playKeyShowsWhatItDoes()
{
    Media media;
    auto *play = media.child<PlayButton>("playKey");
    auto *pause = media.child<PlayButton>("pauseKey");
    QVERIFY(play->isVisible() && !pause->isVisible());
    touch(play).tap(30, 30);
    QVERIFY(media.player.isPlaying());
    QVERIFY(!play->isVisible() && pause->isVisible());
    touch(pause).tap(30, 30);
    QVERIFY(!media.player.isPlaying());
    QVERIFY(play->isVisible() && !pause->isVisible());
}

void tst_MediaPage::letterScrollsTheList()
{
    Media media;
    media.openTracks();
    auto *arc = media.page.findChild<MArcList *>();
    emit arc->itemClicked('H');
    QCOMPARE(media.topRow(), 70);
    const int x = int(arc->radius());
    touch(arc).tap(x, arc->height() / 2 + 20); // the current letter is in the middle
    QCOMPARE(media.topRow(), 70);
    touch(arc).tap(x - 3, arc->height() / 2 + 80); // and the next one below it
    QCOMPARE(media.topRow(), 80);
}

void tst_MediaPage::arcScrollBarScrollsTheList()
{
    Media media;
    media.openTracks();
    auto *bar = media.page.findChild<MArcScrollBar *>();
    const QScrollBar *place = media.child<SpTableList>("list")->verticalScrollBar();
    touch(bar).press(bar->width() - 20, bar->height() - 40);
    QVERIFY(place->value() > place->maximum() * 8 / 10);
    QCOMPARE(place->value(), qRound(double(bar->value()) * place->maximum() / bar->maximum()));
}

void tst_MediaPage::arcsFollowTheList()
{
    Media media;
    media.openTracks();
    auto *list = media.child<SpTableList>("list");
    auto *bar = media.page.findChild<MArcScrollBar *>();
    auto *arc = media.page.findChild<MArcList *>();
    list->scrollTo(list->model()->index(105, 0), QAbstractItemView::PositionAtTop);
    QCOMPARE(arc->startAngle(), -10 * arc->itemHight()); // K is in the middle
    const QScrollBar *place = list->verticalScrollBar();
    QCOMPARE(bar->value(), qRound(double(place->value()) * bar->maximum() / place->maximum()));
}

void tst_MediaPage::dragOfTheListIsNotRounded()
{
    Media media;
    media.openTracks();
    auto *place = media.child<SpTableList>("list")->verticalScrollBar();
    for (int value = 1000; value < 1300; value += 7) {
        place->setValue(value);
        QCOMPARE(place->value(), value);
    }
}

void tst_MediaPage::coverIsAskedForWhenItHasItsSize()
{
    PageWorld world;
    MediaPage page(world.context);
    QVector<Track> tracks = alphabet(world.folder);
    tracks.first().hasCover = true;
    world.music.tracks()->setTracks(tracks);
    world.player.setModel(world.music.tracks());
    const QSignalSpy covers(&world.music, &MusicLibrary::coverRead);
    world.player.playRow(0);
    QVERIFY(!world.music.isReadingCovers());
    showPage(world.screen, page);
    QVERIFY(world.music.isReadingCovers() || covers.count() > 0);
}

void tst_MediaPage::animationMovesOnlyWhileMusicPlays()
{
    Media media;
    auto *animation = media.child<MGifPlay>("equaliser");
    QCOMPARE(animation->getGifState(), 1);
    media.player.playRow(0);
    QCOMPARE(animation->getGifState(), 0);
    media.openTracks();
    QCOMPARE(animation->getGifState(), 1);
    emit media.child<SideKeys>("sideKeys")->chosen(0);
    QCOMPARE(animation->getGifState(), 0);
    media.player.pause();
    QCOMPARE(animation->getGifState(), 1);
}

// With the letters beside the rows and without them, also when it was another view that was shown
// at the moment of the change.
void tst_MediaPage::rowsAreAsWideAsTheirList()
{
    Media media;
    auto *list = media.child<SpTableList>("list");
    const auto keys = media.child<SideKeys>("sideKeys");
    media.openTracks();
    const int beside = list->width();
    QVERIFY(beside < list->parentWidget()->width() - 100);
    QCOMPARE(list->columnWidth(0), beside);
    emit keys->chosen(0);
    emit keys->chosen(2);
    QVERIFY(list->width() > beside + 100);
    QCOMPARE(list->columnWidth(0), list->width());
    emit keys->chosen(0);
    emit keys->chosen(1);
    QCOMPARE(list->width(), beside);
    QCOMPARE(list->columnWidth(0), beside);
}

void tst_MediaPage::fewLettersTakeNoRoom()
{
    Media media;
    auto *index = media.page.findChild<MArcList *>()->parentWidget();
    auto *list = media.child<SpTableList>("list");
    media.openTracks();
    QVERIFY(index->isVisible());
    media.music.tracks()->setTracks(alphabet(media.folder).mid(0, 70)); // seven letters
    QVERIFY(!index->isVisible());
    QVERIFY(list->width() > list->parentWidget()->width() - 20);
    QCOMPARE(list->columnWidth(0), list->width());
    media.music.tracks()->setTracks(alphabet(media.folder).mid(0, 80));
    QVERIFY(index->isVisible());
}

void tst_MediaPage::nothingHappensWhileIdle()
{
    Media media;
    Track track = media.music.tracks()->track(0);
    track.title = QString(20, QLatin1Char('W')) + QStringLiteral(" is too wide to be seen whole");
    media.music.tracks()->setTracks({track});
    for (const bool hasPlayed : {false, true}) {
        if (hasPlayed)
            media.player.playRow(0);
        media.player.pause();
        for (const int view : {0, 1, 2}) {
            emit media.child<SideKeys>("sideKeys")->chosen(view);
            QCOMPARE(happenedWhileIdle(), QString());
        }
    }
}

WIDGET_TEST_MAIN(tst_MediaPage)
#include "tst_mediapage.moc"
