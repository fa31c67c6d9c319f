// SPDX-License-Identifier: Apache-2.0
#ifndef LONGPRESS_H
#define LONGPRESS_H

#include "signallog.h"
#include "touch.h"

#include <QPointer>
#include <QTest>
#include <QTimerEvent>

/// A button that counts the ticks of its timer and whose handlers a test may call.
template <typename Base> class TickingButton : public Base
{
public:
    using Base::Base;
    using Base::mousePressEvent;
    using Base::mouseReleaseEvent;

    int ticks = 0;

    void timerEvent(QTimerEvent *e) override
    {
        ++ticks;
        Base::timerEvent(e);
    }
};

/// How a button tells a tap from a long press.
struct LongPress {
    int interval; ///< ms that a long press takes.
    QStringList down; ///< What is said when the finger has come down.
    QStringList tap; ///< All that is said of a tap.
    QString clicked; ///< What of it is the click.
    QString longClicked; ///< What is said of a long press.
};

/// Nothing ticks after the release of a tap that was almost too long.
template <typename Button> void checkReleaseEndsTheTiming(Button &button, const LongPress &press)
{
    SignalLog log(&button);
    touch(&button).press(10, 10).hold(press.interval - 100).release().hold(10000);
    QCOMPARE(log.take(), press.tap);
    QCOMPARE(button.ticks, 0);
}

/// A press after a long one whose release never came is a new one.
inline void checkPressAfterALostReleaseStartsAnew(QWidget &button, const LongPress &press)
{
    SignalLog log(&button);
    Touch finger = touch(&button);
    finger.press(10, 10).hold(press.interval).press(10, 10).hold(0);
    log.take();
    finger.release();
    QCOMPARE(log.take(), QStringList{press.clicked});
}

/// A second press without a release times a long press of its own, which is the only one.
template <typename Button> void checkSecondPressTimesAnew(Button &button, const LongPress &press)
{
    SignalLog log(&button);
    Touch finger = touch(&button);
    const int most = press.interval - 500;
    finger.press(10, 10).hold(most).press(10, 10).hold(most);
    QCOMPARE(log.take(), press.down + press.down);
    finger.hold(500);
    QCOMPARE(log.take(), QStringList{press.longClicked});
    finger.hold(20000);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(button.ticks, 1);
}

/// Rows of the "line" at which checkSlotMayDelete() deletes a button.
inline void addLinesOfDeletion(const LongPress &press)
{
    QTest::addColumn<QString>("line");
    QTest::newRow("at a click") << press.clicked;
    QTest::newRow("at a long press") << press.longClicked;
}

/// A button survives it that a slot deletes it when it says the row's "line".
inline void checkSlotMayDelete(QPointer<QWidget> button, const LongPress &press)
{
    QFETCH(QString, line);
    SignalLog log(button);
    log.onLine([&](const QString &said) {
        if (said == line)
            delete button;
    });
    touch(button).press(10, 10).hold(line == press.clicked ? 0 : press.interval).release();
    QVERIFY(!button);
}

#endif // LONGPRESS_H
