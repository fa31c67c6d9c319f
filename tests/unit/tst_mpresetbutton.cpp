// SPDX-License-Identifier: Apache-2.0
#include <MPresetButton>

#include "baseorder.h"
#include "buttonimages.h"
#include "detail/qtversion.h"
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

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <climits>
#include <memory>

namespace
{

using Action = std::function<void(MPresetButton &)>;
using Paint = std::function<void(QPainter &)>;

const QString kClicked = QStringLiteral("btnClicked(\"MPresetButton_ID\")");
const QString kLongClicked = QStringLiteral("btnLongClicked(\"MPresetButton_ID\")");
const QString kBeep = QStringLiteral("beep");
const LongPress kLongPress{1500, {kBeep}, {kBeep, kClicked}, kClicked, kLongClicked};

const QColor kNormal = Qt::green;
const QColor kPress = Qt::yellow;
const QColor kDisable = Qt::magenta;
const QString kText = QStringLiteral("98.70");
const QString kText2 = QStringLiteral("MHz");
const QRect kTextRect(5, 0, 60, 40);
const QRect kTextRect2(40, 35, 55, 40);
const QPoint kIconPos(61, 7);
const QSize kIconSize(13, 11);

const QRect kImageRect(30, 25, 40, 30); // of makeButton()

// The colours of both lines in one look.
struct Colors {
    QColor first;
    QColor second;
};
const Colors kNormalColors{QColor(10, 20, 30), QColor(11, 90, 31)};
const Colors kPressColors{QColor(40, 50, 160), QColor(41, 151, 61)};
const Colors kDisableColors{QColor(100, 110, 120, 130), QColor(200, 111, 121, 131)};

using Button = TickingButton<MPresetButton>;

// A key of 100 x 80 with everything that it can show.
std::unique_ptr<Button> makeButton(QWidget *parent = nullptr)
{
    auto button = std::make_unique<Button>(parent);
    button->setNormalImage(picture(kNormal));
    button->setPressImage(picture(kPress));
    button->setDisableImage(picture(kDisable));
    button->setPresetIcon(picture(Qt::red, kIconSize));
    button->setPresetIconPos(kIconPos);
    button->setDisplayText(kText);
    button->setDisplayText2(kText2);
    button->setNormalTextColor(kNormalColors.first);
    button->setPressTextColor(kPressColors.first);
    button->setDisableTextColor(kDisableColors.first);
    button->setNormalTextColor2(kNormalColors.second);
    button->setPressTextColor2(kPressColors.second);
    button->setDisableTextColor2(kDisableColors.second);
    button->setdisplayTextRect(kTextRect);
    button->setdisplayTextRect2(kTextRect2);
    button->resize(100, 80);
    return button;
}

// The application's font, which the test program has pinned, in another size.
QFont secondFont(int px = 24)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(px);
    return font;
}

Paint look(const QColor &image, const Colors &colors, bool hasIcon = true)
{
    return [=](QPainter &p) {
        if (image.isValid())
            p.drawPixmap(kImageRect, picture(image));
        if (hasIcon)
            p.drawPixmap(kIconPos, picture(Qt::red, kIconSize));
        p.setPen(colors.first);
        p.drawText(kTextRect, Qt::AlignCenter, kText);
        p.setFont(secondFont());
        p.setPen(colors.second);
        p.drawText(kTextRect2, Qt::AlignCenter, kText2);
    };
}

} // namespace

Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Paint)

class tst_MPresetButton : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction and setters ---------------------------------------------------------------

    void defaults()
    {
        QWidget parent;
        const MPresetButton button(&parent);
        QCOMPARE(button.parentWidget(), &parent);
        checkHasNoPictures(button, {"normalImage", "pressImage", "disableImage", "presetIcon"});
        QCOMPARE(button.presetIconPos(), QPoint(0, 0));
        QCOMPARE(button.displayText(), QString());
        QCOMPARE(button.displayText2(), QString());
        QVERIFY(!button.normalTextColor().isValid());
        QVERIFY(!button.pressTextColor().isValid());
        QVERIFY(!button.disableTextColor().isValid());
        QVERIFY(!button.normalTextColor2().isValid());
        QVERIFY(!button.pressTextColor2().isValid());
        QVERIFY(!button.disableTextColor2().isValid());
        QVERIFY(button.displayTextRect().isNull());
        QVERIFY(button.displayTextRect2().isNull());
        QCOMPARE(button.fontSize2(), 24);
        QCOMPARE(button.buttonID(), QStringLiteral("MPresetButton_ID"));
        QVERIFY(!button.isChecked());
    }

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("normalImage", 1, [](auto &b) { b.setNormalImage(picture(Qt::red)); });
        row("normalImage null", 0, [](auto &b) { b.setNormalImage(QPixmap()); });
        row("pressImage", 1, [](auto &b) { b.setPressImage(picture(Qt::red)); });
        row("pressImage null", 1, [](auto &b) { b.setPressImage(QPixmap()); });
        row("disableImage", 1, [](auto &b) { b.setDisableImage(picture(Qt::red)); });
        row("presetIcon", 1, [](auto &b) { b.setPresetIcon(picture(Qt::red)); });
        row("presetIcon null", 1, [](auto &b) { b.setPresetIcon(QPixmap()); });
        row("presetIconPos", 0, [](auto &b) { b.setPresetIconPos(QPoint(1, 1)); });
        row("displayText", 1, [](auto &b) { b.setDisplayText(QStringLiteral("x")); });
        row("displayText unchanged", 1, [](auto &b) { b.setDisplayText(kText); });
        row("displayText2", 1, [](auto &b) { b.setDisplayText2(QStringLiteral("x")); });
        row("normalTextColor", 1, [](auto &b) { b.setNormalTextColor(Qt::red); });
        row("pressTextColor", 1, [](auto &b) { b.setPressTextColor(Qt::red); });
        row("disableTextColor", 1, [](auto &b) { b.setDisableTextColor(Qt::red); });
        row("normalTextColor2", 1, [](auto &b) { b.setNormalTextColor2(Qt::red); });
        row("pressTextColor2", 1, [](auto &b) { b.setPressTextColor2(Qt::red); });
        row("disableTextColor2", 1, [](auto &b) { b.setDisableTextColor2(Qt::red); });
        row("displayTextRect", 0, [](auto &b) { b.setdisplayTextRect(QRect(1, 2, 3, 4)); });
        row("displayTextRect2", 0, [](auto &b) { b.setdisplayTextRect2(QRect(1, 2, 3, 4)); });
        row("fontSize2", 1, [](auto &b) { b.setFontSize2(11); });
        row("buttonID", 0, [](auto &b) { b.setButtonID(QStringLiteral("x")); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot() { checkRepaints<MPresetButton>(*makeButton()); }

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row("value");
        row("presetIconPos", QPoint(-3, 4));
        row("displayText", QStringLiteral("text"));
        row("displayText2", QStringLiteral("text 2"));
        row("normalTextColor", QColor(1, 2, 3, 4));
        row("pressTextColor", QColor(2, 2, 3, 4));
        row("disableTextColor", QColor(3, 2, 3, 4));
        row("normalTextColor2", QColor(4, 2, 3, 4));
        row("pressTextColor2", QColor(5, 2, 3, 4));
        row("disableTextColor2", QColor(6, 2, 3, 4));
        row("displayTextRect", QRect(1, -2, 3, 4));
        row("displayTextRect2", QRect(2, -2, 3, 4));
        row("fontSize2", -7);
        row("buttonID", QStringLiteral("left"));
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(MPresetButton()); }

    void everyPictureIsKept()
    {
        MPresetButton button;
        checkKeepsPictures(button, {"normalImage", "pressImage", "disableImage", "presetIcon"});
    }

    void onlyANormalImageSetsTheMinimumSize()
    {
        checkOnlyTheNormalImageSetsTheMinimumSize<MPresetButton>(
            {"pressImage", "disableImage", "presetIcon"});
    }

    // --- Looks ----------------------------------------------------------------------------------

    void looks_data()
    {
        const TableRows<Action, Paint> row("state", "expected");
        addLooksOfCheckable<MPresetButton, Paint>(
            row, look(kNormal, kNormalColors), look(kPress, kPressColors),
            look(QColor(), kPressColors), look(kDisable, kDisableColors, false),
            look(kNormal, kDisableColors, false));
        row(
            "without icon", [](auto &b) { b.setPresetIcon(QPixmap()); },
            look(kNormal, kNormalColors, false));
        // What a painter makes of a colour that was never set.
        row(
            "colours not set",
            [](auto &b) {
                b.setNormalTextColor(QColor());
                b.setNormalTextColor2(QColor());
            },
            look(kNormal, {}));
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

    void picturesAreStretchedToTheSizeOfTheNormalOneButTheIconIsNot()
    {
        const QPixmap large = picture(Qt::red, {131, 77});
        const auto button = makeButton();
        button->setDisplayText({});
        button->setDisplayText2({});
        button->setPressImage(large);
        button->setDisableImage(large);
        button->setPresetIcon(picture(Qt::blue, {60, 50}));
        button->setChecked(true);
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             p.drawPixmap(kImageRect, large);
                             p.drawPixmap(kIconPos, picture(Qt::blue, {60, 50}));
                         }));
        button->setEnabled(false);
        COMPARE_PICTURES(painted(*button),
                         reference(*button, [&](QPainter &p) { p.drawPixmap(kImageRect, large); }));
    }

    void theImageIsCentredTowardZero_data() { addPlacesTowardZero(); }

    void theImageIsCentredTowardZero() { checkImageStandsAtTopLeft<MPresetButton>(); }

    void textRectangles_data() { addCaptionRectangles({0, 0, 100, 80}); }

    void textRectangles()
    {
        QFETCH(QRect, rect);
        QFETCH(QRect, expected);
        const auto paint = [](const QRect &first, const QRect &second, bool enabled) {
            return [=](QPainter &p) {
                const Colors &colors = enabled ? kNormalColors : kDisableColors;
                p.drawPixmap(kImageRect, picture(enabled ? kNormal : kDisable));
                if (enabled)
                    p.drawPixmap(kIconPos, picture(Qt::red, kIconSize));
                p.setPen(colors.first);
                p.drawText(first, Qt::AlignCenter, kText);
                p.setFont(secondFont());
                p.setPen(colors.second);
                p.drawText(second, Qt::AlignCenter, kText2);
            };
        };
        for (bool enabled : {true, false}) {
            const auto button = makeButton();
            button->setEnabled(enabled);
            button->setdisplayTextRect(rect);
            COMPARE_PICTURES(painted(*button),
                             reference(*button, paint(expected, kTextRect2, enabled)));
            button->setdisplayTextRect(kTextRect);
            button->setdisplayTextRect2(rect);
            COMPARE_PICTURES(painted(*button),
                             reference(*button, paint(kTextRect, expected, enabled)));
        }
    }

    void theSecondLineIgnoresTheFontOfTheWidget()
    {
        const auto button = makeButton();
        QFont font(QStringLiteral("DejaVu Sans Mono"));
        font.setPixelSize(19);
        font.setBold(true);
        font.setItalic(true);
        font.setLetterSpacing(QFont::AbsoluteSpacing, 3);
        button->setFont(font);
        for (bool enabled : {true, false}) {
            button->setEnabled(enabled);
            const QColor image = enabled ? kNormal : kDisable;
            const Colors &colors = enabled ? kNormalColors : kDisableColors;
            COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                                 p.drawPixmap(kImageRect, picture(image));
                                 if (enabled)
                                     p.drawPixmap(kIconPos, picture(Qt::red, kIconSize));
                                 p.setFont(font);
                                 p.setPen(colors.first);
                                 p.drawText(kTextRect, Qt::AlignCenter, kText);
                                 QFont second = QApplication::font();
                                 second.setPixelSize(24);
                                 panelkit::setFullyResolved(second);
                                 p.setFont(second);
                                 p.setPen(colors.second);
                                 p.drawText(kTextRect2, Qt::AlignCenter, kText2);
                             }));
        }
    }

    void theSecondLineHasItsOwnSize_data()
    {
        QTest::addColumn<int>("px");
        QTest::addColumn<int>("expected");
        QTest::newRow("small") << 9 << 9;
        QTest::newRow("one") << 1 << 1;
        QTest::newRow("large") << 60 << 60;
        QTest::newRow("huge") << 100000 << 100000;
        QTest::newRow("largest") << INT_MAX << INT_MAX;
        QTest::newRow("none is that of the application") << 0 << 16;
        QTest::newRow("negative too") << -5 << 16;
        QTest::newRow("smallest too") << INT_MIN << 16;
    }

    void theSecondLineHasItsOwnSize()
    {
        QFETCH(int, px);
        QFETCH(int, expected);
        MPresetButton button;
        button.setNormalImage(picture(kNormal));
        button.resize(100, 80);
        button.setNormalTextColor2(Qt::blue);
        button.setDisplayText2(kText2);
        button.setFontSize2(px);
        COMPARE_PICTURES(painted(button), reference(button, [&](QPainter &p) {
                             p.drawPixmap(kImageRect, picture(kNormal));
                             p.setFont(secondFont(expected));
                             p.setPen(Qt::blue);
                             p.drawText(button.rect(), Qt::AlignCenter, kText2);
                         }));
    }

    // A rectangle counts as far as a widget can reach; one that is not valid is the whole widget.
    void hostileRectangles()
    {
        constexpr int kFarthest = QWIDGETSIZE_MAX;
        const QRect everywhere(QPoint(INT_MIN, INT_MIN), QPoint(INT_MAX, INT_MAX));
        const QRect insideOut(QPoint(INT_MAX, INT_MAX), QPoint(INT_MIN, INT_MIN));
        for (const QRect &rect : {everywhere, insideOut}) {
            const QRect expected = rect == everywhere
                ? QRect(QPoint(-kFarthest, -kFarthest), QPoint(kFarthest, kFarthest))
                : QRect(0, 0, 100, 80);
            const auto button = makeButton();
            button->setdisplayTextRect(rect);
            button->setdisplayTextRect2(rect);
            button->setPresetIconPos(rect.topLeft());
            QCOMPARE(button->presetIconPos(), rect.topLeft());
            COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                                 p.drawPixmap(kImageRect, picture(kNormal));
                                 p.setPen(kNormalColors.first);
                                 p.drawText(expected, Qt::AlignCenter, kText);
                                 p.setFont(secondFont());
                                 p.setPen(kNormalColors.second);
                                 p.drawText(expected, Qt::AlignCenter, kText2);
                             }));
        }
    }

    void withoutANormalImageItIsAPlainCheckBox()
    {
        checkIsPlainWithoutNormalImage<QCheckBox>([] { return makeButton(); });
    }

    // --- Touch ----------------------------------------------------------------------------------

    void aTapSoundsOnThePressAndClicksOnTheRelease()
    {
        const auto button = makeButton();
        button->setButtonID(QStringLiteral("1"));
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(10, 10).hold(100);
        QCOMPARE(log.take(), QStringList{kBeep});
        finger.release().hold(5000);
        QCOMPARE(log.take(), QStringList{"btnClicked(\"1\")"});
    }

    void aTouchNeitherChecksNorPressesTheKey()
    {
        const auto button = makeButton();
        show(*button);
        Touch finger = touch(button.get());
        for (bool checked : {false, true}) {
            button->setChecked(checked);
            QCOMPARE(paints(*button,
                            [&] {
                                finger.press(10, 10);
                                QVERIFY(!button->isDown());
                                finger.release();
                            }),
                     0);
            QCOMPARE(button->isChecked(), checked);
        }
    }

    void anyMoveSpoilsTheTap_data()
    {
        QTest::addColumn<QPoint>("offset");
        QTest::newRow("1 pixel") << QPoint(1, 0);
        QTest::newRow("not even that") << QPoint(0, 0);
        QTest::newRow("far") << QPoint(0, 300);
    }

    void anyMoveSpoilsTheTap()
    {
        QFETCH(QPoint, offset);
        const auto button = makeButton();
        SignalLog log(button.get());
        touch(button.get()).press(10, 10).moveTo(10 + offset.x(), 10 + offset.y()).release();
        virtualtime::advance(5000);
        QCOMPARE(log.take(), QStringList{kBeep});
        touch(button.get()).tap(10, 10);
        QCOMPARE(log.take(), QStringList{kClicked}); // the next one is whole again
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
        finger.hold(20000).release().hold(5000);
        QCOMPARE(log.take(), QStringList());
        finger.tap(10, 10);
        QCOMPARE(log.take(), QStringList{kClicked});
    }

    void theSlopOfALongPress_data()
    {
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<bool>("holds");
        for (int far : {1, 20, 21}) {
            for (const QPoint &way : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
                const QPoint offset = way * far;
                QTest::addRow("%d,%d", offset.x(), offset.y()) << offset << (far <= 20);
            }
        }
    }

    void theSlopOfALongPress()
    {
        QFETCH(QPoint, offset);
        QFETCH(bool, holds);
        const auto button = makeButton();
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(40, 40).moveTo(40 + offset.x(), 40 + offset.y()).moveTo(40, 40).hold(1500);
        finger.release();
        QCOMPARE(log.take(), holds ? (QStringList{kBeep, kLongClicked}) : QStringList{kBeep});
    }

    void theFarthestMoveIsSurvived()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(-2000000000, -2000000000).moveTo(2000000000, 2000000000);
        virtualtime::advance(5000);
        QCOMPARE(log.take(), QStringList{kBeep});
    }

    void aReleaseEndsTheTiming() { checkReleaseEndsTheTiming(*makeButton(), kLongPress); }

    void aPressAfterALostReleaseStartsAnew()
    {
        checkPressAfterALostReleaseStartsAnew(*makeButton(), kLongPress);
    }

    void aSecondPressTimesAnew() { checkSecondPressTimesAnew(*makeButton(), kLongPress); }

    void theWholeWidgetTakesTouches()
    {
        const auto button = makeButton();
        for (const QPoint &pos : {QPoint(0, 0), QPoint(99, 79), QPoint(-5, -500)})
            QVERIFY(button->hitButton(pos));
        SignalLog log(button.get());
        touch(button.get()).press(10, 10);
        touch(button.get()).tap(400, -300); // another finger; wherever it is
        QCOMPARE(log.take(), QStringList{kClicked});
    }

    // --- Disabled -------------------------------------------------------------------------------

    void aDisabledWidgetIsDeaf()
    {
        const auto button = makeButton();
        button->setEnabled(false);
        SignalLog log(button.get());
        touch(button.get()).press(10, 10).hold(5000).release();
        QCOMPARE(log.take(), QStringList());
    }

    void theHandlersOfADisabledKeyTimeNothingButClick()
    {
        const auto button = makeButton();
        button->setEnabled(false);
        SignalLog log(button.get());
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(10, 10), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(10, 10), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        button->mousePressEvent(&press);
        virtualtime::advance(5000);
        QCOMPARE(log.take(), QStringList());
        button->mouseReleaseEvent(&release);
        QCOMPARE(log.take(), QStringList{kClicked});
    }

    void aPressOnADisabledKeyForgetsTheLastMove()
    {
        const auto button = makeButton();
        touch(button.get()).press(10, 10).moveTo(12, 10).release();
        button->setEnabled(false);
        SignalLog log(button.get());
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(10, 10), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        button->mousePressEvent(&press);
        button->mouseReleaseEvent(&press);
        QCOMPARE(log.take().filter(kClicked).size(), 1);
    }

    // --- Handlers -------------------------------------------------------------------------------

    void mouseEventsGoOnToTheParent()
    {
        Parent parent;
        const auto button = makeButton(&parent);
        touch(button.get()).press(10, 10).release();
        touch(button.get()).press(10, 10).moveTo(12, 12).release();
        QCOMPARE(parent.events, (QStringList{"press", "release", "press", "move", "release"}));
        button->setParent(nullptr);
    }

    void theBaseHandlerComesAfterTheSignal()
    {
        const auto button = makeButton();
        BaseOrder order(button.get());
        touch(button.get()).tap(10, 10);
        QCOMPARE(order.before, QStringList{"btnClicked"});
        QCOMPARE(order.after, QStringList());
    }

    void aMoveRepaintsNothing()
    {
        // QCheckBox would, to show that a finger is over it.
        const auto button = makeButton();
        show(*button);
        button->setAttribute(Qt::WA_Hover);
        Touch finger = touch(button.get());
        finger.press(10, 10);
        QCOMPARE(paints(*button, [&] { finger.moveTo(11, 10); }), 0);
    }

    void timersOfTheBaseClassAreAnswered()
    {
        const auto button = makeButton();
        button->animateClick();
        QVERIFY(button->isDown());
        virtualtime::advance(200);
        QVERIFY(!button->isDown());
        QVERIFY(button->isChecked());
    }

    void aSlotMayDeleteTheButton_data() { addLinesOfDeletion(kLongPress); }

    void aSlotMayDeleteTheButton() { checkSlotMayDelete(makeButton().release(), kLongPress); }

    void aSlotOfTheBaseClassMayDeleteTheButton()
    {
        QPointer<Button> button = makeButton().release();
        connect(button, &QAbstractButton::released, this, [&] { delete button; });
        button->animateClick();
        virtualtime::advance(200);
        QVERIFY(!button);
    }
};

WIDGET_TEST_MAIN(tst_MPresetButton)
#include "tst_mpresetbutton.moc"
