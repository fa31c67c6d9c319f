// SPDX-License-Identifier: Apache-2.0
#include <MListView>
#include <SpIconButton>

#include "parent.h"
#include "signallog.h"
#include "touch.h"
#include "widgettest.h"

#include <QPainter>

#include <climits>
#include <memory>
#include <type_traits>

// The accessors that are part of the interface exactly as they are written.
static_assert(std::is_constructible_v<MListView, QWidget *, SpTableList *, QRect>);
static_assert(std::is_constructible_v<MListView, QWidget *, QRect>);
namespace
{

const QRect kRect(3, 4, 200, 300);

QPixmap picture(const QColor &color, const QSize &size = QSize(60, 20))
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

// Two pictures for each button, all different.
QList<QPixmap> pictures(int buttons, const QSize &size = QSize(60, 20))
{
    QList<QPixmap> list;
    for (int i = 0; i < 2 * buttons; ++i)
        list += picture(QColor::fromHsv(i * 20 % 360, 255, 255), size);
    return list;
}

std::unique_ptr<MListView> makeView(int buttons, QWidget *parent = nullptr)
{
    auto view = std::make_unique<MListView>(parent, kRect);
    QList<QPixmap> list = pictures(buttons);
    view->setPixmapList(list);
    return view;
}

// In the order in which they were made, whatever was raised since.
QList<SpIconButton *> buttonsOf(const MListView &view)
{
    QList<SpIconButton *> buttons = view.findChildren<SpIconButton *>();
    std::sort(buttons.begin(), buttons.end(), [](const SpIconButton *a, const SpIconButton *b) {
        return a->normalImage().cacheKey() < b->normalImage().cacheKey();
    });
    return buttons;
}

QVector<bool> downOf(const QList<SpIconButton *> &buttons)
{
    QVector<bool> down;
    for (const SpIconButton *button : buttons)
        down += button->isDown();
    return down;
}

// Stands for a table list that is attached; the view never looks into it.
SpTableList *someTableList()
{
    static int place;
    return reinterpret_cast<SpTableList *>(&place);
}

// The mouse event that a view is handling.
class EventInHand : public QObject
{
public:
    explicit EventInHand(QObject *view) { view->installEventFilter(this); }
    bool isAccepted() const { return m_event && m_event->isAccepted(); }

protected:
    bool eventFilter(QObject *, QEvent *e) override
    {
        if (e->type() == QEvent::MouseButtonPress || e->type() == QEvent::MouseMove
            || e->type() == QEvent::MouseButtonRelease)
            m_event = e;
        return false;
    }

private:
    const QEvent *m_event = nullptr;
};

} // namespace

class tst_MListView : public WidgetTest
{
    Q_OBJECT

private slots:
    void aNewViewIsEmptyAndOfTheGivenGeometry()
    {
        QWidget parent;
        const MListView view(&parent, kRect);
        const MListView attached(&parent, someTableList(), kRect);
        QCOMPARE(view.geometry(), kRect);
        QCOMPARE(attached.geometry(), kRect);
        QCOMPARE(view.parentWidget(), &parent);
        QVERIFY(view.children().isEmpty());
    }

    // --- Buttons --------------------------------------------------------------------------------

    void eachTwoPicturesMakeAButton()
    {
        MListView view(nullptr, kRect);
        QList<QPixmap> list = pictures(3);
        view.setPixmapList(list);
        const QList<SpIconButton *> buttons = buttonsOf(view);
        QCOMPARE(buttons.size(), 3);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(buttons[i]->normalImage().cacheKey(), list[2 * i].cacheKey());
            QCOMPARE(buttons[i]->pressImage().cacheKey(), list[2 * i + 1].cacheKey());
            QVERIFY(buttons[i]->focusPixmap().isNull());
            QCOMPARE(buttons[i]->minimumSize(), QSize(60, 20));
            QCOMPARE(buttons[i]->maximumSize(), QSize(60, 20));
            QVERIFY(!buttons[i]->isHidden());
            QCOMPARE(buttons[i]->parentWidget(), &view);
            QCOMPARE(buttons[i]->buttonID(), QStringLiteral("SpIconButton_ID"));
        }
    }

    void inTheOtherUseTheSecondPictureIsThatOfTheFocus()
    {
        MListView view(nullptr, kRect);
        QList<QPixmap> list = pictures(2);
        view.setIsNormalUse(false);
        view.setPixmapList(list);
        const QList<SpIconButton *> buttons = buttonsOf(view);
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(buttons[i]->normalImage().cacheKey(), list[2 * i].cacheKey());
            QCOMPARE(buttons[i]->pressImage().cacheKey(), list[2 * i].cacheKey());
            QCOMPARE(buttons[i]->focusPixmap().cacheKey(), list[2 * i + 1].cacheKey());
        }
    }

    void theUseCountsForTheNextPicturesOnly()
    {
        const auto view = makeView(1);
        view->setIsNormalUse(false);
        QVERIFY(buttonsOf(*view)[0]->focusPixmap().isNull());
        view->setIsNormalUse(true);
        QList<QPixmap> list = pictures(1);
        view->setPixmapList(list);
        QVERIFY(buttonsOf(*view)[1]->focusPixmap().isNull());
    }

    void anOddPictureMakesAButtonWithoutASecondOne()
    {
        for (bool normal : {true, false}) {
            MListView view(nullptr, kRect);
            QList<QPixmap> list = pictures(2);
            list.removeLast();
            view.setIsNormalUse(normal);
            view.setPixmapList(list);
            const QList<SpIconButton *> buttons = buttonsOf(view);
            QCOMPARE(buttons.size(), 2);
            QCOMPARE(buttons[1]->normalImage().cacheKey(), list[2].cacheKey());
            QCOMPARE(buttons[1]->pressImage().isNull(), normal);
            QVERIFY(buttons[1]->focusPixmap().isNull());
        }
    }

    void noPicturesAreIgnored()
    {
        const auto view = makeView(2);
        view->setButtonIsChecked(true);
        QList<QPixmap> none;
        view->setPixmapList(none);
        QCOMPARE(buttonsOf(*view).size(), 2);
        view->sltButtonClicked(QStringLiteral("1"));
        QCOMPARE(downOf(buttonsOf(*view)), (QVector<bool>{false, true}));
    }

    void theListOfTheCallerIsCopied()
    {
        MListView view(nullptr, kRect);
        QList<QPixmap> list = pictures(2);
        QList<QPoint> places{{1, 2}, {3, 4}};
        view.setPositionList(places);
        places.clear();
        view.setPixmapList(list);
        QCOMPARE(list.size(), 4);
        QCOMPARE(buttonsOf(view)[1]->pos(), QPoint(3, 4));
    }

    void newPicturesLeaveTheOldButtonsBehindTheNewOnes()
    {
        const auto view = makeView(2);
        const QList<SpIconButton *> old = buttonsOf(*view);
        QList<QPixmap> list = pictures(2);
        view->setPixmapList(list);
        const QList<SpIconButton *> all = buttonsOf(*view);
        QCOMPARE(all.size(), 4);
        QCOMPARE(all.mid(0, 2), old);
        QVERIFY(!old[0]->isHidden());
        QCOMPARE(old[0]->geometry(), all[2]->geometry());
        COMPARE_PICTURES(painted(*view), reference(*view, [&](QPainter &p) {
                             p.drawPixmap(0, 0, list[0]);
                             p.drawPixmap(0, 20, list[2]);
                         }));
        // The old ones no longer belong to the group.
        view->sltButtonClicked(QStringLiteral("SpIconButton_ID"));
        QCOMPARE(downOf(all), (QVector<bool>{false, false, true, true}));
    }

    // --- Layout ---------------------------------------------------------------------------------

    void stackedButtonsStandEverFartherApart()
    {
        const auto view = makeView(6);
        QVector<int> tops;
        for (const SpIconButton *button : buttonsOf(*view)) {
            QCOMPARE(button->x(), 0);
            QCOMPARE(button->size(), QSize(60, 20));
            tops += button->y();
        }
        QCOMPARE(tops, (QVector<int>{0, 20, 40, 80, 160, 320}));
    }

    void stackedButtonsOfDifferentHeights()
    {
        MListView view(nullptr, kRect);
        QList<QPixmap> list;
        for (int height : {10, 30, 7, 50})
            list += {picture(Qt::red, {20, height}), picture(Qt::blue, {20, height})};
        view.setPixmapList(list);
        QVector<int> tops;
        for (const SpIconButton *button : buttonsOf(view))
            tops += button->y();
        QCOMPARE(tops, (QVector<int>{0, 10, 40, 57}));
    }

    void positionsArrangeTheButtonsFreely()
    {
        MListView view(nullptr, kRect);
        QList<QPoint> places{{5, 6}, {-70, 8}, {9, 100}};
        QList<QPixmap> list = pictures(3);
        view.setPositionList(places);
        view.setPixmapList(list);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(buttonsOf(view)[i]->geometry(), QRect(places[i], QSize(60, 20)));
    }

    // What a button leaves to the view has come from its place: a touch out there is still one.
    void hostilePositionsAreBounded()
    {
        MListView view(nullptr, kRect);
        QList<QPoint> places{{INT_MIN, INT_MAX}};
        QList<QPixmap> list = pictures(1);
        view.setPositionList(places);
        view.setPixmapList(list);
        QCOMPARE(buttonsOf(view)[0]->pos(), QPoint(-QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    }

    void positionsOfAnotherNumberAreNotUsed()
    {
        for (int count : {2, 4}) {
            MListView view(nullptr, kRect);
            QList<QPoint> places;
            for (int i = 0; i < count; ++i)
                places += QPoint(50, 50);
            QList<QPixmap> list = pictures(3);
            view.setPositionList(places);
            view.setPixmapList(list);
            QCOMPARE(buttonsOf(view)[2]->pos(), QPoint(0, 40));
        }
    }

    void positionsCountForTheNextPicturesAndNoneAreIgnored()
    {
        const auto view = makeView(2);
        QList<QPoint> places{{5, 6}, {7, 8}};
        view->setPositionList(places);
        QCOMPARE(buttonsOf(*view)[1]->pos(), QPoint(0, 20));
        QList<QPoint> none;
        view->setPositionList(none);
        QList<QPixmap> list = pictures(2);
        view->setPixmapList(list);
        QCOMPARE(buttonsOf(*view)[3]->pos(), QPoint(7, 8));
    }

    void allButTheFirstAndTheLastAreRaised()
    {
        const auto view = makeView(5);
        QList<int> order; // from behind to the front
        const QList<SpIconButton *> buttons = buttonsOf(*view);
        for (QObject *child : view->children())
            order += buttons.indexOf(static_cast<SpIconButton *>(child));
        QCOMPARE(order, (QList<int>{0, 4, 3, 2, 1}));
    }

    // --- Group ----------------------------------------------------------------------------------

    void inAGroupTheClickedButtonIsDown()
    {
        const auto view = makeView(3);
        view->setButtonIsChecked(true);
        const QList<SpIconButton *> buttons = buttonsOf(*view);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(buttons[i]->buttonID(), QString::number(i));
        touch(buttons[1]).tap(5, 5);
        QCOMPARE(downOf(buttons), (QVector<bool>{false, true, false}));
        touch(buttons[2]).tap(5, 5);
        QCOMPARE(downOf(buttons), (QVector<bool>{false, false, true}));
        touch(buttons[2]).tap(5, 5);
        QCOMPARE(downOf(buttons), (QVector<bool>{false, false, true}));
    }

    void withFalseNothingIsGroupedOrUngrouped()
    {
        const auto view = makeView(2);
        const QList<SpIconButton *> buttons = buttonsOf(*view);
        view->setButtonIsChecked(false);
        touch(buttons[1]).tap(5, 5);
        QCOMPARE(downOf(buttons), (QVector<bool>{false, false}));
        QCOMPARE(buttons[1]->buttonID(), QStringLiteral("SpIconButton_ID"));
        view->setButtonIsChecked(true);
        view->setButtonIsChecked(false);
        touch(buttons[1]).tap(5, 5);
        QCOMPARE(downOf(buttons), (QVector<bool>{false, true}));
    }

    void groupingTwiceConnectsTwice()
    {
        const auto view = makeView(1);
        view->setButtonIsChecked(true);
        view->setButtonIsChecked(true);
        const SpIconButton *button = buttonsOf(*view)[0];
        const int signal = button->metaObject()->indexOfSignal("btnClicked(QString)");
        const int slot = view->metaObject()->indexOfSlot("sltButtonClicked(QString)");
        int connections = 0;
        while (QMetaObject::disconnectOne(button, signal, view.get(), slot))
            ++connections;
        QCOMPARE(connections, 2);
    }

    void anEmptyIdentifierLeavesEveryButton()
    {
        const auto view = makeView(2);
        const QList<SpIconButton *> buttons = buttonsOf(*view);
        buttons[0]->setButtonID({});
        buttons[1]->setIsDown(true);
        view->sltButtonClicked({});
        QCOMPARE(downOf(buttons), (QVector<bool>{false, true}));
    }

    void anUnknownIdentifierLiftsEveryButton()
    {
        const auto view = makeView(2);
        const QList<SpIconButton *> buttons = buttonsOf(*view);
        buttons[1]->setIsDown(true);
        view->sltButtonClicked(QStringLiteral("7"));
        QCOMPARE(downOf(buttons), (QVector<bool>{false, false}));
    }

    void aChangedRowCountTakesTheFocusedLook()
    {
        const auto view = makeView(2);
        const QList<SpIconButton *> buttons = buttonsOf(*view);
        for (SpIconButton *button : buttons)
            button->setFocus(true);
        view->sltRowCountChange(false);
        QVERIFY(buttons[0]->isFocus());
        view->sltRowCountChange(true);
        QVERIFY(!buttons[0]->isFocus());
        QVERIFY(!buttons[1]->isFocus());
    }

    void aClickedItemIsRememberedSilently()
    {
        const auto view = makeView(2);
        show(*view);
        SignalLog log(view.get());
        QCOMPARE(paints(*view, [&] { view->sltItemClicked(1); }), 0);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(downOf(buttonsOf(*view)), (QVector<bool>{false, false}));
    }

    // --- Mouse events ---------------------------------------------------------------------------

    // Reported before QWidget, which leaves every event to the parent, has seen it.
    void withoutATableListMouseEventsAreReportedAndGoOn()
    {
        Parent parent;
        MListView view(&parent, kRect);
        const EventInHand inHand(&view);
        SignalLog log(&view);
        QVector<bool> accepted;
        log.onLine([&](const QString &) { accepted += inHand.isAccepted(); });
        touch(&view).press(150, 250).moveTo(-7, 260).release();
        QCOMPARE(log.take(),
                 (QStringList{"sigMousePress(QPoint(150,250))", "sigMouseMove(QPoint(-7,260))",
                              "sigMouseRelease(QPoint(-7,260))"}));
        QCOMPARE(accepted, (QVector<bool>{true, true, true}));
        QCOMPARE(parent.events, (QStringList{"press", "move", "release"}));
    }

    void withATableListMouseEventsOnlyGoOn()
    {
        Parent parent;
        MListView view(&parent, someTableList(), kRect);
        SignalLog log(&view);
        touch(&view).press(150, 250).moveTo(-7, 260).release();
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(parent.events, (QStringList{"press", "move", "release"}));
    }

    void aTouchOfAButtonIsReportedToo()
    {
        const auto view = makeView(2);
        SignalLog log(view.get());
        touch(buttonsOf(*view)[1]).press(5, 6);
        QCOMPARE(log.take(), QStringList{"sigMousePress(QPoint(5,26))"});
    }

    // --- Hard to break --------------------------------------------------------------------------

    void theViewMayBeDeletedInAnyOfItsSignals()
    {
        for (const char *signal : {"sigMousePress", "sigMouseMove", "sigMouseRelease"}) {
            QPointer<MListView> view = makeView(2).release();
            SignalLog log(view);
            log.onLine([&](const QString &line) {
                if (line.startsWith(QLatin1String(signal)))
                    delete view;
            });
            touch(view).press(150, 250).moveTo(150, 251).release();
            QVERIFY(!view);
        }
    }

    void buttonsMayBeDeleted()
    {
        const auto view = makeView(3);
        delete buttonsOf(*view)[1];
        view->setButtonIsChecked(true);
        view->sltButtonClicked(QStringLiteral("2"));
        view->sltRowCountChange(true);
        QCOMPARE(downOf(buttonsOf(*view)), (QVector<bool>{false, true}));
    }

    void anEmptyGroupStaysEmpty()
    {
        MListView view(nullptr, kRect);
        view.setButtonIsChecked(true);
        view.sltButtonClicked(QStringLiteral("0"));
        view.sltRowCountChange(true);
        QVERIFY(view.children().isEmpty());
        QList<QPixmap> list = pictures(1);
        view.setPixmapList(list); // makes no group of those that come later
        QCOMPARE(buttonsOf(view)[0]->buttonID(), QStringLiteral("SpIconButton_ID"));
    }

    // The distances double: there are many more buttons than a coordinate can tell apart.
    void manyButtonsStandNoFartherThanAWidgetCan()
    {
        MListView view(nullptr, kRect);
        QList<QPixmap> list = pictures(100, {10, 500});
        view.setPixmapList(list);
        const QList<SpIconButton *> buttons = buttonsOf(view);
        QCOMPARE(buttons.size(), 100);
        QCOMPARE(buttons[10]->y(), 500 << 9);
        QCOMPARE(buttons[99]->y(), QWIDGETSIZE_MAX);
    }

    void anEmptyPictureMakesAButtonWithoutSize()
    {
        MListView view(nullptr, kRect);
        QList<QPixmap> list{QPixmap(), QPixmap(), picture(Qt::red), QPixmap()};
        view.setPixmapList(list);
        QCOMPARE(buttonsOf(view)[0]->size(), QSize(0, 0));
        QCOMPARE(buttonsOf(view)[1]->geometry(), QRect(0, 0, 60, 20));
        COMPARE_PICTURES(painted(view),
                         reference(view, [](QPainter &p) { p.fillRect(0, 0, 60, 20, Qt::red); }));
    }
};

WIDGET_TEST_MAIN(tst_MListView)
#include "tst_mlistview.moc"
