// SPDX-License-Identifier: Apache-2.0
#include "census.h"
#include "finger.h"
#include "headunit.h"
#include "languages.h"
#include "models/samples.h"
#include "pages/call.h"
#include "pagetest.h"
#include "virtualtime.h"

#include <QLabel>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QStackedWidget>

#include <algorithm>

using namespace headunit;

namespace
{

constexpr int kMinute = 60'000; // ms
constexpr int kHour = 60; // minutes
constexpr int kShortText = 10340; // 10 kHz, of a station whose text has room and does not roll

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

    Languages languages{&preferences};
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

// Everything as at the beginning: nothing goes on, above all no call, which has the phone's page
// for itself, and each view has the look and the language of the start.
void comeToRest(Car &car)
{
    car.unit.findChild<Call *>()->hangUp(); // the music that it has paused goes on
    car.player.pause();
    car.tuner.setBand(Band::Fm);
    car.tuner.setFrequency(kShortText); // ends a scan, too
    car.preferences.setLanguage(QStringLiteral("en"));
    car.preferences.setLook(Preferences::Look::Day);
    showEveryView(car);
    const auto *popup = car.unit.findChild<QWidget *>(QStringLiteral("popup"));
    auto *close = car.unit.findChild<QWidget *>(QStringLiteral("popupClose"));
    while (popup->isVisible())
        Finger(close).press().hold(60).release();
    car.unit.openPage(QStringLiteral("home"));
    virtualtime::advance(kMinute);
}

// Drives, and counts what there is each hour and at the end.
QVector<Belongings> belongingsOnADrive(int minutes)
{
    const Census census;
    Car car;
    Driver driver(car.unit, 1);
    QVector<Belongings> marks;
    for (int driven = 0; driven < minutes; driven += kHour) {
        car.preferences.setLook(Preferences::Look::Automatic);
        driver.drive(std::min(kHour, minutes - driven));
        comeToRest(car);
        marks.append(census.count());
    }
    return marks;
}

// Of each hundred at most two more, or a single one that was not needed in the first hour.
bool hasGrown(qint64 before, qint64 now) { return now - before > std::max<qint64>(before / 50, 1); }

} // namespace

class DrivingTest : public WidgetTest
{
    Q_OBJECT

private slots:
    void nothingHappensOnAnIdlePage();
    void onlyTheClockTicks();
    void nothingGrowsAfterTheFirstHour();
};

// Between two full minutes.
void DrivingTest::nothingHappensOnAnIdlePage()
{
    Car car;
    car.tuner.setFrequency(kShortText);
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

// Some minutes, or as many as the environment says. The first hour has brought everything on the
// screen once. Less memory would mean that there was more than was needed.
void DrivingTest::nothingGrowsAfterTheFirstHour()
{
    const int asked = qEnvironmentVariableIntValue("PANELKIT_DRIVE_MINUTES");
    const QVector<Belongings> marks = belongingsOnADrive(asked > 0 ? asked : 90);
    for (const Belongings &mark : marks)
        std::printf("%s\n", qPrintable(mark.text()));
    const Belongings &first = marks.first();
    for (const Belongings &mark : marks) {
        const QByteArray figures = (first.text() + " at first, then " + mark.text()).toUtf8();
        QVERIFY2(!hasGrown(first.bytes, mark.bytes), figures);
        QVERIFY2(first.bytes - mark.bytes <= first.bytes / 50, figures);
        QVERIFY2(!hasGrown(first.objects, mark.objects), figures);
        QVERIFY2(!hasGrown(first.connections, mark.connections), figures);
        QVERIFY2(!hasGrown(first.timers, mark.timers), figures);
        QVERIFY2(!hasGrown(first.files, mark.files), figures);
        QVERIFY2(!hasGrown(first.events, mark.events), figures);
    }
}

WIDGET_TEST_MAIN(DrivingTest)
#include "tst_driving.moc"
