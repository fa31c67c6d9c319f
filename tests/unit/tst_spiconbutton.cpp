// SPDX-License-Identifier: Apache-2.0
#include <SpIconButton>

#include "baseorder.h"
#include "detail/imagelook.h"
#include "hostile.h"
#include "newwidget.h"
#include "parent.h"
#include "pictures.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTemporaryDir>
#include <QTimer>

#include <climits>
#include <memory>

namespace
{

const QString kId = QStringLiteral("SpIconButton_ID");

const QColor kNormal = Qt::green;
const QColor kPress = Qt::yellow;
const QColor kFocus = Qt::cyan;
const QColor kDisable = Qt::magenta;

// A button of 100 x 80 with a picture for each look.
std::unique_ptr<SpIconButton> makeButton(QWidget *parent = nullptr)
{
    auto button = std::make_unique<SpIconButton>(parent);
    button->setNormalImage(picture(kNormal));
    button->setPressImage(picture(kPress));
    button->setFocusPixmap(picture(kFocus));
    button->setDisableImage(picture(kDisable));
    button->resize(100, 80);
    return button;
}

const QRect kImageRect(30, 25, 40, 30); // of makeButton()

using Action = std::function<void(SpIconButton &)>;
using Paint = std::function<void(QPainter &)>;

Paint plain(const QColor &color)
{
    return [color](QPainter &p) { p.drawPixmap(kImageRect, picture(color)); };
}

// The documented composition of a veiled picture, step by step.
Paint veiled(const QPixmap &pixmap, const QRect &rect, int alpha)
{
    return [=](QPainter &p) {
        const QRect veilRect(QPoint(0, 0), rect.size());
        QImage image = pixmap.toImage();
        QPainter inner(&image);
        inner.setCompositionMode(QPainter::CompositionMode_Source);
        inner.fillRect(veilRect, Qt::transparent);
        inner.setCompositionMode(QPainter::CompositionMode_SourceOver);
        inner.drawPixmap(veilRect, pixmap);
        inner.setCompositionMode(QPainter::CompositionMode_SourceAtop);
        inner.fillRect(veilRect, QColor(0, 0, 0, alpha));
        inner.end();
        p.drawImage(rect, image);
    };
}

Paint veiled(const QColor &color, int alpha) { return veiled(picture(color), kImageRect, alpha); }

Paint nothing()
{
    return [](QPainter &) {};
}

// Handlers are called with what a subclass may hand them.
class Handlers : public SpIconButton
{
public:
    using SpIconButton::keyPressEvent;
    using SpIconButton::mouseReleaseEvent;
};

} // namespace

Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Paint)

class tst_SpIconButton : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction ---------------------------------------------------------------------------

    void defaults()
    {
        SpIconButton button;
        QCOMPARE(button.showMode(), SpIconButton::HighlightMode);
        QCOMPARE(button.disableMode(), SpIconButton::Show_NormalImageAlpha);
        QVERIFY(button.normalImage().isNull());
        QVERIFY(button.pressImage().isNull());
        QVERIFY(button.disableImage().isNull());
        QVERIFY(button.focusPixmap().isNull());
        QCOMPARE(button.imageAlpha(), 154);
        QCOMPARE(button.disableAlpha(), 154);
        QCOMPARE(button.disableState(), false);
        QCOMPARE(button.isFocus(), false);
        QCOMPARE(button.isDown(), false);
        QCOMPARE(button.isLock(), false);
        QCOMPARE(button.supportLongPress(), false);
        QCOMPARE(button.timerInterval(), -1);
        QCOMPARE(button.getTimerInt2(), -1);
        QCOMPARE(button.buttonID(), kId);
        QCOMPARE(button.displayText(), QString());
        QCOMPARE(button.normalTextColor(), QColor(255, 255, 255, 255));
        QCOMPARE(button.pressTextColor(), QColor(255, 0, 0, 255));
        QCOMPARE(button.disableTextColor(), QColor(255, 255, 255, 154));
        QCOMPARE(button.focusTextColor(), QColor(Qt::white));
        QCOMPARE(button.textTopMargin(), 0);
        QCOMPARE(button.textHeight(), 0);
        QCOMPARE(button.textLeftMargin(), 0);
        QCOMPARE(button.textWidth(), 0);
        QCOMPARE(button.textAlign(), Qt::Alignment(0x84));
        QCOMPARE(button.isBeep(), true);
        QCOMPARE(button.pressImgPath(), QString());
        QVERIFY(button.findChildren<QObject *>().isEmpty());
    }

    void aNewButtonIsAPlainWidgetOtherwise() { checkIsAPlainWidget<SpIconButton>(); }

    void aNewButtonPaintsNothing()
    {
        SpIconButton button;
        button.resize(60, 50);
        COMPARE_PICTURES(painted(button), reference(button, nothing()));
    }

    void theImageRectangleOfANewButtonIs32Square()
    {
        SpIconButton button;
        button.setPressImage(picture(kPress, {64, 64}));
        button.setIsDown(true);
        button.resize(61, 51);
        COMPARE_PICTURES(painted(button), reference(button, [](QPainter &p) {
                             p.drawPixmap(QRect(14, 9, 32, 32), picture(kPress, {64, 64}));
                         }));
    }

    void instancesComeAndGo() { checkInstancesComeAndGo<SpIconButton>(); }

    // --- Setters --------------------------------------------------------------------------------

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("normalImage", 1, [](auto &b) { b.setNormalImage(picture(Qt::red)); });
        row("normalImage null", 0, [](auto &b) { b.setNormalImage(QPixmap()); });
        row("pressImage", 0, [](auto &b) { b.setPressImage(picture(Qt::red)); });
        row("disableImage", 1, [](auto &b) { b.setDisableImage(picture(Qt::red)); });
        row("disableImage null", 1, [](auto &b) { b.setDisableImage(QPixmap()); });
        row("disableMode", 1, [](auto &b) { b.setDisableMode(SpIconButton::Show_NormalImage); });
        row("focusPixmap", 0, [](auto &b) { b.setFocusPixmap(picture(Qt::red)); });
        row("imageAlpha", 0, [](auto &b) { b.setImageAlpha(20); });
        row("disableAlpha", 0, [](auto &b) { b.setDisableAlpha(20); });
        row("showMode", 0, [](auto &b) { b.setShowMode(SpIconButton::AlphaMode); });
        row("disableState", 1, [](auto &b) { b.setDisableState(true); });
        row("disableState unchanged", 1, [](auto &b) { b.setDisableState(false); });
        row("isFocus", 1, [](auto &b) { b.setFocus(true); });
        row("displayText", 1, [](auto &b) { b.setDisplayText(QStringLiteral("x")); });
        row("normalTextColor", 1, [](auto &b) { b.setNormalTextColor(Qt::red); });
        row("textAlign", 1, [](auto &b) { b.setTextAlign(Qt::AlignLeft); });
        row("pressTextColor", 0, [](auto &b) { b.setPressTextColor(Qt::blue); });
        row("disableTextColor", 0, [](auto &b) { b.setDisableTextColor(Qt::blue); });
        row("focusTextColor", 0, [](auto &b) { b.setFocusTextColor(Qt::blue); });
        row("textTopMargin", 0, [](auto &b) { b.setTextTopMargin(3); });
        row("textHeight", 0, [](auto &b) { b.setTextHeight(3); });
        row("textLeftMargin", 0, [](auto &b) { b.setTextLeftMargin(3); });
        row("textWidth", 0, [](auto &b) { b.setTextWidth(3); });
        row("buttonID", 0, [](auto &b) { b.setButtonID(QStringLiteral("x")); });
        row("isBeep", 0, [](auto &b) { b.setIsBeep(false); });
        row("supportLongPress", 0, [](auto &b) { b.setSupportLongPress(true); });
        row("timerInterval", 0, [](auto &b) { b.setTimerInterval(5); });
        row("timerInterval2", 0, [](auto &b) { b.setTimerInt2(5); });
        row("pressImgPath", 0, [](auto &b) { b.setPressImgPath(QStringLiteral("/absent")); });
        row("isDown", 1, [](auto &b) { b.setIsDown(true); });
        row("isDown unchanged", 1, [](auto &b) { b.setIsDown(false); });
        row("isLock", 0, [](auto &b) { b.setIsLock(true); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot() { checkRepaints(*makeButton()); }

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row("value");
        row("imageAlpha", -7);
        row("disableAlpha", 300);
        row("disableState", true);
        row("isFocus", true);
        row("supportLongPress", true);
        row("timerInterval2", 77);
        row("buttonID", QStringLiteral("left"));
        row("displayText", QStringLiteral("text"));
        row("normalTextColor", QColor(1, 2, 3, 4));
        row("pressTextColor", QColor(2, 2, 3, 4));
        row("disableTextColor", QColor(3, 2, 3, 4));
        row("focusTextColor", QColor(4, 2, 3, 4));
        row("textTopMargin", -5);
        row("textHeight", 6);
        row("textLeftMargin", 7);
        row("textWidth", 8);
        row("textAlign", int(Qt::AlignRight | Qt::AlignTop));
        row("isBeep", false);
        row("pressImgPath", QStringLiteral("/absent.png"));
        row("showMode", 0);
        row("disableMode", 1);
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(SpIconButton()); }

    void aNormalImageSetsTheMinimumSize()
    {
        SpIconButton button;
        button.setNormalImage(picture(kNormal, {70, 44}));
        QCOMPARE(button.minimumSize(), QSize(70, 44));
        button.setNormalImage(picture(kNormal, {20, 10}));
        QCOMPARE(button.minimumSize(), QSize(20, 10));
    }

    void aNullNormalImageKeepsTheImageRectangle()
    {
        const auto button = makeButton();
        button->setNormalImage(QPixmap());
        QVERIFY(button->normalImage().isNull());
        QCOMPARE(button->minimumSize(), QSize(40, 30));
        COMPARE_PICTURES(painted(*button), reference(*button, nothing()));
        button->setPressImage(picture(kPress, {64, 64}));
        button->setIsDown(true);
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                             p.drawPixmap(kImageRect, picture(kPress, {64, 64}));
                         }));
    }

    void setPressImageIsIgnoredInAlphaMode()
    {
        SpIconButton button;
        button.setPressImage(picture(kPress));
        const qint64 key = button.pressImage().cacheKey();
        button.setShowMode(SpIconButton::AlphaMode);
        button.setPressImage(picture(Qt::red));
        QCOMPARE(button.pressImage().cacheKey(), key);
        button.setPressImage(QPixmap());
        QCOMPARE(button.pressImage().cacheKey(), key);
    }

    void timerIntervalNeedsSupportLongPress()
    {
        SpIconButton button;
        button.setTimerInterval(400);
        QCOMPARE(button.timerInterval(), -1);
        button.setSupportLongPress(true);
        QCOMPARE(button.timerInterval(), 1000);
        button.setTimerInterval(400);
        QCOMPARE(button.timerInterval(), 400);
        button.setSupportLongPress(false);
        QCOMPARE(button.timerInterval(), -1);
        button.setSupportLongPress(true);
        QCOMPARE(button.timerInterval(), 400);
    }

    void alphaOpacity_data()
    {
        QTest::addColumn<int>("alpha");
        QTest::addColumn<float>("opacity");
        QTest::newRow("none") << 0 << 1.0F;
        QTest::newRow("usual") << 154 << 101.0F / 255.0F;
        QTest::newRow("full") << 255 << 0.0F;
        QTest::newRow("below") << -1 << 1.0F;
        QTest::newRow("above") << 256 << 1.0F;
        QTest::newRow("smallest") << INT_MIN << 1.0F;
        QTest::newRow("largest") << INT_MAX << 1.0F;
    }

    void alphaOpacity()
    {
        QFETCH(int, alpha);
        QTEST(SpIconButton().getAlphaOpacity(alpha), "opacity");
    }

    void setFontSizeChangesOnlyThePixelSize() { checkSetFontSize(SpIconButton()); }

    // --- Pictures -------------------------------------------------------------------------------

    void looks_data()
    {
        const TableRows<Action, Paint> row("state", "expected");
        const auto alphaMode = [](SpIconButton &b) { b.setShowMode(SpIconButton::AlphaMode); };
        const auto noNormal = [](SpIconButton &b) { b.setNormalImage(QPixmap()); };

        row(
            "normal", [](auto &) {}, plain(kNormal));
        row(
            "pressed", [](auto &b) { b.setIsDown(true); }, plain(kPress));
        row(
            "focused", [](auto &b) { b.setFocus(true); }, plain(kFocus));
        row(
            "pressed goes before focused",
            [](auto &b) {
                b.setIsDown(true);
                b.setFocus(true);
            },
            plain(kPress));
        row(
            "pressed without its picture",
            [](auto &b) {
                b.setIsDown(true);
                b.setPressImage(QPixmap());
            },
            plain(kNormal));
        row(
            "pressed without its picture is not focused",
            [](auto &b) {
                b.setIsDown(true);
                b.setFocus(true);
                b.setPressImage(QPixmap());
            },
            plain(kNormal));
        row(
            "focused without its picture",
            [](auto &b) {
                b.setFocus(true);
                b.setFocusPixmap(QPixmap());
            },
            plain(kNormal));
        row(
            "without any picture", [=](auto &b) { noNormal(b); }, nothing());
        row(
            "pressed without normal picture",
            [=](auto &b) {
                noNormal(b);
                b.setIsDown(true);
            },
            plain(kPress));

        row(
            "alpha normal", [=](auto &b) { alphaMode(b); }, plain(kNormal));
        row(
            "alpha pressed",
            [=](auto &b) {
                alphaMode(b);
                b.setIsDown(true);
            },
            veiled(kNormal, 154));
        row(
            "alpha focused",
            [=](auto &b) {
                alphaMode(b);
                b.setFocus(true);
            },
            veiled(kNormal, 154));
        row(
            "alpha both",
            [=](auto &b) {
                alphaMode(b);
                b.setFocus(true);
                b.setIsDown(true);
            },
            veiled(kNormal, 154));
        row(
            "alpha of its own",
            [=](auto &b) {
                alphaMode(b);
                b.setIsDown(true);
                b.setImageAlpha(40);
                b.setDisableAlpha(90);
            },
            veiled(kNormal, 40));
        row(
            "alpha without normal picture",
            [=](auto &b) {
                alphaMode(b);
                noNormal(b);
                b.setIsDown(true);
            },
            nothing());

        row(
            "disabled, veiled", [](auto &b) { b.setDisableState(true); }, veiled(kNormal, 154));
        row(
            "disabled, alpha of its own",
            [](auto &b) {
                b.setDisableState(true);
                b.setDisableAlpha(90);
                b.setImageAlpha(40);
            },
            veiled(kNormal, 90));
        row(
            "disabled, veiled without normal picture",
            [=](auto &b) {
                noNormal(b);
                b.setDisableState(true);
            },
            nothing());
        row(
            "disabled, normal picture",
            [](auto &b) {
                b.setDisableMode(SpIconButton::Show_NormalImage);
                b.setDisableState(true);
            },
            plain(kNormal));
        row(
            "disabled, normal picture missing",
            [=](auto &b) {
                noNormal(b);
                b.setDisableMode(SpIconButton::Show_NormalImage);
                b.setDisableState(true);
            },
            nothing());
        row(
            "disabled, own picture",
            [](auto &b) {
                b.setDisableMode(SpIconButton::Show_DisableImage);
                b.setDisableState(true);
            },
            plain(kDisable));
        row(
            "disabled, own picture missing",
            [](auto &b) {
                b.setDisableImage(QPixmap());
                b.setDisableMode(SpIconButton::Show_DisableImage);
                b.setDisableState(true);
            },
            nothing());
        row(
            "disabled goes before pressed and focused",
            [](auto &b) {
                b.setDisableMode(SpIconButton::Show_NormalImage);
                b.setDisableState(true);
                b.setIsDown(true);
                b.setFocus(true);
            },
            plain(kNormal));
        row(
            "disabled as a widget only", [](auto &b) { b.setEnabled(false); },
            veiled(kNormal, 154));

        row(
            "show mode out of range", [](auto &b) { b.setShowMode(SpIconButton::ShowMode(57)); },
            nothing());
        row(
            "disable mode out of range",
            [](auto &b) {
                b.setDisableMode(SpIconButton::DisableMode(-3));
                b.setDisableState(true);
            },
            nothing());
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
        QTest::addColumn<QString>("property");
        QTest::addColumn<bool>("down");
        QTest::addColumn<bool>("disabled");
        QTest::newRow("press") << "pressImage" << true << false;
        QTest::newRow("focus") << "focusPixmap" << false << false;
        QTest::newRow("disable") << "disableImage" << false << true;
    }

    void picturesAreStretchedToTheSizeOfTheNormalOne()
    {
        QFETCH(QString, property);
        QFETCH(bool, down);
        QFETCH(bool, disabled);
        const QPixmap large = picture(Qt::red, {131, 77});
        const auto button = makeButton();
        button->setProperty(property.toLatin1(), large);
        button->setDisableMode(SpIconButton::Show_DisableImage);
        button->setFocus(true);
        button->setIsDown(down);
        button->setDisableState(disabled);
        COMPARE_PICTURES(painted(*button),
                         reference(*button, [&](QPainter &p) { p.drawPixmap(kImageRect, large); }));
    }

    void theImageIsCentredTowardZero_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("topLeft");
        QTest::newRow("even") << QSize(100, 80) << QPoint(30, 25);
        QTest::newRow("odd") << QSize(101, 81) << QPoint(30, 25);
        QTest::newRow("exact") << QSize(40, 30) << QPoint(0, 0);
        QTest::newRow("smaller") << QSize(35, 25) << QPoint(-2, -2);
        QTest::newRow("smaller by one") << QSize(39, 29) << QPoint(0, 0);
    }

    void theImageIsCentredTowardZero()
    {
        QFETCH(QSize, size);
        QFETCH(QPoint, topLeft);
        const auto button = makeButton();
        button->setMinimumSize(0, 0);
        button->resize(size);
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             p.drawPixmap(topLeft, picture(kNormal));
                         }));
    }

    // --- Caption --------------------------------------------------------------------------------

    void captionColours_data()
    {
        QTest::addColumn<bool>("down");
        QTest::addColumn<bool>("focused");
        QTest::addColumn<bool>("disabled");
        QTest::addColumn<QColor>("expected");
        const QColor normal(10, 20, 30);
        const QColor press(40, 50, 60);
        const QColor focus(70, 80, 90);
        const QColor disable(100, 110, 120, 130);
        QTest::newRow("normal") << false << false << false << normal;
        QTest::newRow("pressed") << true << false << false << press;
        QTest::newRow("focused") << false << true << false << focus;
        QTest::newRow("pressed and focused") << true << true << false << press;
        QTest::newRow("disabled") << false << false << true << disable;
        QTest::newRow("disabled, pressed and focused") << true << true << true << disable;
    }

    void captionColours()
    {
        QFETCH(bool, down);
        QFETCH(bool, focused);
        QFETCH(bool, disabled);
        QFETCH(QColor, expected);
        SpIconButton button;
        button.resize(100, 40);
        button.setNormalTextColor(QColor(10, 20, 30));
        button.setPressTextColor(QColor(40, 50, 60));
        button.setFocusTextColor(QColor(70, 80, 90));
        button.setDisableTextColor(QColor(100, 110, 120, 130));
        button.setDisplayText(QStringLiteral("Radio"));
        button.setIsDown(down);
        button.setFocus(focused);
        button.setDisableState(disabled);
        COMPARE_PICTURES(painted(button), reference(button, [&](QPainter &p) {
                             p.setPen(expected);
                             p.drawText(button.rect(), Qt::AlignCenter, QStringLiteral("Radio"));
                         }));
    }

    void aDisabledWidgetHasTheDisabledCaption()
    {
        SpIconButton button;
        button.resize(100, 40);
        button.setDisplayText(QStringLiteral("Radio"));
        button.setEnabled(false);
        COMPARE_PICTURES(painted(button), reference(button, [&](QPainter &p) {
                             p.setPen(QColor(255, 255, 255, 154));
                             p.drawText(button.rect(), Qt::AlignCenter, QStringLiteral("Radio"));
                         }));
    }

    void captionRectangle_data()
    {
        QTest::addColumn<QRect>("numbers"); // left margin, top margin, width, height
        QTest::addColumn<QRect>("expected");
        QTest::newRow("spans the button") << QRect(0, 0, 0, 0) << QRect(0, 0, 200, 90);
        QTest::newRow("margins alone are ignored") << QRect(30, 20, 0, 0) << QRect(0, 0, 200, 90);
        QTest::newRow("width") << QRect(30, 20, 110, 0) << QRect(30, 0, 110, 90);
        QTest::newRow("height") << QRect(30, 20, 0, 40) << QRect(0, 20, 200, 40);
        QTest::newRow("both") << QRect(30, 20, 110, 40) << QRect(30, 20, 110, 40);
        QTest::newRow("one pixel") << QRect(30, 20, 1, 1) << QRect(30, 20, 1, 1);
        QTest::newRow("negative sizes") << QRect(30, 20, -1, -1) << QRect(0, 0, 200, 90);
        QTest::newRow("negative margins") << QRect(-15, -8, 110, 40) << QRect(-15, -8, 110, 40);
    }

    void captionRectangle()
    {
        QFETCH(QRect, numbers);
        QFETCH(QRect, expected);
        const QString text = QStringLiteral("A caption of some length");
        for (const Qt::Alignment align :
             {Qt::Alignment(Qt::AlignCenter), Qt::AlignLeft | Qt::AlignTop,
              Qt::AlignRight | Qt::AlignBottom}) {
            SpIconButton button;
            button.resize(200, 90);
            button.setDisplayText(text);
            button.setTextLeftMargin(numbers.left());
            button.setTextTopMargin(numbers.top());
            button.setTextWidth(numbers.width());
            button.setTextHeight(numbers.height());
            button.setTextAlign(align);
            COMPARE_PICTURES(painted(button), reference(button, [&](QPainter &p) {
                                 p.setPen(Qt::white);
                                 p.drawText(expected, int(align), text);
                             }));
        }
    }

    void theCaptionStandsOverThePicture()
    {
        const auto button = makeButton();
        button->setDisplayText(QStringLiteral("Radio"));
        COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                             plain(kNormal)(p);
                             p.setPen(Qt::white);
                             p.drawText(button->rect(), Qt::AlignCenter, QStringLiteral("Radio"));
                         }));
    }

    void theCaptionFollowsFontTextAndSize()
    {
        const auto button = makeButton();
        const auto isRight = [&] {
            return painted(*button) == reference(*button, [&](QPainter &p) {
                       plain(kNormal)(p);
                       p.setPen(Qt::white);
                       p.drawText(button->rect(), Qt::AlignCenter, button->displayText());
                   });
        };
        button->setDisplayText(QStringLiteral("Radio"));
        QVERIFY(isRight());
        button->setFontSize(23);
        QVERIFY(isRight());
        button->setDisplayText(QStringLiteral("Phone\nbook"));
        QVERIFY(isRight());
        button->setDisplayText(QString());
        QVERIFY(isRight());
    }

    // --- Touch ----------------------------------------------------------------------------------

    void aTapIsPressedClickedReleased()
    {
        const auto button = makeButton();
        button->setButtonID(QStringLiteral("left"));
        SignalLog log(button.get());
        touch(button.get()).tap(10, 10);
        QCOMPARE(
            log.take(),
            (QStringList{"btnPressed(\"left\")", "btnClicked(\"left\")", "btnReleased(\"left\")"}));
    }

    void theSlopOfAClick_data()
    {
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<bool>("clicks");
        for (int far : {49, 50, 51}) {
            for (const QPoint &way : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1),
                                      QPoint(1, 1), QPoint(-1, 1)}) {
                const QPoint offset = way * far;
                QTest::addRow("%d,%d", offset.x(), offset.y()) << offset << (far < 50);
            }
        }
        QTest::newRow("one axis suffices") << QPoint(50, 0) << false;
        QTest::newRow("farthest") << QPoint(-2000000000, 2000000000) << false;
    }

    void theSlopOfAClick()
    {
        QFETCH(QPoint, offset);
        QFETCH(bool, clicks);
        SpIconButton button;
        SignalLog log(&button);
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(0, 0), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(offset), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&button, &press);
        QCoreApplication::sendEvent(&button, &release);
        QStringList expected{"btnPressed(\"SpIconButton_ID\")", "btnReleased(\"SpIconButton_ID\")"};
        if (clicks)
            expected.insert(1, "btnClicked(\"SpIconButton_ID\")");
        QCOMPARE(log.take(), expected);
    }

    void movingNeverCancelsAPress()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(10, 10).moveTo(400, -300);
        QVERIFY(button->isDown());
        finger.moveTo(12, 9).release();
        QCOMPARE(log.take().size(), 3);
    }

    void theSlopCountsFromThePressOfThisTouch()
    {
        const auto button = makeButton();
        touch(button.get()).tap(500, 500);
        SignalLog log(button.get());
        touch(button.get()).tap(10, 10);
        QCOMPARE(log.take().size(), 3);
    }

    void aPressShowsAndAReleaseEndsThePressedLook()
    {
        const auto button = makeButton();
        show(*button);
        Touch finger = touch(button.get());
        QCOMPARE(paints(*button, [&] { finger.press(10, 10); }), 1);
        QVERIFY(button->isDown());
        QCOMPARE(paints(*button, [&] { finger.moveTo(11, 11); }), 0);
        QCOMPARE(paints(*button, [&] { finger.release(); }), 1);
        QVERIFY(!button->isDown());
    }

    void thePressedLookIsThereWhenPressedIsReported()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        QVector<bool> down;
        log.onLine([&](const QString &) { down += button->isDown(); });
        touch(button.get()).tap(10, 10);
        QCOMPARE(down, (QVector<bool>{true, false, false}));
    }

    void aLatchedButtonStaysDown()
    {
        const auto button = makeButton();
        button->setIsLock(true);
        show(*button);
        SignalLog log(button.get());
        QCOMPARE(paints(*button, [&] { touch(button.get()).tap(10, 10); }), 1);
        QVERIFY(button->isDown());
        QCOMPARE(log.take(),
                 (QStringList{"btnPressed(\"SpIconButton_ID\")", "btnClicked(\"SpIconButton_ID\")",
                              "btnReleased(\"SpIconButton_ID\")", "beep"}));
        COMPARE_PICTURES(painted(*button), reference(*button, plain(kPress)));
        button->setIsDown(false);
        COMPARE_PICTURES(painted(*button), reference(*button, plain(kNormal)));
    }

    void theIdentifierIsTheOneOfTheMoment()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        log.onLine([&](const QString &line) {
            if (line.startsWith(QLatin1String("btnPressed")))
                button->setButtonID(QStringLiteral("renamed"));
        });
        touch(button.get()).tap(10, 10);
        QCOMPARE(log.take(),
                 (QStringList{"btnPressed(\"SpIconButton_ID\")", "btnClicked(\"renamed\")",
                              "btnReleased(\"renamed\")"}));
    }

    void mouseEventsGoOnToTheParent_data()
    {
        QTest::addColumn<bool>("disabled");
        QTest::newRow("enabled") << false;
        QTest::newRow("disabled in software") << true;
    }

    void mouseEventsGoOnToTheParent()
    {
        QFETCH(bool, disabled);
        Parent parent;
        const auto button = makeButton(&parent);
        button->setDisableState(disabled);
        button->setIsBeep(false);
        touch(button.get()).press(10, 10).moveTo(12, 12).release();
        QCOMPARE(parent.events, (QStringList{"press", "move", "release"}));
        button->setParent(nullptr);
    }

    void theBaseHandlerComesAfterTheSignals()
    {
        const auto button = makeButton();
        button->setSupportLongPress(true);
        BaseOrder order(button.get());
        touch(button.get()).tap(10, 10).press(10, 10).hold(1000).release();
        QCOMPARE(order.before,
                 (QStringList{"btnPressed", "btnClicked", "btnReleased", "btnPressed",
                              "btnLongRelease", "btnReleased"}));
        QCOMPARE(order.after, QStringList());
    }

    // --- Software disable -----------------------------------------------------------------------

    void aDisabledButtonIsSilent()
    {
        const auto button = makeButton();
        button->setSupportLongPress(true);
        button->setDisableState(true);
        show(*button);
        SignalLog log(button.get());
        QCOMPARE(paints(*button, [&] { touch(button.get()).press(10, 10).hold(3000).release(); }),
                 0);
        QCOMPARE(log.take(), QStringList());
        QVERIFY(!button->isDown());
    }

    void aButtonDisabledDuringATouchIsSetBackSilently()
    {
        const auto button = makeButton();
        button->setSupportLongPress(true);
        button->setIsLock(true);
        show(*button);
        Touch finger = touch(button.get());
        finger.press(10, 10).hold(1000);
        button->setDisableState(true);
        virtualtime::advance(0);
        SignalLog log(button.get());
        QCOMPARE(paints(*button, [&] { finger.release(); }), 0);
        QVERIFY(!button->isDown());
        QVERIFY(!button->findChild<QTimer *>()->isActive());

        button->setDisableState(false);
        finger.tap(10, 10);
        QCOMPARE(log.take().filter(QStringLiteral("btn")),
                 (QStringList{"btnPressed(\"SpIconButton_ID\")", "btnClicked(\"SpIconButton_ID\")",
                              "btnReleased(\"SpIconButton_ID\")"}));
    }

    void aButtonEnabledDuringATouchClicksFromItsPressPoint()
    {
        const auto button = makeButton();
        button->setDisableState(true);
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(300, 300);
        button->setDisableState(false);
        finger.release();
        QCOMPARE(
            log.take(),
            (QStringList{"btnClicked(\"SpIconButton_ID\")", "btnReleased(\"SpIconButton_ID\")"}));
    }

    // --- Long press -----------------------------------------------------------------------------

    void withoutSupportThereIsNoLongPress()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        touch(button.get()).press(10, 10).hold(5000).release();
        QCOMPARE(log.take().filter(QStringLiteral("Long")), QStringList());
        QVERIFY(!button->findChild<QTimer *>());
    }

    void longPresses_data()
    {
        QTest::addColumn<int>("interval");
        QTest::addColumn<int>("interval2");
        QTest::addColumn<QVector<qint64>>("expected"); // within 2 s
        using Times = QVector<qint64>;
        QTest::newRow("once by default") << 1000 << -1 << Times{1000};
        QTest::newRow("once, very negative") << 500 << INT_MIN << Times{500};
        QTest::newRow("repeated faster")
            << 800 << 200 << Times{800, 1000, 1200, 1400, 1600, 1800, 2000};
        QTest::newRow("repeated slower") << 500 << 1500 << Times{500, 2000};
        QTest::newRow("repeat of zero keeps the interval")
            << 500 << 0 << Times{500, 1000, 1500, 2000};
        QTest::newRow("equal intervals") << 500 << 500 << Times{500, 1000, 1500, 2000};
        QTest::newRow("at once") << 0 << -1 << Times{0};
        QTest::newRow("negative never comes") << -1 << 200 << Times{};
        QTest::newRow("never") << INT_MIN << -1 << Times{};
        QTest::newRow("longest") << INT_MAX << 1 << Times{};
    }

    void longPresses()
    {
        QFETCH(int, interval);
        QFETCH(int, interval2);
        QFETCH(QVector<qint64>, expected);
        const auto button = makeButton();
        button->setSupportLongPress(true);
        button->setTimerInterval(interval);
        button->setTimerInt2(interval2);
        const qint64 start = virtualtime::now();
        QVector<qint64> times;
        connect(button.get(), &SpIconButton::btnLongPress, this, [&](const QString &id) {
            QCOMPARE(id, kId);
            times += virtualtime::now() - start;
            if (times.size() > 50) // a repeat of no time at all would never let time pass
                button->setStartTimer(false);
        });
        Touch finger = touch(button.get());
        finger.press(10, 10).hold(2000).release().hold(5000);
        QCOMPARE(times, expected);
    }

    void everyTouchStartsWithTheFirstInterval()
    {
        const auto button = makeButton();
        button->setSupportLongPress(true);
        button->setTimerInterval(800);
        button->setTimerInt2(200);
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        for (int i = 0; i < 2; ++i) {
            virtualtime::startMinute();
            finger.press(10, 10).hold(799);
            QCOMPARE(log.take().filter(QStringLiteral("Long")).size(), 0);
            finger.hold(1);
            QCOMPARE(log.take().filter(QStringLiteral("Long")).size(), 1);
            finger.hold(200);
            QCOMPARE(log.take().filter(QStringLiteral("Long")).size(), 1);
            finger.release();
            log.take();
        }
    }

    void aLongPressEndsInALongReleaseNotAClick()
    {
        const auto button = makeButton();
        button->setSupportLongPress(true);
        button->setIsBeep(false);
        SignalLog log(button.get());
        touch(button.get()).press(10, 10).hold(1000).release();
        QCOMPARE(log.take(),
                 (QStringList{
                     "btnPressed(\"SpIconButton_ID\")", "btnLongPress(\"SpIconButton_ID\")",
                     "btnLongRelease(\"SpIconButton_ID\")", "btnReleased(\"SpIconButton_ID\")"}));
        touch(button.get()).tap(10, 10);
        QCOMPARE(log.take(),
                 (QStringList{"btnPressed(\"SpIconButton_ID\")", "btnClicked(\"SpIconButton_ID\")",
                              "btnReleased(\"SpIconButton_ID\")"}));
    }

    void aLongReleaseHasTheSameSlop_data()
    {
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<bool>("reported");
        QTest::newRow("49 across") << QPoint(49, 0) << true;
        QTest::newRow("50 across") << QPoint(50, 0) << false;
        QTest::newRow("49 down") << QPoint(0, 49) << true;
        QTest::newRow("50 down") << QPoint(0, 50) << false;
    }

    void aLongReleaseHasTheSameSlop()
    {
        QFETCH(QPoint, offset);
        QFETCH(bool, reported);
        const auto button = makeButton();
        button->setSupportLongPress(true);
        SignalLog log(button.get());
        touch(button.get())
            .press(10, 10)
            .hold(1000)
            .moveTo(10 + offset.x(), 10 + offset.y())
            .release();
        const QStringList lines = log.take();
        QCOMPARE(lines.contains(QStringLiteral("btnLongRelease(\"SpIconButton_ID\")")), reported);
        QVERIFY(!lines.contains(QStringLiteral("btnClicked(\"SpIconButton_ID\")")));
        QCOMPARE(lines.last(), QStringLiteral("btnReleased(\"SpIconButton_ID\")"));
    }

    void theTimerIsMadeOnceAndStopsWithTheTouch()
    {
        const auto button = makeButton();
        button->setSupportLongPress(true);
        Touch finger = touch(button.get());
        finger.press(10, 10);
        auto *timer = button->findChild<QTimer *>();
        QVERIFY(timer);
        QVERIFY(timer->isActive());
        QVERIFY(!timer->isSingleShot());
        QCOMPARE(timer->interval(), 1000);
        finger.release();
        QVERIFY(!timer->isActive());
        finger.tap(10, 10);
        QCOMPARE(button->findChildren<QTimer *>(), QList<QTimer *>{timer});
    }

    void theTimerRunsUntilTheClickIsReported()
    {
        const auto button = makeButton();
        button->setSupportLongPress(true);
        SignalLog log(button.get());
        QVector<bool> active;
        log.onLine([&](const QString &) {
            const auto *timer = button->findChild<QTimer *>();
            active += timer && timer->isActive();
        });
        touch(button.get()).tap(10, 10);
        QCOMPARE(active, (QVector<bool>{false, true, false}));
    }

    void theTimerCanBeStartedAndStoppedByHand()
    {
        SpIconButton button;
        SignalLog log(&button);
        button.setStartTimer(true);
        button.setStartTimer(false);
        QVERIFY(!button.findChild<QTimer *>());
        button.setSupportLongPress(true);
        button.setStartTimer(false);
        QVERIFY(!button.findChild<QTimer *>());
        button.setStartTimer(true);
        virtualtime::advance(600);
        button.setStartTimer(true);
        virtualtime::advance(600);
        QCOMPARE(log.take(), QStringList());
        virtualtime::advance(400);
        QCOMPARE(log.take(), QStringList{"btnLongPress(\"SpIconButton_ID\")"});
        button.setStartTimer(true);
        QVERIFY(button.findChild<QTimer *>()->isActive());
        button.setSupportLongPress(false);
        button.setStartTimer(true);
        QVERIFY(!button.findChild<QTimer *>()->isActive());
    }

    // --- Requests -------------------------------------------------------------------------------

    void aPressAsksForAClickSound()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(10, 10);
        QCOMPARE(log.take(), QStringList{"btnPressed(\"SpIconButton_ID\")"});
        QCoreApplication::processEvents();
        QCOMPARE(log.take(), QStringList{"beep"});
        finger.release();
        QCoreApplication::processEvents();
        QCOMPARE(log.take().filter(QStringLiteral("beep")), QStringList());
    }

    void withoutIsBeepNoSoundIsAskedFor()
    {
        const auto button = makeButton();
        button->setIsBeep(false);
        SignalLog log(button.get());
        touch(button.get()).tap(10, 10).hold(10);
        QCOMPARE(log.take().filter(QStringLiteral("beep")), QStringList());
    }

    void theParentHearsNoKeys()
    {
        Parent parent;
        const auto button = makeButton(&parent);
        touch(button.get()).press(10, 10);
        QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        QCoreApplication::sendEvent(button.get(), &letter);
        QCoreApplication::processEvents();
        QVERIFY(letter.isAccepted());
        QCOMPARE(parent.events, QStringList{"press"});
        button->setParent(nullptr);
    }

    void aPathOfTwoCharactersIsLoadedLater()
    {
        const QTemporaryDir dir;
        const QString old = QDir::currentPath();
        QVERIFY(QDir::setCurrent(dir.path()));
        QVERIFY(picture(kPress).save(QStringLiteral("ab"), "PNG"));
        SpIconButton button;
        SignalLog log(&button);
        button.setPressImgPath(QStringLiteral("ab"));
        QCOMPARE(button.pressImgPath(), QStringLiteral("ab"));
        QVERIFY(button.pressImage().isNull());
        QCoreApplication::processEvents();
        QCOMPARE(button.pressImage().toImage(), picture(kPress).toImage());
        QCOMPARE(log.take(), QStringList{"pressicon"});
        QVERIFY(QDir::setCurrent(old));
    }

    void aShorterPathIsStoredButNeverLoaded()
    {
        SpIconButton button;
        button.setPressImage(picture(kPress));
        SignalLog log(&button);
        for (const QString &path : {QStringLiteral("a"), QString()}) {
            button.setPressImgPath(path);
            QCOMPARE(button.pressImgPath(), path);
            virtualtime::advance(100);
            QVERIFY(!button.pressImage().isNull());
            QCOMPARE(log.take(), QStringList());
        }
    }

    void aPathIsLoadedInAlphaModeTooWithoutRepaint()
    {
        const QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("press.png"));
        QVERIFY(picture(kPress).save(path));
        const auto button = makeButton();
        button->setShowMode(SpIconButton::AlphaMode);
        show(*button);
        QCOMPARE(paints(*button, [&] { button->setPressImgPath(path); }), 0);
        QCOMPARE(button->pressImage().toImage(), picture(kPress).toImage());
    }

    void anUnreadablePathLeavesNoPressedPicture()
    {
        const QTemporaryDir dir;
        for (const QString &path : {dir.path(), dir.filePath(QStringLiteral("absent.png"))}) {
            SpIconButton button;
            button.setPressImage(picture(kPress));
            button.setPressImgPath(path);
            QCoreApplication::processEvents();
            QVERIFY(button.pressImage().isNull());
            QCOMPARE(takeMessages(), QStringList());
        }
    }

    void theLastPathIsTheOneLoaded()
    {
        const QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("press.png"));
        QVERIFY(picture(kPress).save(path));
        SpIconButton button;
        button.setPressImgPath(QStringLiteral("/absent"));
        button.setPressImgPath(path);
        QCoreApplication::processEvents();
        QVERIFY(!button.pressImage().isNull());
    }

    void noEventIsNoHarm()
    {
        Handlers button;
        SignalLog log(&button);
        button.keyPressEvent(nullptr);
        button.mouseReleaseEvent(nullptr);
        QCOMPARE(log.take(), QStringList{"btnReleased(\"SpIconButton_ID\")"});
    }

    // --- Hard to break --------------------------------------------------------------------------

    void theButtonMayBeDeletedInAnyOfItsSignals_data()
    {
        QTest::addColumn<QString>("signal");
        QTest::addColumn<bool>("inParent");
        for (const char *signal :
             {"btnPressed", "btnLongPress", "btnLongRelease", "btnClicked", "btnReleased"}) {
            for (bool inParent : {false, true})
                QTest::addRow("%s%s", signal, inParent ? " with its parent" : "")
                    << QString::fromLatin1(signal) << inParent;
        }
    }

    void theButtonMayBeDeletedInAnyOfItsSignals()
    {
        QFETCH(QString, signal);
        QFETCH(bool, inParent);
        auto *parent = new QWidget;
        SpIconButton *button = makeButton(parent).release();
        button->setSupportLongPress(true);
        button->setTimerInt2(100);
        QPointer<SpIconButton> guard(button);
        bool isDone = false;
        SignalLog log(button);
        log.onLine([&](const QString &line) {
            if (isDone || !line.startsWith(signal))
                return;
            isDone = true;
            if (inParent)
                delete parent;
            else
                delete button;
        });
        Touch finger = touch(button);
        finger.tap(10, 10);
        finger.press(10, 10).hold(1300).release().hold(1000);
        QVERIFY(isDone);
        QVERIFY(!guard);
        if (!inParent)
            delete parent;
    }

    void hostilePicturesAreShown_data() { addHostilePictures(); }

    void hostilePicturesAreShown()
    {
        QFETCH(QPixmap, image);
        const QRect rect(QPoint((50 - image.width()) / 2, (50 - image.height()) / 2), image.size());
        const QPixmap focus = picture(kFocus);
        SpIconButton button;
        button.setNormalImage(image);
        button.setPressImage(image);
        button.setFocusPixmap(focus);
        button.setDisableImage(image);
        button.setMinimumSize(0, 0);
        button.resize(50, 50);
        for (int mode : {0, 1}) {
            for (int disable : {0, 1, 2}) {
                for (int bits = 0; bits < 8; ++bits) {
                    button.setShowMode(SpIconButton::ShowMode(mode));
                    button.setDisableMode(SpIconButton::DisableMode(disable));
                    button.setIsDown(bits & 1);
                    button.setFocus(bits & 2);
                    button.setDisableState(bits & 4);
                    const bool isVeiled =
                        button.disableState() ? disable == 2 : mode == 0 && (bits & 3) != 0;
                    const bool isFocusShown = mode == 1 && bits == 2;
                    COMPARE_PICTURES(painted(button), reference(button, [&](QPainter &p) {
                                         if (isVeiled)
                                             veiled(image, rect, 154)(p);
                                         else
                                             p.drawPixmap(rect, isFocusShown ? focus : image);
                                     }));
                }
            }
        }
    }

    // Numbers count as far as a widget can reach.
    void hostileCaptionsAreShown_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("long") << QString(100000, QLatin1Char('W'));
        QTest::newRow("many lines") << QString(1000, QLatin1Char('\n'));
        QTest::newRow("half a character") << QString(QChar(0xD800));
        QTest::newRow("zero character") << QString(QChar(0));
        QTest::newRow("controls") << QStringLiteral("\u202e\u2066\u200d");
    }

    void hostileCaptionsAreShown()
    {
        constexpr int kFarthest = QWIDGETSIZE_MAX;
        QFETCH(QString, text);
        SpIconButton button;
        button.resize(50, 50);
        button.setDisplayText(text);
        for (int extreme : {INT_MIN, -1, 0, 1, INT_MAX}) {
            const int width = extreme == INT_MIN ? INT_MAX : -extreme;
            button.setTextLeftMargin(extreme);
            button.setTextTopMargin(extreme);
            button.setTextWidth(width);
            button.setTextHeight(extreme);
            button.setTextAlign(Qt::Alignment(QFlag(extreme)));
            const auto bounded = [kFarthest](int number) {
                return qBound(-kFarthest, number, kFarthest);
            };
            const QRect rect(width > 0 ? bounded(extreme) : 0, extreme > 0 ? bounded(extreme) : 0,
                             width > 0 ? bounded(width) : 50, extreme > 0 ? bounded(extreme) : 50);
            COMPARE_PICTURES(painted(button), reference(button, [&](QPainter &p) {
                                 p.setPen(Qt::white);
                                 p.drawText(rect, extreme, text);
                             }));
        }
    }

    void fontsOfAnySizeAreShown()
    {
        SpIconButton button;
        button.resize(50, 50);
        button.setDisplayText(QStringLiteral("W"));
        for (int px : {1, 1000, 100000, INT_MAX}) {
            button.setFontSize(px);
            QFont sized;
            sized.setPixelSize(px); // which a QFont keeps in single precision on the device
            QCOMPARE(button.font().pixelSize(), sized.pixelSize());
            COMPARE_PICTURES(painted(button), reference(button, [&](QPainter &p) {
                                 p.setPen(Qt::white);
                                 p.drawText(button.rect(), Qt::AlignCenter, QStringLiteral("W"));
                             }));
        }
    }

    void aButtonThatWasEmptyIsWholeAgain()
    {
        const auto button = makeButton();
        button->setDisplayText(QStringLiteral("Radio"));
        button->setMinimumSize(0, 0);
        for (const QSize &size : {QSize(0, 0), QSize(0, 50), QSize(50, 0)}) {
            button->resize(size);
            show(*button);
            QCOMPARE(paints(*button, [&] { button->repaint(); }), 0);
            button->resize(100, 80);
            COMPARE_PICTURES(painted(*button), reference(*button, [&](QPainter &p) {
                                 plain(kNormal)(p);
                                 p.setPen(Qt::white);
                                 p.drawText(button->rect(), Qt::AlignCenter,
                                            QStringLiteral("Radio"));
                             }));
        }
    }
};

WIDGET_TEST_MAIN(tst_SpIconButton)
#include "tst_spiconbutton.moc"
