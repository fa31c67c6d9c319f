// SPDX-License-Identifier: Apache-2.0
#include <SpLockButton>

#include "baseorder.h"
#include "parent.h"
#include "pictures.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "widgettest.h"

#include <QBitmap>
#include <QPainter>

#include <climits>
#include <memory>

namespace
{

const QString kId = QStringLiteral("SpLockButton_ID");

const QColor kNormal = Qt::green;
const QColor kPress = Qt::yellow;
const QColor kDisable = Qt::magenta;

// The documented composition of a faded picture, step by step.
QPixmap faded(const QPixmap &source, int alpha, const QSize &area)
{
    QImage copy = source.toImage();
    QPainter painter(&copy);
    const QRect rect(QPoint(0, 0), area);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(rect, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawPixmap(rect, source);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(rect, QColor(0, 0, 0, alpha));
    painter.end();
    return QPixmap::fromImage(copy);
}

// A button of 101 x 81 with pictures of its own for each look.
std::unique_ptr<SpLockButton> makeButton(QWidget *parent = nullptr)
{
    auto button = std::make_unique<SpLockButton>(parent);
    button->setShowMode(SpLockButton::HighlightMode);
    button->setDisableMode(SpLockButton::Show_DisableImage);
    button->setNormalImage(picture(kNormal));
    button->setPressImage(picture(kPress));
    button->setDisableImage(picture(kDisable));
    button->resize(101, 81);
    return button;
}

const QRect kImageRect(30, 25, 40, 30); // of makeButton()

using Action = std::function<void(SpLockButton &)>;

QImage shown(const SpLockButton &button, const QPixmap &pixmap)
{
    return reference(button, [&](QPainter &p) { p.drawPixmap(kImageRect, pixmap); });
}

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_SpLockButton : public WidgetTest
{
    Q_OBJECT

private slots:
    void defaults()
    {
        SpLockButton button;
        QCOMPARE(button.showMode(), SpLockButton::AlphaMode);
        QCOMPARE(button.disableMode(), SpLockButton::Show_NormalImage);
        QVERIFY(button.normalImage().isNull());
        QVERIFY(button.pressImage().isNull());
        QVERIFY(button.disableImage().isNull());
        QCOMPARE(button.imageAlpha(), 154);
        QCOMPARE(button.disableAlpha(), 154);
        QCOMPARE(button.disableState(), false);
        QCOMPARE(button.isDown(), false);
        QCOMPARE(button.buttonID(), kId);
        QCOMPARE(button.displayText(), QString());
        QCOMPARE(button.normalTextColor(), QColor(255, 255, 255, 255));
        QCOMPARE(button.pressTextColor(), QColor(255, 0, 0, 255));
        QCOMPARE(button.disableTextColor(), QColor(100, 100, 100, 255));
        QVERIFY(button.findChildren<QObject *>().isEmpty());
        button.resize(60, 50);
        COMPARE_PICTURES(painted(button), reference(button, [](QPainter &) {}));
    }

    // --- Setters --------------------------------------------------------------------------------

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        row("normalImage", 1, [](auto &b) { b.setNormalImage(picture(Qt::red)); });
        row("normalImage null", 0, [](auto &b) { b.setNormalImage(QPixmap()); });
        row("pressImage", 0, [](auto &b) { b.setPressImage(picture(Qt::red)); });
        row("disableImage", 1, [](auto &b) { b.setDisableImage(picture(Qt::red)); });
        row("disableImage null", 1, [](auto &b) { b.setDisableImage(QPixmap()); });
        row("disableMode", 1, [](auto &b) { b.setDisableMode(SpLockButton::Show_NormalImage); });
        row("disableAlpha", 1, [](auto &b) { b.setDisableAlpha(20); });
        row("imageAlpha", 0, [](auto &b) { b.setImageAlpha(20); });
        row("imageAlpha in AlphaMode", 0, [](auto &b) {
            b.setShowMode(SpLockButton::AlphaMode);
            b.setImageAlpha(20);
        });
        row("showMode", 0, [](auto &b) { b.setShowMode(SpLockButton::AlphaMode); });
        row("disableState", 1, [](auto &b) { b.setDisableState(true); });
        row("disableState unchanged", 1, [](auto &b) { b.setDisableState(false); });
        row("isDown", 1, [](auto &b) { b.setIsDown(true); });
        row("isDown unchanged", 1, [](auto &b) { b.setIsDown(false); });
        row("displayText", 0, [](auto &b) { b.setDisplayText(QStringLiteral("x")); });
        row("normalTextColor", 0, [](auto &b) { b.setNormalTextColor(Qt::red); });
        row("pressTextColor", 0, [](auto &b) { b.setPressTextColor(Qt::blue); });
        row("disableTextColor", 0, [](auto &b) { b.setDisableTextColor(Qt::blue); });
        row("buttonID", 0, [](auto &b) { b.setButtonID(QStringLiteral("x")); });
        row("fontSize", 1, [](auto &b) { b.setFontSize(31); });
        row("fontSize 1", 1, [](auto &b) { b.setFontSize(1); });
        row("fontSize below 1", 0, [](auto &b) { b.setFontSize(0); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot() { checkRepaints(*makeButton()); }

    void everyPropertyKeepsWhatItIsGiven()
    {
        SpLockButton button;
        const QVector<QPair<const char *, QVariant>> values{{"showMode", 1},
                                                            {"disableMode", 2},
                                                            {"imageAlpha", 7},
                                                            {"disableAlpha", 8},
                                                            {"disableState", true},
                                                            {"isDown", true},
                                                            {"buttonID", QStringLiteral("lock")},
                                                            {"displayText", QStringLiteral("Lock")},
                                                            {"normalTextColor", QColor(1, 2, 3)},
                                                            {"pressTextColor", QColor(4, 5, 6)},
                                                            {"disableTextColor", QColor(7, 8, 9)}};
        for (const auto &value : values)
            QVERIFY(button.setProperty(value.first, value.second));
        for (const auto &value : values)
            QCOMPARE(plainValue(button, value.first), value.second);
    }

    void theNormalImageGivesTheMinimumSizeAndTheRectangle()
    {
        const auto button = makeButton();
        QCOMPARE(button->minimumSize(), QSize(40, 30));
        button->setNormalImage(picture(kNormal, {60, 20}));
        QCOMPARE(button->minimumSize(), QSize(60, 20));
        button->setIsDown(true); // the pressed picture is stretched
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                             p.drawPixmap(QRect(20, 30, 60, 20), picture(kPress));
                         }));
    }

    void aNullNormalImageKeepsTheRectangle()
    {
        SpLockButton fresh;
        fresh.setShowMode(SpLockButton::HighlightMode);
        fresh.setNormalImage(QPixmap());
        fresh.setPressImage(picture(kPress));
        fresh.setIsDown(true);
        fresh.resize(101, 81);
        COMPARE_PICTURES(painted(fresh), reference(fresh, [](QPainter &p) {
                             p.drawPixmap(QRect(34, 24, 32, 32), picture(kPress));
                         }));
        const auto button = makeButton();
        button->setNormalImage(QPixmap());
        QCOMPARE(button->minimumSize(), QSize(40, 30));
        button->setIsDown(true);
        COMPARE_PICTURES(painted(*button), shown(*button, picture(kPress)));
        button->setIsDown(false);
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &) {}));
    }

    void inAlphaModeThePressedImageIsMade()
    {
        const auto button = makeButton();
        button->setShowMode(SpLockButton::AlphaMode);
        QCOMPARE(button->pressImage().toImage(), picture(kPress).toImage()); // nothing is remade
        button->setNormalImage(picture(kNormal));
        const QPixmap made = faded(picture(kNormal), 154, {40, 30});
        QCOMPARE(button->pressImage().toImage(), made.toImage());
        button->setPressImage(picture(Qt::red)); // ignored
        QCOMPARE(button->pressImage().toImage(), made.toImage());
        button->setIsDown(true);
        COMPARE_PICTURES(painted(*button), shown(*button, made));
        button->setImageAlpha(60);
        COMPARE_PICTURES(painted(*button), shown(*button, faded(picture(kNormal), 60, {40, 30})));
    }

    void aNullNormalImageInAlphaModeLeavesThePressedOneUntilItIsMadeAnew()
    {
        SpLockButton button;
        button.setNormalImage(picture(kNormal));
        button.resize(101, 81);
        button.setIsDown(true);
        show(button);
        const QPixmap made = faded(picture(kNormal), 154, {40, 30});
        QCOMPARE(paints(button, [&] { button.setNormalImage(QPixmap()); }), 0);
        QVERIFY(button.normalImage().isNull());
        QCOMPARE(button.pressImage().toImage(), made.toImage());
        COMPARE_PICTURES(painted(button), shown(button, made));
        button.setImageAlpha(60);
        QVERIFY(button.pressImage().isNull());
        COMPARE_PICTURES(painted(button), reference(button, [](QPainter &) {}));
        button.setIsDown(false);
        COMPARE_PICTURES(painted(button), reference(button, [](QPainter &) {}));
    }

    void eachFadeHasItsOwnAlpha()
    {
        SpLockButton button;
        button.setImageAlpha(60);
        button.setDisableAlpha(90);
        button.setNormalImage(picture(kNormal));
        button.setDisableMode(SpLockButton::Show_NormalImageAlpha);
        QCOMPARE(button.pressImage().toImage(), faded(picture(kNormal), 60, {40, 30}).toImage());
        QCOMPARE(button.disableImage().toImage(), faded(picture(kNormal), 90, {40, 30}).toImage());
    }

    void inHighlightModeNothingIsMade()
    {
        const auto button = makeButton();
        button->setImageAlpha(60);
        QCOMPARE(button->pressImage().toImage(), picture(kPress).toImage());
        button->setNormalImage(picture(Qt::blue));
        QCOMPARE(button->pressImage().toImage(), picture(kPress).toImage());
    }

    void anImageAlphaWithoutANormalImageMakesNone()
    {
        SpLockButton button;
        button.setImageAlpha(3);
        QVERIFY(button.pressImage().isNull());
    }

    void theDisableModeReplacesTheDisableImage()
    {
        const auto button = makeButton();
        QCOMPARE(button->disableImage().toImage(), picture(kDisable).toImage());
        button->setDisableAlpha(60);
        QCOMPARE(button->disableImage().toImage(), picture(kDisable).toImage());
        button->setDisableMode(SpLockButton::Show_NormalImageAlpha);
        QCOMPARE(button->disableImage().toImage(), faded(picture(kNormal), 60, {40, 30}).toImage());
        button->setDisableAlpha(61);
        QCOMPARE(button->disableImage().toImage(), faded(picture(kNormal), 61, {40, 30}).toImage());
        button->setDisableImage(picture(Qt::red));
        QCOMPARE(button->disableImage().toImage(), faded(picture(kNormal), 61, {40, 30}).toImage());
        button->setDisableMode(SpLockButton::Show_DisableImage); // the first one is gone
        QCOMPARE(button->disableImage().toImage(), faded(picture(kNormal), 61, {40, 30}).toImage());
        button->setDisableMode(SpLockButton::Show_NormalImage);
        QCOMPARE(button->disableImage().toImage(), picture(kNormal).toImage());
        button->setDisableImage(picture(Qt::red));
        QCOMPARE(button->disableImage().toImage(), picture(kNormal).toImage());
        button->setNormalImage(picture(Qt::blue)); // does not reach the disabled one
        QCOMPARE(button->disableImage().toImage(), picture(kNormal).toImage());
        button->setDisableMode(SpLockButton::DisableMode(7));
        button->setDisableImage(picture(Qt::red));
        QCOMPARE(button->disableImage().toImage(), picture(Qt::red).toImage());
    }

    void fadingTakesTheSizeOfTheImageRectangle()
    {
        const auto button = makeButton();
        QPixmap target;
        button->setPressImageAlpha(90, picture(kPress, {60, 50}), target);
        COMPARE_PICTURES(target.toImage(),
                         faded(picture(kPress, {60, 50}), 90, {40, 30}).toImage());
        button->setPressImageAlpha(90, QPixmap(), target);
        QVERIFY(target.isNull());
        target = picture(kPress);
        button->setPressImageAlpha(90, target, target); // source and target may be one
        COMPARE_PICTURES(target.toImage(), faded(picture(kPress), 90, {40, 30}).toImage());
    }

    void anAlphaOutOfRangeLeavesNothing()
    {
        const auto button = makeButton();
        QBitmap bitmap(16, 16);
        bitmap.fill(Qt::color1);
        QImage nothing(16, 16, QImage::Format_ARGB32_Premultiplied);
        nothing.fill(Qt::transparent);
        for (int alpha : {INT_MIN, -1, 256, INT_MAX}) {
            QPixmap target;
            button->setPressImageAlpha(alpha, bitmap, target);
            COMPARE_PICTURES(target.toImage(), nothing);
        }
    }

    void anOpaquePictureFadesToo()
    {
        SpLockButton button;
        QPixmap opaque(40, 30);
        opaque.fill(QColor(250, 100, 50));
        button.setNormalImage(opaque);
        button.setIsDown(true);
        button.resize(101, 81);
        QImage shown(button.size(), QImage::Format_RGB32); // a ground that shines through
        shown.fill(Qt::cyan);
        QImage expected = shown;
        button.render(&shown, QPoint(), QRegion(), QWidget::DrawChildren);
        QImage half(40, 30, QImage::Format_ARGB32_Premultiplied);
        half.fill(QColor(250, 100, 50, 154));
        QPainter(&expected).drawImage(kImageRect.topLeft(), half);
        COMPARE_PICTURES(shown, expected);
    }

    // --- Looks ----------------------------------------------------------------------------------

    void picturesOfTheStates()
    {
        const auto button = makeButton();
        COMPARE_PICTURES(painted(*button), shown(*button, picture(kNormal)));
        button->setIsDown(true);
        COMPARE_PICTURES(painted(*button), shown(*button, picture(kPress)));
        button->setDisableState(true);
        COMPARE_PICTURES(painted(*button), shown(*button, picture(kDisable)));
        button->setDisableState(false);
        button->setEnabled(false); // is not disabled in software
        COMPARE_PICTURES(painted(*button), shown(*button, picture(kPress)));
    }

    void aMissingPictureIsSkipped()
    {
        const auto button = makeButton();
        button->setPressImage(QPixmap());
        button->setIsDown(true);
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &) {}));
        button->setDisableImage(QPixmap());
        button->setDisableState(true);
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &) {}));
    }

    void anImageLargerThanTheWidgetIsHalvedTowardZero()
    {
        const auto button = makeButton();
        button->setMinimumSize(0, 0);
        button->resize(35, 25);
        COMPARE_PICTURES(painted(*button), reference(*button, [](QPainter &p) {
                             p.drawPixmap(-2, -2, picture(kNormal));
                         }));
    }

    void captions()
    {
        const auto button = makeButton();
        button->setDisplayText(QStringLiteral("Lock"));
        button->setFontSize(23);
        const auto expected = [&](const QPixmap &pixmap, const QColor &color) {
            return reference(*button, [&](QPainter &p) {
                p.drawPixmap(kImageRect, pixmap);
                p.setPen(color);
                p.drawText(button->rect(), Qt::AlignCenter, QStringLiteral("Lock"));
            });
        };
        COMPARE_PICTURES(painted(*button), expected(picture(kNormal), QColor(255, 255, 255)));
        button->setIsDown(true);
        COMPARE_PICTURES(painted(*button), expected(picture(kPress), QColor(255, 0, 0)));
        button->setDisableState(true);
        COMPARE_PICTURES(painted(*button), expected(picture(kDisable), QColor(100, 100, 100)));
        button->setDisableTextColor(Qt::cyan);
        COMPARE_PICTURES(painted(*button), expected(picture(kDisable), Qt::cyan));
        button->setDisableState(false);
        button->setPressTextColor(Qt::blue);
        COMPARE_PICTURES(painted(*button), expected(picture(kPress), Qt::blue));
        button->setIsDown(false);
        button->setNormalTextColor(Qt::black);
        COMPARE_PICTURES(painted(*button), expected(picture(kNormal), Qt::black));
        QCOMPARE(button->font().pixelSize(), 23);
    }

    // --- Touches --------------------------------------------------------------------------------

    void eachPressTurnsTheButtonOver()
    {
        const auto button = makeButton();
        SignalLog log(button.get());
        Touch finger = touch(button.get());
        finger.press(50, 40);
        QCOMPARE(button->isDown(), true);
        finger.release();
        QCOMPARE(button->isDown(), true);
        QCoreApplication::processEvents();
        QCOMPARE(
            log.take(),
            (QStringList{QStringLiteral("btnPressed(\"%1\")").arg(kId),
                         QStringLiteral("btnReleased(\"%1\")").arg(kId), QStringLiteral("beep")}));
        finger.press(50, 40);
        QCOMPARE(button->isDown(), false);
        finger.moveTo(5000, 5000).release(); // wherever it is lifted
        QCOMPARE(button->isDown(), false);
        QCoreApplication::processEvents();
        QCOMPARE(
            log.take(),
            (QStringList{QStringLiteral("btnPressed(\"%1\")").arg(kId),
                         QStringLiteral("btnReleased(\"%1\")").arg(kId), QStringLiteral("beep")}));
    }

    void theStateIsTurnedOverBeforeItIsReported()
    {
        const auto button = makeButton();
        bool seen = false;
        connect(button.get(), &SpLockButton::btnPressed, button.get(),
                [&] { seen = button->isDown(); });
        touch(button.get()).tap(5, 5);
        QVERIFY(seen);
    }

    void aPressPaintsOnceAndAReleaseNever()
    {
        const auto button = makeButton();
        show(*button);
        Touch finger = touch(button.get());
        QCOMPARE(paints(*button, [&] { finger.press(50, 40); }), 1);
        QCOMPARE(paints(*button, [&] { finger.moveTo(60, 40).release(); }), 0);
    }

    void aDisabledButtonKeepsItsState()
    {
        const auto button = makeButton();
        show(*button);
        button->setIsDown(true);
        button->setDisableState(true);
        QCoreApplication::processEvents();
        SignalLog log(button.get());
        QCOMPARE(paints(*button, [&] { touch(button.get()).tap(50, 40); }), 0);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(button->isDown(), true);
    }

    void aButtonDisabledDuringTheTouchDoesNotReportTheRelease()
    {
        const auto button = makeButton();
        connect(button.get(), &SpLockButton::btnPressed, button.get(),
                [&] { button->setDisableState(true); });
        SignalLog log(button.get());
        touch(button.get()).tap(5, 5);
        QCOMPARE(log.take(), QStringList{QStringLiteral("btnPressed(\"%1\")").arg(kId)});
    }

    void touchesAndTheRequestForASoundReachTheParent()
    {
        Parent parent;
        const auto button = makeButton(&parent);
        show(parent);
        touch(button.get()).press(50, 40).moveTo(52, 40).release();
        QCoreApplication::processEvents();
        QCOMPARE(parent.events,
                 (QStringList{QStringLiteral("press"), QStringLiteral("move"),
                              QStringLiteral("release"), QStringLiteral("beep")}));
        button->setDisableState(true);
        parent.events.clear();
        touch(button.get()).tap(50, 40);
        QCoreApplication::processEvents();
        QCOMPARE(parent.events, (QStringList{QStringLiteral("press"), QStringLiteral("release")}));
    }

    void theBaseHandlerComesBeforeTheSignals()
    {
        const auto button = makeButton();
        BaseOrder order(button.get());
        touch(button.get()).tap(5, 5);
        QCOMPARE(order.before, QStringList());
        QCOMPARE(order.after, (QStringList{"btnPressed", "btnReleased"}));
    }

    // --- Robustness -----------------------------------------------------------------------------

    void aButtonMayBeDeletedByEitherReport()
    {
        for (const QString &signal :
             {QStringLiteral("btnPressed"), QStringLiteral("btnReleased")}) {
            auto *button = makeButton().release();
            const QPointer<SpLockButton> guard(button);
            SignalLog log(button);
            log.onLine([&](const QString &line) {
                if (line.startsWith(signal))
                    delete button;
            });
            touch(button).tap(5, 5);
            QVERIFY(!guard);
        }
    }
};

WIDGET_TEST_MAIN(tst_SpLockButton)
#include "tst_splockbutton.moc"
