// SPDX-License-Identifier: Apache-2.0
#include "feed.h"

#include <QElapsedTimer>
#include <QtTest/qtestmouse.h>
#include <QtTest/qtesttouch.h>
#include <QWindow>

namespace
{

QTouchDevice *touchScreen()
{
    static QTouchDevice *const device = QTest::createTouchDevice();
    return device;
}

int timestamp()
{
    static const QElapsedTimer sinceFirst = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
    return int(sinceFirst.elapsed());
}

QPointF toScreen(const QWindow &window, const QPointF &pos)
{
    return pos + window.mapToGlobal(QPoint());
}

} // namespace

void feed::touch(QWindow &window, const QVector<TouchPoint> &points)
{
    QList<QTouchEvent::TouchPoint> report;
    for (const TouchPoint &point : points) {
        QTouchEvent::TouchPoint reported(point.id);
        reported.setState(point.state);
        reported.setScreenPos(toScreen(window, point.pos));
        report.append(reported);
    }
    qt_handleTouchEvent(&window, touchScreen(), report);
}

void feed::mouse(QWindow &window, QEvent::Type type, const QPointF &pos, Qt::MouseButton button,
                 Qt::MouseButtons buttons)
{
    qt_handleMouseEvent(&window, pos, toScreen(window, pos), buttons, button, type, Qt::NoModifier,
                        timestamp());
}
