// SPDX-License-Identifier: Apache-2.0
#include <SpSetupSlider>

#include "baseorder.h"
#include "deletion.h"
#include "keptlooks.h"
#include "parent.h"
#include "pictures.h"
#include "setters.h"
#include "signallog.h"
#include "sliderpictures.h"
#include "tablerows.h"
#include "touch.h"
#include "widgettest.h"

#include <QLabel>
#include <QPainter>
#include <SpIconButton>

#include <climits>
#include <memory>

namespace
{

struct Pictures : SliderPictures {
    Pictures() : SliderPictures(Qt::Vertical) { }
    QPixmap add = filled(Qt::red, {30, 24});
    QPixmap addPressed = filled(Qt::magenta, {30, 24});
    QPixmap dec = filled(Qt::cyan, {31, 25});
    QPixmap decPressed = filled(Qt::white, {31, 25});
};

const Pictures &pictures()
{
    static const Pictures instance;
    return instance;
}

// A slider of 50 x 230 whose track is from 30 to 229; the knob has 170 px to go.
std::unique_ptr<SpSetupSlider> makeSlider(QWidget *parent = nullptr)
{
    auto slider = std::make_unique<SpSetupSlider>(parent);
    pictures().giveTo(*slider);
    return slider;
}

std::unique_ptr<SpSetupSlider> makeSliderWithButtons()
{
    auto slider = std::make_unique<SpSetupSlider>(nullptr);
    slider->setHasAddDecBtn(1);
    pictures().giveTo(*slider);
    slider->setAddBtnNormalImage(pictures().add);
    slider->setAddBtnPressImage(pictures().addPressed);
    slider->setDecBtnNormalImage(pictures().dec);
    slider->setDecBtnPressImage(pictures().decPressed);
    return slider;
}

// The labels in the order of their making: knob, value, number at the top.
QLabel *labelOf(const SpSetupSlider &slider, int number)
{
    return slider.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly).at(number);
}

QLabel *knobOf(const SpSetupSlider &slider) { return labelOf(slider, 0); }

QImage knobPicture(const SpSetupSlider &slider)
{
    return knobOf(slider)->property("pixmap").value<QPixmap>().toImage();
}

QLabel *valueOf(const SpSetupSlider &slider) { return labelOf(slider, 1); }

QLabel *topOf(const SpSetupSlider &slider) { return labelOf(slider, 2); }

SpIconButton *buttonOf(const SpSetupSlider &slider, const QString &id)
{
    for (SpIconButton *button : slider.findChildren<SpIconButton *>()) {
        if (button->buttonID() == id)
            return button;
    }
    return nullptr;
}

QString changed(int id, int value, const QPoint &pos)
{
    return QStringLiteral("valueChangeSig(%1, %2, QPoint(%3,%4))")
        .arg(id)
        .arg(value)
        .arg(pos.x())
        .arg(pos.y());
}

using Action = std::function<void(SpSetupSlider &)>;

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_SpSetupSlider : public WidgetTest
{
    Q_OBJECT

private slots:
    // --- Construction and layout ----------------------------------------------------------------

    void defaults()
    {
        SpSetupSlider slider;
        QCOMPARE(slider.getHasAddDecBtn(), false);
        QVERIFY(slider.sliderNormalImage().isNull());
        QVERIFY(slider.sliderPressImage().isNull());
        QVERIFY(slider.pointNormalImage().isNull());
        QVERIFY(slider.pointPressImage().isNull());
        QVERIFY(slider.addBtnNormalImage().isNull());
        QVERIFY(slider.addBtnPressImage().isNull());
        QVERIFY(slider.decBtnNormalImage().isNull());
        QVERIFY(slider.decBtnPressImage().isNull());
        QCOMPARE(slider.itemID(), 0);
        QCOMPARE(slider.maxValue(), 5);
        QCOMPARE(slider.getMinValue(), -5);
        QCOMPARE(slider.currentValue(), 0);
        QCOMPARE(slider.topValue(), 0);
        QCOMPARE(slider.getFont(), QFont());
        QCOMPARE(slider.findChildren<QLabel *>().size(), 3);
        QCOMPARE(slider.findChildren<SpIconButton *>().size(), 0);
        QCOMPARE(slider.minimumSize(), QSize(0, 0));
        COMPARE_PICTURES(painted(slider), reference(slider, [](QPainter &) {}));
    }

    void theLastPictureLaysTheSliderOut()
    {
        SpSetupSlider slider;
        slider.setSliderNormalImage(pictures().groove);
        slider.setSliderPressImage(pictures().fill);
        slider.setPointNormalImage(pictures().knob);
        slider.setAddBtnNormalImage(pictures().add);
        slider.setAddBtnPressImage(pictures().addPressed);
        slider.setDecBtnNormalImage(pictures().dec);
        slider.setDecBtnPressImage(pictures().decPressed);
        QCOMPARE(slider.minimumSize(), QSize(0, 0));
        slider.setPointPressImage(QPixmap()); // even a null one
        QCOMPARE(slider.minimumSize(), QSize(50, 230));
        QCOMPARE(slider.maximumSize(), QSize(50, 230));
        QCOMPARE(slider.findChildren<SpIconButton *>().size(), 0);
        QCOMPARE(valueOf(slider)->geometry(), QRect(0, 0, 50, 30));
        QCOMPARE(knobOf(slider)->geometry(), QRect(5, 30 + 85, 40, 30));
        QCOMPARE(knobOf(slider)->minimumSize(), QSize(40, 30));
        QCOMPARE(knobOf(slider)->maximumSize(), QSize(40, 30));
    }

    void aSliderWithButtonsIsLaidOutByTheirLastPicture()
    {
        SpSetupSlider slider;
        slider.setHasAddDecBtn(-1);
        QCOMPARE(slider.getHasAddDecBtn(), true);
        pictures().giveTo(slider);
        slider.setAddBtnNormalImage(pictures().add);
        slider.setAddBtnPressImage(pictures().addPressed);
        slider.setDecBtnNormalImage(pictures().dec);
        QCOMPARE(slider.minimumSize(), QSize(0, 0));
        slider.setDecBtnPressImage(pictures().decPressed);
        QCOMPARE(slider.minimumSize(), QSize(50, 200 + 30 + 24 + 25));
        QCOMPARE(slider.maximumSize(), QSize(50, 200 + 30 + 24 + 25));
        const SpIconButton *add = buttonOf(slider, QStringLiteral("Add"));
        const SpIconButton *dec = buttonOf(slider, QStringLiteral("Dec"));
        QCOMPARE(add->geometry(), QRect(25 - 15, 29, 30, 24));
        QCOMPARE(dec->geometry(), QRect(25 - 15, 54 + 199, 31, 25));
        for (const SpIconButton *button : {add, dec}) {
            QCOMPARE(button->minimumSize(), button->size());
            QCOMPARE(button->maximumSize(), button->size());
            QCOMPARE(button->supportLongPress(), true);
            QCOMPARE(button->getTimerInt2(), 200);
            QCOMPARE(button->parentWidget(), &slider);
            QVERIFY(!button->isHidden());
        }
        QCOMPARE(add->normalImage().toImage(), pictures().add.toImage());
        QCOMPARE(add->pressImage().toImage(), pictures().addPressed.toImage());
        QCOMPARE(dec->normalImage().toImage(), pictures().dec.toImage());
        QCOMPARE(dec->pressImage().toImage(), pictures().decPressed.toImage());
        QCOMPARE(valueOf(slider)->geometry(), QRect(0, 0, 50, 30));
        QCOMPARE(knobOf(slider)->pos(), QPoint(5, 54 + 85));
        slider.setHasAddDecBtn(0);
        QCOMPARE(slider.getHasAddDecBtn(), false);
    }

    void buttonsWithoutNormalPicturesTakeNoRoom()
    {
        for (const bool hasAdd : {true, false}) {
            SpSetupSlider slider;
            slider.setHasAddDecBtn(1);
            pictures().giveTo(slider);
            if (hasAdd)
                slider.setAddBtnNormalImage(pictures().add);
            else
                slider.setDecBtnNormalImage(pictures().dec);
            slider.setDecBtnPressImage(pictures().decPressed);
            QCOMPARE(slider.size(), QSize(50, 230));
            QCOMPARE(slider.findChildren<SpIconButton *>().size(), 0);
        }
    }

    void withoutTrackOrKnobNothingIsLaidOut()
    {
        SpSetupSlider withoutKnob;
        withoutKnob.setSliderNormalImage(pictures().groove);
        withoutKnob.setPointPressImage(pictures().knobPressed);
        QCOMPARE(withoutKnob.minimumSize(), QSize(0, 0));
        SpSetupSlider withoutTrack;
        withoutTrack.setPointNormalImage(pictures().knob);
        withoutTrack.setPointPressImage(pictures().knobPressed);
        QCOMPARE(withoutTrack.minimumSize(), QSize(0, 0));
        withoutTrack.initWidget();
        QCOMPARE(withoutTrack.minimumSize(), QSize(0, 0));
    }

    void theWidestPictureGivesTheWidthAndEachIsHalvedByItself_data()
    {
        QTest::addColumn<int>("track");
        QTest::addColumn<int>("knob");
        QTest::addColumn<int>("width");
        QTest::newRow("track") << 61 << 40 << 61;
        QTest::newRow("knob") << 20 << 73 << 73;
        QTest::newRow("neither") << 49 << 48 << 50;
        QTest::newRow("fifty") << 50 << 50 << 50;
        QTest::newRow("odd") << 51 << 44 << 51;
    }

    void theWidestPictureGivesTheWidthAndEachIsHalvedByItself()
    {
        QFETCH(int, track);
        QFETCH(int, knob);
        QFETCH(int, width);
        SpSetupSlider slider;
        Pictures p;
        p.groove = filled(Qt::gray, {track, 100});
        p.knob = filled(Qt::green, {knob, 20});
        p.giveTo(slider);
        QCOMPARE(slider.width(), width);
        QCOMPARE(knobOf(slider)->x(), (width - knob) / 2);
        COMPARE_PICTURES(paintedItself(slider), reference(slider, [&](QPainter &painter) {
                             painter.drawPixmap(width / 2 - track / 2, 30, p.groove);
                             painter.drawPixmap(QRect(width / 2 - track / 2, 80, track, 49), p.fill,
                                                QRect(0, 50, 20, 49));
                         }));
    }

    void buttonsOfASliderThatIsOnTheScreenAreSeenAtOnce()
    {
        QWidget page;
        SpSetupSlider slider(&page);
        show(page);
        slider.setHasAddDecBtn(1);
        pictures().giveTo(slider);
        slider.setAddBtnNormalImage(pictures().add);
        slider.setDecBtnNormalImage(pictures().dec);
        slider.setDecBtnPressImage(pictures().decPressed);
        QVERIFY(buttonOf(slider, QStringLiteral("Add"))->isVisible());
        QVERIFY(buttonOf(slider, QStringLiteral("Dec"))->isVisible());
    }

    void aNewLayoutLeavesTheOldButtons()
    {
        const auto slider = makeSliderWithButtons();
        slider->initWidget();
        QCOMPARE(slider->findChildren<SpIconButton *>().size(), 4);
    }

    void labelsHaveTheirStyle()
    {
        const auto slider = makeSlider();
        QCOMPARE(valueOf(*slider)->styleSheet(),
                 QStringLiteral("QLabel:enabled{color:rgb(255,255,255);}                           "
                                "        QLabel:disabled{color:rgb(155,155,155);}"));
        QCOMPARE(valueOf(*slider)->alignment(), Qt::AlignHCenter | Qt::AlignBottom);
        QCOMPARE(valueOf(*slider)->text(), QStringLiteral("0"));
        for (const QLabel *label : {valueOf(*slider), knobOf(*slider)}) {
            for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
                QCOMPARE(label->palette().brush(group, QPalette::Light),
                         QBrush(QColor(255, 255, 255, 0), Qt::SolidPattern));
        }
        QCOMPARE(knobPicture(*slider), pictures().knob.toImage());
    }

    // --- Setters --------------------------------------------------------------------------------

    void settersThatRepaintDoItOnceAndOthersDoNot_data()
    {
        const TableRows<int, Action> row("expected", "action");
        const QPixmap &any = pictures().add;
        row("hasAddDecBtn", 0, [](auto &s) { s.setHasAddDecBtn(1); });
        row("sliderNormalImage", 0, [&](auto &s) { s.setSliderNormalImage(any); });
        row("sliderPressImage", 0, [&](auto &s) { s.setSliderPressImage(any); });
        row("pointNormalImage", 0, [&](auto &s) { s.setPointNormalImage(any); });
        row("pointPressImage", 1, [&](auto &s) { s.setPointPressImage(any); });
        row("pointPressImage with buttons", 0, [&](auto &s) {
            s.setHasAddDecBtn(1);
            s.setPointPressImage(any);
        });
        row("addBtnNormalImage", 0, [&](auto &s) { s.setAddBtnNormalImage(any); });
        row("addBtnPressImage", 0, [&](auto &s) { s.setAddBtnPressImage(any); });
        row("decBtnNormalImage", 0, [&](auto &s) { s.setDecBtnNormalImage(any); });
        row("decBtnPressImage", 0, [&](auto &s) { s.setDecBtnPressImage(any); });
        row("decBtnPressImage with buttons", 1, [&](auto &s) {
            s.setHasAddDecBtn(1);
            s.setDecBtnPressImage(any);
        });
        row("itemID", 0, [](auto &s) { s.setItemID(3); });
        row("maxValue", 0, [](auto &s) { s.setMaxValue(30); });
        row("minValue", 0, [](auto &s) { s.setMinValue(-30); });
        row("currentValue", 1, [](auto &s) { s.setCurrentValue(3); });
        row("currentValue refused", 0, [](auto &s) { s.setCurrentValue(6); });
        row("setTouchPos", 1, [](auto &s) { s.setTouchPos(0); });
        row("setTouchPos refused", 0, [](auto &s) { s.setTouchPos(-6); });
    }

    void settersThatRepaintDoItOnceAndOthersDoNot() { checkRepaints(*makeSlider()); }

    void everyPropertyKeepsWhatItIsGiven()
    {
        SpSetupSlider slider;
        checkKeepsProperties(slider,
                             {{"hasAddDecBtn", true},
                              {"itemID", -7},
                              {"maxValue", 30},
                              {"minValue", 3},
                              {"currentValue", 12},
                              {"topValue", INT_MIN}});
        checkKeepsPictures(slider,
                           {"sliderNormalImage", "sliderPressImage", "pointNormalImage",
                            "pointPressImage", "addBtnNormalImage", "addBtnPressImage",
                            "decBtnNormalImage", "decBtnPressImage"});
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
        QCOMPARE(slider->currentValue(), -5);
        QCOMPARE(knobOf(*slider)->y(), 30 + 170);
        slider->setCurrentValue(5);
        QCOMPARE(knobOf(*slider)->y(), 30);
        slider->setMinValue(0);
        slider->setCurrentValue(-4); // accepted, but the knob stays
        QCOMPARE(slider->currentValue(), -4);
        QCOMPARE(valueOf(*slider)->text(), QStringLiteral("-4"));
        QCOMPARE(knobOf(*slider)->y(), 30);
        slider->setMaxValue(-1);
        slider->setCurrentValue(0); // no value is small enough now
        QCOMPARE(slider->currentValue(), -4);
        QCOMPARE(log.take(), QStringList());
    }

    void theNumberAtTheTop()
    {
        const auto slider = makeSlider();
        slider->setTopValue(42);
        QCOMPARE(topOf(*slider)->geometry(), QRect(0, 7, 50, 30));
        QCOMPARE(topOf(*slider)->text(), QStringLiteral("42"));
        QCOMPARE(topOf(*slider)->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
        QCOMPARE(topOf(*slider)->styleSheet(),
                 QStringLiteral("QLabel{font-size:24px;color:rgb(255,255,255);}"));
        QCOMPARE(valueOf(*slider)->geometry(), QRect(0, 0, 50, 30));
        slider->initWidget();
        QCOMPARE(topOf(*slider)->geometry(), QRect(0, 7, 50, 30));
        QCOMPARE(valueOf(*slider)->geometry(), QRect(0, 0, 50, 30));
    }

    void theFontIsAPropertyOfItsOwn()
    {
        const auto slider = makeSlider();
        QFont font;
        font.setPixelSize(17);
        font.setBold(true);
        QVERIFY(slider->setProperty("font", font));
        QCOMPARE(slider->getFont(), font);
        QCOMPARE(slider->property("font").value<QFont>(), font);
        QCOMPARE(valueOf(*slider)->font().pixelSize(), 17);
        QCOMPARE(static_cast<QWidget &>(*slider).font(), QWidget().font());
    }

    void theFontIsThatOfTheValue()
    {
        const auto slider = makeSlider();
        QFont font;
        font.setPixelSize(17);
        font.setBold(true);
        slider->setFont(font);
        QCOMPARE(slider->getFont(), font);
        QCOMPARE(valueOf(*slider)->font().pixelSize(), 17);
        QVERIFY(!topOf(*slider)->font().bold());
        slider->setFontSize(23);
        QCOMPARE(slider->getFont().pixelSize(), 23);
        QVERIFY(slider->getFont().bold());
        QCOMPARE(valueOf(*slider)->font().pixelSize(), 23);
        slider->setFontSize(0);
        QCOMPARE(slider->getFont().pixelSize(), 23);
    }

    // --- From value to knob and fill
    // --------------------------------------------------------------

    void everyValueHasItsPlace_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("trackHeight");
        QTest::addColumn<int>("knobHeight");
        for (const auto &range : {qMakePair(-5, 5), qMakePair(0, 1), qMakePair(0, 0),
                                  qMakePair(0, 100), qMakePair(-40, 7), qMakePair(5, -5)}) {
            for (const auto &height : {qMakePair(200, 30), qMakePair(101, 17), qMakePair(20, 20),
                                       qMakePair(20, 33), qMakePair(1, 1)})
                QTest::addRow("%d..%d, %d in %d", range.first, range.second, height.second,
                              height.first)
                    << range.first << range.second << height.first << height.second;
        }
    }

    void everyValueHasItsPlace()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, trackHeight);
        QFETCH(int, knobHeight);
        Pictures p;
        p.groove = filled(Qt::gray, {20, trackHeight});
        p.fill = filled(Qt::blue, {24, trackHeight});
        p.knob = filled(Qt::green, {40, knobHeight});
        SpSetupSlider slider;
        slider.setMinValue(minimum);
        slider.setMaxValue(maximum);
        p.giveTo(slider);
        QPoint pos = knobOf(slider)->pos();
        for (int value = -110; value <= 110; ++value) {
            slider.setTouchPos(value);
            if (value >= minimum && value <= maximum) {
                const int travel = trackHeight - knobHeight;
                const int span = maximum - minimum;
                const int offset = span == 0 ? 0 : travel * (value - minimum) / span;
                pos = QPoint(5, 30 + travel - offset);
            }
            QCOMPARE(knobOf(slider)->pos(), pos);
            QCOMPARE(slider.getTouchPos(), pos + QPoint(20, knobHeight / 2));
            if (minimum > maximum || value % 10 != 0)
                continue;
            const int middle = pos.y() + knobHeight / 2;
            COMPARE_PICTURES(paintedItself(slider), reference(slider, [&](QPainter &painter) {
                                 painter.drawPixmap(15, 30, p.groove);
                                 const int rows = 30 + trackHeight - 1 - middle;
                                 if (rows > 0)
                                     painter.drawPixmap(QRect(15, middle, 20, rows), p.fill,
                                                        QRect(0, middle - 30, 24, rows));
                             }));
        }
    }

    // Nothing has placed the knob yet, and nothing has cut the fill.
    void withButtonsAValueOutOfRangeLeavesTheTrackFull()
    {
        SpSetupSlider slider;
        slider.setMinValue(1);
        slider.setHasAddDecBtn(1);
        pictures().giveTo(slider);
        slider.setAddBtnNormalImage(pictures().add);
        slider.setDecBtnNormalImage(pictures().dec);
        slider.setDecBtnPressImage(pictures().decPressed);
        COMPARE_PICTURES(paintedItself(slider), reference(slider, [](QPainter &painter) {
                             painter.drawPixmap(15, 54, pictures().fill);
                         }));
    }

    void withoutAPictureNoFillIsDrawn()
    {
        SpSetupSlider slider;
        Pictures p;
        p.fill = QPixmap();
        p.giveTo(slider);
        COMPARE_PICTURES(paintedItself(slider), reference(slider, [&](QPainter &painter) {
                             painter.drawPixmap(15, 30, p.groove);
                         }));
    }

    void aWholePicture()
    {
        const auto slider = makeSlider();
        slider->setFontSize(20);
        slider->setCurrentValue(3);
        const int y = 30 + 170 - 170 * 8 / 10;
        COMPARE_PICTURES(
            painted(*slider), reference(*slider, [&](QPainter &painter) {
                painter.drawPixmap(15, 30, pictures().groove);
                painter.drawPixmap(15, y + 15, pictures().fill, 0, y + 15 - 30, 20, 229 - y - 15);
                painter.drawPixmap(5, y, pictures().knob);
                painter.setPen(Qt::white);
                QFont font;
                font.setPixelSize(20);
                painter.setFont(font);
                painter.drawText(QRect(0, 0, 50, 30), Qt::AlignHCenter | Qt::AlignBottom,
                                 QStringLiteral("3"));
            }));
    }

    // --- From touch to value
    // ----------------------------------------------------------------------

    void everyRowIsAValue_data() { everyValueHasItsPlace_data(); }

    void everyRowIsAValue()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, trackHeight);
        QFETCH(int, knobHeight);
        Pictures p;
        p.groove = filled(Qt::gray, {20, trackHeight});
        p.knob = filled(Qt::green, {40, knobHeight});
        SpSetupSlider slider;
        slider.setItemID(9);
        slider.setMinValue(minimum);
        slider.setMaxValue(maximum);
        p.giveTo(slider);
        SignalLog log(&slider);
        const int first = 30;
        const int last = 30 + trackHeight - 1;
        int value = slider.currentValue();
        for (int y = -5; y < last + 10; ++y) {
            slider.setTouchPos(QPoint(-3000, y));
            QStringList expected;
            if (first < y && y < last + 1) {
                int knobTop = y - knobHeight / 2;
                if (y < first + knobHeight / 2)
                    knobTop = first;
                else if (y > last + 1 - knobHeight / 2)
                    knobTop = last + 1 - knobHeight;
                const int travel = trackHeight - knobHeight;
                const int touched = travel == 0
                    ? maximum
                    : maximum - (maximum - minimum) * (knobTop - first) / travel;
                if (touched != value) {
                    if (qAbs(touched) <= maximum)
                        value = touched;
                    expected += changed(9, value, slider.getTouchPos());
                }
            }
            QCOMPARE(slider.currentValue(), value);
            QCOMPARE(log.take(), expected);
        }
    }

    void theTopRowIsIgnoredAndTheNextIsTheMaximum()
    {
        const auto slider = makeSlider();
        SignalLog log(slider.get());
        slider->setTouchPos(QPoint(25, 30));
        QCOMPARE(slider->currentValue(), 0);
        slider->setTouchPos(QPoint(25, 230));
        QCOMPARE(slider->currentValue(), 0);
        QCOMPARE(log.take(), QStringList());
        slider->setTouchPos(QPoint(25, 31));
        QCOMPARE(slider->currentValue(), 5);
        slider->setTouchPos(QPoint(25, 229));
        QCOMPARE(slider->currentValue(), -5);
        slider->setTouchPos(QPoint(25, 229 - 14)); // within half a knob of the bottom
        QCOMPARE(slider->currentValue(), -5);
        QCOMPARE(log.take(), (QStringList{changed(0, 5, {25, 45}), changed(0, -5, {25, 215})}));
    }

    // --- Touches --------------------------------------------------------------------------------

    void aTouchInOrder()
    {
        const auto slider = makeSlider();
        slider->setItemID(4);
        SignalLog log(slider.get());
        Touch finger = touch(slider.get());
        finger.press(25, 31).moveTo(25, 32).moveTo(25, 229).release();
        QCoreApplication::processEvents();
        QCOMPARE(log.take(),
                 (QStringList{changed(4, 5, {25, 45}), changed(4, -5, {25, 215}),
                              QStringLiteral("saveDataSig()"),
                              QStringLiteral("sliderRelease(4, -5)"), QStringLiteral("beep")}));
    }

    void aReleaseIsReportedWithoutAChangeToo()
    {
        const auto slider = makeSlider();
        SignalLog log(slider.get());
        touch(slider.get()).tap(25, 5);
        QCOMPARE(
            log.take(),
            (QStringList{QStringLiteral("saveDataSig()"), QStringLiteral("sliderRelease(0, 0)")}));
    }

    void theKnobIsPressedWhileTouched()
    {
        const Pictures &p = pictures();
        checkKnobWhileTouched(*makeSlider(), {25, 5}, knobPicture, p.knobPressed, p.knob);
        Pictures withoutPressed;
        withoutPressed.knobPressed = QPixmap();
        SpSetupSlider plain;
        withoutPressed.giveTo(plain);
        checkKnobWhileTouched(plain, {25, 5}, knobPicture, p.knob, p.knob);
    }

    void aFingerTooFarAsideDragsNoMore_data()
    {
        QTest::addColumn<int>("dx");
        QTest::addColumn<bool>("isDragged");
        QTest::newRow("69 right") << 69 << true;
        QTest::newRow("70 right") << 70 << false;
        QTest::newRow("69 left") << -69 << true;
        QTest::newRow("70 left") << -70 << false;
    }

    void aFingerTooFarAsideDragsNoMore()
    {
        QFETCH(int, dx);
        QFETCH(bool, isDragged);
        const auto slider = makeSlider();
        Touch finger = touch(slider.get());
        finger.press(20, 130).moveTo(20 + dx, 229);
        QCOMPARE(slider->currentValue(), isDragged ? -5 : 0);
        finger.moveTo(20, 31); // and drags on when it comes back
        QCOMPARE(slider->currentValue(), 5);
    }

    void pressAndReleasePaintOnceAndAMoveWithoutChangeNever()
    {
        const auto slider = makeSlider();
        show(*slider);
        Touch finger = touch(slider.get());
        QCOMPARE(paints(*slider, [&] { finger.press(25, 130); }), 1);
        QCOMPARE(paints(*slider, [&] { finger.moveTo(25, 131); }), 0);
        QCOMPARE(paints(*slider, [&] { finger.moveTo(25, 229); }), 1);
        QCOMPARE(paints(*slider, [&] { finger.release(); }), 1);
    }

    void touchesGoOnToTheParent()
    {
        Parent parent;
        const auto slider = makeSlider(&parent);
        show(parent);
        touch(slider.get()).press(25, 130).moveTo(25, 131).release();
        QCOMPARE(parent.events,
                 (QStringList{QStringLiteral("press"), QStringLiteral("move"),
                              QStringLiteral("release")}));
    }

    void theBaseHandlerComesAfterTheSignals()
    {
        const auto slider = makeSlider();
        BaseOrder order(slider.get());
        touch(slider.get()).press(25, 31).moveTo(25, 229).release();
        QCOMPARE(order.before,
                 (QStringList{"valueChangeSig", "valueChangeSig", "saveDataSig", "sliderRelease"}));
        QCOMPARE(order.after, QStringList());
    }

    // --- Buttons --------------------------------------------------------------------------------

    // The touch of a button goes on to the slider, so that it ends like one of its own.
    void buttonsStepByOne()
    {
        const auto slider = makeSliderWithButtons();
        slider->setItemID(8);
        SignalLog log(slider.get());
        SpIconButton *add = buttonOf(*slider, QStringLiteral("Add"));
        SpIconButton *dec = buttonOf(*slider, QStringLiteral("Dec"));
        touch(add).tap(5, 5);
        QCOMPARE(slider->currentValue(), 1);
        QCOMPARE(log.take(),
                 (QStringList{changed(8, 1, slider->getTouchPos()), QStringLiteral("saveDataSig()"),
                              QStringLiteral("sliderRelease(8, 1)")}));
        touch(dec).tap(5, 5).tap(5, 5);
        QCOMPARE(slider->currentValue(), -1);
        QCOMPARE(log.take().size(), 6);
    }

    void aHeldButtonStepsAgainAndAgain()
    {
        const auto slider = makeSliderWithButtons();
        SignalLog log(slider.get());
        SpIconButton *add = buttonOf(*slider, QStringLiteral("Add"));
        Touch finger = touch(add);
        finger.press(5, 5).hold(999);
        QCOMPARE(slider->currentValue(), 0);
        finger.hold(1);
        QCOMPARE(slider->currentValue(), 1);
        finger.hold(400);
        QCOMPARE(slider->currentValue(), 3);
        QCOMPARE(log.take().filter(QStringLiteral("valueChangeSig")).size(), 3);
        finger.release();
        QCOMPARE(slider->currentValue(), 3);
        QCOMPARE(
            log.take(),
            (QStringList{QStringLiteral("saveDataSig()"), QStringLiteral("sliderRelease(0, 3)")}));
    }

    void aStepBeyondTheRangeIsReportedWithTheOldValue()
    {
        const auto slider = makeSliderWithButtons();
        slider->setCurrentValue(-5);
        SignalLog log(slider.get());
        touch(buttonOf(*slider, QStringLiteral("Dec"))).tap(5, 5);
        QCOMPARE(slider->currentValue(), -5);
        QCOMPARE(log.take().first(), changed(0, -5, slider->getTouchPos()));
    }

    void aStepBelowTheMinimumShowsWhileTheKnobStays()
    {
        const auto slider = makeSliderWithButtons();
        slider->setMinValue(0);
        slider->setMaxValue(10);
        slider->setCurrentValue(0);
        const QPoint knob = knobOf(*slider)->pos();
        touch(buttonOf(*slider, QStringLiteral("Dec"))).tap(5, 5);
        QCOMPARE(valueOf(*slider)->text(), QStringLiteral("-1"));
        QCOMPARE(slider->currentValue(), -1);
        QCOMPARE(knobOf(*slider)->pos(), knob);
    }

    void anyOtherButtonReportsTheValue()
    {
        const auto slider = makeSlider();
        SignalLog log(slider.get());
        QVERIFY(QMetaObject::invokeMethod(slider.get(), "btnAddDecClickedSlot",
                                          Q_ARG(QString, QStringLiteral("add"))));
        QCOMPARE(slider->currentValue(), 0);
        QCOMPARE(log.take(), QStringList{changed(0, 0, slider->getTouchPos())});
    }

    void stepsDoNotOverflow()
    {
        const auto slider = makeSliderWithButtons();
        slider->setMaxValue(INT_MAX);
        slider->setMinValue(INT_MIN);
        slider->setCurrentValue(INT_MAX);
        QCOMPARE(knobOf(*slider)->y(), 54);
        touch(buttonOf(*slider, QStringLiteral("Add"))).tap(5, 5);
        QCOMPARE(slider->currentValue(), INT_MAX);
        slider->setCurrentValue(-INT_MAX);
        QCOMPARE(knobOf(*slider)->y(), 54 + 170);
        touch(buttonOf(*slider, QStringLiteral("Dec"))).tap(5, 5);
        QCOMPARE(slider->currentValue(), -INT_MAX); // |INT_MIN| is more than the maximum
        slider->setTouchPos(QPoint(0, 55));
        QCOMPARE(slider->currentValue(), INT_MAX);
        slider->setTouchPos(QPoint(0, 253));
        QCOMPARE(slider->currentValue(), INT_MAX); // that would be INT_MIN
    }

    // --- Enabling -------------------------------------------------------------------------------

    void everythingButTheNumberAtTheTopFollowsTheEnabledState()
    {
        const auto slider = makeSliderWithButtons();
        const QVector<QWidget *> parts{knobOf(*slider), valueOf(*slider),
                                       buttonOf(*slider, QStringLiteral("Add")),
                                       buttonOf(*slider, QStringLiteral("Dec"))};
        slider->setEnabled(false);
        for (QWidget *part : parts)
            QVERIFY(part->testAttribute(Qt::WA_ForceDisabled));
        QVERIFY(!topOf(*slider)->testAttribute(Qt::WA_ForceDisabled));
        slider->setEnabled(true);
        for (QWidget *part : parts)
            QVERIFY(part->isEnabled());
        slider->setEnabled(false);
        const QImage grey = painted(*slider);
        slider->setEnabled(true);
        QVERIFY(painted(*slider) != grey);
    }

    void aSliderWithoutLayoutMayBeDisabled()
    {
        SpSetupSlider slider;
        slider.setEnabled(false);
        QVERIFY(!valueOf(slider)->isEnabled());
    }

    // --- Robustness -----------------------------------------------------------------------------

    void aSliderWithoutLayoutTakesTouchesAndValues()
    {
        SpSetupSlider slider;
        SignalLog log(&slider);
        touch(&slider).press(5, 5).moveTo(5, -1).moveTo(5, 0).release();
        QCOMPARE(
            log.take(),
            (QStringList{QStringLiteral("saveDataSig()"), QStringLiteral("sliderRelease(0, 0)")}));
        slider.setCurrentValue(3);
        QCOMPARE(slider.currentValue(), 3);
        COMPARE_PICTURES(paintedItself(slider), reference(slider, [](QPainter &) {}));
    }

    void aSliderMayBeDeletedByAnyReport()
    {
        checkMayBeDeletedByAnyReport([] { return makeSlider(); }, 3,
                                     [](QWidget *s) { touch(s).tap(25, 31); });
        auto *slider = makeSliderWithButtons().release();
        const QPointer<SpSetupSlider> guard(slider);
        connect(slider, &SpSetupSlider::valueChangeSig, slider, [slider] { delete slider; });
        touch(buttonOf(*slider, QStringLiteral("Add"))).press(5, 5).hold(1500);
        QVERIFY(!guard);
        auto *moved = makeSlider().release();
        const QPointer<SpSetupSlider> movedGuard(moved);
        Touch finger = touch(moved);
        finger.press(25, 130);
        connect(moved, &SpSetupSlider::valueChangeSig, moved, [moved] { delete moved; });
        finger.moveTo(25, 229);
        QVERIFY(!movedGuard);
    }

    void buttonsMayBeDeleted()
    {
        const auto slider = makeSliderWithButtons();
        qDeleteAll(slider->findChildren<SpIconButton *>());
        slider->setEnabled(false);
        QVERIFY(!valueOf(*slider)->isEnabled());
    }

    void aTrackThatIsKeptFollowsItsInputs()
    {
        const auto make = [] { return makeSlider(); };
        checkKeptLook<SpSetupSlider>(
            make,
            {{"value", [](SpSetupSlider &s) { s.setCurrentValue(3); }},
             {"fill",
              [](SpSetupSlider &s) {
                  s.setSliderPressImage(filled(Qt::darkRed, {20, 200}));
              }},
             {"track",
              [](SpSetupSlider &s) {
                  s.setSliderNormalImage(filled(Qt::darkCyan, {20, 200}));
              }},
             {"place",
              [](SpSetupSlider &s) {
                  s.setSliderNormalImage(filled(Qt::darkCyan, {30, 220}));
                  s.initWidget();
              }},
             {"no fill", [](SpSetupSlider &s) { s.setSliderPressImage(QPixmap()); }}});
        checkKeptLookElsewhere<SpSetupSlider>(make);
    }
};

WIDGET_TEST_MAIN(tst_SpSetupSlider)
#include "tst_spsetupslider.moc"
