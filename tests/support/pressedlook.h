// SPDX-License-Identifier: Apache-2.0
#ifndef PRESSEDLOOK_H
#define PRESSEDLOOK_H

#include "signallog.h"
#include "touch.h"
#include "widgettest.h"

/// A button reports the press of a tap, asks for its sound later and reports the release.
inline void checkReportsOfTap(QWidget &button, const QString &pressed, const QString &released)
{
    SignalLog log(&button);
    Touch finger = touch(&button);
    finger.press(10, 10);
    QCOMPARE(log.take(), QStringList{pressed});
    finger.hold(10);
    QCOMPARE(log.take(), QStringList{"beep"});
    finger.release().hold(10);
    QCOMPARE(log.take(), QStringList{released});
}

/// A finger on a button presses it until it is lifted, wherever it is moved; only these two repaint
/// it.
template <typename Button> void checkAPressShowsUntilTheRelease(Button &button)
{
    WidgetTest::show(button);
    Touch finger = touch(&button);
    QCOMPARE(WidgetTest::paints(button, [&] { finger.press(10, 10); }), 1);
    QVERIFY(button.isDown());
    QCOMPARE(WidgetTest::paints(button, [&] { finger.moveTo(500, 500); }), 0);
    QVERIFY(button.isDown());
    QCOMPARE(WidgetTest::paints(button, [&] { finger.release(); }), 1);
    QVERIFY(!button.isDown());
}

/// A button is down while it reports the press and no longer down while it reports the release.
template <typename Button> void checkReportsComeWithTheLook(Button &button)
{
    SignalLog log(&button);
    QVector<bool> down;
    log.onLine([&](const QString &) { down += button.isDown(); });
    touch(&button).tap(10, 10);
    QCOMPARE(down, (QVector<bool>{true, false}));
}

/// A button that latches stays down after a tap, of which it says what any button does.
template <typename Button> void checkLatches(Button &button, const QStringList &said)
{
    button.setIsLock(true);
    WidgetTest::show(button);
    SignalLog log(&button);
    Touch finger = touch(&button);
    QCOMPARE(WidgetTest::paints(button, [&] { finger.press(10, 10); }), 1);
    QCOMPARE(WidgetTest::paints(button, [&] { finger.release(); }), 1);
    QVERIFY(button.isDown());
    QCOMPARE(log.take(), said);
    button.setIsDown(false);
    QVERIFY(!button.isDown());
}

#endif // PRESSEDLOOK_H
