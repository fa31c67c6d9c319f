// SPDX-License-Identifier: Apache-2.0
#include <MGifPlay>

#include "allocations.h"
#include "files.h"
#include "gifs.h"
#include "parent.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTemporaryDir>

#include <climits>
#include <memory>

namespace
{

constexpr int kPlaying = 0;
constexpr int kStopped = 1;
constexpr QSize kSize(61, 45); // px, of the player: no multiple of that of the frames

using Action = std::function<void(MGifPlay &)>;

// Handlers are called with what a subclass may hand them.
class Handlers : public MGifPlay
{
public:
    using MGifPlay::mouseReleaseEvent;
};

// The picture of a player that shows this frame.
QImage shown(const MGifPlay &player, const QImage &frame)
{
    return reference(player, [&](QPainter &p) {
        const QPixmap pixmap = QPixmap::fromImage(frame);
        p.drawPixmap(QRectF(QPointF(), QSizeF(player.size())), pixmap, QRectF(pixmap.rect()));
    });
}

QImage nothing(const MGifPlay &player)
{
    return reference(player, [](QPainter &) {});
}

// How many files this program has open, once what waits to be deleted is gone.
int openFiles()
{
    virtualtime::advance(0);
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::System | QDir::AllEntries).size();
}

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_MGifPlay : public WidgetTest
{
    Q_OBJECT

    QTemporaryDir m_folder;
    const QVector<QImage> m_frames = gifFrames(4);

    QString file(const QString &name, const QByteArray &bytes) const
    {
        return writtenFile(m_folder.filePath(name), bytes);
    }

    // Four frames of 100 ms each.
    QString animation(int rounds = 0) const
    {
        return file(QStringLiteral("four-%1.gif").arg(rounds), gifOf(m_frames, {100, rounds}));
    }

    std::unique_ptr<MGifPlay> makePlayer(QWidget *parent = nullptr) const
    {
        auto player = std::make_unique<MGifPlay>(parent);
        player->resize(kSize);
        player->setGifImage(animation());
        return player;
    }

    // The number of the frame that the player shows; -1 for none.
    int frameOf(MGifPlay &player) const
    {
        const QImage picture = painted(player);
        for (int i = 0; i < m_frames.size(); ++i) {
            if (picture == shown(player, m_frames[i]))
                return i;
        }
        return -1;
    }

private slots:
    void defaults()
    {
        MGifPlay player;
        QCOMPARE(player.gifImage(), QString());
        QCOMPARE(player.gifSpeed(), 100);
        QCOMPARE(player.getGifState(), kPlaying);
        QVERIFY(player.findChildren<QObject *>().isEmpty());
        player.resize(kSize);
        COMPARE_PICTURES(painted(player), nothing(player));
    }

    // Raising is what makes Qt create a widget under a parent that has been.
    void itStandsAboveItsSiblings()
    {
        QWidget window;
        QWidget sibling(&window);
        show(window);
        MGifPlay player(&window);
        QVERIFY(player.testAttribute(Qt::WA_WState_Created));
        QCOMPARE(window.children().last(), &player);
    }

    void everyPropertyKeepsWhatItIsGiven()
    {
        MGifPlay player;
        for (const QString &path :
             {QStringLiteral("/absent.gif"), QStringLiteral("x"), QString()}) {
            player.setProperty("gifImage", path);
            QCOMPARE(player.property("gifImage").toString(), path);
            QCOMPARE(player.gifImage(), path);
        }
        for (int speed : {0, 1, 99, 250, -1, INT_MAX, INT_MIN}) {
            player.setProperty("gifSpeed", speed);
            QCOMPARE(player.property("gifSpeed").toInt(), speed);
            QCOMPARE(player.gifSpeed(), speed);
        }
    }

    // --- Playing --------------------------------------------------------------------------------

    void theFirstFrameIsThereAtOnceStretchedOverTheWidget()
    {
        const auto player = makePlayer();
        COMPARE_PICTURES(painted(*player), shown(*player, m_frames[0]));
        QCOMPARE(player->getGifState(), kPlaying);
    }

    void eachFrameStaysForItsTimeAndTheLastIsFollowedByTheFirst()
    {
        const auto player = makePlayer();
        for (int round = 0; round < 3; ++round) {
            for (const QImage &frame : m_frames) {
                COMPARE_PICTURES(painted(*player), shown(*player, frame));
                virtualtime::advance(99);
                COMPARE_PICTURES(painted(*player), shown(*player, frame));
                virtualtime::advance(1);
            }
        }
        QCOMPARE(player->getGifState(), kPlaying);
    }

    void eachFrameRepaintsOnce()
    {
        const auto player = makePlayer();
        show(*player);
        QCOMPARE(paints(*player, [] { virtualtime::advance(99); }), 0);
        QCOMPARE(paints(*player, [] { virtualtime::advance(1); }), 1);
        QCOMPARE(paints(*player, [] { virtualtime::advance(1000); }), 10);
    }

    void aFrameThatIsPaintedAgainLooksTheSame()
    {
        const auto player = makePlayer();
        player->setGifState(kStopped);
        for (const QSize &size : {kSize, m_frames[0].size(), QSize(5, 90), QSize(1, 1), kSize}) {
            player->resize(size);
            for (int i = 0; i < 4; ++i)
                COMPARE_PICTURES(painted(*player), shown(*player, m_frames[0]));
        }
    }

    void aFrameIsStretchedOnTheWholePixelsOfAWindow()
    {
        QWidget window;
        const auto player = makePlayer(&window);
        player->setGifState(kStopped);
        player->move(7, 3);
        window.resize(80, 60);
        const auto expected = reference(window, [&](QPainter &p) {
            p.drawPixmap(QRectF(QPointF(7, 3), kSize), QPixmap::fromImage(m_frames[0]),
                         QRectF(m_frames[0].rect()));
        });
        for (int i = 0; i < 3; ++i)
            COMPARE_PICTURES(painted(window), expected);
    }

    void anAnimationPlaysAsOftenAsItsFileSays()
    {
        MGifPlay player;
        player.resize(kSize);
        player.setGifImage(animation(2));
        virtualtime::advance(799);
        QCOMPARE(player.getGifState(), kPlaying);
        virtualtime::advance(1);
        QCOMPARE(player.getGifState(), kStopped);
        QCOMPARE(frameOf(player), 3);
        virtualtime::advance(10000);
        QCOMPARE(frameOf(player), 3);
    }

    void aStillImagePlaysForOneFrameAndThenNothingTicks()
    {
        MGifPlay player;
        player.resize(kSize);
        player.setGifImage(file(QStringLiteral("one.gif"), gifOf(gifFrames(1), {100, 1})));
        show(player);
        QCOMPARE(player.getGifState(), kPlaying);
        QCOMPARE(paints(player, [] { virtualtime::advance(60000); }), 0);
        QCOMPARE(player.getGifState(), kStopped);
        COMPARE_PICTURES(painted(player), shown(player, gifFrames(1)[0]));
    }

    void aSingleFrameMayBeRepeatedWithoutEnd()
    {
        MGifPlay player;
        player.resize(kSize);
        player.setGifImage(file(QStringLiteral("again.gif"), gifOf(gifFrames(1))));
        virtualtime::advance(60000);
        QCOMPARE(player.getGifState(), kPlaying);
        COMPARE_PICTURES(painted(player), shown(player, gifFrames(1)[0]));
    }

    void aThousandFramesPlayInOrder()
    {
        const QVector<QImage> frames = gifFrames(1000);
        MGifPlay player;
        player.resize(kSize);
        player.setGifImage(file(QStringLiteral("thousand.gif"), gifOf(frames, {20, 0})));
        for (int i = 0; i < 1000; ++i) {
            if (i % 111 == 0)
                COMPARE_PICTURES(painted(player), shown(player, frames[i]));
            virtualtime::advance(20);
        }
        COMPARE_PICTURES(painted(player), shown(player, frames[0]));
    }

    // --- Setters --------------------------------------------------------------------------------

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        const QString path = animation();
        row("gifImage", 1, [path](auto &p) { p.setGifImage(path); });
        row("gifImage unreadable", 1, [](auto &p) { p.setGifImage(QStringLiteral("/absent")); });
        row("gifImage of two characters", 1, [](auto &p) { p.setGifImage(QStringLiteral("zz")); });
        row("gifImage of one character", 0, [](auto &p) { p.setGifImage(QStringLiteral("z")); });
        row("gifImage empty", 0, [](auto &p) { p.setGifImage(QString()); });
        row("gifSpeed", 0, [](auto &p) { p.setGifSpeed(200); });
        row("gifSpeed 0", 0, [](auto &p) { p.setGifSpeed(0); });
        row("stopped", 0, [](auto &p) { p.setGifState(kStopped); });
        row("played while playing", 0, [](auto &p) { p.setGifState(kPlaying); });
        row("stopped and played", 1, [](auto &p) {
            p.setGifState(kStopped);
            p.setGifState(kPlaying);
        });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot() { checkRepaints(*makePlayer()); }

    void aShortPathIsStoredAndWhatPlaysPlaysOn()
    {
        for (const QString &path : {QString(), QStringLiteral("x")}) {
            const auto player = makePlayer();
            virtualtime::advance(100);
            player->setGifImage(path);
            QCOMPARE(player->gifImage(), path);
            QCOMPARE(player->getGifState(), kPlaying);
            QCOMPARE(frameOf(*player), 1);
            virtualtime::advance(100);
            QCOMPARE(frameOf(*player), 2);
        }
    }

    void aPathOfTwoCharactersIsLookedFor()
    {
        const auto player = makePlayer();
        player->setGifImage(QStringLiteral("zz"));
        QCOMPARE(player->getGifState(), kStopped);
        COMPARE_PICTURES(painted(*player), nothing(*player));
    }

    void anotherFileTakesThePlaceOfTheFirst()
    {
        const auto player = makePlayer();
        virtualtime::advance(200);
        QCOMPARE(frameOf(*player), 2);
        player->setGifImage(animation()); // the same starts again
        QCOMPARE(frameOf(*player), 0);
        virtualtime::advance(99);
        QCOMPARE(frameOf(*player), 0);
        virtualtime::advance(1);
        QCOMPARE(frameOf(*player), 1);
        player->setGifImage(file(QStringLiteral("one.gif"), gifOf(gifFrames(1), {100, 1})));
        show(*player);
        QCOMPARE(paints(*player, [] { virtualtime::advance(5000); }), 0); // the first is over
    }

    // Outside of an event loop nothing is deleted that waits for it.
    void whatHasBeenReplacedStandsStillEvenBeforeItIsDeleted()
    {
        MGifPlay player;
        player.resize(kSize);
        show(player);
        player.setGifSpeed(INT_MAX); // a frame each time that events are processed
        player.setGifImage(animation());
        player.setGifImage(file(QStringLiteral("one.gif"), gifOf(gifFrames(1), {100, 1})));
        QCoreApplication::processEvents();
        QCOMPARE(paints(player,
                        [] {
                            for (int i = 0; i < 10; ++i)
                                QCoreApplication::processEvents();
                        }),
                 0);
    }

    void manyFilesInARowLeaveOneOpen()
    {
        const int before = openFiles();
        {
            const auto player = makePlayer();
            const int withOne = openFiles();
            QVERIFY(withOne > before);
            for (int i = 0; i < 100; ++i)
                player->setGifImage(animation());
            QCOMPARE(openFiles(), withOne);
        }
        QCOMPARE(openFiles(), before);
    }

    // --- Speed ----------------------------------------------------------------------------------

    void theSpeedMayBeSetBeforeTheFile()
    {
        MGifPlay player;
        player.resize(kSize);
        player.setGifSpeed(200);
        player.setGifImage(animation());
        virtualtime::advance(49);
        QCOMPARE(frameOf(player), 0);
        virtualtime::advance(1);
        QCOMPARE(frameOf(player), 1);
        virtualtime::advance(50);
        QCOMPARE(frameOf(player), 2);
    }

    void theSpeedOfAPlayingAnimationCountsFromTheNextFrameOn()
    {
        const auto player = makePlayer();
        player->setGifSpeed(50);
        virtualtime::advance(100);
        QCOMPARE(frameOf(*player), 1);
        virtualtime::advance(190); // Qt's coarse timers are up to 5 % early or late
        QCOMPARE(frameOf(*player), 1);
        virtualtime::advance(20);
        QCOMPARE(frameOf(*player), 2);
    }

    void theSpeedGoesOverToTheNextFile()
    {
        const auto player = makePlayer();
        player->setGifSpeed(200);
        player->setGifImage(animation());
        virtualtime::advance(50);
        QCOMPARE(frameOf(*player), 1);
    }

    void atSpeedZeroTheFrameStaysThoughTheStateIsPlaying()
    {
        MGifPlay player;
        player.resize(kSize);
        player.setGifSpeed(0);
        player.setGifImage(animation());
        virtualtime::advance(5000);
        QCOMPARE(frameOf(player), 0);
        QCOMPARE(player.getGifState(), kPlaying);
        player.setGifSpeed(100);
        virtualtime::advance(200);
        QVERIFY(frameOf(player) > 0);
    }

    void extremeSpeedsAreAsFastOrAsSlowAsCanBe()
    {
        for (int speed : {-1, INT_MIN, INT_MAX}) {
            MGifPlay player;
            player.resize(kSize);
            player.setGifSpeed(speed);
            player.setGifImage(animation());
            for (int frame = 1; frame <= 6; ++frame) { // without any delay, and no two at once
                QCoreApplication::processEvents();
                QCOMPARE(frameOf(player), frame % 4);
            }
        }
        MGifPlay slow;
        slow.resize(kSize);
        slow.setGifSpeed(1);
        slow.setGifImage(animation());
        virtualtime::advance(9999);
        QCOMPARE(frameOf(slow), 0);
        virtualtime::advance(1);
        QCOMPARE(frameOf(slow), 1);
    }

    // --- State ----------------------------------------------------------------------------------

    void withoutAFileTheStateIsAlwaysPlaying()
    {
        MGifPlay player;
        for (int state : {kStopped, kPlaying, 7}) {
            player.setGifState(state);
            QCOMPARE(player.getGifState(), kPlaying);
        }
        player.setGifImage(QStringLiteral("x"));
        QCOMPARE(player.getGifState(), kPlaying);
    }

    void anyStateButZeroStops()
    {
        const auto player = makePlayer();
        for (int state : {kStopped, 2, -1, INT_MAX, INT_MIN}) {
            player->setGifState(state);
            QCOMPARE(player->getGifState(), kStopped);
            player->setGifState(kPlaying);
            QCOMPARE(player->getGifState(), kPlaying);
        }
    }

    void aStoppedAnimationKeepsItsFrameAndThenBeginsAnew()
    {
        const auto player = makePlayer();
        virtualtime::advance(200);
        player->setGifState(kStopped);
        virtualtime::advance(5000);
        QCOMPARE(frameOf(*player), 2);
        player->setGifState(kPlaying);
        QCOMPARE(frameOf(*player), 0);
        virtualtime::advance(100);
        QCOMPARE(frameOf(*player), 1);
    }

    void anAnimationThatHasEndedMayBePlayedAgain()
    {
        MGifPlay player;
        player.resize(kSize);
        player.setGifImage(animation(1));
        virtualtime::advance(400);
        QCOMPARE(player.getGifState(), kStopped);
        player.setGifState(kPlaying);
        QCOMPARE(player.getGifState(), kPlaying);
        QCOMPARE(frameOf(player), 0);
        virtualtime::advance(399);
        QCOMPARE(player.getGifState(), kPlaying);
        virtualtime::advance(1);
        QCOMPARE(player.getGifState(), kStopped);
    }

    // --- Hidden ---------------------------------------------------------------------------------

    void aHiddenAnimationPlaysOn()
    {
        const auto player = makePlayer();
        show(*player);
        virtualtime::advance(100);
        player->hide();
        virtualtime::advance(500);
        QCOMPARE(frameOf(*player), 2);
        QCOMPARE(player->getGifState(), kPlaying);
        virtualtime::advance(50);
        show(*player);
        virtualtime::advance(49);
        QCOMPARE(frameOf(*player), 2);
        virtualtime::advance(1);
        QCOMPARE(frameOf(*player), 3);
    }

    void aHiddenAnimationThatPlaysOnceEnds()
    {
        MGifPlay player;
        player.resize(kSize);
        player.setGifImage(animation(1));
        show(player);
        virtualtime::advance(100);
        player.hide();
        virtualtime::advance(299);
        QCOMPARE(player.getGifState(), kPlaying);
        virtualtime::advance(1);
        QCOMPARE(player.getGifState(), kStopped);
        show(player);
        virtualtime::advance(1000);
        QCOMPARE(player.getGifState(), kStopped);
        QCOMPARE(frameOf(player), 3);
    }

    void anAnimationThatHasNeverBeenShownPlays()
    {
        QWidget window;
        const auto player = makePlayer(&window);
        virtualtime::advance(100);
        QCOMPARE(frameOf(*player), 1);
    }

    void aHiddenAnimationIsStoppedAndPlayedAsAnyOther()
    {
        const auto player = makePlayer();
        show(*player);
        player->hide();
        virtualtime::advance(200);
        player->setGifState(kStopped);
        QCOMPARE(player->getGifState(), kStopped);
        virtualtime::advance(1000);
        QCOMPARE(frameOf(*player), 2);
        player->setGifState(kPlaying);
        QCOMPARE(player->getGifState(), kPlaying);
        QCOMPARE(frameOf(*player), 0);
        virtualtime::advance(100);
        QCOMPARE(frameOf(*player), 1);
        player->setGifImage(animation(2));
        QCOMPARE(frameOf(*player), 0);
        virtualtime::advance(100);
        QCOMPARE(frameOf(*player), 1);
    }

    // --- Files ----------------------------------------------------------------------------------

    void anUnreadableFileShowsNothingAndSaysNothing_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("absent") << m_folder.filePath(QStringLiteral("absent.gif"));
        QTest::newRow("absent resource") << QStringLiteral(":/absent.gif");
        QTest::newRow("text") << file(QStringLiteral("text.gif"), "not an animation");
        QTest::newRow("empty") << file(QStringLiteral("empty.gif"), "");
        QTest::newRow("directory") << m_folder.path();
        const QString named = m_folder.filePath(QStringLiteral("folder.gif"));
        QDir().mkpath(named);
        QTest::newRow("directory named .gif") << named;
        QTest::newRow("header only") << file(QStringLiteral("header.gif"), gifOf({}));
        QTest::newRow("no pixels")
            << file(QStringLiteral("flat.gif"), gifOf({QImage(0, 0, QImage::Format_RGB32)}));
        for (int length : {2, 1022, 1023, 1024, 1000000}) {
            QTest::addRow("%d characters", length) << QString(length, QLatin1Char('x'));
            QTest::addRow("%d line feeds", length) << QString(length, QLatin1Char('\n'));
            QTest::addRow("%d wide characters", length) << QString(length, QChar(0x5b57));
            QTest::addRow("%d lone surrogates", length) << QString(length, QChar(0xd800));
            QTest::addRow("%d zeros", length) << QString(length, QChar(0));
        }
    }

    void anUnreadableFileShowsNothingAndSaysNothing()
    {
        QFETCH(QString, path);
        MGifPlay player;
        player.resize(kSize);
        show(player);
        const qint64 bytes = allocations::during([&] { player.setGifImage(path); });
        QVERIFY2(bytes < 1000000 + 200 * qint64(path.size()), qPrintable(QString::number(bytes)));
        QCOMPARE(player.gifImage(), path);
        QCOMPARE(player.getGifState(), kStopped);
        player.setGifState(kPlaying);
        virtualtime::advance(1000);
        QCOMPARE(player.getGifState(), kStopped);
        COMPARE_PICTURES(painted(player), nothing(player));
        QCOMPARE(takeMessages(), QStringList());
        player.setGifImage(animation()); // and does no lasting harm
        QCOMPARE(frameOf(player), 0);
    }

    void aNameOfWideCharactersIsFound()
    {
        MGifPlay player;
        player.resize(kSize);
        player.setGifImage(file(QStringLiteral("\u52d5\u753b \u0645.gif"), gifOf(m_frames)));
        QCOMPARE(frameOf(player), 0);
    }

    void aTruncatedFilePlaysAsFarAsItGoesAndSaysNothing()
    {
        const QByteArray whole = gifOf(m_frames);
        bool hasPlayed = false;
        for (int length = 0; length < whole.size(); length += 29) {
            MGifPlay player;
            player.resize(kSize);
            player.setGifImage(file(QStringLiteral("short.gif"), whole.left(length)));
            virtualtime::advance(1000);
            painted(player);
            hasPlayed |= player.getGifState() == kPlaying;
        }
        QVERIFY(hasPlayed);
        QCOMPARE(takeMessages(), QStringList());
    }

    void aPathThatVanishesWhilePlayingDoesNotMatter()
    {
        MGifPlay player;
        player.resize(kSize);
        const QString path = file(QStringLiteral("gone.gif"), gifOf(m_frames));
        player.setGifImage(path);
        virtualtime::advance(100);
        QVERIFY(QFile::remove(path));
        virtualtime::advance(400);
        QCOMPARE(frameOf(player), 1); // of the second round
        player.setGifState(kStopped);
        player.setGifState(kPlaying);
        QCOMPARE(frameOf(player), 0);
        QCOMPARE(player.getGifState(), kPlaying);
        QCOMPARE(takeMessages(), QStringList());
    }

    void aFileThatIsOverwrittenWhilePlayingIsNoHarm()
    {
        for (const QByteArray &bytes : {QByteArray(), QByteArray("text"), gifOf(m_frames).left(700),
                                        gifOf(gifFrames(2, QSize(300, 200)))}) {
            MGifPlay player;
            player.resize(kSize);
            const QString path = file(QStringLiteral("changing.gif"), gifOf(m_frames));
            player.setGifImage(path);
            virtualtime::advance(150);
            writtenFile(path, bytes);
            virtualtime::advance(2000);
            painted(player);
            player.setGifState(kStopped);
            player.setGifState(kPlaying);
            virtualtime::advance(1000);
            painted(player);
        }
        QCOMPARE(takeMessages(), QStringList());
    }

    // --- Sizes ----------------------------------------------------------------------------------

    void aWidthOrHeightOfZeroIsNoHarm()
    {
        QWidget window;
        window.resize(80, 60);
        const auto player = makePlayer(&window);
        show(window);
        for (const QSize &size : {QSize(0, 0), QSize(0, 50), QSize(50, 0)}) {
            player->resize(size);
            virtualtime::advance(100);
            COMPARE_PICTURES(painted(window), reference(window, [](QPainter &) {}));
        }
        player->resize(kSize);
        QCOMPARE(frameOf(*player), 3); // it has played on
    }

    void aWidthOrHeightOfOneIsStretchedTo()
    {
        const auto player = makePlayer();
        for (const QSize &size : {QSize(1, 1), QSize(1, 50), QSize(50, 1)}) {
            player->resize(size);
            COMPARE_PICTURES(painted(*player), shown(*player, m_frames[0]));
        }
    }

    void anImageOfTwentyThousandPixelsPlays()
    {
        QImage wide(20000, 3, QImage::Format_ARGB32_Premultiplied);
        wide.fill(Qt::red);
        MGifPlay player;
        player.resize(kSize);
        player.setGifImage(file(QStringLiteral("wide.gif"), gifOf({wide})));
        COMPARE_PICTURES(painted(player), shown(player, wide));
    }

    // --- Touches --------------------------------------------------------------------------------

    void aTouchAsksForASoundAndClicksWhereverItEnds()
    {
        const auto player = makePlayer();
        SignalLog log(player.get());
        touch(player.get()).press(5, 5).moveTo(5000, -5000);
        QCOMPARE(log.take(), QStringList());
        touch(player.get()).release();
        QCOMPARE(log.take(), QStringList{QStringLiteral("btnClicked()")});
        QCoreApplication::processEvents();
        QCOMPARE(log.take(), QStringList{QStringLiteral("beep")});
    }

    void aTouchDoesNotChangeWhatPlays()
    {
        const auto player = makePlayer();
        show(*player);
        QCOMPARE(paints(*player, [&] { touch(player.get()).tap(5, 5); }), 0);
        QCOMPARE(player->getGifState(), kPlaying);
    }

    void touchesAndTheRequestForASoundReachTheParent()
    {
        Parent parent;
        const auto player = makePlayer(&parent);
        show(parent);
        touch(player.get()).press(5, 5).moveTo(7, 5).release();
        QCoreApplication::processEvents();
        QCOMPARE(parent.events,
                 (QStringList{QStringLiteral("press"), QStringLiteral("move"),
                              QStringLiteral("release"), QStringLiteral("beep")}));
    }

    void theBaseHandlerComesBeforeTheClick()
    {
        Handlers player;
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(5, 5), Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        QVector<bool> accepted;
        connect(&player, &MGifPlay::btnClicked, &player, [&] { accepted += release.isAccepted(); });
        player.mouseReleaseEvent(&release);
        QCOMPARE(accepted, QVector<bool>{false}); // QWidget has left it to the parent
    }

    // --- Robustness -----------------------------------------------------------------------------

    void aPlayingWidgetLeavesNothingBehindWhenItIsDestroyed()
    {
        const int before = openFiles();
        QWidget window;
        auto *player = makePlayer(&window).release();
        show(window);
        virtualtime::advance(150);
        QVERIFY(openFiles() > before);
        delete player;
        virtualtime::advance(5000);
        QCOMPARE(openFiles(), before);
    }

    void aPlayerMayBeDeletedByItsClick()
    {
        QWidget window;
        auto *player = makePlayer(&window).release();
        const QPointer<MGifPlay> guard(player);
        show(window);
        connect(player, &MGifPlay::btnClicked, &window, [player] { delete player; });
        touch(player).tap(5, 5);
        QVERIFY(!guard);
        virtualtime::advance(1000);
    }
};

WIDGET_TEST_MAIN(tst_MGifPlay)
#include "tst_mgifplay.moc"
