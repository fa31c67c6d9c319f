// SPDX-License-Identifier: Apache-2.0
#include "detail/search.h"

#include "widgettest.h"

using namespace panelkit;

class tst_Search : public WidgetTest
{
    Q_OBJECT

private slots:
    void theFirstThatHoldsIsFoundWhereverItIs()
    {
        for (int tried : {0, 1, 5, 100}) {
            for (int count : {0, 1, 2, 7, 50}) {
                for (int first = 0; first <= count; ++first)
                    QCOMPARE(firstThat(count, tried, [&](int n) { return n >= first; }), first);
            }
        }
    }

    void amongThoseTriedSinglyTheFirstNeedNotBeFollowedByOthers()
    {
        QCOMPARE(firstThat(100, 10, [](int n) { return n == 3 || n >= 8; }), 3);
    }

    void nothingBeyondTheCountIsAsked()
    {
        for (int tried : {0, 3, 100}) {
            int most = -1;
            const auto holds = [&](int n) {
                most = qMax(most, n);
                return false;
            };
            QCOMPARE(firstThat(5, tried, holds), 5);
            QCOMPARE(most, 4);
        }
    }

    void manyAreHalved()
    {
        int asked = 0;
        QCOMPARE(firstThat(1 << 20, 10,
                           [&](int n) {
                               ++asked;
                               return n >= 777777;
                           }),
                 777777);
        QVERIFY(asked <= 10 + 20);
    }
};

WIDGET_TEST_MAIN(tst_Search)
#include "tst_search.moc"
