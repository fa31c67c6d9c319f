// SPDX-License-Identifier: Apache-2.0
#include "libraryscan.h"
#include "musicfiles.h"
#include "musiclibrary.h"
#include "tags.h"
#include "trackmodel.h"

#include "files.h"

#include <QAbstractItemModelTester>
#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <attachedpictureframe.h>
#include <fileref.h>
#include <flacfile.h>
#include <id3v2tag.h>
#include <mp4file.h>
#include <mpegfile.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>
#include <vorbisfile.h>
#include <wavfile.h>

using namespace headunit;

namespace
{

constexpr int kPatience = 20000; // ms

QByteArray encoded(const QSize &size, QColor colour, const char *format = "png")
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QColor middleOf(const QImage &image)
{
    return image.isNull() ? QColor() : image.pixelColor(image.rect().center());
}

QStringList titlesOf(const MusicLibrary &library)
{
    QStringList titles;
    for (int row = 0; row < library.tracks()->rowCount(); ++row)
        titles.append(library.tracks()->track(row).title);
    return titles;
}

QStringList titlesOf(const QVector<Track> &tracks)
{
    QStringList titles;
    for (const Track &track : tracks)
        titles.append(track.title);
    return titles;
}

QStringList namesOf(const QVector<Folder> &folders)
{
    QStringList names;
    for (const Folder &folder : folders)
        names.append(
            QStringLiteral("%1 %2 %3").arg(folder.name).arg(folder.tracks).arg(folder.tracksBelow));
    return names;
}

// What the processor has done for this thread, in ms.
double threadTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1000 + double(time.tv_nsec) / 1e6;
}

TagLib::FLAC::Picture *flacPicture(const QByteArray &bytes)
{
    auto *const picture = new TagLib::FLAC::Picture;
    picture->setType(TagLib::FLAC::Picture::FrontCover);
    picture->setMimeType("image/png");
    picture->setData({bytes.constData(), unsigned(bytes.size())});
    return picture;
}

void addPicture(TagLib::ID3v2::Tag *tag, TagLib::ID3v2::AttachedPictureFrame::Type type,
                const QByteArray &bytes)
{
    auto *const picture = new TagLib::ID3v2::AttachedPictureFrame;
    picture->setType(type);
    picture->setMimeType("image/png");
    picture->setPicture({bytes.constData(), unsigned(bytes.size())});
    tag->addFrame(picture);
}

// Puts a picture into a file in the way of its format.
void addCover(const QString &path, const QByteArray &bytes)
{
    const QByteArray name = QFile::encodeName(path);
    const TagLib::ByteVector data(bytes.constData(), unsigned(bytes.size()));
    using Picture = TagLib::ID3v2::AttachedPictureFrame;
    if (path.endsWith(QLatin1String(".mp3"))) {
        TagLib::MPEG::File file(name.constData());
        addPicture(file.ID3v2Tag(true), Picture::BackCover, "the back");
        addPicture(file.ID3v2Tag(true), Picture::FrontCover, bytes);
        file.save();
    } else if (path.endsWith(QLatin1String(".wav"))) {
        TagLib::RIFF::WAV::File file(name.constData());
        addPicture(file.ID3v2Tag(), Picture::Other, bytes);
        file.save();
    } else if (path.endsWith(QLatin1String(".flac"))) {
        TagLib::FLAC::File file(name.constData());
        file.addPicture(flacPicture(bytes));
        file.save();
    } else if (path.endsWith(QLatin1String(".m4a"))) {
        TagLib::MP4::File file(name.constData());
        TagLib::MP4::CoverArtList covers;
        covers.append({TagLib::MP4::CoverArt::PNG, data});
        file.tag()->setItem("covr", covers);
        file.save();
    } else {
        TagLib::Ogg::Vorbis::File file(name.constData());
        file.tag()->addPicture(flacPicture(bytes));
        file.save();
    }
}

} // namespace

class tst_MusicLibrary : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString m_root;
    QStringList m_problems;

    QString path(const char *name) const { return m_root + QLatin1Char('/') + QString(name); }

    QString wave(const char *name, const QByteArray &title = {}) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        return writtenFile(path(name), musicfiles::wave(title));
    }

    // Opens a folder and waits until all of it is read.
    void read(MusicLibrary &library, const QString &folder)
    {
        m_problems.clear();
        connect(&library, &MusicLibrary::problem, this,
                [this](const QString &sentence) { m_problems += sentence; });
        library.open(folder);
        QTRY_VERIFY_WITH_TIMEOUT(library.isFinished(), kPatience);
    }

    static void fileNames()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("seconds");
        QTest::newRow("wav") << "a.wav" << musicfiles::wave() << 1;
        QTest::newRow("flac") << "a.flac" << musicfiles::flac() << 2;
        QTest::newRow("ogg") << "a.ogg" << musicfiles::ogg() << 3;
        QTest::newRow("oga") << "a.oga" << musicfiles::ogg() << 3;
        QTest::newRow("mp3") << "a.mp3" << musicfiles::mp3() << 2;
        QTest::newRow("m4a") << "a.m4a" << musicfiles::m4a() << 4;
        QTest::newRow("another ending") << "A.MP3" << musicfiles::mp3() << 2;
    }

private slots:
    // Each test has a folder of its own.
    void init()
    {
        static int number = 0;
        m_root =
            QFileInfo(m_folder.path()).canonicalFilePath() + QStringLiteral("/%1").arg(++number);
        QDir().mkpath(m_root);
    }

    void cleanup() { QDir(m_root).removeRecursively(); }

    void eachFormatIsRead_data() { fileNames(); }

    void eachFormatIsRead()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        const QString file = writtenFile(path(qPrintable(name)), bytes);
        {
            TagLib::FileRef ref(QFile::encodeName(file).constData());
            ref.tag()->setTitle({"\xC3\x84ther\nweit", TagLib::String::UTF8});
            ref.tag()->setArtist("Ada");
            ref.tag()->setAlbum("Sky");
            ref.tag()->setTrack(7);
            QVERIFY(ref.save());
        }
        MusicLibrary library;
        read(library, m_root);
        const Track track = library.tracks()->track(0);
        QCOMPARE(track.title, QStringLiteral("Äther weit"));
        QCOMPARE(track.artist, QStringLiteral("Ada"));
        QCOMPARE(track.album, QStringLiteral("Sky"));
        QCOMPARE(track.number, 7);
        QTEST(track.seconds, "seconds");
        QCOMPARE(track.path, file);
        QVERIFY(track.isRead);
        QVERIFY(!track.isBroken);
        QVERIFY(!track.hasCover);
        QCOMPARE(m_problems, QStringList());
    }

    void thePictureOfEachFormatIsFound_data() { fileNames(); }

    void thePictureOfEachFormatIsFound()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        const QString file = writtenFile(path(qPrintable(name.toLower())), bytes);
        QVERIFY(MusicLibrary::cover(file).isNull());
        addCover(file, encoded({30, 20}, Qt::red));
        QVERIFY(tags::read(tags::unread(file)).hasCover);
        const QImage cover = MusicLibrary::cover(file);
        QCOMPARE(cover.size(), QSize(30, 20));
        QCOMPARE(middleOf(cover), QColor(Qt::red));
        QCOMPARE(MusicLibrary::cover(file, {15, 15}).size(), QSize(15, 10));
        QVERIFY(MusicLibrary::cover(file, {0, 15}).isNull());
    }

    void aPictureBesideTheFileServesToo()
    {
        const QString file = wave("b/a.wav");
        wave("c/a.wav");
        writtenFile(path("b/Folder.jpg"), encoded({1000, 2000}, Qt::blue, "jpg"));
        QCOMPARE(MusicLibrary::cover(file).size(), QSize(256, 512));
        writtenFile(path("b/COVER.JPG"), encoded({10, 10}, Qt::green, "png")); // by its contents
        QCOMPARE(middleOf(MusicLibrary::cover(file)), QColor(Qt::green));
        MusicLibrary library;
        read(library, m_root);
        const TrackModel *const tracks = library.tracks();
        QVERIFY(tracks->track(tracks->rowOfPath(file)).hasCover);
        QVERIFY(!tracks->track(tracks->rowOfPath(path("c/a.wav"))).hasCover);
        addCover(file, encoded({30, 20}, Qt::red)); // what is in the file comes first
        QCOMPARE(middleOf(MusicLibrary::cover(file)), QColor(Qt::red));
    }

    void aPictureThatIsNoneIsNoHarm()
    {
        const QString file = wave("a.wav");
        QImage wide(9000, 9000, QImage::Format_Mono);
        wide.fill(0);
        QByteArray huge; // few bytes, and too many pixels
        QBuffer buffer(&huge);
        buffer.open(QIODevice::WriteOnly);
        wide.save(&buffer, "png");
        for (const QByteArray &bytes :
             {QByteArray(), QByteArray("no picture"), huge, encoded({9, 9}, Qt::red, "bmp"),
              QByteArray("GIF89a"),
              QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>")}) {
            writtenFile(path("cover.jpg"), bytes);
            QVERIFY(MusicLibrary::cover(file).isNull());
        }
        QFile::remove(path("cover.jpg"));
        QVERIFY(mkfifo(QFile::encodeName(path("cover.png")).constData(), 0600) == 0);
        QVERIFY(MusicLibrary::cover(file).isNull());
        QVERIFY(MusicLibrary::cover(path("none.wav")).isNull());
        QVERIFY(MusicLibrary::cover(QString()).isNull());
    }

    void aPictureArrivesFromBehindTheScenes()
    {
        const QString file = wave("a.wav");
        addCover(file, encoded({30, 20}, Qt::red));
        MusicLibrary library;
        QSignalSpy covers(&library, &MusicLibrary::coverRead);
        library.requestCover(file);
        library.requestCover(path("none.wav"));
        QCOMPARE(covers.count(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(covers.count(), 2, kPatience);
        QCOMPARE(covers.at(0).at(0).toString(), file);
        QCOMPARE(covers.at(0).at(1).value<QImage>().size(), QSize(30, 20));
        QVERIFY(covers.at(1).at(1).value<QImage>().isNull());
        library.requestCover(file); // the library goes while it is read
    }

    void rowsAreSortedByTitleForReaders()
    {
        wave("1.wav", "Zebra 10");
        wave("2.wav", "Zebra 9");
        wave("3.wav", "\xC3\xA4ther");
        wave("4.wav", "Beta");
        wave("5.wav", "(alpha)");
        wave("6.wav");
        wave("x/7.wav", "Beta");
        MusicLibrary library;
        QAbstractItemModelTester tester(library.tracks(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy resets(library.tracks(), &QAbstractItemModel::modelReset);
        read(library, m_root);
        QCOMPARE(titlesOf(library),
                 QStringList({"6", "(alpha)", "äther", "Beta", "Beta", "Zebra 9", "Zebra 10"}));
        QCOMPARE(library.tracks()->track(3).path, path("4.wav"));
        QCOMPARE(library.tracks()->track(4).path, path("x/7.wav"));
        QCOMPARE(library.tracks()->rowOfLetter(QLatin1Char('B')), 3);
        QCOMPARE(library.tracks()->rowOfLetter(QLatin1Char('Z')), 5);
        QCOMPARE(library.tracks()->letters(), QVector<QChar>({'#', 'A', 'B', 'Z'}));
        QCOMPARE(resets.count(), 1); // when it was opened
    }

    void namesAreThereBeforeTheTags()
    {
        wave("b - two.wav", "Alpha");
        wave("a - one.wav", "Beta");
        MusicLibrary library;
        QStringList names;
        connect(&library, &MusicLibrary::walked, this, [&] { names = titlesOf(library); });
        QSignalSpy progress(&library, &MusicLibrary::progress);
        read(library, m_root);
        QCOMPARE(names, QStringList({"a - one", "b - two"}));
        QCOMPARE(titlesOf(library), QStringList({"Alpha", "Beta"}));
        QCOMPARE(progress.last(), QVariantList({2, 2}));
        QCOMPARE(library.readCount(), 2);
    }

    void foldersAndWhatIsInThem()
    {
        wave("rock/b.wav", "Second");
        wave("rock/a.wav", "First");
        wave("rock/live/c.wav", "Third");
        wave("jazz/deep/down/d.wav", "Fourth");
        QDir().mkpath(path("empty/emptier"));
        {
            TagLib::FileRef ref(QFile::encodeName(path("rock/b.wav")).constData());
            ref.tag()->setTitle("Second");
            ref.tag()->setTrack(1);
            ref.save();
        }
        MusicLibrary library;
        read(library, m_root + QStringLiteral("/./"));
        QCOMPARE(library.root(), m_root);
        QCOMPARE(namesOf(library.folders()), QStringList({"down 1 1", "rock 2 3", "live 1 1"}));
        QCOMPARE(namesOf(library.foldersIn(m_root)), QStringList({"jazz 0 1", "rock 2 3"}));
        QCOMPARE(namesOf(library.foldersIn(path("jazz"))), QStringList({"deep 0 1"}));
        QCOMPARE(namesOf(library.foldersIn(path("rock/live"))), QStringList());
        QCOMPARE(titlesOf(library.tracksIn(path("rock"))), QStringList({"Second", "First"}));
        QCOMPARE(titlesOf(library.tracksIn(path("rock/live/"))), QStringList({"Third"}));
        QCOMPARE(titlesOf(library.tracksIn(path("ro"))), QStringList());
    }

    void linksThatLeadRoundInCirclesEnd()
    {
        wave("a/one.wav");
        QFile::link(m_root, path("a/up"));
        QFile::link(path("a"), path("b"));
        QFile::link(path("loop"), path("loop"));
        QFile::link(path("loop.wav"), path("loop.wav"));
        QFile::link(path("none.wav"), path("gone.wav"));
        MusicLibrary library;
        read(library, m_root);
        QCOMPARE(titlesOf(library), QStringList({"one"}));
        QCOMPARE(m_problems, QStringList());
    }

    void whatIsNoMusicIsLeftOut()
    {
        wave("one.wav");
        wave("two.WAV");
        wave("three.txt");
        wave("wav");
        wave(".wav");
        wave(".hidden.wav");
        QDir().mkpath(path("folder.mp3"));
        wave("folder.mp3/four.wav");
        QVERIFY(mkfifo(QFile::encodeName(path("pipe.wav")).constData(), 0600) == 0);
        MusicLibrary library;
        read(library, m_root);
        QCOMPARE(titlesOf(library), QStringList({"four", "one", "two"}));
    }

    void aFolderThatIsNoneSaysSo()
    {
        MusicLibrary library;
        read(library, path("none"));
        QCOMPARE(m_problems, QStringList("There is no folder " + path("none") + "."));
        const QString file = wave("a.wav");
        m_problems.clear();
        library.open(file);
        QTRY_VERIFY_WITH_TIMEOUT(library.isFinished(), kPatience);
        QCOMPARE(m_problems, QStringList(file + " is a file and not a folder with music."));
        QFile::remove(file);
        m_problems.clear();
        library.open(m_root);
        QTRY_VERIFY_WITH_TIMEOUT(library.isFinished(), kPatience);
        QCOMPARE(m_problems, QStringList("There is no music in " + m_root + "."));
        library.open(QString());
        QTRY_VERIFY_WITH_TIMEOUT(library.isFinished(), kPatience);
        QCOMPARE(library.tracks()->rowCount(), 0);
        QCOMPARE(m_problems.size(), 2);
    }

    void aFolderThatCannotBeReadIsSaidAndPassedOver()
    {
        wave("good/one.wav");
        wave("shut/two.wav");
        QFile::setPermissions(m_folder.path(), QFileDevice::Permissions(0x7755));
        chmod(QFile::encodeName(path("shut")).constData(), 0);
        const bool isRoot = geteuid() == 0; // who reads everything
        if (isRoot)
            QCOMPARE(setresuid(65534, 65534, 0), 0);
        MusicLibrary library;
        read(library, m_root);
        if (isRoot)
            QCOMPARE(setresuid(0, 0, 0), 0);
        chmod(QFile::encodeName(path("shut")).constData(), 0700);
        QCOMPARE(titlesOf(library), QStringList({"one"}));
        QCOMPARE(m_problems,
                 QStringList("Folders that cannot be read: 1. The first is " + path("shut") + "."));
    }

    void aBrokenFileIsListedByItsName()
    {
        wave("good.wav", "Good");
        writtenFile(path("empty.mp3"), "");
        writtenFile(path("words.flac"), "These are words.");
        writtenFile(path("head.wav"), musicfiles::wave().left(30));
        writtenFile(path("zeros.m4a"), QByteArray(5000, '\0'));
        writtenFile(path("zeros.ogg"), QByteArray(5000, '\0'));
        MusicLibrary library;
        read(library, m_root);
        QCOMPARE(titlesOf(library),
                 QStringList({"empty", "Good", "head", "words", "zeros", "zeros"}));
        QVERIFY(library.tracks()->track(0).isBroken);
        QVERIFY(!library.tracks()->track(1).isBroken);
        QCOMPARE(m_problems,
                 QStringList("Files that cannot be read as music: 5. The first is empty.mp3."));
    }

    void anythingIsReadWithoutHarm_data() { fileNames(); }

    void anythingIsReadWithoutHarm()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        const QString file = writtenFile(path(qPrintable(name.toLower())), bytes);
        addCover(file, QByteArray(2000, 'x'));
        QFile good(file);
        good.open(QIODevice::ReadOnly);
        const QByteArray all = good.readAll();
        QRandomGenerator random(1);
        for (int i = 0; i < 150; ++i) {
            QByteArray damaged = all;
            for (int k = 0; k < 6; ++k)
                damaged[random.bounded(qMin(damaged.size(), 600))] = char(random.bounded(256));
            damaged.truncate(random.bounded(damaged.size() + 1));
            writtenFile(file, damaged);
            const Track track = tags::read(tags::unread(file));
            QVERIFY(!track.title.isEmpty());
            QVERIFY(track.seconds >= 0 && track.seconds < 360000);
            MusicLibrary::cover(file);
        }
    }

    void tooMuchMusicIsBounded()
    {
        for (int i = 0; i < 10; ++i)
            wave(qPrintable(QStringLiteral("%1.wav").arg(i)));
        LibraryScan scan(m_root, 4, nullptr);
        QSignalSpy found(&scan, &LibraryScan::found);
        QSignalSpy problems(&scan, &LibraryScan::problem);
        scan.start();
        QTRY_VERIFY_WITH_TIMEOUT(scan.isFinished(), kPatience);
        QTRY_COMPARE(problems.count(), 1);
        QCOMPARE(problems.first().first().toString(),
                 "There is too much music in " + m_root + ": only the first 4 files are shown.");
        QCOMPARE(found.last().at(1).value<QVector<int>>().size(), 4);
    }

    void anotherFolderReplacesTheFirst()
    {
        for (int i = 0; i < 300; ++i)
            wave(qPrintable(QStringLiteral("a/%1.wav").arg(i)));
        wave("b/only.wav");
        MusicLibrary library;
        library.open(path("a"));
        // All that it found is under way, and arrives when the list is another one already.
        QVERIFY(library.findChild<LibraryScan *>()->wait(kPatience));
        for (int i = 0; i < 5; ++i)
            library.open(path("a"));
        read(library, path("b"));
        QTest::qWait(100);
        QCOMPARE(titlesOf(library), QStringList({"only"}));
        QCOMPARE(m_problems, QStringList());
        library.open(path("a")); // and it goes while it reads
    }

    void nothingRunsOnWhenAllIsRead()
    {
        wave("a.wav");
        MusicLibrary library;
        read(library, m_root);
        QTRY_COMPARE(library.findChildren<LibraryScan *>().size(), 0);
        QCOMPARE(library.findChildren<QTimer *>().size(), 0);
    }

    // A start with a full disk must not be felt: what the thread of the screen does for it, and
    // the longest that it does without a break.
    void twentyThousandFilesCostTheScreenNothing()
    {
        constexpr int count = 20000;
        for (int i = 0; i < count; ++i)
            wave(qPrintable(QStringLiteral("%1/%2.wav").arg(i / 1000).arg(i)),
                 "Title " + QByteArray::number(i * 7919 % count));
        MusicLibrary library;
        double longest = 0;
        double walk = 0;
        QElapsedTimer clock;
        clock.start();
        connect(&library, &MusicLibrary::walked, this, [&] { walk = double(clock.elapsed()); });
        const double before = threadTime();
        library.open(m_root);
        double spent = threadTime() - before;
        while (!library.isFinished() && clock.elapsed() < 5 * kPatience) {
            const double start = threadTime();
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            longest = qMax(longest, threadTime() - start);
            spent += threadTime() - start;
        }
        qInfo("20,000 files: names after %.0f ms, tags after %lld ms, of which the screen's thread "
              "worked %.0f ms, at most %.0f ms at once",
              walk, clock.elapsed(), spent, longest);
        QCOMPARE(library.tracks()->rowCount(), count);
        QCOMPARE(library.tracks()->track(2).title, QStringLiteral("Title 2"));
        QCOMPARE(library.tracks()->track(19999).title, QStringLiteral("Title 19999"));
        QVERIFY(spent < 1000);
        QVERIFY(longest < 250);
    }
};

QTEST_GUILESS_MAIN(tst_MusicLibrary)

#include "tst_musiclibrary.moc"
