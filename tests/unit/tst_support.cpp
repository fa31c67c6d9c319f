// SPDX-License-Identifier: Apache-2.0
// The support of the tests is itself tested: a log that misses a line, a comparison that always
// agrees or a clock that stands still would turn every other test into decoration.

#include "allocations.h"
#include "gifs.h"
#include "measuredtext.h"
#include "signallog.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <SpDisLabel>

#include <QBuffer>
#include <QDateTime>
#include <QElapsedTimer>
#include <QImageReader>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>

#include <cstdlib>

class Talker : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
    QStringList events;

signals:
    void first(int number);
    void second(QString text, bool flag);
    void list(QList<int> values);
    void reals(float single, double exact);

protected:
    void mousePressEvent(QMouseEvent *e) override { note("press", e); }
    void mouseMoveEvent(QMouseEvent *e) override { note("move", e); }
    void mouseReleaseEvent(QMouseEvent *e) override { note("release", e); }

private:
    void note(const char *what, const QMouseEvent *e)
    {
        events += QStringLiteral("%1 %2,%3 at %4")
                      .arg(QString::fromLatin1(what))
                      .arg(e->x())
                      .arg(e->y())
                      .arg(e->timestamp());
    }
};

class tst_Support : public WidgetTest
{
    Q_OBJECT

private slots:
    void everyTestStartsAtAFullMinute()
    {
        QCOMPARE(QDateTime::currentMSecsSinceEpoch() % 60000, qint64(0));
        QCOMPARE(virtualtime::now() % 60000, qint64(0));
    }

    void timePassesOnlyInTheEventLoop()
    {
        QElapsedTimer timer;
        timer.start();
        const qint64 before = virtualtime::now();
        for (int i = 0; i < 1000; ++i)
            QCoreApplication::processEvents();
        QCOMPARE(timer.elapsed(), qint64(0));
        virtualtime::advance(86400000);
        QCOMPARE(timer.elapsed(), qint64(86400000));
        QCOMPARE(virtualtime::now() - before, qint64(86400000));
    }

    void coarseTimersExpireExactly()
    {
        QTimer timer;
        QVector<qint64> expiries;
        const qint64 start = virtualtime::now();
        connect(&timer, &QTimer::timeout, this, [&] { expiries += virtualtime::now() - start; });
        timer.start(800);
        virtualtime::advance(2400);
        QCOMPARE(expiries, (QVector<qint64>{800, 1600, 2400}));
    }

    void theLogKeepsTheOrderAcrossSignals()
    {
        Talker talker;
        SignalLog log(&talker);
        emit talker.second(QStringLiteral("a"), true);
        emit talker.first(3);
        emit talker.second(QStringLiteral("b"), false);
        QCOMPARE(log.take(),
                 (QStringList{"second(\"a\", true)", "first(3)", "second(\"b\", false)"}));
        QCOMPARE(log.take(), QStringList());
    }

    void theLogShowsRegisteredLists()
    {
        qRegisterMetaType<QList<int>>();
        Talker talker;
        SignalLog log(&talker);
        emit talker.list({1, 2});
        QCOMPARE(log.take().size(), 1);
    }

    void theLogSaysNothingOfQtsOwnSignals()
    {
        Talker talker;
        SignalLog log(&talker);
        talker.setObjectName(QStringLiteral("renamed"));
        talker.setWindowTitle(QStringLiteral("titled"));
        QCOMPARE(log.take(), QStringList());
    }

    void aLogWithAllDigitsTellsNeighboursApart()
    {
        Talker talker;
        SignalLog log(&talker);
        emit talker.reals(98.1F, 1.0 / 3);
        QCOMPARE(log.take(), QStringList{QStringLiteral("reals(98.1, 0.333333)")});
        log.writeAllDigits();
        emit talker.reals(98.1F, 1.0 / 3);
        QCOMPARE(log.take(), QStringList{QStringLiteral("reals(98.0999985, 0.33333333333333331)")});
        emit talker.first(7);
        QCOMPARE(log.take(), QStringList{QStringLiteral("first(7)")});
    }

    void aTouchGivesPressMoveAndRelease()
    {
        Talker talker;
        const qint64 start = virtualtime::now();
        touch(&talker).press(3, 4).hold(250).moveTo(5, 6).release();
        QCOMPARE(talker.events,
                 (QStringList{QStringLiteral("press 3,4 at %1").arg(start),
                              QStringLiteral("move 5,6 at %1").arg(start + 250),
                              QStringLiteral("release 5,6 at %1").arg(start + 250)}));
    }

    void aPaintIsCounted()
    {
        QWidget widget;
        show(widget);
        QCOMPARE(paints(widget, [] {}), 0);
        QCOMPARE(paints(widget, [&] { widget.update(); }), 1);
        QCOMPARE(paints(widget,
                        [&] {
                            widget.repaint();
                            widget.update();
                        }),
                 2);
    }

    void oneWrongPixelIsSeen()
    {
        QImage one(4, 4, QImage::Format_ARGB32_Premultiplied);
        one.fill(Qt::red);
        QImage two = one;
        QVERIFY(isSamePicture({one, two}, "same.cpp", 1));
        two.setPixel(3, 3, qRgba(254, 0, 0, 255));
        QVERIFY(!isSamePicture({one, two}, "expected-difference.cpp", 1));
        const QString written =
            QStringLiteral("differences/expected-difference-oneWrongPixelIsSeen-1-difference.png");
        QVERIFY(QFile::exists(written));
        QCOMPARE(QImage(written).pixelColor(3, 3), QColor(Qt::red));
        QVERIFY(!isSamePicture({one, QImage()}, "expected-difference.cpp", 2));
    }

    void messagesAreTaken()
    {
        qWarning("careful");
        qDebug("by the way");
        QCOMPARE(takeMessages(), (QStringList{"warning: careful", "debug: by the way"}));
    }

    void whatNobodyTookIsUnexpectedFromWarningsUp()
    {
        qWarning("nobody expects this");
        qDebug("by the way");
        qCritical("nor this");
        QCOMPARE(unexpectedMessages(),
                 (QStringList{"warning: nobody expects this", "critical: nor this"}));
        QCOMPARE(unexpectedMessages(), QStringList());
    }

    void askedForMemoryIsCounted()
    {
        QCOMPARE(allocations::during([] { std::free(std::malloc(1000)); }), 1000);
        QCOMPARE(allocations::during([] { std::free(std::calloc(10, 100)); }), 1000);
        QVERIFY(allocations::during([] { QByteArray(1000000, 'x'); }) >= 1000000);
        QCOMPARE(allocations::during([] {}), 0);
    }

    void measuredTextsOfTheLibraryAreCounted()
    {
        SpDisLabel label;
        label.resize(500, 20);
        QCOMPARE(measured::during([&] { label.setText(QStringLiteral("Radio")); }), 5);
        QCOMPARE(measured::during([] { QFontMetrics(QFont()).horizontalAdvance(u'x'); }), 1);
    }

    void aGifIsReadBackAsItWasWritten_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("delay");
        QTest::addColumn<int>("rounds");
        QTest::addColumn<int>("loopCount"); // the further rounds; -1: without end
        QTest::newRow("still") << 1 << QSize(12, 8) << 100 << 1 << 0;
        QTest::newRow("twice") << 2 << QSize(1, 1) << 20 << 2 << 1;
        QTest::newRow("without end") << 3 << QSize(301, 40) << 250 << 0 << -1;
        QTest::newRow("long") << 1000 << QSize(9, 6) << 50 << 0 << -1;
    }

    void aGifIsReadBackAsItWasWritten()
    {
        QFETCH(int, count);
        QFETCH(QSize, size);
        QFETCH(int, delay);
        QFETCH(int, rounds);
        const QVector<QImage> frames = gifFrames(count, size);
        QByteArray bytes = gifOf(frames, {delay, rounds});
        QBuffer file(&bytes);
        QImageReader reader(&file);
        QCOMPARE(reader.format(), QByteArray("gif"));
        for (int i = 0; i < count; ++i) {
            COMPARE_PICTURES(reader.read().convertToFormat(frames[i].format()), frames[i]);
            QCOMPARE(reader.nextImageDelay(), delay);
            QVERIFY(i == 0 || frames[i] != frames[i - 1]);
        }
        QVERIFY(!reader.canRead());
        QTEST(reader.loopCount(), "loopCount");
    }
};

WIDGET_TEST_MAIN(tst_Support)
#include "tst_support.moc"
