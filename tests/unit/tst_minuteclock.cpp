// SPDX-License-Identifier: Apache-2.0
#include "detail/minuteclock.h"

#include "virtualtime.h"
#include "widgettest.h"

using namespace panelkit;

class tst_MinuteClock : public WidgetTest
{
    Q_OBJECT

private slots:
    void itCountsTheMillisecondsOfTheMinute()
    {
        QCOMPARE(minuteClock(), 0);
        virtualtime::advance(7);
        QCOMPARE(minuteClock(), 7);
        virtualtime::advance(1236);
        QCOMPARE(minuteClock(), 1243);
    }

    void itStartsAgainAtEveryMinute()
    {
        virtualtime::advance(59999);
        QCOMPARE(minuteClock(), 59999);
        virtualtime::advance(1);
        QCOMPARE(minuteClock(), 0);
        virtualtime::advance(60000);
        QCOMPARE(minuteClock(), 0);
    }
};

WIDGET_TEST_MAIN(tst_MinuteClock)
#include "tst_minuteclock.moc"
