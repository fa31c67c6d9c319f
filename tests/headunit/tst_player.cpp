// SPDX-License-Identifier: Apache-2.0
#include "player.h"
#include "trackmodel.h"

#include "files.h"
#include "sounddevices.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace headunit;

namespace
{

/// Does what it is told and says what it was told.
class FakeBackend : public PlayerBackend
{
    Q_OBJECT

public:
    explicit FakeBackend(QStringList *log) : m_log(log) { }

    void load(const QString &path, qint64 length) override
    {
        *m_log += QStringLiteral("load %1 %2").arg(path.right(1)).arg(length);
    }
    void setLength(qint64 length) override { *m_log += QStringLiteral("length %1").arg(length); }
    void play() override { *m_log += QStringLiteral("play"); }
    void pause() override { *m_log += QStringLiteral("pause"); }
    void seek(qint64 position) override { *m_log += QStringLiteral("seek %1").arg(position); }
    void setLoudness(int percent) override { *m_log += QStringLiteral("loudness %1").arg(percent); }
    qint64 position() const override { return 1234; }

private:
    QStringList *const m_log;
};

} // namespace

class tst_Player : public WidgetTest
{
    Q_OBJECT

    QTemporaryDir m_folder;

    // Files "a", "b" and so on, of so many seconds each.
    QVector<Track> tracks(const QVector<int> &seconds) const
    {
        QVector<Track> list;
        for (const int length : seconds) {
            Track track;
            track.title = QString(QChar('a' + list.size()));
            track.path = writtenFile(m_folder.filePath(track.title), "x");
            track.seconds = length;
            list.append(track);
        }
        return list;
    }

    static std::unique_ptr<PlayerBackend> silent() { return std::make_unique<SilentBackend>(); }

    static QStringList sentences(const QSignalSpy &spy)
    {
        QStringList list;
        for (const QVariantList &arguments : spy)
            list.append(arguments.first().toString());
        return list;
    }

    // The titles of the next tracks.
    static QString titlesAfter(Player &player, int count)
    {
        QString titles;
        for (int i = 0; i < count; ++i) {
            player.next();
            titles += player.track().title;
        }
        return titles;
    }

private slots:
    void initTestCase() { sounddevices::offerNone(); }

    void silenceTakesAsLongAsTheMusic()
    {
        TrackModel model;
        model.setTracks(tracks({5, 7}));
        Player player(silent());
        player.setModel(&model);
        player.play();
        QVERIFY(player.isPlaying());
        QVERIFY(player.isSilent());
        QCOMPARE(player.row(), 0);
        QCOMPARE(player.duration(), qint64(5000));
        virtualtime::advance(2000);
        QCOMPARE(player.position(), qint64(2000));
        virtualtime::advance(2999);
        QCOMPARE(player.row(), 0);
        virtualtime::advance(1);
        QCOMPARE(player.row(), 1);
        QCOMPARE(player.position(), qint64(0));
        QCOMPARE(player.duration(), qint64(7000));
        virtualtime::advance(7000);
        QCOMPARE(player.row(), 0); // Repeat::All
    }

    void thePositionIsReportedFourTimesASecondWhileItPlays()
    {
        TrackModel model;
        model.setTracks(tracks({60}));
        Player player(silent());
        player.setModel(&model);
        player.play();
        QSignalSpy positions(&player, &Player::positionChanged);
        virtualtime::advance(1000);
        QCOMPARE(positions.count(), 4);
        QCOMPARE(positions.last().first().toLongLong(), qint64(1000));
        player.pause();
        virtualtime::advance(10000);
        QCOMPARE(positions.count(), 4);
        QCOMPARE(player.position(), qint64(1000));
        player.toggle();
        virtualtime::advance(500);
        QCOMPARE(player.position(), qint64(1500));
    }

    void silenceIsSaidOnce()
    {
        TrackModel model;
        model.setTracks(tracks({5, 7}));
        Player player(silent());
        QSignalSpy problems(&player, &Player::problem);
        player.setModel(&model);
        QCOMPARE(problems.count(), 0);
        player.play();
        player.pause();
        player.play();
        player.playRow(1);
        virtualtime::advance(60000);
        QCOMPARE(problems.count(), 1);
    }

    void anEmptyListSaysSo()
    {
        TrackModel model;
        Player player(silent());
        QSignalSpy problems(&player, &Player::problem);
        player.play();
        player.setModel(&model);
        player.toggle();
        QCOMPARE(problems.count(), 2);
        player.next();
        player.previous();
        player.seek(5);
        player.pause();
        player.playRow(0);
        QVERIFY(!player.isPlaying());
        QCOMPARE(player.row(), -1);
        QCOMPARE(player.position(), qint64(0));
    }

    void seekStaysInTheTrack()
    {
        TrackModel model;
        model.setTracks(tracks({60, 60}));
        Player player(silent());
        player.setModel(&model);
        player.playRow(1);
        player.seek(30000);
        QCOMPARE(player.position(), qint64(30000));
        virtualtime::advance(1000);
        QCOMPARE(player.position(), qint64(31000));
        player.seek(-5);
        QCOMPARE(player.position(), qint64(0));
        player.pause();
        player.seek(std::numeric_limits<qint64>::max());
        QCOMPARE(player.position(), qint64(60000));
        QCOMPARE(player.row(), 1);
        player.play();
        virtualtime::advance(0);
        QCOMPARE(player.row(), 0);
    }

    void previousBeginsTheTrackAgainAfterThreeSeconds()
    {
        TrackModel model;
        model.setTracks(tracks({60, 60, 60}));
        Player player(silent());
        player.setModel(&model);
        player.playRow(1);
        virtualtime::advance(3000);
        player.previous();
        QCOMPARE(player.row(), 1);
        QCOMPARE(player.position(), qint64(0));
        virtualtime::advance(2999);
        player.previous();
        QCOMPARE(player.row(), 0);
        player.previous();
        QCOMPARE(player.row(), 2);
    }

    void repeatDecidesWhatFollowsTheEnd_data()
    {
        QTest::addColumn<Player::Repeat>("repeat");
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("isPlaying");
        QTest::newRow("off") << Player::Repeat::Off << 1 << false;
        QTest::newRow("all") << Player::Repeat::All << 0 << true;
        QTest::newRow("one") << Player::Repeat::One << 1 << true;
    }

    void repeatDecidesWhatFollowsTheEnd()
    {
        QFETCH(Player::Repeat, repeat);
        TrackModel model;
        model.setTracks(tracks({5, 7}));
        Player player(silent());
        player.setModel(&model);
        QSignalSpy repeats(&player, &Player::repeatChanged);
        player.setRepeat(Player::Repeat::Off);
        player.setRepeat(repeat);
        player.setRepeat(repeat);
        player.setRepeat(static_cast<Player::Repeat>(17));
        QCOMPARE(player.repeat(), repeat);
        QVERIFY(repeats.count() <= 2);
        player.playRow(1);
        virtualtime::advance(7000);
        QTEST(player.row(), "row");
        QTEST(player.isPlaying(), "isPlaying");
        QCOMPARE(player.position(), qint64(0));
        if (repeat == Player::Repeat::One) {
            player.next();
            QCOMPARE(player.row(), 0);
        }
    }

    void shufflePlaysEachTrackOnce()
    {
        TrackModel model;
        model.setTracks(tracks(QVector<int>(20, 30)));
        Player player(silent());
        player.seedShuffle(7);
        player.setModel(&model);
        player.playRow(4);
        player.setShuffled(true);
        QString order = player.track().title;
        order += titlesAfter(player, 19);
        QVERIFY(!std::is_sorted(order.begin() + 1, order.end()));
        QCOMPARE(QSet<QChar>(order.begin(), order.end()).size(), 20);
        QCOMPARE(order.at(0), QChar('e'));
        for (int i = 18; i >= 0; --i) {
            player.previous();
            QCOMPARE(player.track().title, QString(order.at(i)));
        }
        player.previous();
        QCOMPARE(player.track().title, QStringLiteral("e"));
        QCOMPARE(titlesAfter(player, 19), order.mid(1));
        const QString again = titlesAfter(player, 19); // another order, without the last one
        QVERIFY(again != order.mid(1));
        QVERIFY(!again.contains(order.at(19)));
        QCOMPARE(QSet<QChar>(again.begin(), again.end()).size(), 19);
    }

    void aChosenTrackComesNextInTheShuffle()
    {
        TrackModel model;
        model.setTracks(tracks(QVector<int>(10, 30)));
        Player player(silent());
        player.seedShuffle(3);
        player.setModel(&model);
        player.setShuffled(true);
        player.play();
        QString first = player.track().title;
        first += titlesAfter(player, 2);
        int chosen = 0;
        while (first.contains(model.track(chosen).title))
            ++chosen;
        player.playRow(chosen);
        QString all = first + player.track().title;
        all += titlesAfter(player, 6);
        QCOMPARE(QSet<QChar>(all.begin(), all.end()).size(), 10);
        for (int i = 8; i >= 0; --i) {
            player.previous();
            QCOMPARE(player.track().title, QString(all.at(i)));
        }
    }

    void aTrackChosenAgainMovesInTheShuffle()
    {
        TrackModel model;
        model.setTracks(tracks(QVector<int>(10, 30)));
        Player player(silent());
        player.seedShuffle(3);
        player.setModel(&model);
        player.setShuffled(true);
        player.play();
        QString order = player.track().title;
        order += titlesAfter(player, 4);
        player.playRow(model.rowOfPath(m_folder.filePath(order.at(1))));
        const QString rest = titlesAfter(player, 5);
        QVERIFY(!QSet<QChar>(rest.begin(), rest.end()).intersects({order.begin(), order.end()}));
        for (int i = 0; i < 6; ++i)
            player.previous();
        QCOMPARE(player.track().title, QString(order.at(4))); // what it was chosen on
    }

    void withoutRepeatAShuffleEnds()
    {
        TrackModel model;
        model.setTracks(tracks({2, 2, 2}));
        Player player(silent());
        player.setModel(&model);
        player.setShuffled(true);
        player.setRepeat(Player::Repeat::Off);
        player.play();
        virtualtime::advance(5999);
        QVERIFY(player.isPlaying());
        virtualtime::advance(1);
        QVERIFY(!player.isPlaying());
    }

    void tracksThatAreFoundLaterAreShuffledIn()
    {
        TrackModel model;
        const QVector<Track> all = tracks(QVector<int>(12, 30));
        model.setTracks(all.mid(0, 4));
        Player player(silent());
        player.setModel(&model);
        player.setShuffled(true);
        player.play();
        QString order = player.track().title;
        order += titlesAfter(player, 1);
        model.append(all.mid(4));
        order += titlesAfter(player, 10);
        QCOMPARE(QSet<QChar>(order.begin(), order.end()).size(), 12);
    }

    void theRowFollowsAListThatIsSorted()
    {
        TrackModel model;
        model.setTracks(tracks({60, 60, 60}));
        Player player(silent());
        player.setModel(&model);
        player.playRow(0);
        virtualtime::advance(1500);
        QSignalSpy rows(&player, &Player::rowChanged);
        QSignalSpy changes(&player, &Player::trackChanged);
        model.arrange({2, 1, 0});
        QCOMPARE(player.row(), 2);
        QCOMPARE(rows.count(), 1);
        QCOMPARE(rows.first().first().toInt(), 2);
        QCOMPARE(changes.count(), 0);
        QCOMPARE(player.position(), qint64(1500));
        QVERIFY(player.isPlaying());
    }

    void tagsThatAreReadLaterArrive()
    {
        TrackModel model;
        QVector<Track> list = tracks({0, 0});
        model.setTracks(list);
        Player player(silent());
        player.setModel(&model);
        player.play();
        virtualtime::advance(4000);
        QCOMPARE(player.duration(), qint64(0));
        QCOMPARE(player.position(), qint64(4000));
        QSignalSpy changes(&player, &Player::trackChanged);
        list[0].title = QStringLiteral("Kite");
        list[0].seconds = 6;
        model.update(0, list);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(player.track().title, QStringLiteral("Kite"));
        QCOMPARE(player.duration(), qint64(6000));
        virtualtime::advance(2000);
        QCOMPARE(player.row(), 1);
    }

    void anotherListKeepsATrackThatIsInBoth()
    {
        const QVector<Track> all = tracks({60, 60, 60});
        TrackModel model;
        TrackModel folder;
        model.setTracks(all);
        folder.setTracks(all.mid(1));
        Player player(silent());
        player.setModel(&model);
        player.playRow(2);
        virtualtime::advance(1000);
        player.setModel(&folder);
        QCOMPARE(player.row(), 1);
        QVERIFY(player.isPlaying());
        QCOMPARE(player.position(), qint64(1000));
        folder.setTracks(all.mid(0, 2));
        QCOMPARE(player.row(), -1);
        QVERIFY(!player.isPlaying());
        QVERIFY(player.track().path.isEmpty());
    }

    void aListMayGoBeforeThePlayer()
    {
        auto model = std::make_unique<TrackModel>();
        model->setTracks(tracks({60}));
        Player player(silent());
        player.setModel(model.get());
        player.play();
        model.reset();
        QVERIFY(!player.isPlaying());
        QCOMPARE(player.row(), -1);
        player.next();
        player.setModel(nullptr);
    }

    void whatIsBrokenOrMissingIsSaidAndLeftOut()
    {
        QVector<Track> list = tracks({60, 60, 60, 60});
        list[0].isBroken = true;
        list[1].path += QStringLiteral(".gone");
        TrackModel model;
        model.setTracks(list);
        Player player(silent());
        QSignalSpy problems(&player, &Player::problem);
        player.setModel(&model);
        player.play();
        virtualtime::advance(1000);
        QCOMPARE(player.row(), 2);
        QCOMPARE(sentences(problems).mid(1),
                 QStringList({"a cannot be played.", "b cannot be played."}));
        list[2].isBroken = true; // as its tags tell when they are read
        model.update(0, list);
        QCOMPARE(player.row(), 3);
    }

    void aListOfNothingButBrokenFilesComesToAnEnd()
    {
        QVector<Track> list = tracks(QVector<int>(20, 60));
        for (Track &track : list)
            track.isBroken = true;
        TrackModel model;
        model.setTracks(list);
        Player player(silent());
        QSignalSpy problems(&player, &Player::problem);
        player.setModel(&model);
        player.play();
        virtualtime::advance(60000);
        QVERIFY(!player.isPlaying());
        QCOMPARE(problems.count(), 11); // silence, and ten files
        model.setTracks(list.mid(0, 1));
        player.play();
        virtualtime::advance(1000);
        QVERIFY(!player.isPlaying());
    }

    void theBackendIsToldWhatToDo()
    {
        QStringList log;
        TrackModel model;
        model.setTracks(tracks({60, 30}));
        auto *const backend = new FakeBackend(&log);
        Player player{std::unique_ptr<PlayerBackend>(backend)};
        QSignalSpy problems(&player, &Player::problem);
        player.setModel(&model);
        log.clear();
        player.play();
        player.seek(2000);
        player.seek(99000);
        player.pause();
        player.next();
        QCOMPARE(log,
                 QStringList(
                     {"load a 60000", "play", "seek 2000", "seek 60000", "pause", "load b 30000"}));
        QVERIFY(!player.isSilent());
        QCOMPARE(problems.count(), 0);
        log.clear();
        player.setMuted(true);
        player.setVolume(99);
        player.setMuted(false);
        player.setVolume(-1);
        QCOMPARE(log, QStringList({"loudness 0", "loudness 0", "loudness 100", "loudness 0"}));
        emit backend->lengthFound(29500);
        QCOMPARE(player.duration(), qint64(29500));
    }

    void aServiceThatFailsLeavesSilence()
    {
        QStringList log;
        TrackModel model;
        model.setTracks(tracks({60}));
        auto *const backend = new FakeBackend(&log);
        Player player{std::unique_ptr<PlayerBackend>(backend)};
        QSignalSpy problems(&player, &Player::problem);
        player.setModel(&model);
        player.play();
        emit backend->serviceFailed();
        QVERIFY(player.isSilent());
        QVERIFY(player.isPlaying());
        QCOMPARE(problems.count(), 1);
        virtualtime::advance(1000);
        QCOMPARE(player.position(), qint64(2234)); // from where the service had come to
    }

    void aFileThatFailsIsPassedOver()
    {
        QStringList log;
        TrackModel model;
        model.setTracks(tracks({60, 60}));
        auto *const backend = new FakeBackend(&log);
        Player player{std::unique_ptr<PlayerBackend>(backend)};
        QSignalSpy problems(&player, &Player::problem);
        player.setModel(&model);
        player.play();
        emit backend->fileFailed();
        QCOMPARE(player.row(), 1);
        QCOMPARE(sentences(problems), QStringList({"a cannot be played."}));
    }

    void eachChangeIsToldOnce()
    {
        Player player(silent());
        QSignalSpy volumes(&player, &Player::volumeChanged);
        QSignalSpy mutes(&player, &Player::mutedChanged);
        QSignalSpy shuffles(&player, &Player::shuffledChanged);
        for (int i = 0; i < 2; ++i) {
            player.setVolume(100);
            player.setMuted(true);
            player.setShuffled(true);
        }
        QCOMPARE(player.volume(), Player::kMostVolume);
        QCOMPARE(volumes.count(), 1);
        QCOMPARE(mutes.count(), 1);
        QCOMPARE(shuffles.count(), 1);
    }

    void whereNothingCanSoundThePlayerIsSilentWithoutAWarning()
    {
        Player player;
        QVERIFY(player.isSilent());
    }
};

WIDGET_TEST_MAIN(tst_Player)

#include "tst_player.moc"
