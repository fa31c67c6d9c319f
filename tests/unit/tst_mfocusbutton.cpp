// SPDX-License-Identifier: Apache-2.0
#include <MFocusButton>

#include "buttonimages.h"
#include "hostile.h"
#include "longpress.h"
#include "pictures.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QButtonGroup>
#include <QPainter>

#include <climits>
#include <memory>

namespace
{

using Action = std::function<void(MFocusButton &)>;
using Paint = std::function<void(QPainter &)>;

const QString kClicked = QStringLiteral("btnClicked(\"MFocusButton_ID\")");
const QString kLongClicked = QStringLiteral("btnLongClicked(\"MFocusButton_ID\")");
const QString kBeep = QStringLiteral("beep");
const LongPress kLongPress{2500, {}, {kClicked, kBeep}, kClicked, kLongClicked};

const QColor kNormal = Qt::green;
const QColor kPress = Qt::yellow;
const QColor kDisable = Qt::magenta;
const QColor kNormalText(10, 20, 30);
const QColor kPressText(40, 50, 160);
const QColor kDisableText(100, 110, 120, 130);
const QString kText = QStringLiteral("Radio");

const QRect kImageRect(30, 25, 40, 30); // of makeButton()

using Button = TickingButton<MFocusButton>;

// A button of 100 x 80 with a picture and a text colour for each look.
std::unique_ptr<Button> makeButton(QWidget *parent = nullptr)
{
    auto button = std::make_unique<Button>(parent);
    button->setNormalImage(picture(kNormal));
    button->setPressImage(picture(kPress));
    button->setDisableImage(picture(kDisable));
    button->setNormalTextColor(kNormalText);
    button->setPressTextColor(kPressText);
    button->setDisableTextColor(kDisableText);
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

} // namespace

Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Paint)

class tst_MFocusButton : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction and setters ---------------------------------------------------------------

    void defaults()
    {
        QWidget parent;
        const MFocusButton button(&parent);
        QCOMPARE(button.parentWidget(), &parent);
        checkHasNoPictures(button, {"normalImage", "pressImage", "disableImage"});
        QCOMPARE(button.displayText(), QString());
        QVERIFY(!button.normalTextColor().isValid());
        QVERIFY(!button.pressTextColor().isValid());
        QVERIFY(!button.disableTextColor().isValid());
        QVERIFY(button.displayTextRect().isNull());
        QCOMPARE(button.buttonID(), QStringLiteral("MFocusButton_ID"));
        QCOMPARE(button.getLongPressIntal(), 2500);
        QVERIFY(!button.isChecked());
        QVERIFY(button.autoExclusive());
        QCOMPARE(button.minimumSize(), QRadioButton().minimumSize());
    }

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("normalImage", 1, [](auto &b) { b.setNormalImage(picture(Qt::red)); });
        row("normalImage null", 0, [](auto &b) { b.setNormalImage(QPixmap()); });
        row("pressImage", 0, [](auto &b) { b.setPressImage(picture(Qt::red)); });
        row("disableImage", 1, [](auto &b) { b.setDisableImage(picture(Qt::red)); });
        row("disableImage null", 1, [](auto &b) { b.setDisableImage(QPixmap()); });
        row("displayText", 1, [](auto &b) { b.setDisplayText(QStringLiteral("x")); });
        row("displayText unchanged", 1, [](auto &b) { b.setDisplayText(QString()); });
        row("normalTextColor", 0, [](auto &b) { b.setNormalTextColor(Qt::red); });
        row("pressTextColor", 0, [](auto &b) { b.setPressTextColor(Qt::red); });
        row("disableTextColor", 0, [](auto &b) { b.setDisableTextColor(Qt::red); });
        row("displayTextRect", 0, [](auto &b) { b.setdisplayTextRect(QRect(1, 2, 3, 4)); });
        row("buttonID", 0, [](auto &b) { b.setButtonID(QStringLiteral("x")); });
        row("longPressIntal", 0, [](auto &b) { b.setLongPressIntal(7); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot() { checkRepaints<MFocusButton>(*makeButton()); }

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row("value");
        row("displayText", QStringLiteral("text"));
        row("normalTextColor", QColor(1, 2, 3, 4));
        row("pressTextColor", QColor(2, 2, 3, 4));
        row("disableTextColor", QColor(3, 2, 3, 4));
        row("displayTextRect", QRect(1, -2, 3, 4));
        row("buttonID", QStringLiteral("left"));
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(MFocusButton()); }

    void everyPictureIsKept()
    {
        MFocusButton button;
        checkKeepsPictures(button, {"normalImage", "pressImage", "disableImage"});
    }

    void onlyANormalImageSetsTheMinimumSize()
    {
        checkOnlyTheNormalImageSetsTheMinimumSize<MFocusButton>({"pressImage", "disableImage"});
    }

    void setFontSizeChangesOnlyThePixelSize() { checkSetFontSize(MFocusButton()); }

    // --- Looks ----------------------------------------------------------------------------------

    void looks_data()
    {
        const TableRows<Action, Paint> row("state", "expected");
        addLooksOfCheckable<MFocusButton, Paint>(
            row, look(kNormal, kNormalText), look(kPress, kPressText), look(QColor(), kPressText),
            look(kDisable, kDisableText), look(kNormal, kDisableText));
        row(
            "checked without press image",
            [](auto &b) {
                b.setChecked(true);
                b.setPressImage(QPixmap());
            },
            look(QColor(), kPressText));
        row(
            "disabled without disable image",
            [](auto &b) {
                b.setDisableImage(QPixmap());
                b.setEnabled(false);
            },
            look(kNormal, kDisableText));
        // What a painter makes of a colour that was never set.
        row(
            "colour not set", [](auto &b) { b.setNormalTextColor(QColor()); },
            look(kNormal, QColor()));
    }

    void looks()
    {
        QFETCH(Action, state);
        QFETCH(Paint, expected);
        const auto button = makeButton();
        button->setDisplayText(kText);
        state(*button);
        COMPARE_PICTURES(painted(*button), reference(*button, expected));
        COMPARE_PICTURES(painted(*button), reference(*button, expected));
    }

    void picturesAreStretchedToTheSizeOfTheNormalOne()
    {
        const QPixmap large = picture(Qt::red, {131, 77});
        const auto button = makeButton();
        button->setPressImage(large);
        button->setDisableImage(large);
        button->setChecked(true);
        const auto stretched = [&](QPainter &p) { p.drawPixmap(kImageRect, large); };
        COMPARE_PICTURES(painted(*button), reference(*button, stretched));
        button->setEnabled(false);
        COMPARE_PICTURES(painted(*button), reference(*button, stretched));
    }

    void theImageIsCentredTowardZero_data() { addPlacesTowardZero(); }

    void theImageIsCentredTowardZero() { checkImageStandsAtTopLeft<MFocusButton>(); }

    void captionRectangle_data() { addCaptionRectangles({0, 0, 100, 80}); }

    void captionRectangle()
    {
        QFETCH(QRect, rect);
        QFETCH(QRect, expected);
        const auto button = makeButton();
        button->setDisplayText(kText);
        button->setdisplayTextRect(rect);
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             p.drawPixmap(kImageRect, picture(kNormal));
                             p.setPen(kNormalText);
                             p.drawText(expected, Qt::AlignCenter, kText);
                         }));
    }

    void hostileCaptionRectangles_data() { addHostileRectangles(QRect(0, 0, 100, 80)); }

    void hostileCaptionRectangles()
    {
        QFETCH(QRect, rect);
        QFETCH(QRect, expected);
        const auto button = makeButton();
        button->setDisplayText(kText);
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
        button->setDisplayText(kText);
        painted(*button);
        button->setFontSize(25);
        COMPARE_PICTURES(painted(*button), reference(*button, look(kNormal, kNormalText)));
    }

    void withoutANormalImageItIsAPlainRadioButton()
    {
        checkIsPlainWithoutNormalImage<QRadioButton>([] {
            auto button = makeButton();
            button->setDisplayText(QStringLiteral("not shown"));
            return button;
        });
    }

    // --- Touch ----------------------------------------------------------------------------------

    void aTapClicksAndSoundsOnRelease()
    {
        const auto button = makeButton();
        button->setButtonID(QStringLiteral("radio"));
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(10, 10).hold(100);
        QVERIFY(button->isDown());
        QCOMPARE(log.take(), QStringList());
        finger.release();
        QCOMPARE(log.take(), QStringList{"btnClicked(\"radio\")"});
        virtualtime::advance(0);
        QCOMPARE(log.take(), QStringList{kBeep});
        QVERIFY(button->isChecked());
    }

    void theClickIsReportedBeforeTheButtonIsChecked()
    {
        const auto button = makeButton();
        bool wasDown = false;
        bool wasChecked = true;
        connect(button.get(), &MFocusButton::btnClicked, this, [&] {
            wasDown = button->isDown();
            wasChecked = button->isChecked();
        });
        touch(button.get()).tap(10, 10);
        QVERIFY(wasDown);
        QVERIFY(!wasChecked);
        QVERIFY(button->isChecked());
    }

    void aCheckedButtonClicksAgain()
    {
        const auto button = makeButton();
        button->setChecked(true);
        SignalLog log(button.get());
        touch(button.get()).tap(10, 10);
        QCOMPARE(log.take(), QStringList{kClicked});
        QVERIFY(button->isChecked());
    }

    void buttonsOfOneParentExcludeEachOther()
    {
        QWidget parent;
        const auto first = makeButton(&parent);
        const auto second = makeButton(&parent);
        touch(first.get()).tap(10, 10);
        QVERIFY(first->isChecked());
        touch(second.get()).tap(10, 10);
        QVERIFY(!first->isChecked());
        QVERIFY(second->isChecked());
        COMPARE_PICTURES(painted(*first), reference(*first, [](QPainter &p) {
                             p.drawPixmap(kImageRect, picture(kNormal));
                         }));
        first->setParent(nullptr);
        second->setParent(nullptr);
    }

    void buttonsOfOneGroupExcludeEachOtherAcrossParents()
    {
        QWidget left;
        QWidget right;
        const auto first = makeButton(&left);
        const auto second = makeButton(&right);
        const auto third = makeButton(&right); // in no group
        QButtonGroup group;
        group.addButton(first.get());
        group.addButton(second.get());
        touch(first.get()).tap(10, 10);
        QVERIFY(first->isChecked());
        touch(second.get()).tap(10, 10);
        QVERIFY(!first->isChecked());
        QVERIFY(second->isChecked());
        QCOMPARE(group.checkedButton(), second.get());
        COMPARE_PICTURES(painted(*first), reference(*first, [](QPainter &p) {
                             p.drawPixmap(kImageRect, picture(kNormal));
                         }));
        touch(third.get()).tap(10, 10);
        QVERIFY(second->isChecked());
        QVERIFY(third->isChecked());
        for (const auto *button : {&first, &second, &third})
            (*button)->setParent(nullptr);
    }

    void theWholeWidgetTakesTouches()
    {
        const auto button = makeButton();
        for (const QPoint &pos : {QPoint(0, 0), QPoint(99, 79), QPoint(-5, -500)})
            QVERIFY(button->hitButton(pos));
        touch(button.get()).tap(99, 79); // far from what a radio button paints
        QVERIFY(button->isChecked());
    }

    void aReleaseAnywhereIsAClick()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        touch(button.get()).press(10, 10).moveTo(500, -400).release();
        QCOMPARE(log.take(), QStringList{kClicked});
        QVERIFY(button->isChecked());
    }

    void withoutANormalImageItStillReports()
    {
        Button button;
        button.resize(100, 40);
        SignalLog log(&button);
        touch(&button).tap(90, 30);
        touch(&button).press(90, 30).hold(2500).release();
        QCOMPARE(log.take(), (QStringList{kClicked, kBeep, kLongClicked}));
    }

    void aDisabledWidgetIsDeaf()
    {
        const auto button = makeButton();
        button->setEnabled(false);
        SignalLog log(button.get());
        touch(button.get()).tap(10, 10);
        virtualtime::advance(5000);
        QCOMPARE(log.take(), QStringList());
        QVERIFY(!button->isChecked());
    }

    // --- Long press -----------------------------------------------------------------------------

    void aHoldIsALongPressAndNoClick()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(10, 10).hold(2499);
        QCOMPARE(log.take(), QStringList());
        finger.hold(1);
        QCOMPARE(log.take(), QStringList{kLongClicked});
        finger.hold(20000).release();
        virtualtime::advance(5000);
        QCOMPARE(log.take(), QStringList()); // neither a click nor its sound
        QVERIFY(button->isChecked());
    }

    void theNextPressStartsAnew()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        touch(button.get()).press(10, 10).hold(2500).release();
        log.take();
        touch(button.get()).tap(10, 10);
        QCOMPARE(log.take(), QStringList{kClicked});
        virtualtime::advance(10000);
        QCOMPARE(log.take(), QStringList{kBeep});
    }

    void aReleaseEndsTheTiming() { checkReleaseEndsTheTiming(*makeButton(), kLongPress); }

    void aPressAfterALostReleaseStartsAnew()
    {
        checkPressAfterALostReleaseStartsAnew(*makeButton(), kLongPress);
    }

    void aSecondPressTimesAnew() { checkSecondPressTimesAnew(*makeButton(), kLongPress); }

    void theIntervalIsThatOfThePress()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        button->setLongPressIntal(400);
        QCOMPARE(button->getLongPressIntal(), 400);
        Touch finger = touch(button.get());
        finger.press(10, 10);
        button->setLongPressIntal(800);
        finger.hold(399);
        QCOMPARE(log.take(), QStringList());
        finger.hold(1);
        QCOMPARE(log.take(), QStringList{kLongClicked});
    }

    void hostileIntervals_data()
    {
        QTest::addColumn<int>("interval");
        QTest::addColumn<bool>("fires");
        QTest::newRow("negative never passes") << -1 << false;
        QTest::newRow("smallest") << INT_MIN << false;
        QTest::newRow("at once") << 0 << true;
        QTest::newRow("largest") << INT_MAX << false;
    }

    void hostileIntervals()
    {
        QFETCH(int, interval);
        QFETCH(bool, fires);
        const auto button = makeButton();
        button->setLongPressIntal(interval);
        SignalLog log(button.get());
        touch(button.get()).press(10, 10).hold(60000).release();
        QCOMPARE(log.take(), QStringList{fires ? kLongClicked : kClicked});
    }

    void aReleaseWithoutAPressIsAClick()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        touch(button.get()).release();
        QCOMPARE(log.take(), QStringList{kClicked});
        QVERIFY(!button->isChecked());
    }

    // --- Handlers -------------------------------------------------------------------------------

    void aTimerEventMayBeNone()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        touch(button.get()).press(10, 10);
        button->timerEvent(nullptr);
        QCOMPARE(log.take(), QStringList());
    }

    void timersOfTheBaseClassAreNotAnswered()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        button->animateClick();
        virtualtime::advance(1000);
        QVERIFY(button->isDown());
        QCOMPARE(log.take(), QStringList());
    }

    void theClickSoundIsHeardByTheParent()
    {
        QWidget parent;
        const auto button = makeButton(&parent);
        SignalLog log(&parent);
        touch(button.get()).tap(10, 10);
        virtualtime::advance(0);
        QCOMPARE(log.take(), QStringList{kBeep});
        button->setParent(nullptr);
    }

    void aSlotMayDeleteTheButton_data() { addLinesOfDeletion(kLongPress); }

    void aSlotMayDeleteTheButton() { checkSlotMayDelete(makeButton().release(), kLongPress); }
};

WIDGET_TEST_MAIN(tst_MFocusButton)
#include "tst_mfocusbutton.moc"
