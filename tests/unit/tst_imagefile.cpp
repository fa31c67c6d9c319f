// SPDX-License-Identifier: Apache-2.0
#include "detail/imagefile.h"

#include "checksum.h"
#include "files.h"
#include "gifs.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QMovie>
#include <QTemporaryDir>
#include <QtEndian>

#include <malloc.h>
#include <memory>

using namespace panelkit;

namespace
{

constexpr int kPercent = 100;

constexpr QSize kSize(24, 18);

QImage picture()
{
    QImage image(kSize, QImage::Format_RGB32);
    for (int y = 0; y < kSize.height(); ++y) {
        for (int x = 0; x < kSize.width(); ++x)
            image.setPixel(x, y, qRgb(x * 6, y * 8, (x * y) % 256));
    }
    return image;
}

// The bytes that gzip would write: its own head and tail around what zlib makes, without zlib's.
QByteArray gzipped(const QByteArray &bytes)
{
    const QByteArray zlib = qCompress(bytes);
    QByteArray tail(8, '\0');
    qToLittleEndian(crc32(bytes), tail.data());
    qToLittleEndian(quint32(bytes.size()), tail.data() + 4);
    return QByteArray("\x1f\x8b\x08\0\0\0\0\0\0\xff", 10) + zlib.mid(6, zlib.size() - 10) + tail;
}

QByteArray saved(const QByteArray &format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture().save(&buffer, format);
    return bytes;
}

// A file of a format that Qt reads; not all of them are written by it.
QByteArray encoded(const QByteArray &format)
{
    const QByteArray svg("<svg xmlns='http://www.w3.org/2000/svg' width='24' height='18'>"
                         "<circle cx='12' cy='9' r='8' fill='#3060c0'/></svg>");
    if (format == "svg")
        return svg;
    if (format == "svgz")
        return gzipped(svg);
    return format == "gif" ? gifOf(gifFrames(3)) : saved(format);
}

QByteArray padding(int size)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char(i % 251);
    return bytes;
}

} // namespace

class tst_ImageFile : public WidgetTest
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString write(const QString &name, const QByteArray &bytes) const
    {
        return writtenFile(m_dir.filePath(name), bytes);
    }

    // Each file of a corpus: every format Qt reads, whole, with something after its end, cut off,
    // or under the name of each other format.
    void addCorpus() const
    {
        QTest::addColumn<QString>("path");
        const auto add = [this](const QByteArray &what, const QByteArray &ending,
                                const QByteArray &bytes) {
            const QString name = QString::fromLatin1(what + '.' + ending).replace(' ', '-');
            QTest::newRow(what + ' ' + ending) << write(name, bytes);
        };
        const QList<QByteArray> formats = QImageReader::supportedImageFormats();
        for (const QByteArray &format : formats) {
            const QByteArray whole = encoded(format);
            QVERIFY2(QImage::fromData(whole, format).width() > 1, format);
            add("whole", format, whole);
            for (const int size : {7, 1024, 2000, 1000000})
                add("padded by " + QByteArray::number(size), format, whole + padding(size));
            for (const int percent : {0, 1, 20, 50, 80, 99}) {
                add("cut to " + QByteArray::number(percent), format,
                    whole.left(whole.size() * percent / kPercent));
            }
            for (const QByteArray &other : formats) {
                if (other != format)
                    add(format + " named", other, whole);
            }
            add(format + " named", "", whole);
        }
    }

private slots:
    // Of a BMP file that ends early Qt leaves the missing lines as the memory was, which has to be
    // the same each time to be compared. The address sanitizer fills memory by itself.
    void initTestCase() { mallopt(M_PERTURB, 1); }

    void thePictureIsThatOfQPixmap_data() { addCorpus(); }

    void thePictureIsThatOfQPixmap()
    {
        QFETCH(QString, path);
        const QPixmap expected(path);
        const QStringList said = takeMessages();
        const QPixmap actual = pixmapFromFile(path);
        QCOMPARE(takeMessages(), said);
        QCOMPARE(actual.isNull(), expected.isNull());
        QCOMPARE(actual.toImage(), expected.toImage());
    }

    void whatIsNoPictureIsNull()
    {
        QVERIFY(pixmapFromFile(QString()).isNull());
        QVERIFY(pixmapFromFile(m_dir.path()).isNull());
        QVERIFY(pixmapFromFile(m_dir.filePath(QStringLiteral("absent.png"))).isNull());
        QVERIFY(pixmapFromFile(write(QStringLiteral("text.png"), "not a picture")).isNull());
        QVERIFY(pixmapFromFile(write(QStringLiteral("empty.png"), "")).isNull());
        QVERIFY(pixmapFromFile(QString(3, QChar(0))).isNull());
        QVERIFY(pixmapFromFile(QStringLiteral("/dev/null")).isNull());
        QVERIFY(pixmapFromFile(QStringLiteral("/dev/zero")).isNull());
        QCOMPARE(takeMessages(), QStringList());
    }

    // --- Movies ---------------------------------------------------------------------------------

    void theMovieIsThatOfQMovie_data() { addCorpus(); }

    void theMovieIsThatOfQMovie()
    {
        QFETCH(QString, path);
        QMovie expected(path);
        const auto actual = movieFromFile(path);
        expected.start();
        const QStringList said = takeMessages();
        actual->start();
        QCOMPARE(takeMessages(), said);
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(actual->state(), expected.state());
            QCOMPARE(actual->currentFrameNumber(), expected.currentFrameNumber());
            QCOMPARE(actual->currentImage(), expected.currentImage());
            virtualtime::advance(100);
            takeMessages(); // both decode in the same ticks
        }
    }

    void aMoviePlaysItsFileRoundAfterRound()
    {
        const QVector<QImage> frames = gifFrames(3);
        const auto movie = movieFromFile(write(QStringLiteral("three.gif"), gifOf(frames)));
        QCOMPARE(movie->state(), QMovie::NotRunning);
        QVERIFY(!movie->parent());
        movie->start();
        for (int i = 0; i < 9; ++i) {
            COMPARE_PICTURES(movie->currentImage().convertToFormat(frames[0].format()),
                             frames[i % 3]);
            virtualtime::advance(100);
        }
    }

    void aMovieKeepsOneFrameInMemory()
    {
        const auto movie = movieFromFile(write(QStringLiteral("three.gif"), gifOf(gifFrames(3))));
        QCOMPARE(movie->cacheMode(), QMovie::CacheNone);
    }

    void anEndingMayBeLeftToTheMovie()
    {
        write(QStringLiteral("named.gif"), gifOf(gifFrames(2)));
        const auto movie = movieFromFile(m_dir.filePath(QStringLiteral("named")));
        QVERIFY(movie->isValid());
    }

    void aMovieOutlivesThePathOfItsFile()
    {
        const QString path = write(QStringLiteral("gone.gif"), gifOf(gifFrames(3)));
        const auto movie = movieFromFile(path);
        QVERIFY(QFile::remove(path));
        movie->start();
        virtualtime::advance(1000);
        QCOMPARE(movie->state(), QMovie::Running);
        QCOMPARE(movie->currentFrameNumber(), 1);
        QCOMPARE(takeMessages(), QStringList());
    }

    void aStillImageIsAMovieOfOneFrame()
    {
        for (const char *format : {"png", "jpg", "bmp"}) {
            const auto movie =
                movieFromFile(write(QStringLiteral("still.") + format, encoded(format)));
            movie->start();
            QCOMPARE(movie->currentImage().size(), kSize);
            virtualtime::advance(1000);
            QCOMPARE(movie->state(), QMovie::NotRunning);
        }
    }

    void whatCannotBeReadIsAMovieWithoutFrames_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("no path") << QString();
        QTest::newRow("zeros") << QString(3, QChar(0));
        QTest::newRow("a path with a zero")
            << m_dir.filePath(QStringLiteral("three.gif")) + QChar(0);
        QTest::newRow("directory") << m_dir.path();
        QTest::newRow("empty device") << QStringLiteral("/dev/null");
        QTest::newRow("endless device") << QStringLiteral("/dev/zero");
        QTest::newRow("absent") << m_dir.filePath(QStringLiteral("absent.gif"));
        QTest::newRow("text") << write(QStringLiteral("text.gif"), "not a movie");
    }

    void whatCannotBeReadIsAMovieWithoutFrames()
    {
        QFETCH(QString, path);
        const auto movie = movieFromFile(path);
        for (int i = 0; i < 2; ++i) {
            movie->setSpeed(50 * i);
            movie->start();
            QCOMPARE(movie->state(), QMovie::NotRunning);
            QVERIFY(movie->currentPixmap().isNull());
            movie->stop();
        }
        QCOMPARE(takeMessages(), QStringList());
    }
};

WIDGET_TEST_MAIN(tst_ImageFile)
#include "tst_imagefile.moc"
