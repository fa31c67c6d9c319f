// SPDX-License-Identifier: Apache-2.0
#include <MSelectButton>

#include "baseorder.h"
#include "buttonimages.h"
#include "hostile.h"
#include "longpress.h"
#include "parent.h"
#include "pictures.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QMouseEvent>
#include <QPainter>

#include <memory>

namespace
{

using Action = std::function<void(MSelectButton &)>;
using Paint = std::function<void(QPainter &)>;

const QString kClicked = QStringLiteral("btnClicked(\"MSelectButton_ID\")");
const QString kLongClicked = QStringLiteral("btnLongClicked(\"MSelectButton_ID\")");
const QString kBeep = QStringLiteral("beep");
const LongPress kLongPress{1500, {kBeep}, {kBeep, kClicked}, kClicked, kLongClicked};

const QColor kNormal = Qt::green;
const QColor kPress = Qt::yellow;
const QColor kSelect = Qt::cyan;
const QColor kDisable = Qt::magenta;
const QColor kNormalText(10, 20, 30);
const QColor kPressText(40, 50, 160);
const QColor kSelectText(140, 50, 60);
const QColor kDisableText(100, 110, 120, 130);
const QString kText = QStringLiteral("Radio");

const QRect kImageRect(30, 25, 40, 30); // of makeButton()

using Button = TickingButton<MSelectButton>;

// A button of 100 x 80 with a picture and a text colour for each look.
std::unique_ptr<Button> makeButton(QWidget *parent = nullptr)
{
    auto button = std::make_unique<Button>(parent);
    button->setNormalImage(picture(kNormal));
    button->setPressImage(picture(kPress));
    button->setSelectImage(picture(kSelect));
    button->setDisableImage(picture(kDisable));
    button->setNormalTextColor(kNormalText);
    button->setPressTextColor(kPressText);
    button->setSelectTextColor(kSelectText);
    button->setDisableTextColor(kDisableText);
    button->setDisplayText(kText);
    button->resize(100, 80);
    return button;
}

Paint look(const QColor &image, const QColor &text)
{
    return [=](QPainter &p) {
        if (image.isValid())
            p.drawPixmap(kImageRect, picture(image));
        p.setPen(text);
        p.drawText(QRect(0, 0, 100, 80), Qt::AlignCenter, kText);
    };
}

void press(MSelectButton &button) { touch(&button).press(10, 10); }

} // namespace

Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Paint)

class tst_MSelectButton : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction and setters ---------------------------------------------------------------

    void defaults()
    {
        QWidget parent;
        const MSelectButton button(&parent);
        QCOMPARE(button.parentWidget(), &parent);
        checkHasNoPictures(button, {"normalImage", "pressImage", "selectImage", "disableImage"});
        QCOMPARE(button.displayText(), QString());
        QCOMPARE(button.normalTextColor(), QColor(255, 255, 255, 255));
        QCOMPARE(button.pressTextColor(), QColor(255, 255, 255, 255));
        QCOMPARE(button.selectTextColor(), QColor(255, 255, 255, 255));
        QCOMPARE(button.disableTextColor(), QColor(255, 255, 255, 255));
        QVERIFY(button.displayTextRect().isNull());
        QCOMPARE(button.buttonID(), QStringLiteral("MSelectButton_ID"));
        QCOMPARE(button.selectState(), false);
        QCOMPARE(button.disableState(), false);
        QCOMPARE(button.minimumSize(), QSize(0, 0));
    }

    void aNewButtonPaintsNothing()
    {
        MSelectButton button;
        button.resize(60, 50);
        const auto nothing = [](QPainter &) {};
        COMPARE_PICTURES(painted(button), reference(button, nothing));
        button.setDisableState(true);
        COMPARE_PICTURES(painted(button), reference(button, nothing));
    }

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        for (const char *name : {"normalImage", "pressImage", "selectImage", "disableImage"})
            row(name, 1, [=](auto &b) { b.setProperty(name, picture(Qt::red)); });
        for (const char *name :
             {"normalTextColor", "pressTextColor", "selectTextColor", "disableTextColor"})
            row(name, 1, [=](auto &b) { b.setProperty(name, QColor(Qt::red)); });
        row("normalImage null", 0, [](auto &b) { b.setNormalImage(QPixmap()); });
        row("pressImage null", 1, [](auto &b) { b.setPressImage(QPixmap()); });
        row("displayText", 1, [](auto &b) { b.setDisplayText(QStringLiteral("x")); });
        row("displayText unchanged", 1, [](auto &b) { b.setDisplayText(kText); });
        row("displayTextRect", 1, [](auto &b) { b.setdisplayTextRect(QRect(1, 2, 3, 4)); });
        row("buttonID", 0, [](auto &b) { b.setButtonID(QStringLiteral("x")); });
        row("selectState", 1, [](auto &b) { b.setSelectState(true); });
        row("selectState unchanged", 1, [](auto &b) { b.setSelectState(false); });
        row("disableState", 1, [](auto &b) { b.setDisableState(true); });
        row("disableState unchanged", 1, [](auto &b) { b.setDisableState(false); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot() { checkRepaints<MSelectButton>(*makeButton()); }

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row("value");
        row("displayText", QStringLiteral("text"));
        row("normalTextColor", QColor(1, 2, 3, 4));
        row("pressTextColor", QColor(2, 2, 3, 4));
        row("selectTextColor", QColor(3, 2, 3, 4));
        row("disableTextColor", QColor(4, 2, 3, 4));
        row("displayTextRect", QRect(1, -2, 3, 4));
        row("buttonID", QStringLiteral("left"));
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(MSelectButton()); }

    void theStatesAreKeptAndAreNoProperties()
    {
        MSelectButton button;
        button.setSelectState(true);
        QVERIFY(button.selectState());
        QVERIFY(!button.disableState());
        button.setDisableState(true);
        QVERIFY(button.disableState());
        QVERIFY(button.isEnabled());
        QVERIFY(!button.property("selectState").isValid());
        QVERIFY(!button.property("disableState").isValid());
    }

    void everyPictureIsKept()
    {
        MSelectButton button;
        checkKeepsPictures(button, {"normalImage", "pressImage", "selectImage", "disableImage"});
    }

    void onlyANormalImageSetsTheMinimumSize()
    {
        checkOnlyTheNormalImageSetsTheMinimumSize<MSelectButton>(
            {"pressImage", "selectImage", "disableImage"});
    }

    void setFontSizeChangesOnlyThePixelSize() { checkSetFontSize(MSelectButton()); }

    // --- Looks ----------------------------------------------------------------------------------

    void looks_data()
    {
        const TableRows<Action, Paint> row("state", "expected");
        row(
            "normal", [](auto &) {}, look(kNormal, kNormalText));
        row(
            "pressed", [](auto &b) { press(b); }, look(kPress, kPressText));
        row(
            "selected", [](auto &b) { b.setSelectState(true); }, look(kSelect, kSelectText));
        row(
            "selected and pressed",
            [](auto &b) {
                b.setSelectState(true);
                press(b);
            },
            look(kPress, kSelectText));
        row(
            "pressed without press image",
            [](auto &b) {
                b.setPressImage(QPixmap());
                press(b);
            },
            look(QColor(), kPressText));
        row(
            "selected and pressed without press image",
            [](auto &b) {
                b.setPressImage(QPixmap());
                b.setSelectState(true);
                press(b);
            },
            look(QColor(), kSelectText));
        row(
            "selected without select image",
            [](auto &b) {
                b.setSelectImage(QPixmap());
                b.setSelectState(true);
            },
            look(QColor(), kSelectText));
        row(
            "without normal image", [](auto &b) { b.setNormalImage(QPixmap()); },
            look(QColor(), kNormalText));
        row(
            "pressed without normal image",
            [](auto &b) {
                b.setNormalImage(QPixmap());
                press(b);
            },
            look(kPress, kPressText));
        row(
            "disabled in software", [](auto &b) { b.setDisableState(true); },
            look(kDisable, kDisableText));
        row(
            "disabled as a widget", [](auto &b) { b.setEnabled(false); },
            look(kDisable, kDisableText));
        row(
            "disabled, selected and pressed",
            [](auto &b) {
                b.setSelectState(true);
                press(b);
                b.setDisableState(true);
            },
            look(kDisable, kDisableText));
        row(
            "disabled without disable image",
            [](auto &b) {
                b.setDisableImage(QPixmap());
                b.setSelectState(true);
                b.setDisableState(true);
            },
            look(kNormal, kDisableText));
        row(
            "disabled without any image",
            [](auto &b) {
                b.setDisableImage(QPixmap());
                b.setNormalImage(QPixmap());
                b.setDisableState(true);
            },
            look(QColor(), kDisableText));
    }

    void looks()
    {
        QFETCH(Action, state);
        QFETCH(Paint, expected);
        const auto button = makeButton();
        state(*button);
        COMPARE_PICTURES(painted(*button), reference(*button, expected));
        COMPARE_PICTURES(painted(*button), reference(*button, expected));
    }

    void picturesAreStretchedToTheSizeOfTheNormalOne_data()
    {
        const TableRows<Action> row("state");
        row("press", [](auto &b) { press(b); });
        row("select", [](auto &b) { b.setSelectState(true); });
        row("disable", [](auto &b) { b.setDisableState(true); });
    }

    void picturesAreStretchedToTheSizeOfTheNormalOne()
    {
        QFETCH(Action, state);
        const QPixmap large = picture(Qt::red, {131, 77});
        const auto button = makeButton();
        button->setDisplayText({});
        button->setPressImage(large);
        button->setSelectImage(large);
        button->setDisableImage(large);
        state(*button);
        COMPARE_PICTURES(painted(*button),
                         reference(*button, [&](QPainter &p) { p.drawPixmap(kImageRect, large); }));
    }

    void theImageIsCentredTowardZero_data() { addPlacesTowardZero(); }

    void theImageIsCentredTowardZero() { checkImageStandsAtTopLeft<MSelectButton>(); }

    void beforeAnyNormalImageTheOthersStandInTheirOwnSize()
    {
        MSelectButton button;
        button.resize(100, 80);
        button.setSelectImage(picture(kSelect));
        button.setSelectState(true);
        COMPARE_PICTURES(painted(button), reference(button, [](QPainter &p) {
                             p.drawPixmap(QRect(50, 40, -1, -1), picture(kSelect));
                         }));
        COMPARE_PICTURES(painted(button), reference(button, [](QPainter &p) {
                             p.drawPixmap(50, 40, picture(kSelect));
                         }));
    }

    void captionRectangle_data() { addCaptionRectangles({0, 0, 100, 80}); }

    void captionRectangle()
    {
        QFETCH(QRect, rect);
        QFETCH(QRect, expected);
        const auto button = makeButton();
        button->setdisplayTextRect(rect);
        for (bool disabled : {false, true}) {
            button->setDisableState(disabled);
            COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                                 p.drawPixmap(kImageRect, picture(disabled ? kDisable : kNormal));
                                 p.setPen(disabled ? kDisableText : kNormalText);
                                 p.drawText(expected, Qt::AlignCenter, kText);
                             }));
        }
    }

    void hostileCaptionRectangles_data() { addHostileRectangles(QRect(0, 0, 100, 80)); }

    void hostileCaptionRectangles()
    {
        QFETCH(QRect, rect);
        QFETCH(QRect, expected);
        const auto button = makeButton();
        button->setdisplayTextRect(rect);
        QVERIFY(button->displayTextRect() == rect);
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             p.drawPixmap(kImageRect, picture(kNormal));
                             p.setPen(kNormalText);
                             p.drawText(expected, Qt::AlignCenter, kText);
                         }));
    }

    void theCaptionFollowsTheFont()
    {
        const auto button = makeButton();
        painted(*button);
        button->setFontSize(25);
        COMPARE_PICTURES(painted(*button), reference(*button, look(kNormal, kNormalText)));
    }

    // --- Touch ----------------------------------------------------------------------------------

    void aTapSoundsOnThePressAndClicksOnTheRelease()
    {
        const auto button = makeButton();
        button->setButtonID(QStringLiteral("left"));
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(10, 10).hold(100);
        QCOMPARE(log.take(), QStringList{kBeep});
        finger.release().hold(5000);
        QCOMPARE(log.take(), QStringList{"btnClicked(\"left\")"});
        QVERIFY(!button->selectState());
    }

    void aPressShowsAndAReleaseEndsThePressedLook()
    {
        const auto button = makeButton();
        show(*button);
        Touch finger = touch(button.get());
        QCOMPARE(paints(*button, [&] { finger.press(10, 10); }), 1);
        COMPARE_PICTURES(painted(*button), reference(*button, look(kPress, kPressText)));
        QCOMPARE(paints(*button, [&] { finger.moveTo(12, 12); }), 0);
        QCOMPARE(paints(*button, [&] { finger.release(); }), 1);
        COMPARE_PICTURES(painted(*button), reference(*button, look(kNormal, kNormalText)));
        QCOMPARE(paints(*button, [&] { finger.release(); }), 1); // also if there is nothing to end
    }

    void theButtonIsStillPressedWhileTheClickIsReported()
    {
        const auto button = makeButton();
        QImage seen;
        connect(button.get(), &MSelectButton::btnClicked, this, [&] { seen = painted(*button); });
        touch(button.get()).tap(10, 10);
        COMPARE_PICTURES(seen, reference(*button, look(kPress, kPressText)));
    }

    void aSelectionInTheSlotOfAClickShows()
    {
        const auto button = makeButton();
        connect(button.get(), &MSelectButton::btnClicked, this,
                [&] { button->setSelectState(!button->selectState()); });
        touch(button.get()).tap(10, 10);
        COMPARE_PICTURES(painted(*button), reference(*button, look(kSelect, kSelectText)));
        touch(button.get()).tap(10, 10);
        COMPARE_PICTURES(painted(*button), reference(*button, look(kNormal, kNormalText)));
    }

    void aHoldIsALongPressAndNoClick()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(10, 10).hold(1499);
        QCOMPARE(log.take(), QStringList{kBeep});
        finger.hold(1);
        QCOMPARE(log.take(), QStringList{kLongClicked});
        COMPARE_PICTURES(painted(*button), reference(*button, look(kPress, kPressText)));
        finger.hold(20000).release().hold(5000);
        QCOMPARE(log.take(), QStringList());
        COMPARE_PICTURES(painted(*button), reference(*button, look(kNormal, kNormalText)));
        finger.tap(10, 10);
        QCOMPARE(log.take(), QStringList{kClicked});
    }

    void theSlopOfATouch_data()
    {
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<bool>("stays");
        for (int far : {1, 10, 11}) {
            for (const QPoint &way :
                 {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1), QPoint(1, 1)}) {
                const QPoint offset = way * far;
                QTest::addRow("%d,%d", offset.x(), offset.y()) << offset << (far <= 10);
            }
        }
    }

    void theSlopOfATouch()
    {
        QFETCH(QPoint, offset);
        QFETCH(bool, stays);
        const auto button = makeButton();
        show(*button);
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(40, 40);
        const int moving =
            paints(*button, [&] { finger.moveTo(40 + offset.x(), 40 + offset.y()); });
        QCOMPARE(moving, stays ? 0 : 1);
        COMPARE_PICTURES(
            painted(*button),
            reference(*button, stays ? look(kPress, kPressText) : look(kNormal, kNormalText)));
        // Coming back does not undo it; going farther changes nothing more.
        QCOMPARE(paints(*button, [&] { finger.moveTo(140, 40).moveTo(40, 40); }), stays ? 1 : 0);
        log.take();
        finger.hold(5000).release();
        QCOMPARE(log.take(), QStringList());
        finger.press(40, 40).moveTo(40 + offset.x(), 40 + offset.y()).release();
        QCOMPARE(log.take(), stays ? QStringList{kClicked} : QStringList());
        finger.hold(0);
        log.take();
        finger.press(40, 40).moveTo(40 + offset.x(), 40 + offset.y()).hold(1500).release();
        QCOMPARE(log.take(), stays ? (QStringList{kBeep, kLongClicked}) : QStringList{kBeep});
    }

    void theFarthestMoveIsSurvived()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(-2000000000, -2000000000).moveTo(2000000000, 2000000000).release();
        virtualtime::advance(5000);
        QCOMPARE(log.take(), QStringList{kBeep});
    }

    void aReleaseAtAnotherPlaceWithoutAMoveIsAClick()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        press(*button);
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(90, 70), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(button.get(), &release);
        QCOMPARE(log.take(), QStringList{kClicked});
    }

    void aReleaseWithoutAPressIsNoClick()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        touch(button.get()).release();
        QCOMPARE(log.take(), QStringList());
    }

    void aReleaseEndsTheTiming() { checkReleaseEndsTheTiming(*makeButton(), kLongPress); }

    void aPressAfterALostReleaseStartsAnew()
    {
        checkPressAfterALostReleaseStartsAnew(*makeButton(), kLongPress);
    }

    void aSecondPressTimesAnew() { checkSecondPressTimesAnew(*makeButton(), kLongPress); }

    // --- Disabled -------------------------------------------------------------------------------

    void aDisabledButtonIsDeaf_data()
    {
        QTest::addColumn<bool>("inSoftware");
        QTest::newRow("in software") << true;
        QTest::newRow("as a widget") << false;
    }

    void aDisabledButtonIsDeaf()
    {
        QFETCH(bool, inSoftware);
        const auto button = makeButton();
        button->setDisableState(inSoftware);
        button->setEnabled(inSoftware);
        show(*button);
        SignalLog log(button.get());
        const auto holdAndRelease = [&] {
            QMouseEvent down(QEvent::MouseButtonPress, QPointF(10, 10), Qt::LeftButton,
                             Qt::LeftButton, Qt::NoModifier);
            QMouseEvent up(QEvent::MouseButtonRelease, QPointF(10, 10), Qt::LeftButton,
                           Qt::NoButton, Qt::NoModifier);
            button->mousePressEvent(&down);
            virtualtime::advance(5000);
            button->mouseReleaseEvent(&up);
        };
        QCOMPARE(paints(*button, holdAndRelease), 0);
        QCOMPARE(log.take(), QStringList());
    }

    void aButtonDisabledDuringATouchIsSetBackSilently()
    {
        const auto button = makeButton();
        show(*button);
        Touch finger = touch(button.get());
        finger.press(10, 10).hold(0);
        button->setDisableState(true);
        virtualtime::advance(0);
        SignalLog log(button.get());
        QCOMPARE(paints(*button, [&] { finger.release().hold(5000); }), 0);
        QCOMPARE(log.take(), QStringList());
        button->setDisableState(false);
        COMPARE_PICTURES(painted(*button), reference(*button, look(kNormal, kNormalText)));
    }

    void aPressThatWasHeldLongBeforeDisablingIsForgotten()
    {
        const auto button = makeButton();
        Touch finger = touch(button.get());
        finger.press(10, 10).hold(1500);
        button->setDisableState(true);
        finger.release();
        button->setDisableState(false);
        SignalLog log(button.get());
        finger.tap(10, 10);
        QCOMPARE(log.take(), QStringList{kClicked});
    }

    void aDisabledPressRemembersItsPoint()
    {
        const auto button = makeButton();
        Touch finger = touch(button.get());
        finger.press(90, 70);
        button->setDisableState(true);
        finger.press(10, 10);
        button->setDisableState(false);
        finger.moveTo(10, 10); // where the last press was: not away
        SignalLog log(button.get());
        finger.release();
        QCOMPARE(log.take().filter(kClicked).size(), 1);
    }

    void aLongPressIsReportedAlsoIfDisabledMeanwhile()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(10, 10).hold(100);
        button->setDisableState(true);
        finger.hold(1400);
        QCOMPARE(log.take(), (QStringList{kBeep, kLongClicked}));
    }

    // --- Handlers -------------------------------------------------------------------------------

    void mouseEventsGoOnToTheParent_data() { addDisabled(); }

    void mouseEventsGoOnToTheParent()
    {
        checkMouseEventsGoOn(makeButton, &MSelectButton::setDisableState);
    }

    void theBaseHandlerComesAfterTheSignal()
    {
        const auto button = makeButton();
        BaseOrder order(button.get());
        touch(button.get()).tap(10, 10);
        QCOMPARE(order.before, QStringList{"btnClicked"});
        QCOMPARE(order.after, QStringList());
    }

    void aMoveIsHandledAsAPressByTheBaseClass()
    {
        // A popup closes on a press beside it, not on a move.
        Button popup;
        popup.setWindowFlags(Qt::Popup);
        popup.resize(100, 80);
        show(popup);
        touch(&popup).press(10, 10).moveTo(99, 79);
        QVERIFY(popup.isVisible());
        touch(&popup).moveTo(100, 79);
        QVERIFY(!popup.isVisible());
        QCOMPARE(takeMessages().filter(QStringLiteral("This plugin does not support")).size(), 2);
    }

    void timersOfOthersAreNoLongPress()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        press(*button);
        button->startTimer(50);
        virtualtime::advance(1000);
        QCOMPARE(log.take(), QStringList{kBeep});
    }

    void aSlotMayDeleteTheButton_data() { addLinesOfDeletion(kLongPress); }

    void aSlotMayDeleteTheButton() { checkSlotMayDelete(makeButton().release(), kLongPress); }
};

WIDGET_TEST_MAIN(tst_MSelectButton)
#include "tst_mselectbutton.moc"
