#include "detail/imagefile.h"

#include "files.h"
#include "gifs.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QBuffer>
#include <QImage>
#include <QMovie>
#include <QTemporaryDir>

#include <memory>

using namespace panelkit;

class tst_ImageFile : public WidgetTest
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString write(const QString &name, const QByteArray &bytes) const
    {
        return writtenFile(m_dir.filePath(name), bytes);
    }

    static QImage picture()
    {
        QImage image(40, 30, QImage::Format_RGB32);
        for (int y = 0; y < 30; ++y) {
            for (int x = 0; x < 40; ++x)
                image.setPixel(x, y, qRgb(x * 6, y * 8, (x * y) % 256));
        }
        return image;
    }

    static QByteArray encoded(const char *format)
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        picture().save(&buffer, format);
        return bytes;
    }

private slots:
    void aWholeFileIsRead_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::newRow("png") << QByteArray("png");
        QTest::newRow("jpg") << QByteArray("jpg");
        QTest::newRow("bmp") << QByteArray("bmp");
    }

    void aWholeFileIsRead()
    {
        QFETCH(QByteArray, format);
        const QString path = write(QStringLiteral("whole.") + format, encoded(format));
        QCOMPARE(pixmapFromFile(path).toImage().convertToFormat(QImage::Format_RGB32),
                 QImage(path).convertToFormat(QImage::Format_RGB32));
        QCOMPARE(pixmapFromFile(path).size(), QSize(40, 30));
    }

    void rubbishAfterTheEndDoesNoHarm()
    {
        const QString path = write(QStringLiteral("tail.png"), encoded("png") + "rubbish");
        QCOMPARE(pixmapFromFile(path).size(), QSize(40, 30));
    }

    void aTruncatedFileIsNoPictureAndLogsNothing_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<int>("percent");
        for (const char *format : {"png", "jpg"}) {
            for (int percent : {0, 1, 20, 50, 80, 99})
                QTest::addRow("%s to %d %%", format, percent) << QByteArray(format) << percent;
        }
    }

    void aTruncatedFileIsNoPictureAndLogsNothing()
    {
        QFETCH(QByteArray, format);
        QFETCH(int, percent);
        const QByteArray whole = encoded(format);
        const QString path =
            write(QStringLiteral("short.") + format, whole.left(whole.size() * percent / 100));
        QVERIFY(pixmapFromFile(path).isNull());
        QCOMPARE(takeMessages(), QStringList());
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
            QCOMPARE(movie->currentImage().size(), QSize(40, 30));
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
        for (const char *format : {"png", "jpg"}) {
            const QByteArray whole = encoded(format);
            QTest::newRow(format) << write(QStringLiteral("half.") + format,
                                           whole.left(whole.size() / 2));
        }
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
