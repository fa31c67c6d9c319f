// SPDX-License-Identifier: Apache-2.0
#ifndef HOSTILE_H
#define HOSTILE_H

#include "pictures.h"
#include "tablerows.h"

#include <QBitmap>
#include <QRect>
#include <QString>
#include <QTest>
#include <QWidget>

#include <climits>

/// Rows of a caption rectangle, "rect", and of where the caption of a widget of this area then
/// stands, "expected": one that has no area is the whole widget.
inline void addCaptionRectangles(const QRect &widget)
{
    const TableRows<QRect, QRect> row("rect", "expected");
    row("none", QRect(), widget);
    row("valid", QRect(20, 50, 70, 25), QRect(20, 50, 70, 25));
    row("one pixel", QRect(50, 40, 1, 1), QRect(50, 40, 1, 1));
    row("beside", QRect(-30, -20, 70, 60), QRect(-30, -20, 70, 60));
    row("no width", QRect(20, 50, 0, 25), widget);
    row("no height", QRect(20, 50, 70, 0), widget);
}

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

/// Rows of an "image" that is seldom one.
inline void addHostilePictures()
{
    QTest::addColumn<QPixmap>("image");
    QBitmap bitmap(16, 16);
    bitmap.fill(Qt::color1);
    QPixmap dense(64, 64);
    dense.setDevicePixelRatio(2);
    dense.fill(Qt::red);
    QPixmap opaque(30, 30);
    opaque.fill(Qt::red);
    QTest::newRow("20,000 wide") << picture(Qt::green, {20000, 4});
    QTest::newRow("20,000 high") << picture(Qt::green, {4, 20000});
    QTest::newRow("one pixel") << picture(Qt::green, {1, 1});
    QTest::newRow("bitmap") << QPixmap(bitmap);
    QTest::newRow("opaque") << opaque;
    QTest::newRow("high resolution") << dense;
}

#endif // HOSTILE_H
