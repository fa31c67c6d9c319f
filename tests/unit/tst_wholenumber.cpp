// SPDX-License-Identifier: Apache-2.0
#include "detail/wholenumber.h"

#include <QtTest>

#include <climits>

using namespace panelkit;

class tst_WholeNumber : public QObject
{
    Q_OBJECT

private slots:
    void formulasReadAsTheyAreWritten()
    {
        const Whole freq = 8757;
        QCOMPARE((freq / 10 * 10).value(), 8750);
        QCOMPARE((2 - freq * 3).value(), -26269);
    }

    void resultsWrapAround()
    {
        QCOMPARE((Whole(INT_MAX) + 1).value(), INT_MIN);
        QCOMPARE((Whole(INT_MIN) - 1).value(), INT_MAX);
        QCOMPARE((Whole(65536) * 65536).value(), 0);
        QCOMPARE((Whole(INT_MAX) * 2).value(), -2);
        QCOMPARE((Whole(INT_MIN) / -1).value(), INT_MIN);
    }

    void quotientsTruncateTowardZeroAndAreZeroByZero()
    {
        QCOMPARE((Whole(-7) / 2).value(), -3);
        QCOMPARE((Whole(7) / 0).value(), 0);
    }

    // What is left of a division by zero is the dividend, so that only 0 is a multiple of 0.
    void multiples()
    {
        QVERIFY(Whole(-15).isMultipleOf(5));
        QVERIFY(!Whole(-14).isMultipleOf(5));
        QVERIFY(Whole(0).isMultipleOf(7));
        QVERIFY(Whole(0).isMultipleOf(0));
        QVERIFY(!Whole(3).isMultipleOf(0));
        QVERIFY(Whole(INT_MIN).isMultipleOf(-1));
    }
};

QTEST_APPLESS_MAIN(tst_WholeNumber)
#include "tst_wholenumber.moc"
