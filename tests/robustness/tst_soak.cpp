// SPDX-License-Identifier: Apache-2.0
// Every class for days of virtual time, touched across each full minute. Some hours, or as many as
// PANELKIT_SOAK_HOURS says.

#include "census.h"
#include "pictures.h"
#include "samples.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QPixmapCache>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QStandardItemModel>
#include <sprollingtext.h>
#include <sptablelist.h>

#include <memory>

namespace
{

constexpr int kMinute = 60'000; // ms
constexpr int kMinutesPerHour = 60;
constexpr int kLead = 150; // ms before the full minute, when a finger comes down
constexpr int kStep = 30; // ms between two moves
constexpr int kMoves = 10;
constexpr int kSpare = 16384; // bytes, for what is kept of the last texts and pictures

int hours()
{
    const int asked = qEnvironmentVariableIntValue("PANELKIT_SOAK_HOURS");
    return asked > 0 ? asked : 3;
}

void waitForLead(int minute)
{
    virtualtime::advance(int(qint64(minute + 1) * kMinute - kLead - virtualtime::now()));
}

/// A finger that comes down before the full minute and leaves after it.
void dragAcrossTheMinute(QWidget &widget, QRandomGenerator &random)
{
    const auto somewhere = [&] {
        return QPoint(random.bounded(widget.width()), random.bounded(widget.height()));
    };
    const QPoint from = somewhere();
    const QPoint way = random.bounded(2) == 0 ? QPoint() : somewhere() - from;
    Touch finger = touch(&widget);
    finger.press(from);
    for (int i = 1; i <= kMoves; ++i) {
        finger.hold(kStep);
        if (!way.isNull())
            finger.moveTo(from.x() + way.x() * i / kMoves, from.y() + way.y() * i / kMoves);
    }
    finger.release();
}

/// Where a fling across a full minute brings a list from its top, step by step.
QVector<int> fling(SpTableList &list)
{
    waitForLead(int(virtualtime::now() / kMinute));
    QScrollBar *bar = list.verticalScrollBar();
    bar->setValue(0);
    Touch finger = touch(list.viewport());
    finger.press(20, 290);
    for (int y = 250; y > 20; y -= 40)
        finger.hold(kStep).moveTo(20, y);
    finger.release();
    QVector<int> places;
    while (places.size() < 100) {
        virtualtime::advance(kStep);
        places += bar->value();
    }
    return places;
}

/// After how many paints a marquee of this text begins again: two pixels each, and each character
/// of the text and the gap behind it begins a new pixel.
int paintsOfOneRound(const SpRollingText &marquee)
{
    const QFontMetrics metrics(marquee.font());
    int paints = 0;
    const QString round = marquee.text() + QString(16, QLatin1Char(' '));
    for (const QChar character : round)
        paints += std::max(1, (metrics.horizontalAdvance(character) + 1) / 2);
    return paints;
}

} // namespace

class tst_Soak : public WidgetTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QPixmapCache::setCacheLimit(0); }
    void nothingGrowsAfterTheFirstHour_data();
    void nothingGrowsAfterTheFirstHour();
    void marqueeStaysInPhase();
    void aFlingStaysTheSame();
};

void tst_Soak::nothingGrowsAfterTheFirstHour_data()
{
    QTest::addColumn<int>("index");
    const QVector<Sample> all = samples();
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(all.at(i).className) << i;
}

// Each hour brings the same touches, so that what is kept for them is there after the first one.
void tst_Soak::nothingGrowsAfterTheFirstHour()
{
    QFETCH(int, index);
    const Census census;
    const Sample sample = samples().at(index);
    QWidget parent;
    parent.resize(sample.size);
    QWidget *widget = made(sample, sample.size).release();
    widget->setParent(&parent);
    parent.show();

    Belongings first;
    virtualtime::startMinute();
    const int start = int(virtualtime::now() / kMinute);
    for (int hour = 0; hour < hours(); ++hour) {
        QRandomGenerator random(1);
        for (int i = 0; i < kMinutesPerHour; ++i) {
            waitForLead(start + hour * kMinutesPerHour + i);
            dragAcrossTheMinute(*widget, random);
        }
        takeMessages(); // what a class says at a touch
        const Belongings mark = census.count();
        if (hour == 0)
            first = mark;
        const QByteArray figures = QStringLiteral("%1, after hour %2 %3")
                                       .arg(first.text())
                                       .arg(hour + 1)
                                       .arg(mark.text())
                                       .toUtf8();
        QVERIFY2(mark.bytes - first.bytes < kSpare, figures);
        QVERIFY2(mark.objects <= first.objects, figures);
        QVERIFY2(mark.connections <= first.connections, figures);
        QVERIFY2(mark.timers <= first.timers, figures);
        QVERIFY2(mark.files <= first.files, figures);
        QVERIFY2(mark.events <= first.events, figures);
    }
}

// A paint each 150 ms, and after so many of them the picture of one that was painted as often,
// whole rounds aside.
void tst_Soak::marqueeStaysInPhase()
{
    const auto makeMarquee = [] {
        auto marquee = std::make_unique<SpRollingText>();
        marquee->resize(80, 24);
        marquee->setText(QStringLiteral("Nowhere to go but round"));
        return marquee;
    };
    const auto marquee = makeMarquee();
    int paints = 0;
    connect(marquee.get(), &SpRollingText::paintFinish, this, [&] { ++paints; });
    marquee->show();
    QCoreApplication::processEvents();
    QCOMPARE(paints, 1);
    for (int minute = 0; minute < hours() * kMinutesPerHour; ++minute)
        virtualtime::advance(kMinute);
    QCOMPARE(paints, 1 + hours() * kMinutesPerHour * (kMinute / 150));

    const auto fresh = makeMarquee();
    const int steps = paints % paintsOfOneRound(*fresh);
    QVERIFY(steps > 0);
    for (int i = 0; i < steps; ++i) {
        painted(*fresh);
        QCoreApplication::processEvents();
    }
    COMPARE_PICTURES(painted(*marquee), painted(*fresh));
}

void tst_Soak::aFlingStaysTheSame()
{
    QStandardItemModel model(1000, 1);
    SpTableList list;
    list.setModel(&model);
    list.setItemHeight(50);
    list.setItemWidth(200);
    list.resize(200, 300);
    list.show();
    const QVector<int> atFirst = fling(list);
    QVERIFY(atFirst.last() > 100);
    QCOMPARE(fling(list), atFirst);
    QRandomGenerator random(1);
    for (int minute = 0; minute < hours() * kMinutesPerHour; ++minute) {
        waitForLead(int(virtualtime::now() / kMinute));
        dragAcrossTheMinute(*list.viewport(), random);
    }
    QCOMPARE(fling(list), atFirst);
}

WIDGET_TEST_MAIN(tst_Soak)
#include "tst_soak.moc"
