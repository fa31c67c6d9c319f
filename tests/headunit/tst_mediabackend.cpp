// SPDX-License-Identifier: Apache-2.0
#include "musiclibrary.h"
#include "player.h"
#include "playerbackend.h"
#include "trackmodel.h"

#include "files.h"
#include "sounddevices.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

using namespace headunit;

namespace
{

constexpr int kPatience = 20000; // ms
constexpr int kLength = 400; // ms, of each file
constexpr int kPadding = 100; // ms, that MP3 may add

// A tone as a file of music, encoded as programs do that people make theirs with.
QString encoded(const QString &path, const QString &encoder)
{
    const QString line = QStringLiteral("audiotestsrc num-buffers=40 samplesperbuffer=441 "
                                        "! audio/x-raw,rate=44100,channels=1 ! audioconvert "
                                        "! %1 ! filesink location=%2")
                             .arg(encoder, path);
    QProcess program;
    program.start(QStringLiteral("gst-launch-1.0"),
                  QStringList(QStringLiteral("-q")) + line.split(QLatin1Char(' ')));
    if (!program.waitForFinished(kPatience) || program.exitCode() != 0)
        qFatal("gst-launch-1.0 %s: %s", qPrintable(line),
               program.readAllStandardError().constData());
    return path;
}

struct Music {
    QTemporaryDir folder;
    MusicLibrary library;
    Player player{std::make_unique<MediaBackend>()};
    QSignalSpy problems{&player, &Player::problem};

    QString file(const QString &name) const { return folder.filePath(name); }

    void open()
    {
        player.setModel(library.tracks());
        player.setRepeat(Player::Repeat::Off);
        library.open(folder.path());
        QTRY_VERIFY_WITH_TIMEOUT(library.isFinished(), kPatience);
    }
};

} // namespace

/// Qt's own way to play, with nothing to hear it on: in real time, as it is Qt that keeps it.
class tst_MediaBackend : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void initTestCase()
    {
        sounddevices::offerOne(m_folder.filePath(QStringLiteral("asound.conf")));
        QVERIFY(MediaBackend::isAvailable());
        QVERIFY(!Player().isSilent());
    }

    void eachKindOfFileIsPlayed_data()
    {
        QTest::addColumn<QString>("encoder");
        QTest::newRow("wav") << "wavenc";
        QTest::newRow("flac") << "flacenc";
        QTest::newRow("ogg") << "vorbisenc ! oggmux";
        QTest::newRow("mp3") << "lamemp3enc ! xingmux";
    }

    void eachKindOfFileIsPlayed()
    {
        QFETCH(QString, encoder);
        Music music;
        encoded(music.file(QLatin1String("a.") + QTest::currentDataTag()), encoder);
        music.open();
        QVector<qint64> positions;
        connect(&music.player, &Player::positionChanged, this, [&](qint64 position) {
            if (music.player.isPlaying())
                positions += position;
        });
        music.player.play();
        QTRY_VERIFY_WITH_TIMEOUT(!music.player.isPlaying(), kPatience);
        QCOMPARE(music.problems.count(), 0);
        const qint64 duration = music.player.duration();
        QVERIFY2(duration >= kLength && duration <= kLength + kPadding,
                 qPrintable(QString::number(duration)));
        QCOMPARE(music.player.position(), 0); // ready to begin again
        positions.removeAll(0);
        QVERIFY(std::is_sorted(positions.begin(), positions.end()));
        const auto isInside = [](qint64 position) { return position > 0 && position < kLength; };
        QVERIFY(std::any_of(positions.begin(), positions.end(), isInside));
    }

    // From one kind to another, over one that is none.
    void tracksFollowEachOther()
    {
        Music music;
        encoded(music.file(QStringLiteral("a.wav")), QStringLiteral("wavenc"));
        writtenFile(music.file(QStringLiteral("b.flac")), "no music at all");
        encoded(music.file(QStringLiteral("c.mp3")), QStringLiteral("lamemp3enc ! xingmux"));
        music.open();
        QSignalSpy rows(&music.player, &Player::rowChanged);
        music.player.play();
        QTRY_VERIFY_WITH_TIMEOUT(!music.player.isPlaying(), kPatience);
        QCOMPARE(rows, QList<QVariantList>({{0}, {1}, {2}}));
        QCOMPARE(music.problems, QList<QVariantList>({{"b cannot be played."}}));
    }

    void seekingGoesOnFromThere()
    {
        constexpr qint64 kThere = 200; // ms
        Music music;
        encoded(music.file(QStringLiteral("a.ogg")), QStringLiteral("vorbisenc ! oggmux"));
        music.open();
        music.player.play();
        QTRY_VERIFY_WITH_TIMEOUT(music.player.position() > 0, kPatience);
        music.player.pause();
        music.player.seek(kThere);
        QCOMPARE(music.player.position(), kThere);
        QVector<qint64> positions;
        connect(&music.player, &Player::positionChanged, this,
                [&](qint64 position) { positions += position; });
        music.player.play();
        QTRY_VERIFY_WITH_TIMEOUT(!music.player.isPlaying(), kPatience);
        QCOMPARE(music.problems.count(), 0);
        positions.removeAll(0); // of the end
        QVERIFY(positions.contains(kLength));
        QVERIFY(*std::min_element(positions.begin(), positions.end()) >= kThere);
    }
};

QTEST_GUILESS_MAIN(tst_MediaBackend)

#include "tst_mediabackend.moc"
