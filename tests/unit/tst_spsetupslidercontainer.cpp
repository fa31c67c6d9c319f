// SPDX-License-Identifier: Apache-2.0
#include <SpSetupSliderContainer>

#include "baseorder.h"
#include "signallog.h"
#include "touch.h"
#include "widgettest.h"

#include <QMouseEvent>

#include <climits>
#include <memory>

namespace
{

} // namespace

class tst_SpSetupSliderContainer : public WidgetTest
{
    Q_OBJECT

private slots:
    void defaults()
    {
        SpSetupSliderContainer page;
        QCOMPARE(page.totalNumber(), 2);
        QCOMPARE(page.getPointList(), (QList<QPointF>{{0, 0}, {1, 1}}));
        QCOMPARE(page.getValueList(), (QList<int>{0, 0}));
        QVERIFY(page.findChildren<QObject *>().isEmpty());
        page.resize(50, 40);
        COMPARE_PICTURES(painted(page), reference(page, [](QPainter &) {}));
    }

    void theSameNumberKeepsTheLists()
    {
        SpSetupSliderContainer page;
        page.setTotalNumber(2);
        QCOMPARE(page.getPointList(), (QList<QPointF>{{0, 0}, {1, 1}}));
        page.setValueList({4, 5});
        page.setPointList({{7, 8}, {9, 10}});
        page.setTotalNumber(2);
        QCOMPARE(page.getPointList(), (QList<QPointF>{{7, 8}, {9, 10}}));
        QCOMPARE(page.getValueList(), (QList<int>{4, 5}));
    }

    void anotherNumberStartsTheListsAnew()
    {
        SpSetupSliderContainer page;
        page.setValueList({4, 5});
        page.setTotalNumber(3);
        QCOMPARE(page.totalNumber(), 3);
        QCOMPARE(page.getPointList(), (QList<QPointF>{{0, 0}, {0, 0}, {0, 0}}));
        QCOMPARE(page.getValueList(), (QList<int>{0, 0, 0}));
        page.setPointList({{1, 1}}); // the number of points decides, not the number before
        page.setValueList({6, 7, 8});
        page.setTotalNumber(3);
        QCOMPARE(page.getPointList(), (QList<QPointF>{{0, 0}, {0, 0}, {0, 0}}));
        QCOMPARE(page.getValueList(), (QList<int>{0, 0, 0}));
        page.setTotalNumber(0);
        QVERIFY(page.getPointList().isEmpty());
        QVERIFY(page.getValueList().isEmpty());
    }

    void numbersThatNoPageHas()
    {
        SpSetupSliderContainer page;
        for (const int number : {INT_MAX, 1000001}) {
            page.setTotalNumber(number);
            QCOMPARE(page.totalNumber(), 2);
            QCOMPARE(page.getPointList().size(), 2);
        }
        page.setTotalNumber(1000000);
        QCOMPARE(page.totalNumber(), 1000000);
        QCOMPARE(page.getPointList().size(), 1000000);
        QCOMPARE(page.getValueList().size(), 1000000);
        page.setTotalNumber(INT_MIN);
        QCOMPARE(page.totalNumber(), INT_MIN);
        QVERIFY(page.getValueList().isEmpty());
    }

    void onlyPointsRepaint()
    {
        SpSetupSliderContainer page;
        page.resize(50, 40);
        show(page);
        QCOMPARE(paints(page, [&] { page.setPointList({{3, 4}}); }), 1);
        QCOMPARE(paints(page, [&] { page.setValueList({3}); }), 0);
        QCOMPARE(paints(page, [&] { page.setTotalNumber(5); }), 0);
    }

    void signalsOfSlidersArePassedOn()
    {
        SpSetupSliderContainer page;
        SignalLog log(&page);
        page.valueChangeSlot(3, 7, QPoint(40, 50));
        page.saveDataSlot();
        QCOMPARE(log.take(),
                 (QStringList{QStringLiteral("valueChangedSig(3, 7)"),
                              QStringLiteral("saveDataSig()")}));
        QCOMPARE(page.getValueList(), (QList<int>{0, 0}));
    }

    void listsOfValuesCanBeQueued()
    {
        SpSetupSliderContainer page;
        QVERIFY(QMetaType::type("QList<int>") != QMetaType::UnknownType);
        QList<int> received;
        connect(
            &page, &SpSetupSliderContainer::valueChangeSig, &page,
            [&](const QList<int> &list) { received = list; }, Qt::QueuedConnection);
        emit page.valueChangeSig({1, 2, 3});
        QCoreApplication::processEvents();
        QCOMPARE(received, (QList<int>{1, 2, 3}));
    }

    void longSwipesChangeThePage_data()
    {
        QTest::addColumn<int>("dx");
        QTest::addColumn<QStringList>("expected");
        const QStringList left{QStringLiteral("pageChanged(true)")};
        const QStringList right{QStringLiteral("pageChanged(false)")};
        QTest::newRow("121 left") << -121 << left;
        QTest::newRow("120 left") << -120 << QStringList();
        QTest::newRow("none") << 0 << QStringList();
        QTest::newRow("120 right") << 120 << QStringList();
        QTest::newRow("121 right") << 121 << right;
        QTest::newRow("far left") << -1000000 << left;
    }

    void longSwipesChangeThePage()
    {
        QFETCH(int, dx);
        SpSetupSliderContainer page;
        page.resize(400, 200);
        SignalLog log(&page);
        touch(&page).press(200, 20).moveTo(0, 0).moveTo(200 + dx, 900).release();
        QCoreApplication::processEvents();
        QTEST(log.take(), "expected");
    }

    void touchesGoOnToTheParent()
    {
        SpSetupSliderContainer page;
        Touch finger = touch(&page);
        QVERIFY(!finger.press(5, 5).wasAccepted());
        QVERIFY(!finger.release().wasAccepted());
    }

    void theBaseHandlerComesAfterTheSignal()
    {
        SpSetupSliderContainer page;
        BaseOrder order(&page);
        touch(&page).press(300, 5).moveTo(5, 5).release();
        touch(&page).press(5, 5).moveTo(300, 5).release();
        QCOMPARE(order.before, (QStringList{"pageChanged", "pageChanged"}));
        QCOMPARE(order.after, QStringList());
    }

    void aPageMayBeDeletedByItsReport()
    {
        auto *page = new SpSetupSliderContainer;
        const QPointer<SpSetupSliderContainer> guard(page);
        connect(page, &SpSetupSliderContainer::pageChanged, page, [page] { delete page; });
        touch(page).press(0, 0).moveTo(200, 0).release();
        QVERIFY(!guard);
    }
};

WIDGET_TEST_MAIN(tst_SpSetupSliderContainer)
#include "tst_spsetupslidercontainer.moc"
