// SPDX-License-Identifier: Apache-2.0
#include <MHorSlider>

#include "baseorder.h"
#include "deletion.h"
#include "keptlooks.h"
#include "pictures.h"
#include "setters.h"
#include "signallog.h"
#include "sliderpictures.h"
#include "tablerows.h"
#include "touch.h"
#include "widgettest.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <climits>
#include <memory>

namespace
{

struct Pictures : SliderPictures {
    Pictures() : SliderPictures(Qt::Horizontal) { }
    QPixmap grooveDisabled = filled(Qt::lightGray, {200, 20});
    QPixmap fillDisabled = filled(Qt::darkBlue, {200, 20});
    QPixmap knobDisabled = filled(Qt::white, {30, 40});
};

const Pictures &pictures()
{
    static const Pictures instance;
    return instance;
}

// A slider of 260 x 40 with its groove from 0 to 199 in rows 10 to 29; the knob has 170 px to go.
std::unique_ptr<MHorSlider> makeSlider(QWidget *parent = nullptr)
{
    auto slider = std::make_unique<MHorSlider>(parent);
    slider->setTextWidth(60);
    pictures().giveTo(*slider);
    return slider;
}

// The labels in the order of their making.
QLabel *knobOf(const MHorSlider &slider)
{
    return slider.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly).at(0);
}

QLabel *valueOf(const MHorSlider &slider)
{
    return slider.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly).at(1);
}

QImage knobPicture(const MHorSlider &slider)
{
    return knobOf(slider)->property("pixmap").value<QPixmap>().toImage();
}

// The groove with the columns from `left` to `right` filled.
QImage shown(const MHorSlider &slider, int left, int right, const QPixmap &groove,
             const QPixmap &fill)
{
    return reference(slider, [&](QPainter &painter) {
        const int top = slider.height() / 2 - groove.height() / 2;
        painter.drawPixmap(0, top, groove);
        if (left <= right)
            painter.drawPixmap(left, top, fill, left, 0, right - left + 1, groove.height());
    });
}

QString changed(int id, int value)
{
    return QStringLiteral("valueChangeSig(%1, %2)").arg(id).arg(value);
}

QString saved(int id, int value)
{
    return QStringLiteral("saveDataSig(%1, %2)").arg(id).arg(value);
}

// Handlers are called with what a subclass may hand them.
class Handlers : public MHorSlider
{
public:
    using MHorSlider::mousePressEvent;
    using MHorSlider::mouseReleaseEvent;
};

using Action = std::function<void(MHorSlider &)>;

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_MHorSlider : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction and layout ----------------------------------------------------------------

    void defaults()
    {
        MHorSlider slider;
        QCOMPARE(slider.getFont(), QFont());
        QCOMPARE(slider.getTextWidth(), 0);
        QCOMPARE(slider.getAlignment(), Qt::Alignment());
        QVERIFY(slider.sliderNormalImage().isNull());
        QVERIFY(slider.sliderPressImage().isNull());
        QVERIFY(slider.sliderNormalDisablePix().isNull());
        QVERIFY(slider.sliderPressDisablePix().isNull());
        QVERIFY(slider.pointNormalImage().isNull());
        QVERIFY(slider.pointPressImage().isNull());
        QVERIFY(slider.pointDisableImage().isNull());
        QCOMPARE(slider.itemID(), 0);
        QCOMPARE(slider.maxValue(), 5);
        QCOMPARE(slider.getMinValue(), -5);
        QCOMPARE(slider.currentValue(), 0);
        QCOMPARE(slider.getIsNormal(), true);
        QCOMPARE(slider.findChildren<QLabel *>().size(), 2);
        QCOMPARE(slider.minimumSize(), QSize(0, 0));
        COMPARE_PICTURES(painted(slider), reference(slider, [](QPainter &) {}));
    }

    void thePressedKnobLaysTheSliderOut()
    {
        MHorSlider slider;
        slider.setTextWidth(60);
        slider.setSliderNormalImage(pictures().groove);
        slider.setSliderPressImage(pictures().fill);
        slider.setSliderNormalDisablePix(pictures().grooveDisabled);
        slider.setSliderPressDisablePix(pictures().fillDisabled);
        slider.setPointNormalImage(pictures().knob);
        slider.setPointDisableImage(pictures().knobDisabled);
        QCOMPARE(slider.minimumSize(), QSize(0, 0));
        slider.setPointPressImage(QPixmap()); // even a null one
        QCOMPARE(slider.minimumSize(), QSize(260, 40));
        QCOMPARE(slider.maximumSize(), QSize(260, 40));
        QCOMPARE(knobOf(slider)->geometry(), QRect(85, 0, 30, 40));
        QCOMPARE(knobOf(slider)->minimumSize(), QSize(30, 40));
        QCOMPARE(knobOf(slider)->maximumSize(), QSize(30, 40));
        QCOMPARE(valueOf(slider)->geometry(), QRect(199, 0, 60, 40));
    }

    void withoutGrooveOrKnobNothingIsLaidOut()
    {
        MHorSlider withoutKnob;
        withoutKnob.setSliderNormalImage(pictures().groove);
        withoutKnob.setPointPressImage(pictures().knobPressed);
        QCOMPARE(withoutKnob.minimumSize(), QSize(0, 0));
        MHorSlider withoutGroove;
        withoutGroove.setPointNormalImage(pictures().knob);
        withoutGroove.setPointPressImage(pictures().knobPressed);
        QCOMPARE(withoutGroove.minimumSize(), QSize(0, 0));
    }

    void theHigherPictureGivesTheHeightAndEachIsHalvedByItself_data()
    {
        QTest::addColumn<int>("groove");
        QTest::addColumn<int>("knob");
        QTest::addColumn<int>("height");
        QTest::newRow("groove") << 61 << 40 << 61;
        QTest::newRow("knob") << 20 << 73 << 73;
        QTest::newRow("neither") << 29 << 28 << 30;
        QTest::newRow("thirty") << 30 << 30 << 30;
    }

    void theHigherPictureGivesTheHeightAndEachIsHalvedByItself()
    {
        QFETCH(int, groove);
        QFETCH(int, knob);
        QFETCH(int, height);
        MHorSlider slider;
        Pictures p;
        p.groove = filled(Qt::gray, {200, groove});
        p.fill = filled(Qt::blue, {200, groove});
        p.knob = filled(Qt::green, {30, knob});
        p.giveTo(slider);
        QCOMPARE(slider.size(), QSize(200, height));
        QCOMPARE(knobOf(slider)->y(), (height - knob) / 2);
        COMPARE_PICTURES(paintedItself(slider), shown(slider, 0, 99, p.groove, p.fill));
    }

    void labelsHaveTheirStyle()
    {
        MHorSlider slider;
        QFont font;
        font.setPixelSize(19);
        slider.setFont(font);
        slider.setAlignment(Qt::AlignRight | Qt::AlignBottom);
        slider.setCurrentValue(-3);
        pictures().giveTo(slider);
        QCOMPARE(valueOf(slider)->styleSheet(),
                 QStringLiteral("QLabel:disabled{color:Gray;}                                   "
                                "QLabel:enabled{color:rgb(255,255,255);}"));
        QCOMPARE(valueOf(slider)->alignment(), Qt::AlignRight | Qt::AlignBottom);
        QCOMPARE(valueOf(slider)->text(), QStringLiteral("-3"));
        QCOMPARE(valueOf(slider)->font().pixelSize(), 19);
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            QCOMPARE(valueOf(slider)->palette().brush(group, QPalette::Light),
                     QBrush(QColor(255, 255, 255, 0), Qt::SolidPattern));
        QCOMPARE(knobPicture(slider), pictures().knob.toImage());
    }

    void aNegativeTextWidthTakesItsWidthOffTheGroove_data()
    {
        QTest::addColumn<int>("textWidth");
        QTest::addColumn<int>("width");
        QTest::newRow("by one") << -1 << 199;
        QTest::newRow("a part") << -60 << 140;
        QTest::newRow("all but one") << -199 << 1;
        QTest::newRow("all") << -200 << 0;
        QTest::newRow("more than there is") << -201 << 0;
        QTest::newRow("smallest") << INT_MIN << 0;
    }

    void aNegativeTextWidthTakesItsWidthOffTheGroove()
    {
        QFETCH(int, textWidth);
        QFETCH(int, width);
        MHorSlider slider;
        slider.setTextWidth(textWidth);
        pictures().giveTo(slider);
        QCOMPARE(slider.getTextWidth(), textWidth);
        QCOMPARE(slider.minimumSize(), QSize(width, 40));
        QCOMPARE(slider.maximumSize(), QSize(width, 40));
        QCOMPARE(valueOf(slider)->geometry(), QRect(199, 0, 0, 40));
        QCOMPARE(knobOf(slider)->x(), 85); // as in the whole groove
        COMPARE_PICTURES(paintedItself(slider),
                         shown(slider, 0, 99, pictures().groove, pictures().fill));
    }

    void aFontIsAppliedAtOnceAndTheRestOfTheTextWithTheNextLayout()
    {
        const auto slider = makeSlider();
        QFont font;
        font.setPixelSize(27);
        slider->setFont(font);
        QCOMPARE(valueOf(*slider)->font().pixelSize(), 27);
        slider->setTextWidth(90);
        slider->setAlignment(Qt::AlignRight | Qt::AlignTop);
        slider->setCurrentValue(2); // lays nothing out
        QCOMPARE(slider->size(), QSize(260, 40));
        QCOMPARE(valueOf(*slider)->geometry(), QRect(199, 0, 60, 40));
        QCOMPARE(valueOf(*slider)->alignment(), Qt::Alignment());
        slider->initWidget();
        QCOMPARE(slider->size(), QSize(290, 40));
        QCOMPARE(valueOf(*slider)->geometry(), QRect(199, 0, 90, 40));
        QCOMPARE(valueOf(*slider)->alignment(), Qt::AlignRight | Qt::AlignTop);
        QCOMPARE(valueOf(*slider)->font().pixelSize(), 27);
    }

    // --- Setters --------------------------------------------------------------------------------

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        const QPixmap &any = pictures().groove;
        row("font", 0, [](auto &s) { s.setFont(QFont()); });
        row("textWidth", 0, [](auto &s) { s.setTextWidth(9); });
        row("alignment", 0, [](auto &s) { s.setAlignment(Qt::AlignLeft); });
        row("sliderNormalImage", 0, [&](auto &s) { s.setSliderNormalImage(any); });
        row("sliderPressImage", 0, [&](auto &s) { s.setSliderPressImage(any); });
        row("sliderNormalDisableImage", 0, [&](auto &s) { s.setSliderNormalDisablePix(any); });
        row("sliderPressDisableImage", 0, [&](auto &s) { s.setSliderPressDisablePix(any); });
        row("pointNormalImage", 0, [&](auto &s) { s.setPointNormalImage(any); });
        row("pointPressImage", 1, [&](auto &s) { s.setPointPressImage(any); });
        row("pointDisableImage", 0, [&](auto &s) { s.setPointDisableImage(any); });
        row("itemID", 0, [](auto &s) { s.setItemID(3); });
        row("maxValue", 0, [](auto &s) { s.setMaxValue(30); });
        row("minValue", 0, [](auto &s) { s.setMinValue(-30); });
        row("currentValue", 1, [](auto &s) { s.setCurrentValue(3); });
        row("currentValue refused", 0, [](auto &s) { s.setCurrentValue(6); });
        row("normalUse", 0, [](auto &s) { s.setIsNormal(false); });
        row("setTouchPos", 1, [](auto &s) { s.setTouchPos(0); });
        row("setTouchPos refused", 0, [](auto &s) { s.setTouchPos(-6); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot() { checkRepaints(*makeSlider()); }

    void everyPropertyKeepsWhatItIsGiven()
    {
        MHorSlider slider;
        checkKeepsProperties(slider,
                             {{"textWidth", 70},
                              {"alignment", int(Qt::AlignRight)},
                              {"itemID", -7},
                              {"maxValue", 30},
                              {"minValue", 3},
                              {"currentValue", 12},
                              {"normalUse", false}});
        checkKeepsPictures(slider,
                           {"sliderNormalImage", "sliderPressImage", "sliderNormalDisableImage",
                            "sliderPressDisableImage", "pointNormalImage", "pointPressImage",
                            "pointDisableImage"});
    }

    void theValueIsCheckedAgainstTheMaximumOnly()
    {
        const auto slider = makeSlider();
        SignalLog log(slider.get());
        for (int refused : {6, -6, INT_MAX, INT_MIN}) {
            slider->setCurrentValue(refused);
            QCOMPARE(slider->currentValue(), 0);
            QCOMPARE(valueOf(*slider)->text(), QStringLiteral("0"));
        }
        slider->setCurrentValue(-5);
        QCOMPARE(knobOf(*slider)->x(), 0);
        slider->setCurrentValue(5);
        QCOMPARE(knobOf(*slider)->x(), 170);
        slider->setMinValue(0);
        slider->setMaxValue(3);
        slider->setCurrentValue(-2); // accepted, but the knob stays
        QCOMPARE(slider->currentValue(), -2);
        QCOMPARE(valueOf(*slider)->text(), QStringLiteral("-2"));
        QCOMPARE(knobOf(*slider)->x(), 170);
        QCOMPARE(log.take(), QStringList());
    }

    void theValueCanBeHidden()
    {
        const auto slider = makeSlider();
        slider->setIsShowValue(false);
        QVERIFY(valueOf(*slider)->isHidden());
        slider->setIsShowValue(true);
        QVERIFY(!valueOf(*slider)->isHidden());
    }

    // --- From value to knob and fill
    // --------------------------------------------------------------

    void everyValueHasItsPlace_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("grooveWidth");
        QTest::addColumn<int>("knobWidth");
        QTest::addColumn<bool>("isNormal");
        for (const bool isNormal : {true, false}) {
            for (const auto &range : {qMakePair(-5, 5), qMakePair(0, 1), qMakePair(0, 0),
                                      qMakePair(0, 100), qMakePair(-40, 7), qMakePair(5, -5)}) {
                for (const auto &width : {qMakePair(200, 30), qMakePair(101, 17), qMakePair(20, 20),
                                          qMakePair(20, 33), qMakePair(1, 1)})
                    QTest::addRow("%d..%d, %d in %d%s", range.first, range.second, width.second,
                                  width.first, isNormal ? "" : ", from the middle")
                        << range.first << range.second << width.first << width.second << isNormal;
            }
        }
    }

    void everyValueHasItsPlace()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, grooveWidth);
        QFETCH(int, knobWidth);
        QFETCH(bool, isNormal);
        Pictures p;
        p.groove = filled(Qt::gray, {grooveWidth, 20});
        p.fill = filled(Qt::blue, {grooveWidth + 40, 20});
        p.knob = filled(Qt::green, {knobWidth, 40});
        MHorSlider slider;
        slider.setIsNormal(isNormal);
        slider.setMinValue(minimum);
        slider.setMaxValue(maximum);
        p.giveTo(slider);
        const QPoint unplaced = knobOf(slider)->pos();
        for (int value = -110; value <= 110; ++value) {
            if (value < minimum || value > maximum) {
                const QPoint before = knobOf(slider)->pos();
                slider.setTouchPos(value);
                QCOMPARE(knobOf(slider)->pos(), before);
                continue;
            }
            slider.setTouchPos(value);
            const int span = maximum - minimum;
            const int x = span == 0 ? 0 : (grooveWidth - knobWidth) * (value - minimum) / span;
            QCOMPARE(knobOf(slider)->pos(), QPoint(x, 0));
            QCOMPARE(slider.getTouchPos(), QPoint(x + knobWidth / 2, 20));
            int left = 0;
            int right = x + knobWidth / 2 - 1;
            const int middle = grooveWidth / 2;
            if (!isNormal && value == 0) {
                left = middle;
                right = middle - 1;
            } else if (!isNormal && x >= middle) {
                left = middle + 2;
            } else if (!isNormal) {
                left = x + knobWidth / 2;
                right = middle - 3;
            }
            COMPARE_PICTURES(paintedItself(slider), shown(slider, left, right, p.groove, p.fill));
        }
        if (minimum > maximum)
            QCOMPARE(knobOf(slider)->pos(), unplaced);
    }

    void theFillKeepsItsLeftEndWhenTheUseChanges()
    {
        const auto slider = makeSlider();
        slider->setIsNormal(false);
        slider->setCurrentValue(-3); // knob at 34, from 49 to 97
        COMPARE_PICTURES(paintedItself(*slider),
                         shown(*slider, 49, 97, pictures().groove, pictures().fill));
        slider->setIsNormal(true);
        slider->setCurrentValue(5);
        COMPARE_PICTURES(paintedItself(*slider),
                         shown(*slider, 49, 184, pictures().groove, pictures().fill));
        slider->initWidget();
        COMPARE_PICTURES(paintedItself(*slider),
                         shown(*slider, 0, 184, pictures().groove, pictures().fill));
    }

    void withoutAPictureNoFillIsDrawn()
    {
        const auto slider = makeSlider();
        slider->setSliderPressImage(QPixmap());
        COMPARE_PICTURES(paintedItself(*slider),
                         shown(*slider, 0, -1, pictures().groove, QPixmap()));
    }

    void aWholePicture()
    {
        MHorSlider slider;
        QFont font;
        font.setPixelSize(20);
        slider.setFont(font);
        slider.setTextWidth(60);
        slider.setAlignment(Qt::AlignCenter);
        slider.setCurrentValue(3);
        pictures().giveTo(slider);
        const int x = 170 * 8 / 10;
        COMPARE_PICTURES(painted(slider), reference(slider, [&](QPainter &painter) {
                             painter.drawPixmap(0, 10, pictures().groove);
                             painter.drawPixmap(0, 10, pictures().fill, 0, 0, x + 15, 20);
                             painter.drawPixmap(x, 0, pictures().knob);
                             painter.setPen(Qt::white);
                             painter.setFont(font);
                             painter.drawText(QRect(199, 0, 60, 40), Qt::AlignCenter,
                                              QStringLiteral("3"));
                         }));
    }

    // --- From touch to value
    // ----------------------------------------------------------------------

    void everyColumnIsAValue_data() { everyValueHasItsPlace_data(); }

    void everyColumnIsAValue()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, grooveWidth);
        QFETCH(int, knobWidth);
        QFETCH(bool, isNormal);
        Pictures p;
        p.groove = filled(Qt::gray, {grooveWidth, 20});
        p.knob = filled(Qt::green, {knobWidth, 40});
        MHorSlider slider;
        slider.setIsNormal(isNormal);
        slider.setItemID(9);
        slider.setMinValue(minimum);
        slider.setMaxValue(maximum);
        p.giveTo(slider);
        SignalLog log(&slider);
        int value = slider.currentValue();
        for (int x = -20; x < grooveWidth + 20; ++x) {
            slider.setTouchPos(QPoint(x, -3000));
            int knobLeft = x - knobWidth / 2;
            if (x < knobWidth / 2)
                knobLeft = 0;
            else if (x > grooveWidth - 1 - knobWidth / 2)
                knobLeft = grooveWidth - knobWidth;
            const int travel = grooveWidth - knobWidth;
            const int touched =
                travel == 0 ? minimum : (maximum - minimum) * knobLeft / travel + minimum;
            QStringList expected;
            if (touched != value) {
                if (qAbs(touched) <= maximum)
                    value = touched;
                expected += changed(9, value);
            }
            QCOMPARE(slider.currentValue(), value);
            QCOMPARE(log.take(), expected);
        }
    }

    void beyondTheGrooveAreTheEndsOfTheRange()
    {
        const auto slider = makeSlider();
        for (int x : {14, 0, -5, INT_MIN}) {
            slider->setCurrentValue(0);
            slider->setTouchPos(QPoint(x, 0));
            QCOMPARE(slider->currentValue(), -5);
        }
        for (int x : {185, 199, 259, INT_MAX}) {
            slider->setCurrentValue(0);
            slider->setTouchPos(QPoint(x, 0));
            QCOMPARE(slider->currentValue(), 5);
        }
    }

    // --- Touches --------------------------------------------------------------------------------

    void aTouchInOrder()
    {
        const auto slider = makeSlider();
        slider->setItemID(4);
        SignalLog log(slider.get());
        touch(slider.get()).press(5, 20).moveTo(6, 20).moveTo(250, 900).release();
        QCoreApplication::processEvents();
        QCOMPARE(log.take(),
                 (QStringList{changed(4, -5), changed(4, 5), saved(4, 5), QStringLiteral("beep")}));
    }

    void aReleaseIsReportedWithoutAChangeToo()
    {
        const auto slider = makeSlider();
        SignalLog log(slider.get());
        touch(slider.get()).tap(100, 5);
        QCOMPARE(log.take(), QStringList{saved(0, 0)});
    }

    void theKnobIsPressedWhileTouched()
    {
        const Pictures &p = pictures();
        checkKnobWhileTouched(*makeSlider(), {100, 5}, knobPicture, p.knobPressed, p.knob);
        Pictures withoutPressed;
        withoutPressed.knobPressed = QPixmap();
        MHorSlider plain;
        withoutPressed.giveTo(plain);
        checkKnobWhileTouched(plain, {100, 5}, knobPicture, p.knob, p.knob);
    }

    void pressAndReleasePaintOnceAndAMoveWithoutChangeNever()
    {
        const auto slider = makeSlider();
        show(*slider);
        Touch finger = touch(slider.get());
        QCOMPARE(paints(*slider, [&] { finger.press(100, 5); }), 1);
        QCOMPARE(paints(*slider, [&] { finger.moveTo(101, 5); }), 0);
        QCOMPARE(paints(*slider, [&] { finger.moveTo(180, 5); }), 1);
        QCOMPARE(paints(*slider, [&] { finger.release(); }), 1);
        slider->setPointPressImage(QPixmap());
        QCOMPARE(paints(*slider, [&] { finger.press(180, 5); }), 1); // although nothing changes
    }

    void touchesGoOnToTheParent()
    {
        const auto slider = makeSlider();
        Touch finger = touch(slider.get());
        QVERIFY(!finger.press(100, 5).wasAccepted());
        QVERIFY(!finger.moveTo(101, 5).wasAccepted());
        QVERIFY(!finger.release().wasAccepted());
    }

    void theBaseHandlerComesAfterTheSignals()
    {
        const auto slider = makeSlider();
        BaseOrder order(slider.get());
        touch(slider.get()).press(5, 20).moveTo(250, 20).release();
        QCOMPARE(order.before, (QStringList{"valueChangeSig", "valueChangeSig", "saveDataSig"}));
        QCOMPARE(order.after, QStringList());
    }

    // --- Enabling -------------------------------------------------------------------------------

    void aDisabledSliderHasItsOwnLook()
    {
        const auto slider = makeSlider();
        slider->setEnabled(false);
        QCOMPARE(knobPicture(*slider), pictures().knob.toImage());
        COMPARE_PICTURES(paintedItself(*slider),
                         shown(*slider, 0, 99, pictures().groove, pictures().fill));
        slider->setSliderNormalDisablePix(pictures().grooveDisabled); // one is not enough
        COMPARE_PICTURES(paintedItself(*slider),
                         shown(*slider, 0, 99, pictures().groove, pictures().fill));
        slider->setSliderPressDisablePix(pictures().fillDisabled);
        COMPARE_PICTURES(paintedItself(*slider),
                         shown(*slider, 0, 99, pictures().grooveDisabled, pictures().fillDisabled));
        slider->setSliderNormalDisablePix(QPixmap());
        COMPARE_PICTURES(paintedItself(*slider),
                         shown(*slider, 0, 99, pictures().groove, pictures().fill));
        slider->setPointDisableImage(pictures().knobDisabled);
        QCOMPARE(knobPicture(*slider), pictures().knob.toImage()); // stored only
        slider->setEnabled(true);
        slider->setEnabled(false);
        QCOMPARE(knobPicture(*slider), pictures().knobDisabled.toImage());
        slider->setEnabled(true);
        QCOMPARE(knobPicture(*slider), pictures().knob.toImage());
        slider->setSliderNormalDisablePix(pictures().grooveDisabled);
        COMPARE_PICTURES(paintedItself(*slider),
                         shown(*slider, 0, 99, pictures().groove, pictures().fill));
    }

    // Qt itself keeps touches from a disabled widget; a handler that is called all the same works.
    void theHandlersOfADisabledSliderSetTheValueAndAskForASound()
    {
        Handlers slider;
        pictures().giveTo(slider);
        slider.setPointDisableImage(pictures().knobDisabled);
        slider.setEnabled(false);
        SignalLog log(&slider);
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        slider.mousePressEvent(&press);
        QCOMPARE(slider.currentValue(), -5);
        QCOMPARE(knobPicture(slider), pictures().knobPressed.toImage());
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(5, 5), Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        slider.mouseReleaseEvent(&release);
        QCOMPARE(knobPicture(slider), pictures().knob.toImage());
        QCoreApplication::processEvents();
        QCOMPARE(log.take(), (QStringList{changed(0, -5), saved(0, -5), QStringLiteral("beep")}));
    }

    // --- Robustness -----------------------------------------------------------------------------

    void hostileNumbers()
    {
        const int numbers[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX};
        for (const int minimum : numbers) {
            for (const int maximum : numbers) {
                MHorSlider slider;
                slider.setMinValue(minimum);
                slider.setMaxValue(maximum);
                for (const int width : {minimum, maximum}) {
                    slider.setTextWidth(width);
                    pictures().giveTo(slider);
                    QCOMPARE(slider.width(),
                             int(qBound(qint64(0), qint64(200) + width, qint64(QWIDGETSIZE_MAX))));
                    for (const int value : numbers) {
                        slider.setCurrentValue(value);
                        slider.setTouchPos(value);
                        slider.setTouchPos(QPoint(value, value));
                        QVERIFY(knobOf(slider)->x() >= 0 && knobOf(slider)->x() <= 170);
                    }
                }
            }
        }
    }

    void aSliderWithoutLayoutTakesTouchesAndValues()
    {
        MHorSlider slider;
        SignalLog log(&slider);
        touch(&slider).press(5, 5).moveTo(5, -1).release();
        QCOMPARE(log.take(), (QStringList{changed(0, -5), saved(0, -5)}));
        COMPARE_PICTURES(paintedItself(slider), reference(slider, [](QPainter &) {}));
    }

    void aSliderMayBeDeletedByAnyReport()
    {
        checkMayBeDeletedByAnyReport(
            [] { return makeSlider(); }, 3,
            [](QWidget *s) { touch(s).press(5, 5).moveTo(250, 5).release(); });
    }

    void aGrooveThatIsKeptFollowsItsInputs()
    {
        const auto make = [] { return makeSlider(); };
        checkKeptLook<MHorSlider>(make,
                                  {{"value", [](MHorSlider &s) { s.setCurrentValue(3); }},
                                   {"fill",
                                    [](MHorSlider &s) {
                                        s.setSliderPressImage(filled(Qt::darkRed, {200, 20}));
                                    }},
                                   {"groove",
                                    [](MHorSlider &s) {
                                        s.setSliderNormalImage(filled(Qt::darkCyan, {200, 20}));
                                    }},
                                   {"disabled", [](MHorSlider &s) {
                                        s.setSliderNormalDisablePix(filled(Qt::white, {200, 20}));
                                        s.setSliderPressDisablePix(filled(Qt::black, {200, 20}));
                                        s.setPointDisableImage(filled(Qt::red, {30, 40}));
                                        s.setEnabled(false);
                                    }}});
        checkKeptLookElsewhere<MHorSlider>(make);
    }
};

WIDGET_TEST_MAIN(tst_MHorSlider)
#include "tst_mhorslider.moc"
