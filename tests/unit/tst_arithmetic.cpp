// SPDX-License-Identifier: Apache-2.0
#include "detail/arithmetic.h"

#include <QtTest>

#include <climits>
#include <cmath>
#include <limits>

using namespace panelkit;

class tst_Arithmetic : public QObject
{
    Q_OBJECT

private slots:
    void quotientTruncatesTowardZero()
    {
        QCOMPARE(quotient(7, 2), 3);
        QCOMPARE(quotient(-7, 2), -3);
        QCOMPARE(quotient(7, -2), -3);
        QCOMPARE(quotient(-7, -2), 3);
    }

    void quotientByZeroIsZero()
    {
        QCOMPARE(quotient(7, 0), 0);
        QCOMPARE(quotient(0, 0), 0);
        QCOMPARE(quotient(INT_MIN, 0), 0);
    }

    void quotientOfTheSmallestIntByMinusOneWraps()
    {
        QCOMPARE(quotient(INT_MIN, -1), INT_MIN);
        QCOMPARE(quotient(INT_MAX, -1), -INT_MAX);
    }

    void ratioIsThatOfTheProcessor()
    {
        const double infinity = std::numeric_limits<double>::infinity();
        QCOMPARE(ratio(7.0, 2.0), 3.5);
        QCOMPARE(ratio(-7.0, 2.0), -3.5);
        QCOMPARE(ratio(7.0, 1.0), 7.0);
        QCOMPARE(ratio(1, 0.0), infinity);
        QCOMPARE(ratio(-1, 0.0), -infinity);
        QCOMPARE(ratio(1, -0.0), -infinity);
        QCOMPARE(ratio(-infinity, -0.0), infinity);
        QVERIFY(std::isnan(ratio(0.0, 0.0)));
        QVERIFY(std::isnan(ratio(std::nan(""), 0)));
        QVERIFY(std::isnan(ratio(1, std::nan(""))));
    }

    void toIntTruncatesTowardZero()
    {
        QCOMPARE(toInt(2.9), 2);
        QCOMPARE(toInt(-2.9), -2);
        QCOMPARE(toInt(-0.5), 0);
    }

    void toIntSaturates()
    {
        QCOMPARE(toInt(2147483646.9), INT_MAX - 1);
        QCOMPARE(toInt(2147483647.0), INT_MAX);
        QCOMPARE(toInt(2147483648.0), INT_MAX);
        QCOMPARE(toInt(1e300), INT_MAX);
        QCOMPARE(toInt(-2147483648.0), INT_MIN);
        QCOMPARE(toInt(-2147483649.0), INT_MIN);
        QCOMPARE(toInt(std::numeric_limits<double>::infinity()), INT_MAX);
        QCOMPARE(toInt(-std::numeric_limits<double>::infinity()), INT_MIN);
    }

    void toIntOfNanIsZero() { QCOMPARE(toInt(std::nan("")), 0); }

    void saturatedKeepsWhatFits()
    {
        QCOMPARE(saturated(-5), -5);
        QCOMPARE(saturated(2147483647LL), INT_MAX);
        QCOMPARE(saturated(2147483648LL), INT_MAX);
        QCOMPARE(saturated(-2147483649LL), INT_MIN);
        QCOMPARE(saturated(LLONG_MIN), INT_MIN);
    }

    void ratioInSinglePrecision()
    {
        const float infinite = std::numeric_limits<float>::infinity();
        QCOMPARE(ratio(1.0F, 4.0F), 0.25F);
        QVERIFY(ratio(3.0F, 0.0F) == infinite);
        QVERIFY(ratio(-3.0F, 0.0F) == -infinite);
        QVERIFY(ratio(3.0F, -0.0F) == -infinite);
        QVERIFY(ratio(-infinite, -0.0F) == infinite);
        QVERIFY(std::isnan(ratio(0.0F, 0.0F)));
        QVERIFY(std::isnan(ratio(std::nanf(""), 0.0F)));
    }

    void distanceIsExactForAllInts()
    {
        QCOMPARE(distance(3, 10), 7LL);
        QCOMPARE(distance(10, 3), 7LL);
        QCOMPARE(distance(INT_MIN, INT_MAX), 4294967295LL);
        QCOMPARE(distance(INT_MIN, 0), 2147483648LL);
    }
};

QTEST_APPLESS_MAIN(tst_Arithmetic)
#include "tst_arithmetic.moc"
