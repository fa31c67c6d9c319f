// SPDX-License-Identifier: Apache-2.0
#ifndef HOSTILE_H
#define HOSTILE_H

#include <QRect>
#include <QString>
#include <QTest>
#include <QWidget>

#include <climits>

/// Rows of a caption rectangle, "rect", and of where the caption of a widget of this area then
/// stands, "expected". A rectangle counts as far as a widget can reach; one that is not valid is
/// the whole widget.
inline void addHostileRectangles(const QRect &widget)
{
    constexpr int kFarthest = QWIDGETSIZE_MAX;
    const int bottom = widget.bottom();
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("everywhere") << QRect(QPoint(INT_MIN, INT_MIN), QPoint(INT_MAX, INT_MAX))
                                << QRect(QPoint(-kFarthest, -kFarthest),
                                         QPoint(kFarthest, kFarthest));
    QTest::newRow("far right") << QRect(QPoint(0, 0), QPoint(INT_MAX, bottom))
                               << QRect(QPoint(0, 0), QPoint(kFarthest, bottom));
    QTest::newRow("beyond everything")
        << QRect(QPoint(INT_MAX, INT_MAX), QPoint(INT_MAX, INT_MAX))
        << QRect(QPoint(kFarthest, kFarthest), QPoint(kFarthest, kFarthest));
    QTest::newRow("inside out") << QRect(QPoint(INT_MAX, INT_MAX), QPoint(INT_MIN, INT_MIN))
                                << widget;
}

/// Rows of a "text" that no caption has.
inline void addHostileStrings()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("long") << QString(100000, QLatin1Char('W'));
    QTest::newRow("many lines") << QString(1000, QLatin1Char('\n'));
    QTest::newRow("half a character") << QString(QChar(0xD800));
    QTest::newRow("zero character") << QString(QChar(0));
}

#endif // HOSTILE_H
