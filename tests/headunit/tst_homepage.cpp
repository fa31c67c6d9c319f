// SPDX-License-Identifier: Apache-2.0
#include "pages/home.h"

#include "pagetest.h"
#include "statusbar.h"
#include "touch.h"
#include "virtualtime.h"

#include <sphomeicon.h>
#include <splabel.h>

#include <QLabel>
#include <QSignalSpy>

using namespace headunit;

namespace
{

struct Home : PageWorld {
    Home()
    {
        Track track;
        track.path = folder.filePath(QStringLiteral("track.wav"));
        track.seconds = 100;
        track.hasCover = true;
        music.tracks()->setTracks({track});
        player.setModel(music.tracks());
        showPage(screen, page);
    }

    QString path() const { return folder.filePath(QStringLiteral("track.wav")); }
    QColor coverColor() const
    {
        auto *cover = page.findChild<SpLabel *>(QStringLiteral("cover"));
        const QImage picture = painted(*cover);
        return picture.pixelColor(picture.rect().center());
    }
    void readCover(const QString &path, int side, Qt::GlobalColor color)
    {
        QImage cover(side, side, QImage::Format_RGB32);
        cover.fill(color);
        emit music.coverRead(path, cover);
    }

    HomePage page{context};
};

} // namespace

class HomePageTest : public WidgetTest
{
    Q_OBJECT

private slots:
    void tilesOpenTheirPages_data();
    void tilesOpenTheirPages();
    void tileWithoutApplicationSaysSo();
    void tilesFillTheirGrid();
    void muteIsSeenAboveThePage();
    void stripShowsTheCover();
    void idlePageDoesNothing();
};

void HomePageTest::tilesOpenTheirPages_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"radio", "media", "phone", "sound", "settings"})
        QTest::addRow("%s", name) << QString::fromLatin1(name);
}

void HomePageTest::tilesOpenTheirPages()
{
    QFETCH(QString, name);
    Home home;
    const QSignalSpy wanted(&home.page, &Page::pageWanted);
    auto *tile = home.page.findChild<SpHomeIcon *>(name + QStringLiteral("Tile"));
    QVERIFY(tile->getIsReady());
    touch(tile).press(20, 20).hold(40).release().hold(0);
    QCOMPARE(wanted.count(), 1);
    QCOMPARE(wanted.first().first().toString(), name);
}

void HomePageTest::tileWithoutApplicationSaysSo()
{
    Home home;
    const QSignalSpy wanted(&home.page, &Page::pageWanted);
    const QSignalSpy popup(&home.page, &Page::popupWanted);
    auto *tile = home.page.findChild<SpHomeIcon *>(QStringLiteral("weatherTile"));
    touch(tile).press(20, 20).hold(40).release().hold(0);
    QCOMPARE(wanted.count(), 0);
    QCOMPARE(popup.count(), 1);
    QCOMPARE(popup.first().first().toString(), QStringLiteral("Weather"));
}

// Their edges are those of the strip below them.
void HomePageTest::tilesFillTheirGrid()
{
    const Home home;
    const QRect strip = home.page.findChild<QLabel *>(QStringLiteral("strip"))->geometry();
    const QRect first = home.page.findChild<SpHomeIcon *>(QStringLiteral("radioTile"))->geometry();
    const QRect last = home.page.findChild<SpHomeIcon *>(QStringLiteral("weatherTile"))->geometry();
    QCOMPARE(first.left(), strip.left());
    QVERIFY(strip.right() - last.right() < 4); // what the division leaves over
    QCOMPARE(first.size(), last.size());
}

void HomePageTest::muteIsSeenAboveThePage()
{
    Home home;
    StatusBar bar(home.context, &home.screen);
    bar.setTheme(Theme({1024, 600}, Theme::Day));
    bar.show();
    auto *sign = bar.findChild<QLabel *>(QStringLiteral("muteSign"));
    QVERIFY(!sign->isVisible());
    home.player.setMuted(true);
    QVERIFY(sign->isVisible());
    home.player.setMuted(false);
    QVERIFY(!sign->isVisible());
}

void HomePageTest::stripShowsTheCover()
{
    Home home;
    home.player.playRow(0);
    const QColor before = home.coverColor();
    home.readCover(QStringLiteral("another"), 200, Qt::red);
    QCOMPARE(home.coverColor(), before);
    home.readCover(home.path(), 200, Qt::green);
    QCOMPARE(home.coverColor(), QColor(Qt::green));
    home.readCover(home.path(), 30, Qt::red); // asked for by somebody who needs less
    QCOMPARE(home.coverColor(), QColor(Qt::green));
    home.page.setTheme(Theme({1024, 600}, Theme::Day));
    QCOMPARE(home.coverColor(), QColor(Qt::green));
}

void HomePageTest::idlePageDoesNothing()
{
    const Home home;
    QCOMPARE(happenedWhileIdle(), QString());
}

WIDGET_TEST_MAIN(HomePageTest)
#include "tst_homepage.moc"
