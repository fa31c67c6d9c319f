// SPDX-License-Identifier: Apache-2.0
#include "detail/geometry.h"

#include <QtTest>

#include <climits>
#include <cmath>

using namespace panelkit;

class tst_Geometry : public QObject
{
    Q_OBJECT

private slots:
    void anEvenRemainderIsHalvedAlike()
    {
        const QRect rect(10, 20, 100, 50);
        QCOMPARE(centredTowardZero({40, 20}, rect), QRect(40, 35, 40, 20));
        QCOMPARE(centredTowardMinusInfinity({40, 20}, rect), QRect(40, 35, 40, 20));
    }

    void anOddRemainderIsHalvedAlikeWhereTheSizeFits()
    {
        const QRect rect(0, 0, 101, 51);
        QCOMPARE(centredTowardZero({40, 20}, rect), QRect(30, 15, 40, 20));
        QCOMPARE(centredTowardMinusInfinity({40, 20}, rect), QRect(30, 15, 40, 20));
    }

    void theTwoDifferWhereTheSizeIsLarger()
    {
        const QRect rect(0, 0, 35, 15);
        QCOMPARE(centredTowardZero({40, 20}, rect), QRect(-2, -2, 40, 20));
        QCOMPARE(centredTowardMinusInfinity({40, 20}, rect), QRect(-3, -3, 40, 20));
    }

    void boundedPixelLimitsANumber()
    {
        QCOMPARE(boundedPixel(-5), -5);
        QCOMPARE(boundedPixel(16777215), 16777215);
        QCOMPARE(boundedPixel(16777216), 16777215);
        QCOMPARE(boundedPixel(INT_MIN), -16777215);
    }

    void boundedRectKeepsSensibleNumbers()
    {
        QCOMPARE(boundedRect(-5, 7, 300, 200), QRect(-5, 7, 300, 200));
        QCOMPARE(boundedRect(0, 0, -4, 0), QRect(0, 0, -4, 0));
    }

    void boundedRectLimitsEachNumber()
    {
        constexpr int kFarthest = 16777215;
        const QRect large = boundedRect(INT_MAX, INT_MIN, INT_MAX, kFarthest + 1);
        QCOMPARE(large.topLeft(), QPoint(kFarthest, -kFarthest));
        QCOMPARE(large.size(), QSize(kFarthest, kFarthest));
        QCOMPARE(large.right(), 2 * kFarthest - 1);
    }

    void boundedOrKeepsAValidRectangle()
    {
        const QRect fallback(0, 0, 100, 50);
        QCOMPARE(boundedOr({-5, 7, 300, 200}, fallback), QRect(-5, 7, 300, 200));
        QCOMPARE(boundedOr({10, 20, 1, 1}, fallback), QRect(10, 20, 1, 1));
    }

    void boundedOrFallsBackWhereARectangleIsNotValid()
    {
        const QRect fallback(0, 0, 100, 50);
        QCOMPARE(boundedOr(QRect(), fallback), fallback);
        QCOMPARE(boundedOr({10, 20, 0, 30}, fallback), fallback);
        QCOMPARE(boundedOr({10, 20, 30, 0}, fallback), fallback);
    }

    void boundedOrLimitsEachEdge()
    {
        constexpr int kFarthest = 16777215;
        const QRect large =
            boundedOr(QRect(QPoint(INT_MIN, INT_MIN), QPoint(INT_MAX, INT_MAX)), {});
        QCOMPARE(large.topLeft(), QPoint(-kFarthest, -kFarthest));
        QCOMPARE(large.bottomRight(), QPoint(kFarthest, kFarthest));
    }

    void touchDirectionRunsClockwiseFromUp()
    {
        const auto degrees = [](double opposite, double adjacent) {
            return std::atan2(opposite, adjacent) * 180 / 3.14159;
        };
        QVERIFY(touchDirection(3, -4, 0).value() == degrees(3, 4));
        QVERIFY(touchDirection(4, 3, 0).value() == degrees(3, 4) + 90);
        QVERIFY(touchDirection(-3, 4, 0).value() == degrees(3, 4) + 180);
        QVERIFY(touchDirection(-4, -3, 0).value() == degrees(3, 4) + 270);
        QVERIFY(touchDirection(0.3, -0.4, 0).value() == degrees(0.3, 0.4));
        QVERIFY(touchDirection(0.4, 0.3, 0).value() == degrees(0.3, 0.4) + 90);
        QVERIFY(touchDirection(-0.3, 0.4, 0).value() == degrees(0.3, 0.4) + 180);
        QVERIFY(touchDirection(-0.4, -0.3, 0).value() == degrees(0.3, 0.4) + 270);
        QVERIFY(touchDirection(3, -4, -90).value() == degrees(3, 4) - 90);
        QVERIFY(touchDirection(-4, -3, -90).value() == degrees(3, 4) + 180);
    }

    void aTouchOnAnAxisHasNoDirection()
    {
        for (const QPoint &p : {QPoint(0, -5), QPoint(5, 0), QPoint(0, 5), QPoint(-5, 0), QPoint()})
            QVERIFY(!touchDirection(p.x(), p.y(), 0));
    }
};

QTEST_APPLESS_MAIN(tst_Geometry)
#include "tst_geometry.moc"
