#include "detail/imagefile.h"

#include "files.h"
#include "widgettest.h"

#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>

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
        QCOMPARE(takeMessages(), QStringList());
    }
};

WIDGET_TEST_MAIN(tst_ImageFile)
#include "tst_imagefile.moc"
