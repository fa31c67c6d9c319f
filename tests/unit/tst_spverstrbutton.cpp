// SPDX-License-Identifier: Apache-2.0
#include <SpVerStrButton>

#include "buttonimages.h"
#include "deletion.h"
#include "hostile.h"
#include "newwidget.h"
#include "parent.h"
#include "pictures.h"
#include "pressedlook.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QPainter>

#include <climits>
#include <memory>

namespace
{

const QColor kNormal = Qt::green;
const QColor kPress = Qt::yellow;
const QColor kFocus = Qt::cyan;
const QColor kDisable = Qt::magenta;

const QString kText = QStringLiteral("Radio");
constexpr int kTextFlags = 0x24;

// A button of 101 x 100 with a picture for each look.
std::unique_ptr<SpVerStrButton> makeButton(QWidget *parent = nullptr)
{
    auto button = std::make_unique<SpVerStrButton>(parent);
    button->setNormalPixmap(picture(kNormal));
    button->setPressPixmap(picture(kPress));
    button->setFocusPixmap(picture(kFocus));
    button->setDisablePixmap(picture(kDisable, {50, 20}));
    button->setDisplayString(kText);
    button->resize(101, 100);
    return button;
}

const QRect kIconRect(30, 24, 40, 30); // of makeButton()
const QRect kTextRect(0, 59, 101, 41);
const QPoint kDisabledPos(25, 0);

using Action = std::function<void(SpVerStrButton &)>;
using Paint = std::function<void(QPainter &)>;

Paint plain(const QColor &color)
{
    return [color](QPainter &p) { p.drawPixmap(kIconRect, picture(color)); };
}

Paint nothing()
{
    return [](QPainter &) {};
}

// The string as it is documented: in the application's font with a size of its own.
void drawText(QPainter &p, const QColor &color, const QRect &rect, const QString &text = kText,
              int px = 20)
{
    QFont font;
    font.setPixelSize(px);
    p.setFont(font);
    p.setPen(color);
    p.drawText(rect, kTextFlags, text);
}

} // namespace

Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Paint)

class tst_SpVerStrButton : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction ---------------------------------------------------------------------------

    void defaults()
    {
        const SpVerStrButton button;
        QVERIFY(button.normalPixmap().isNull());
        QVERIFY(button.pressPixmap().isNull());
        QVERIFY(button.disablePixmap().isNull());
        QVERIFY(button.focusPixmap().isNull());
        QCOMPARE(button.displayString(), QStringLiteral("Text"));
        QCOMPARE(button.normalColor(), QColor(Qt::black));
        QCOMPARE(button.pressColor(), QColor(Qt::red));
        QCOMPARE(button.focusTextColor(), QColor(Qt::white));
        QCOMPARE(button.buttonId(), -1);
        QCOMPARE(button.widgetGain(), 5);
        QCOMPARE(button.stringHeight(), 16);
        QCOMPARE(button.disable(), false);
        QCOMPARE(button.isDown(), false);
        QCOMPARE(button.isLock(), false);
        QCOMPARE(button.isFocus(), false);
        QCOMPARE(button.fontSize(), 20);
        QVERIFY(button.findChildren<QObject *>().isEmpty());
    }

    void aNewButtonIsAPlainWidgetOtherwise() { checkIsAPlainWidget<SpVerStrButton>(); }

    void aNewButtonKeepsRoomForAnIconOf32Square()
    {
        SpVerStrButton button;
        button.resize(100, 100);
        button.setPressPixmap(picture(kPress, {64, 64}));
        COMPARE_PICTURES(painted(button), reference(button, [](QPainter &p) {
                             drawText(p, Qt::black, QRect(0, 60, 100, 40), QStringLiteral("Text"));
                         }));
        button.setIsDown(true);
        COMPARE_PICTURES(painted(button), reference(button, [](QPainter &p) {
                             p.drawPixmap(QRect(34, 23, 32, 32), picture(kPress, {64, 64}));
                             drawText(p, Qt::red, QRect(0, 60, 100, 40), QStringLiteral("Text"));
                         }));
    }

    // --- Setters --------------------------------------------------------------------------------

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("normalPixmap", 1, [](auto &b) { b.setNormalPixmap(picture(Qt::red)); });
        row("normalPixmap null", 0, [](auto &b) { b.setNormalPixmap(QPixmap()); });
        row("pressPixmap", 1, [](auto &b) { b.setPressPixmap(picture(Qt::red)); });
        row("pressPixmap null", 1, [](auto &b) { b.setPressPixmap(QPixmap()); });
        row("disablePixmap", 0, [](auto &b) { b.setDisablePixmap(picture(Qt::red)); });
        row("focusPixmap", 0, [](auto &b) { b.setFocusPixmap(picture(Qt::red)); });
        row("displayString", 1, [](auto &b) { b.setDisplayString(QStringLiteral("x")); });
        row("displayString unchanged", 1, [](auto &b) { b.setDisplayString(kText); });
        row("normalColor", 0, [](auto &b) { b.setNormalColor(Qt::red); });
        row("pressColor", 0, [](auto &b) { b.setPressColor(Qt::blue); });
        row("focusTextColor", 0, [](auto &b) { b.setFocusTextColor(Qt::blue); });
        row("buttonId", 0, [](auto &b) { b.setButtonId(3); });
        row("widgetGain", 0, [](auto &b) { b.setWidgetGain(3); });
        row("stringHeight", 0, [](auto &b) { b.setStringHeight(3); });
        row("disable", 0, [](auto &b) { b.setDisable(true); });
        row("isDown", 1, [](auto &b) { b.setIsDown(true); });
        row("isDown unchanged", 1, [](auto &b) { b.setIsDown(false); });
        row("isLock", 0, [](auto &b) { b.setIsLock(true); });
        row("isFocus", 1, [](auto &b) { b.setFocus(true); });
        row("isFocus unchanged", 1, [](auto &b) { b.setFocus(false); });
        row("fontSize", 0, [](auto &b) { b.setFontSize(3); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot()
    {
        const auto button = makeButton();
        const QFont font = button->font();
        checkRepaints(*button);
        QCOMPARE(button->size(), QSize(101, 100));
        QCOMPARE(button->minimumSize(), QSize(40, 30));
        QCOMPARE(button->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
        QCOMPARE(button->font(), font);
    }

    void nothingRepaintsWhileNothingChanges()
    {
        const auto button = makeButton();
        show(*button);
        QCOMPARE(paints(*button, [] { virtualtime::advance(5000); }), 0);
    }

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row("value");
        row("displayString", QStringLiteral("text"));
        row("normalColor", QColor(1, 2, 3, 4));
        row("pressColor", QColor(2, 2, 3, 4));
        row("focusTextColor", QColor(3, 2, 3, 4));
        row("buttonId", INT_MIN);
        row("widgetGain", INT_MAX);
        row("stringHeight", -6);
        row("disable", true);
        row("isDown", true);
        row("isLock", true);
        row("isFocus", true);
        row("fontSize", -4);
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(SpVerStrButton()); }

    void picturesAreKept()
    {
        const auto button = makeButton();
        QCOMPARE(button->normalPixmap().toImage(), picture(kNormal).toImage());
        QCOMPARE(button->pressPixmap().toImage(), picture(kPress).toImage());
        QCOMPARE(button->focusPixmap().toImage(), picture(kFocus).toImage());
        QCOMPARE(button->disablePixmap().toImage(), picture(kDisable, {50, 20}).toImage());
    }

    void aNormalPixmapSetsTheMinimumSize()
    {
        SpVerStrButton button;
        button.setNormalPixmap(picture(kNormal, {70, 44}));
        QCOMPARE(button.minimumSize(), QSize(70, 44));
        button.setNormalPixmap(picture(kNormal, {20, 10}));
        QCOMPARE(button.minimumSize(), QSize(20, 10));
    }

    void onlyTheNormalPixmapSetsTheMinimumSize()
    {
        SpVerStrButton button;
        button.setPressPixmap(picture(kPress));
        button.setFocusPixmap(picture(kFocus));
        button.setDisablePixmap(picture(kDisable));
        QCOMPARE(button.minimumSize(), QSize(0, 0));
    }

    void aNullNormalPixmapKeepsTheIconRectangle()
    {
        const auto button = makeButton();
        button->setNormalPixmap(QPixmap());
        QVERIFY(button->normalPixmap().isNull());
        QCOMPARE(button->minimumSize(), QSize(40, 30));
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                             drawText(p, Qt::black, kTextRect);
                         }));
        button->setPressPixmap(picture(kPress, {64, 64}));
        button->setIsDown(true);
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                             p.drawPixmap(kIconRect, picture(kPress, {64, 64}));
                             drawText(p, Qt::red, kTextRect);
                         }));
    }

    // --- Layout ---------------------------------------------------------------------------------

    void layouts_data()
    {
        const TableRows<QSize, int, int, QPoint, QRect> row("size", "gap", "stringHeight", "icon",
                                                            "text");
        row("as made", {101, 100}, 5, 16, {30, 24}, {0, 59, 101, 41});
        row("even", {100, 101}, 5, 16, {30, 25}, {0, 60, 100, 41});
        row("a wide gap", {101, 100}, 21, 16, {30, 16}, {0, 67, 101, 33});
        row("no gap", {101, 100}, 0, 16, {30, 27}, {0, 57, 101, 43});
        row("no height", {101, 100}, 5, 0, {30, 32}, {0, 67, 101, 33});
        row("a negative height", {101, 100}, 5, -21, {30, 43}, {0, 78, 101, 22});
        row("a large height", {101, 100}, 5, 65, {30, 0}, {0, 35, 101, 65});
        row("too large by one", {101, 100}, 5, 66, {30, -1}, {0, 34, 101, 66});
        row("too large by two", {101, 100}, 5, 67, {30, -1}, {0, 34, 101, 66});
        row("too large by three", {101, 100}, 5, 68, {30, -2}, {0, 33, 101, 67});
        row("narrower by one", {39, 100}, 5, 16, {-1, 24}, {0, 59, 39, 41});
        row("narrower by two", {38, 100}, 5, 16, {-1, 24}, {0, 59, 38, 41});
        row("lower than the gap", {101, 30}, 5, 16, {30, -11}, {0, 24, 101, 6});
        row("the string below the button", {101, 30}, 40, -50, {30, 5}, {0, 75, 101, -45});

        row("overlap", {101, 100}, -10, 16, {30, 35}, {0, 20, 101, 16});
        row("overlap, odd", {100, 101}, -10, 16, {30, 35}, {0, 20, 100, 16});
        row("overlap of one", {101, 100}, -1, 30, {30, 35}, {0, 29, 101, 30});
        row("overlap above the button", {101, 100}, -35, 16, {30, 35}, {0, -5, 101, 16});
        row("overlap, no height", {101, 100}, -10, 0, {30, 35}, {0, 20, 101, 0});
        row("overlap, negative height", {101, 100}, -10, -8, {30, 35}, {0, 20, 101, -8});
        row("overlap, lower than the icon", {101, 29}, -10, 16, {30, -1}, {0, 20, 101, 16});
    }

    void layouts()
    {
        QFETCH(QSize, size);
        QFETCH(int, gap);
        QFETCH(int, stringHeight);
        QFETCH(QPoint, icon);
        QFETCH(QRect, text);
        const auto button = makeButton();
        button->setMinimumSize(0, 0);
        button->resize(size);
        button->setWidgetGain(gap);
        button->setStringHeight(stringHeight);
        const QImage expected = reference(*button, [&](QPainter &p) {
            p.drawPixmap(icon, picture(kNormal));
            drawText(p, Qt::black, text);
        });
        COMPARE_PICTURES(painted(*button), expected);
        COMPARE_PICTURES(painted(*button), expected);
    }

    void anOverlapOfANewButton()
    {
        SpVerStrButton button;
        button.resize(100, 100);
        button.setWidgetGain(-10);
        button.setFocusPixmap(picture(kFocus, {32, 32}));
        button.setFocus(true);
        button.setFocusTextColor(Qt::blue);
        COMPARE_PICTURES(painted(button), reference(button, [](QPainter &p) {
                             p.drawPixmap(34, 34, picture(kFocus, {32, 32}));
                             drawText(p, Qt::blue, QRect(0, 22, 100, 16), QStringLiteral("Text"));
                         }));
    }

    // --- Pictures -------------------------------------------------------------------------------

    void looks_data()
    {
        QTest::addColumn<Action>("state");
        QTest::addColumn<Paint>("icon");
        QTest::addColumn<QColor>("pen");
        const auto row = [](const char *name, const Action &state, const Paint &icon,
                            const QColor &pen) { QTest::newRow(name) << state << icon << pen; };
        const Paint disabled = [](QPainter &p) {
            p.drawPixmap(kDisabledPos, picture(kDisable, {50, 20}));
        };
        const QColor normalPen(1, 2, 3);
        const QColor pressPen(4, 5, 6);
        const QColor focusPen(7, 8, 9);
        row(
            "normal", [](auto &) {}, plain(kNormal), normalPen);
        row(
            "pressed", [](auto &b) { b.setIsDown(true); }, plain(kPress), pressPen);
        row(
            "focused", [](auto &b) { b.setFocus(true); }, plain(kFocus), focusPen);
        row(
            "disabled", [](auto &b) { b.setDisable(true); }, disabled, Qt::darkGray);
        row(
            "pressed goes before focused",
            [](auto &b) {
                b.setIsDown(true);
                b.setFocus(true);
            },
            plain(kPress), pressPen);
        row(
            "disabled goes before both",
            [](auto &b) {
                b.setIsDown(true);
                b.setFocus(true);
                b.setDisable(true);
            },
            disabled, Qt::darkGray);
        row(
            "pressed without its icon",
            [](auto &b) {
                b.setIsDown(true);
                b.setFocus(true);
                b.setPressPixmap({});
            },
            nothing(), pressPen);
        row(
            "focused without its icon",
            [](auto &b) {
                b.setFocus(true);
                b.setFocusPixmap({});
            },
            nothing(), focusPen);
        row(
            "disabled without its icon",
            [](auto &b) {
                b.setDisable(true);
                b.setDisablePixmap({});
            },
            nothing(), Qt::darkGray);
        row(
            "without the normal icon", [](auto &b) { b.setNormalPixmap({}); }, nothing(),
            normalPen);
        row(
            "disabled as a widget only", [](auto &b) { b.setEnabled(false); }, plain(kNormal),
            normalPen);
    }

    void looks()
    {
        QFETCH(Action, state);
        QFETCH(Paint, icon);
        QFETCH(QColor, pen);
        const auto button = makeButton();
        button->setNormalColor(QColor(1, 2, 3));
        button->setPressColor(QColor(4, 5, 6));
        button->setFocusTextColor(QColor(7, 8, 9));
        state(*button);
        const QImage expected = reference(*button, [&](QPainter &p) {
            icon(p);
            drawText(p, pen, kTextRect);
        });
        COMPARE_PICTURES(painted(*button), expected);
        COMPARE_PICTURES(painted(*button), expected);
    }

    void theIconsOfTouchesAreStretchedToTheSizeOfTheNormalOne_data()
    {
        addStretchedPictures("focus");
    }

    void theIconsOfTouchesAreStretchedToTheSizeOfTheNormalOne()
    {
        QFETCH(bool, pressed);
        QFETCH(QSize, size);
        const QPixmap image = picture(Qt::red, size);
        const auto button = makeButton();
        button->setDisplayString({});
        pressed ? button->setPressPixmap(image) : button->setFocusPixmap(image);
        button->setIsDown(pressed);
        button->setFocus(!pressed);
        checkPaintsStretched(*button, image, kIconRect);
    }

    void theDisabledIconHasItsOwnSizeAtTheTop_data()
    {
        QTest::addColumn<QSize>("icon");
        QTest::addColumn<int>("left");
        QTest::newRow("small") << QSize(20, 20) << 40;
        QTest::newRow("odd") << QSize(21, 20) << 40;
        QTest::newRow("as wide") << QSize(101, 140) << 0;
        QTest::newRow("wider by one") << QSize(102, 20) << -1;
        QTest::newRow("wider by two") << QSize(103, 20) << -1;
        QTest::newRow("wider by three") << QSize(104, 20) << -2;
    }

    void theDisabledIconHasItsOwnSizeAtTheTop()
    {
        QFETCH(QSize, icon);
        QFETCH(int, left);
        const auto button = makeButton();
        button->setDisplayString({});
        button->setDisablePixmap(picture(kDisable, icon));
        button->setDisable(true);
        for (int gap : {5, -10}) {
            button->setWidgetGain(gap);
            COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                                 p.drawPixmap(left, 0, picture(kDisable, icon));
                             }));
        }
    }

    void theStringStandsOverTheIcon()
    {
        const auto button = makeButton();
        button->setWidgetGain(-20);
        button->setNormalPixmap(picture(kNormal, {90, 80}));
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                             p.drawPixmap(5, 10, picture(kNormal, {90, 80}));
                             drawText(p, Qt::black, QRect(0, 60, 101, 16));
                         }));
    }

    // --- Font -----------------------------------------------------------------------------------

    void theStringHasItsOwnSize()
    {
        const auto button = makeButton();
        for (int px : {20, 11, 33}) {
            button->setFontSize(px);
            COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                                 plain(kNormal)(p);
                                 drawText(p, Qt::black, kTextRect, kText, px);
                             }));
        }
    }

    void theFontOfTheWidgetPlaysNoPart()
    {
        const auto button = makeButton();
        const QImage expected = reference(*button, [](QPainter &p) {
            plain(kNormal)(p);
            drawText(p, Qt::black, kTextRect);
        });
        QFont other(QStringLiteral("DejaVu Serif"));
        other.setPixelSize(31);
        other.setBold(true);
        other.setItalic(true);
        other.setUnderline(true);
        other.setLetterSpacing(QFont::AbsoluteSpacing, 4);
        button->setFont(other);
        COMPARE_PICTURES(painted(*button), expected);
    }

    void theFontOfTheApplicationDoes()
    {
        const auto button = makeButton();
        painted(*button);
        const QFont before = QApplication::font();
        QFont other = before;
        other.setBold(true);
        QApplication::setFont(other);
        const QImage actual = painted(*button);
        const QImage expected = reference(*button, [](QPainter &p) {
            plain(kNormal)(p);
            drawText(p, Qt::black, kTextRect);
        });
        QApplication::setFont(before);
        COMPARE_PICTURES(actual, expected);
        QVERIFY(painted(*button) != expected);
    }

    void aSizeThatIsNoneIsThatOfTheApplication()
    {
        const auto button = makeButton();
        const QImage expected = reference(*button, [](QPainter &p) {
            plain(kNormal)(p);
            p.setFont(QFont());
            p.setPen(Qt::black);
            p.drawText(kTextRect, kTextFlags, kText);
        });
        for (int px : {0, -1, INT_MIN}) {
            button->setFontSize(px);
            COMPARE_PICTURES(painted(*button), expected);
        }
        QCOMPARE(takeMessages(), QStringList());
    }

    // --- Touch ----------------------------------------------------------------------------------

    void aTapIsPressedThenClicked()
    {
        const auto button = makeButton();
        button->setButtonId(7);
        checkReportsOfTap(*button, "pressed(7)", "clicked(7)");
    }

    void aReleaseAnywhereIsAClick()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        for (const QPoint &pos : {QPoint(90, 70), QPoint(500, -300), QPoint(-2000000, 2000000)}) {
            touch(button.get()).press(10, 10).moveTo(pos.x(), pos.y()).release();
            QCOMPARE(log.take(), (QStringList{"pressed(-1)", "clicked(-1)"}));
            QCoreApplication::processEvents();
            QCOMPARE(log.take(), QStringList{"beep"});
        }
    }

    void aReleaseWithoutAPressIsAClick()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        touch(button.get()).release();
        QCOMPARE(log.take(), QStringList{"clicked(-1)"});
    }

    void aPressShowsAndAReleaseEndsThePressedLook()
    {
        checkAPressShowsUntilTheRelease(*makeButton());
    }

    void thePressedLookIsThatOfTheSignal() { checkReportsComeWithTheLook(*makeButton()); }

    void aLatchedButtonStaysDown()
    {
        checkLatches(*makeButton(), {"pressed(-1)", "beep", "clicked(-1)"});
    }

    void aDisabledButtonIsSilent()
    {
        const auto button = makeButton();
        button->setDisable(true);
        show(*button);
        SignalLog log(button.get());
        QCOMPARE(paints(*button, [&] { touch(button.get()).press(10, 10).hold(10).release(); }), 0);
        QCOMPARE(log.take(), QStringList());
        QVERIFY(!button->isDown());
    }

    void aButtonDisabledDuringATouchStaysDown()
    {
        const auto button = makeButton();
        show(*button);
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(10, 10);
        button->setDisable(true);
        virtualtime::advance(0);
        log.take();
        QCOMPARE(paints(*button, [&] { finger.release(); }), 0);
        QCOMPARE(log.take(), QStringList());
        QVERIFY(button->isDown());
    }

    void touchesEndHere_data()
    {
        QTest::addColumn<bool>("disabled");
        QTest::newRow("enabled") << false;
        QTest::newRow("disabled") << true;
    }

    void touchesEndHere()
    {
        QFETCH(bool, disabled);
        Parent parent;
        const auto button = makeButton(&parent);
        button->setDisable(disabled);
        Touch finger = touch(button.get());
        QVERIFY(finger.press(10, 10).wasAccepted());
        QVERIFY(finger.moveTo(12, 12).wasAccepted());
        QVERIFY(finger.release().wasAccepted());
        QCOMPARE(parent.events, QStringList());
        button->setParent(nullptr);
    }

    void theRequestForAClickSoundGoesUpToTheParent() { checkSoundGoesUp(makeButton); }

    void theIdentifierIsTheOneOfTheMoment()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        log.onLine([&](const QString &) { button->setButtonId(9); });
        touch(button.get()).tap(10, 10);
        QCOMPARE(log.take(), (QStringList{"pressed(-1)", "clicked(9)"}));
    }

    // --- Hard to break --------------------------------------------------------------------------

    void theButtonMayBeDeletedInAnyOfItsSignals_data() { addDeletionsAt({"pressed", "clicked"}); }

    void theButtonMayBeDeletedInAnyOfItsSignals()
    {
        checkMayBeDeleted(makeButton(new QWidget).release());
    }

    void hostilePicturesAreShown_data() { addHostilePictures(); }

    void hostilePicturesAreShown()
    {
        QFETCH(QPixmap, image);
        const auto half = [](int spare) { return (spare - (spare < 0 ? 1 : 0)) / 2; };
        const int x = half(50 - image.width());
        const QPixmap focus = picture(kFocus);
        SpVerStrButton button;
        button.setDisplayString({});
        button.setNormalPixmap(image);
        button.setPressPixmap(image);
        button.setFocusPixmap(focus);
        button.setDisablePixmap(image);
        button.setMinimumSize(0, 0);
        button.resize(50, 50);
        for (int gap : {5, -5}) {
            button.setWidgetGain(gap);
            const QRect rect(
                QPoint(x, half(50 - image.height() - (gap >= 0 ? gap + button.stringHeight() : 0))),
                image.size());
            for (int bits = 0; bits < 8; ++bits) {
                button.setIsDown(bits & 1);
                button.setFocus(bits & 2);
                button.setDisable(bits & 4);
                COMPARE_PICTURES(painted(button), reference(button, [&](QPainter &p) {
                                     if (button.disable())
                                         p.drawPixmap(x, 0, image);
                                     else
                                         p.drawPixmap(rect, bits == 2 ? focus : image);
                                 }));
            }
        }
    }

    void hostileStringsAreShown_data() { addHostileStrings(); }

    void hostileStringsAreShown()
    {
        QFETCH(QString, text);
        const auto button = makeButton();
        button->setDisplayString(text);
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             plain(kNormal)(p);
                             drawText(p, Qt::black, kTextRect, text);
                         }));
    }

    // Places count as far as a widget can reach.
    void hostileNumbersPutIconAndStringOutOfSight()
    {
        constexpr int kFarthest = QWIDGETSIZE_MAX;
        const auto bounded = [](qint64 number) {
            return int(qBound(qint64(-kFarthest), number, qint64(kFarthest)));
        };
        for (int gap : {INT_MIN, -1, 0, 1, INT_MAX}) {
            for (int height : {INT_MIN, -1, 0, 1, INT_MAX}) {
                const auto button = makeButton();
                button->setWidgetGain(gap);
                button->setStringHeight(height);
                const int block = gap < 0 ? 30 : bounded(qint64(30) + gap + height);
                const int iconTop = (100 - block - (block > 100 ? 1 : 0)) / 2;
                const int top = bounded((gap < 0 ? 0 : iconTop) + qint64(30) + gap);
                const QRect text(0, top, 101, gap < 0 ? bounded(height) : 100 - top);
                COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                                     p.drawPixmap(30, iconTop, picture(kNormal));
                                     drawText(p, Qt::black, text);
                                 }));
            }
        }
    }

    // What adds up to nothing stands where it belongs, however large its parts are.
    void numbersThatCancelOutAreExact()
    {
        const auto button = makeButton();
        button->setStringHeight(INT_MIN + 1);
        button->setWidgetGain(INT_MAX);
        button->setDisplayString({});
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                             p.drawPixmap(30, 35, picture(kNormal));
                         }));
    }

    void fontsOfAnySizeAreShown()
    {
        const auto button = makeButton();
        for (int px : {1, 60, 1000, 100000, INT_MAX}) {
            button->setFontSize(px);
            COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                                 plain(kNormal)(p);
                                 drawText(p, Qt::black, kTextRect, kText, px);
                             }));
        }
    }

    void aButtonThatWasEmptyIsWholeAgain()
    {
        const auto button = makeButton();
        button->setMinimumSize(0, 0);
        for (const QSize &size : {QSize(0, 0), QSize(0, 50), QSize(50, 0)}) {
            button->resize(size);
            show(*button);
            QCOMPARE(paints(*button, [&] { button->repaint(); }), 0);
            button->resize(101, 100);
            COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                                 plain(kNormal)(p);
                                 drawText(p, Qt::black, kTextRect);
                             }));
        }
    }
};

WIDGET_TEST_MAIN(tst_SpVerStrButton)
#include "tst_spverstrbutton.moc"
