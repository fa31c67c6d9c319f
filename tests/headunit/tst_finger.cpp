// SPDX-License-Identifier: Apache-2.0
#include "finger.h"
#include "mousewitness.h"
#include "widgettest.h"

#include <QTouchEvent>

namespace
{

/// Counts what comes in at windows as a touch of a person.
class TouchCounter : public QObject
{
public:
    TouchCounter() { qApp->installEventFilter(this); }
    int count() const { return m_count; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isTouch =
            event->type() >= QEvent::TouchBegin && event->type() <= QEvent::TouchEnd;
        m_count += watched->isWindowType() && isTouch && event->spontaneous();
        return false;
    }

private:
    int m_count = 0;
};

} // namespace

class FingerTest : public WidgetTest
{
    Q_OBJECT

private slots:
    void touchesEnterAtTheWindowAndBecomeMouseEvents();
    void moveIsEvenInTime();
    void moveWithoutTimeIsOneStep();
    void pressWithoutAPlaceIsInTheMiddle();
    void positionsAreThoseOfTheWidget();
    void onTurnsToAnotherWidget();
    void firstPressIsNoDoubleClick();
    void twoQuickTapsAreADoubleClick();
    void holdDeletesWhatATouchLeaves();
    void fingerOnADeletedWidgetDoesNothing();
    void pictureIsAskedForAfterPendingEvents();
    void pictureNeedsNobody();
};

void FingerTest::touchesEnterAtTheWindowAndBecomeMouseEvents()
{
    MouseWitness widget;
    widget.resize(200, 100);
    show(widget);
    widget.take();
    const TouchCounter touches;
    Finger(&widget).press({10, 20}).hold(300).release();
    QCOMPARE(widget.take(), QStringList({"press 10,20 at 0", "release 10,20 at 300"}));
    QCOMPARE(touches.count(), 2);
}

void FingerTest::moveIsEvenInTime()
{
    MouseWitness widget;
    widget.resize(200, 100);
    show(widget);
    widget.take();
    Finger(&widget).press({10, 20}).moveTo({70, 50}, 48).release();
    QCOMPARE(widget.take(),
             QStringList({"press 10,20 at 0", "move 30,30 at 16", "move 50,40 at 32",
                          "move 70,50 at 48", "release 70,50 at 48"}));
}

void FingerTest::moveWithoutTimeIsOneStep()
{
    MouseWitness widget;
    widget.resize(200, 100);
    show(widget);
    widget.take();
    Finger(&widget).press({10, 20}).moveTo({70, 50}).release();
    QCOMPARE(widget.take(),
             QStringList({"press 10,20 at 0", "move 70,50 at 0", "release 70,50 at 0"}));
}

void FingerTest::pressWithoutAPlaceIsInTheMiddle()
{
    MouseWitness widget;
    widget.resize(201, 101);
    show(widget);
    widget.take();
    Finger(&widget).press().release();
    QCOMPARE(widget.take(), QStringList({"press 100,50 at 0", "release 100,50 at 0"}));
}

void FingerTest::positionsAreThoseOfTheWidget()
{
    QWidget window;
    window.resize(300, 200);
    MouseWitness widget(&window);
    widget.setGeometry(100, 50, 100, 100);
    show(window);
    widget.take();
    Finger(&widget).press({1, 2}).release();
    Finger(&window).press({101, 52}).release();
    QCOMPARE(
        widget.take(),
        QStringList({"press 1,2 at 0", "release 1,2 at 0", "press 1,2 at 0", "release 1,2 at 0"}));
}

void FingerTest::onTurnsToAnotherWidget()
{
    QWidget window;
    window.resize(300, 200);
    MouseWitness left(&window);
    MouseWitness right(&window);
    left.setGeometry(0, 0, 100, 100);
    right.setGeometry(100, 0, 100, 100);
    show(window);
    left.take();
    right.take();
    Finger(&left).press({1, 2}).release().on(&right).press({3, 4}).release();
    QCOMPARE(left.take(), QStringList({"press 1,2 at 0", "release 1,2 at 0"}));
    QCOMPARE(right.take(), QStringList({"press 3,4 at 0", "release 3,4 at 0"}));
}

void FingerTest::firstPressIsNoDoubleClick()
{
    MouseWitness widget;
    widget.resize(200, 100);
    show(widget);
    Finger(&widget).press({10, 20}).release();
    widget.take();
    Finger(&widget).press({10, 20}).release();
    QCOMPARE(widget.take(), QStringList({"press 10,20 at 0", "release 10,20 at 0"}));
}

void FingerTest::twoQuickTapsAreADoubleClick()
{
    MouseWitness widget;
    widget.resize(200, 100);
    show(widget);
    widget.take();
    Finger(&widget).press({10, 20}).release().press({10, 20}).release();
    QCOMPARE(widget.take(),
             QStringList({"press 10,20 at 0", "release 10,20 at 0", "double 10,20 at 0",
                          "release 10,20 at 0"}));
}

void FingerTest::holdDeletesWhatATouchLeaves()
{
    QWidget window;
    show(window);
    QPointer<QObject> left = new QObject;
    QTimer::singleShot(0, &window, [&] { // in the middle of an event, as the catalogue plays them
        left->deleteLater();
        Finger(&window).hold(10);
        QVERIFY(!left);
    });
    virtualtime::advance(100);
    QVERIFY(!left);
}

void FingerTest::fingerOnADeletedWidgetDoesNothing()
{
    QWidget window;
    window.resize(200, 100);
    auto *widget = new MouseWitness(&window);
    widget->setGeometry(0, 0, 100, 100);
    show(window);
    Finger finger(widget);
    finger.press({10, 20});
    delete widget;
    const TouchCounter touches;
    finger.moveTo({50, 50}, 100).release();
    QCOMPARE(touches.count(), 0);
    Finger(&window).press({150, 50}).release(); // lifts the finger that was left down
}

void FingerTest::pictureIsAskedForAfterPendingEvents()
{
    QWidget window;
    window.resize(200, 100);
    show(window);
    QStringList order;
    QTimer::singleShot(0, &window, [&] { order += QStringLiteral("event"); });
    Finger(&window, [&] { order += QStringLiteral("picture"); }).picture();
    QCOMPARE(order, QStringList({"event", "picture"}));
}

void FingerTest::pictureNeedsNobody()
{
    MouseWitness widget;
    widget.resize(200, 100);
    show(widget);
    widget.take();
    Finger(&widget).press({10, 20}).picture().release();
    QCOMPARE(widget.take().size(), 2);
}

WIDGET_TEST_MAIN(FingerTest)
#include "tst_finger.moc"
