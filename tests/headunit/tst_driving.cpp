// SPDX-License-Identifier: Apache-2.0
#include "finger.h"
#include "headunit.h"
#include "models/samples.h"
#include "pagetest.h"
#include "virtualtime.h"

#include <QLabel>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QStackedWidget>

#include <malloc.h>

using namespace headunit;

namespace
{

constexpr int kMinute = 60'000; // ms

/// The whole head unit as its program makes it, with the bundled samples.
struct Car : PageWorld {
    Car()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
        player.seedShuffle(1);
        stations.load(samples::stationsFile());
        contacts.load(samples::contactsFile());
        player.setModel(music.tracks());
        music.open(samples::musicFolder());
        const virtualtime::Standstill standstill;
        while (!music.isFinished())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        unit.show();
    }

    HeadUnit unit{context, {1024, 600}, Theme::Day};
};

/// Somebody who touches what there is to be touched, in an order made by chance.
class Driver
{
public:
    Driver(HeadUnit &unit, quint32 seed) : m_unit(unit), m_finger(&unit), m_random(seed) { }

    /// Drives for this long, with a touch every now and then.
    void drive(int minutes)
    {
        const qint64 end = virtualtime::now() + qint64(minutes) * kMinute;
        while (virtualtime::now() < end) {
            touchSomething();
            m_finger.hold(m_random.bounded(kLongestPause));
        }
    }

private:
    static constexpr int kLongestPause = 10'000; // ms

    void touchSomething()
    {
        const QVector<QWidget *> candidates = touchable();
        QWidget *widget = candidates.at(m_random.bounded(candidates.size()));
        const QPoint from = placeOn(*widget);
        const QPoint to = placeOn(*widget);
        m_finger.on(widget).press(from);
        const int kind = m_random.bounded(10);
        if (kind < 2)
            m_finger.moveTo(to, 100 + m_random.bounded(500));
        else
            m_finger.hold(kind == 2 ? 1200 : 60);
        m_finger.release();
    }

    QPoint placeOn(const QWidget &widget)
    {
        return {m_random.bounded(widget.width()), m_random.bounded(widget.height())};
    }

    // What is in sight and has nothing in it; labels and what only holds others are no aims.
    QVector<QWidget *> touchable() const
    {
        QVector<QWidget *> result;
        const auto all = m_unit.findChildren<QWidget *>();
        for (QWidget *widget : all) {
            const QPoint middle = widget->mapTo(&m_unit, widget->rect().center());
            if (widget->isVisible() && m_unit.childAt(middle) == widget
                && !qobject_cast<QLabel *>(widget)
                && widget->metaObject() != &QWidget::staticMetaObject)
                result.append(widget);
        }
        return result;
    }

    HeadUnit &m_unit;
    Finger m_finger;
    QRandomGenerator m_random;
};

// A view out of sight has the pictures of the look in which it was seen.
void showEveryView(Car &car)
{
    for (const QString &page : car.unit.pageNames()) {
        car.unit.openPage(page);
        const auto stacks = car.unit.page(page)->findChildren<QStackedWidget *>();
        for (QStackedWidget *views : stacks) {
            for (int view = views->count() - 1; view >= 0; --view) {
                views->setCurrentIndex(view);
                virtualtime::advance(kMinute);
            }
        }
    }
}

// What the process has in use, when everything is as at the beginning.
qint64 memoryAtHome(Car &car)
{
    car.player.pause();
    car.unit.setLook(Theme::Day);
    showEveryView(car);
    car.unit.openPage(QStringLiteral("home"));
    virtualtime::advance(kMinute);
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
}

} // namespace

class DrivingTest : public WidgetTest
{
    Q_OBJECT

private slots:
    void nothingHappensOnAnIdlePage();
    void onlyTheClockTicks();
    void memoryDoesNotGrowAfterTheFirstPart();
};

// Between two full minutes.
void DrivingTest::nothingHappensOnAnIdlePage()
{
    Car car;
    car.tuner.setFrequency(10340); // its text has room, and does not roll
    const QStringList pages = car.unit.pageNames();
    for (const QString &page : pages) {
        car.unit.openPage(page);
        virtualtime::advance(kMinute);
        virtualtime::startMinute();
        virtualtime::advance(1000);
        Activity activity;
        virtualtime::advance(kMinute - 2000);
        QVERIFY2(activity.text().isEmpty(), qPrintable(page + ": " + activity.text()));
    }
}

void DrivingTest::onlyTheClockTicks()
{
    Car car;
    virtualtime::advance(kMinute);
    virtualtime::startMinute();
    virtualtime::advance(1000);
    Activity activity;
    virtualtime::advance(kMinute);
    const QStringList happened = activity.text().split(QStringLiteral(", "));
    QCOMPARE(happened.first(), QStringLiteral("Timer QTimer"));
    QVERIFY(happened.contains(QStringLiteral("Paint QLabel of headunit::StatusBar")));
    QCOMPARE(happened.filter(QStringLiteral("Timer")).size(), 1);
}

// Some minutes, or as many as the environment says. The first hour, or most of a shorter time, has
// brought everything on the screen once. Less at the end is no leak.
void DrivingTest::memoryDoesNotGrowAfterTheFirstPart()
{
    const int asked = qEnvironmentVariableIntValue("PANELKIT_DRIVE_MINUTES");
    const int minutes = asked > 0 ? asked : 90;
    const int firstPart = std::min(60, minutes * 3 / 4);
    Car car;
    Driver driver(car.unit, 1);
    driver.drive(firstPart);
    const qint64 first = memoryAtHome(car);
    driver.drive(minutes - firstPart);
    const qint64 last = memoryAtHome(car);
    const QString figures =
        QStringLiteral("%1 bytes at first, %2 after %3 minutes").arg(first).arg(last).arg(minutes);
    QVERIFY2(last - first <= first / 50, qPrintable(figures));
    std::printf("%s\n", qPrintable(figures));
}

WIDGET_TEST_MAIN(DrivingTest)
#include "tst_driving.moc"
