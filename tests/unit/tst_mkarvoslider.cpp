// SPDX-License-Identifier: Apache-2.0
// Frequencies are float, single multiplications and divisions are rounded one by one, and what is
// named so is a fused multiply-add: all of it whatever the width of qreal and the processor. Only
// the comparisons with the tolerance are double. What is expected is computed here once more in
// float, or with whole numbers of hundredths.

#include <MKARVOSlider>

#include "deletion.h"
#include "fusedcount.h"
#include "logrecord.h"
#include "parent.h"
#include "radiobands.h"
#include "radiosetters.h"
#include "setters.h"
#include "signallog.h"
#include "tablerows.h"
#include "touch.h"
#include "widgettest.h"

#include <QPainter>
#include <QResizeEvent>

#include <climits>
#include <cmath>
#include <limits>

namespace
{

using Action = std::function<void(MKARVOSlider &)>;

QPixmap indicator(const QSize &size = QSize(9, 60))
{
    QPixmap pixmap(size);
    pixmap.fill(QColor(255, 120, 0, 160));
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), QBrush(QColor(0, 60, 120), Qt::DiagCrossPattern));
    return pixmap;
}

float displayed(const RadioBand &band, int freq)
{
    return band.isFM ? float(freq) / 100.0F : float(freq);
}

std::unique_ptr<MKARVOSlider> makeSlider(const QSize &size = QSize(680, 160))
{
    auto slider = std::make_unique<MKARVOSlider>(nullptr);
    slider->resize(size);
    painted(*slider); // a hidden widget hears of its size with the first paint
    return slider;
}

// 500 to 1720 in 610 px: half a pixel for each kHz.
std::unique_ptr<MKARVOSlider> makeAm()
{
    auto slider = makeSlider();
    call(*slider, false, 522.0F, 1620.0F, 9.0F);
    return slider;
}

// The scale drawn is the band.
std::unique_ptr<MKARVOSlider> makeFor(const RadioBand &band)
{
    auto slider = makeSlider();
    slider->setFreqStart(displayed(band, band.start));
    slider->setFreqEnd(displayed(band, band.end));
    slider->setFreqStep(displayed(band, band.step));
    call(*slider, band.isFM, displayed(band, band.start), displayed(band, band.end),
         displayed(band, band.step));
    slider->setCurFreq(displayed(band, band.start));
    return slider;
}

int stepsOf(const MKARVOSlider &s)
{
    const int step = int(s.getFreqStep() * 100.0F);
    return step == 0 ? 0 : int((s.getFreqEnd() - s.getFreqStart()) * 100.0F) / step;
}

float gapOf(const MKARVOSlider &s)
{
    return (float(s.width()) - float(2 * s.marginX())) / float(stepsOf(s));
}

// A tick with its kind, line after line, with QLineF.
void paintTick(QPainter &p, const MKARVOSlider &s, float x, float f)
{
    const int h = s.height();
    const int u = s.getLineH();
    const bool isTextTop = s.getTextPosition() == MKARVOSlider::TextTop;
    const int ty = isTextTop ? s.getTextMarginY() : h - 1 - 25 + s.getTextMarginY();
    const int overText = h - 1 - 25 + s.getTextMarginY() + s.getScaleMarginY();
    const bool isTop = s.scaleAlign() == MKARVOSlider::AlignTop;
    const bool isCentre = s.scaleAlign() == MKARVOSlider::AlignCenter;
    int base = isTextTop ? h - 1 + s.getScaleMarginY() : overText;
    if (isTop)
        base = isTextTop ? 25 + s.getTextMarginY() + s.getScaleMarginY() : s.getScaleMarginY();
    else if (isCentre)
        base = isTextTop ? s.getScaleMarginY() : overText;
    const auto line = [&](int from, int to, int alpha = -1) {
        QColor color = s.getLineColor();
        if (alpha >= 0)
            color.setAlpha(alpha);
        p.setPen(color);
        p.drawLine(QLineF(qreal(x), qreal(base + from * u), qreal(x), qreal(base + to * u)));
    };
    const int n = int(s.getIsFM() ? f * 100.0F : f);
    if (n % 100 == 0) {
        line(0, isTop || isCentre ? 3 : -3);
        p.drawText(QRectF(qreal(x - 30.0F), qreal(ty), 60, 25), Qt::AlignCenter,
                   QStringLiteral("%1").arg(double(f)));
    } else if (n % (s.getIsFM() ? 50 : 10) == 0) {
        line(0, isTop ? 0 : isCentre ? 1 : -4, 70);
        line(isTop ? 0 : isCentre ? 1 : -4, isTop ? 2 : isCentre ? 3 : -2);
    }
}

void paintAll(QPainter &p, const MKARVOSlider &s)
{
    p.setPen(s.getLineColor());
    p.setFont(s.getFont());
    const auto leftX = float(s.marginX());
    float x = leftX;
    for (int i = 0; i <= stepsOf(s); ++i) {
        paintTick(p, s, x, std::fma(float(i), s.getFreqStep(), s.getFreqStart()));
        x += gapOf(s);
    }
    const float steps = (s.getCurFreq() - s.getFreqStart()) * 100.0F / (s.getFreqStep() * 100.0F);
    const int xc = int(std::fma(gapOf(s), steps, leftX));
    const QPixmap pix = s.getIndicatePix();
    p.drawPixmap(
        QRectF(QRect(xc - pix.width() / 2, (s.height() - pix.height()) / 2 + s.getPointMarginY(),
                     pix.width(), pix.height())),
        pix, QRectF());
}

bool isAsDocumented(MKARVOSlider &slider)
{
    return isSamePicture(
        {painted(slider), reference(slider, [&](QPainter &p) { paintAll(p, slider); })}, __FILE__,
        __LINE__);
}

class Handlers : public MKARVOSlider
{
public:
    Handlers() : MKARVOSlider(nullptr) { }
    using MKARVOSlider::resizeEvent;
};

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_MKARVOSlider : public WidgetTest
{
    Q_OBJECT

private slots:
    void thePictureIsTheOneThatWasSet()
    {
        MKARVOSlider slider(nullptr);
        const QPixmap picture = indicator();
        slider.setIndicatePix(picture);
        QCOMPARE(slider.getIndicatePix().cacheKey(), picture.cacheKey());
    }

    void defaults()
    {
        const MKARVOSlider slider(nullptr);
        QFont font;
        font.setPixelSize(20);
        QVERIFY(slider.getIndicatePix().isNull());
        QCOMPARE(slider.getLineColor(), QColor(255, 255, 255, 255));
        QCOMPARE(slider.getFont(), font);
        QCOMPARE(slider.getRealMinFreq(), 1620.0F);
        QCOMPARE(slider.getRealMaxFreq(), 522.0F);
        QCOMPARE(slider.getRealFreqStep(), 9.0F);
        QCOMPARE(slider.getLineH(), 30);
        QCOMPARE(slider.getLineW(), 1);
        QCOMPARE(slider.getFreqStart(), 500.0F);
        QCOMPARE(slider.getFreqEnd(), 1720.0F);
        QCOMPARE(slider.getFreqStep(), 20.0F);
        QCOMPARE(slider.getIsFM(), false);
        QCOMPARE(slider.marginY(), 0);
        QCOMPARE(slider.marginX(), 35);
        QCOMPARE(slider.scaleAlign(), MKARVOSlider::AlignCenter);
        QCOMPARE(slider.getTextPosition(), MKARVOSlider::TextTop);
        QCOMPARE(slider.getTextMarginY(), 5);
        QCOMPARE(slider.getScaleMarginY(), 40);
        QCOMPARE(slider.getPointMarginY(), 46);
        QCOMPARE(slider.getCurFreq(), 800.0F);
        QCOMPARE(slider.getLineGap(), int((float(slider.width()) - 70.0F) / 61.0F));
        QVERIFY(!slider.hasMouseTracking());
    }

    void repaintsOfSetters_data()
    {
        const TableRows<int, Action> row("expected", "action");
        addRadioSetters<MKARVOSlider>(row, indicator(), 1);
        row("marginX", 1, [](auto &s) { s.setMarginX(35); });
        row("textPosition", 0, [](auto &s) { s.setTextPosition(MKARVOSlider::TextBottom); });
        row("RealMinFreq", 0, [](auto &s) { s.setRealMinFreq(3); });
        row("RealMaxFreq", 0, [](auto &s) { s.setRealMaxFreq(3); });
        row("RealFreqStep", 0, [](auto &s) { s.setRealFreqStep(3); });
        row("curFreq", 1, [](auto &s) { s.setCurFreq(1000.0F); });
        row("curFreq unchanged", 1, [](auto &s) { s.setCurFreq(800.0F); });
        row("curFreq outside", 0, [](auto &s) { s.setCurFreq(499.0F); });
        row("a tuned frequency", 1, [](auto &s) { call(s, 900.0F); });
    }

    void repaintsOfSetters() { checkRepaints(*makeSlider()); }

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row("value");
        addRadioProperties<MKARVOSlider>(row, 600, QFont());
        row("marginX", 600);
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(MKARVOSlider(nullptr)); }

    void asPropertiesFrequenciesAreWholeNumbers()
    {
        MKARVOSlider slider(nullptr);
        slider.setFreqStart(87.9F);
        QCOMPARE(slider.property("freqStart"), QVariant(87));
        slider.setFreqEnd(std::numeric_limits<float>::infinity());
        QCOMPARE(slider.property("freqEnd"), QVariant(INT_MAX));
        slider.setProperty("freqStep", 0.6); // converted before it is written
        QCOMPARE(slider.getFreqStep(), 1.0F);
    }

    // --- The layout of the scale ----------------------------------------------------------------

    void theGapIsTheWidthBetweenTheMarginsForTheSteps()
    {
        const auto slider = makeSlider();
        QCOMPARE(slider->getLineGap(), 10);
        slider->setMarginX(4); // 672 px for 61 steps
        QCOMPARE(slider->getLineGap(), 11);
        slider->setFreqStep(5.0F); // 244 steps
        QCOMPARE(slider->getLineGap(), 2);
        slider->setFreqEnd(600.0F);
        QCOMPARE(slider->getLineGap(), 2); // stored only
        slider->setIsFM(true); // lays it out
        QCOMPARE(slider->getLineGap(), 33);
        slider->setLineGap(7);
        QCOMPARE(slider->getLineGap(), 7);
        slider->initSliderRange();
        QCOMPARE(slider->getLineGap(), 33);
        slider->setFreqStart(580.0F);
        QCOMPARE(slider->getLineGap(), 33); // stored only
        call(*slider, false, 1, 2, 3); // lays it out
        QCOMPARE(slider->getLineGap(), 168);
    }

    void aResizeLaysTheScaleOut()
    {
        Handlers slider;
        slider.setFreqEnd(600.0F);
        slider.resize(270, 100);
        slider.resizeEvent(nullptr);
        const int before = slider.getLineGap();
        QResizeEvent event({270, 100}, {640, 480});
        slider.resizeEvent(&event);
        QCOMPARE(slider.getLineGap(), 40);
        QVERIFY(before != 40);
    }

    void aGapOfOnesOwnIsDrawn()
    {
        const auto slider = makeSlider();
        slider->setLineGap(3);
        slider->setFreqEnd(560.0F);
        const QImage picture = painted(*slider);
        QVERIFY(qAlpha(picture.pixel(35 + 3 * 5, 60)) > 0); // 600 of the scale that is laid out
        slider->setFreqStep(20.0F);
        QVERIFY(isAsDocumented(*slider));
    }

    // --- Snapping -------------------------------------------------------------------------------

    void theDefaultBandIsUpsideDown()
    {
        MKARVOSlider slider(nullptr);
        QCOMPARE(slider.calFreqRule(0.0F), 1620.0F);
        QCOMPARE(slider.calFreqRule(522.0F), 1620.0F);
        QCOMPARE(slider.calFreqRule(1619.9F), 1620.0F);
        QCOMPARE(slider.calFreqRule(1620.0F), 522.0F);
        QCOMPARE(slider.calFreqRule(9999.0F), 522.0F);
    }

    void anyDragInTheDefaultBandYieldsItsEnds()
    {
        const auto slider = makeSlider();
        SignalLog log(slider.get());
        touch(slider.get()).press(100, 5).moveTo(200, 5).moveTo(670, 5).moveTo(100, 5).release();
        QCOMPARE(log.take(),
                 (QStringList{
                     QStringLiteral("mousePressed(true)"), QStringLiteral("freqChangedSgl(1620)"),
                     QStringLiteral("freqChangedSgl(522)"), QStringLiteral("freqChangedSgl(1620)"),
                     QStringLiteral("mousePressed(false)")}));
    }

    void everyStepOfEveryBandSnapsToItself_data()
    {
        QTest::addColumn<int>("row");
        for (int row = 0; row < int(std::size(kRadioBands)); ++row)
            QTest::newRow(kRadioBands[row].name) << row;
    }

    // A multiple of the step stays, as does what is nearer to it than half a step.
    void everyStepOfEveryBandSnapsToItself()
    {
        QFETCH(int, row);
        const RadioBand &band = kRadioBands[row];
        const auto slider = makeFor(band);
        const int unit = band.isFM ? 1 : 100; // hundredths
        const int step = band.step * unit;
        const int first = (band.start * unit + step - 1) / step * step;
        for (int h = first; h <= band.end * unit; h += step) {
            for (int away = -step / 2; away < step / 2; away += step / 4) {
                const int asked = h + away;
                const float f = float(asked) / 100.0F;
                const int n = int(f * 100.0F); // may be a hundredth less
                const int rest = n - n / step * step;
                int expected = rest < step / 2 ? n - rest : n - rest + step;
                if (asked < band.start * unit)
                    expected = band.start * unit;
                // What f has below a hundredth is carried along.
                const float carried = f * 100.0F - float(n);
                const bool isClamped = asked < band.start * unit;
                const float hundredths = float(expected) + (isClamped ? 0.0F : carried);
                QVERIFY(std::fabs(slider->calFreqRule(f) * 100.0F - hundredths) < 0.05F);
            }
        }
        QCOMPARE(slider->calFreqRule(0.0F), displayed(band, band.start));
        QCOMPARE(slider->calFreqRule(1e9F), displayed(band, band.end));
    }

    void snapping_data()
    {
        QTest::addColumn<float>("freq");
        QTest::addColumn<float>("snapped");
        QTest::newRow("down") << 1000.0F << 999.0F; // 100 of 900 left
        QTest::newRow("up") << 1004.0F << 1008.0F;
        QTest::newRow("half goes up") << 1003.5F << 1008.0F;
        QTest::newRow("less than half") << 1003.49F << 999.0F;
        QTest::newRow("the fraction below a hundredth stays")
            << 1000.004F << (1000.004F * 100.0F - 100.0F) / 100.0F;
        QTest::newRow("below the tolerance") << 521.9999F << 522.0F;
        QTest::newRow("above the maximum") << 1620.5F << 1620.0F;
        QTest::newRow("the maximum") << 1620.0F << 1620.0F;
    }

    void snapping()
    {
        QFETCH(float, freq);
        QFETCH(float, snapped);
        const auto slider = makeAm();
        QCOMPARE(slider->calFreqRule(freq), snapped);
    }

    void theEndsOfTheBandHaveATolerance()
    {
        const auto slider = makeFor(kRadioBands[0]);
        QCOMPARE(slider->calFreqRule(87.4999F), 87.5F);
        QCOMPARE(slider->calFreqRule(108.0001F), 108.0F);
        // Nearer than 5e-5 they are snapped like any other: from 9 of 10 hundredths up, from 0
        // down.
        const float below = slider->calFreqRule(87.49997F);
        QVERIFY(below > 87.5099F && below < 87.51F);
        const float above = slider->calFreqRule(108.00003F);
        QVERIFY(above > 108.0F && above < 108.00005F);
    }

    void withoutARealStepNothingIsLeft()
    {
        const auto slider = makeSlider();
        call(*slider, true, 87.5F, 108.0F, 0.0F);
        // A step of nothing leaves all of the frequency as the rest: none of it is snapped.
        const float freq = 98.5F;
        const float base = freq * 100.0F - 9850.0F;
        QCOMPARE(slider->calFreqRule(freq), base / 100.0F);
    }

    // --- Touches --------------------------------------------------------------------------------

    void aDragReportsEachChangeOfTheSnappedFrequency()
    {
        const auto slider = makeAm();
        slider->setCurFreq(999.0F);
        SignalLog log(slider.get());
        Touch finger = touch(slider.get());
        finger.press(285, 5); // 1000
        QCOMPARE(slider->getCurFreq(), 999.0F);
        finger.moveTo(285, 5);
        finger.moveTo(286, 5); // 1002
        QCOMPARE(log.take(), QStringList{QStringLiteral("mousePressed(true)")});
        finger.moveTo(287, 5); // 1004
        QCOMPARE(log.take(), QStringList{QStringLiteral("freqChangedSgl(1008)")});
        QCOMPARE(slider->getCurFreq(), 1008.0F);
        finger.moveTo(0, 5);
        finger.moveTo(9999, 5);
        QCOMPARE(log.take(),
                 (QStringList{QStringLiteral("freqChangedSgl(522)"),
                              QStringLiteral("freqChangedSgl(1620)")}));
        finger.release();
        QCOMPARE(log.take(), QStringList{QStringLiteral("mousePressed(false)")});
    }

    void aDragWithinOneSnappedValueReportsNothing()
    {
        const auto slider = makeAm();
        show(*slider);
        Touch finger = touch(slider.get());
        finger.press(285, 5).moveTo(285, 5);
        SignalLog log(slider.get());
        QCOMPARE(paints(*slider, [&] { finger.moveTo(286, 5).moveTo(284, 5); }), 0);
        QCOMPARE(log.take(), QStringList());
    }

    // The numbers next to 98.5 in single precision are 0.0000076 apart.
    void aChangeTooSmallToMatterIsNone()
    {
        const auto slider = makeFor(kRadioBands[0]);
        slider->resize(685, 160);
        show(*slider);
        SignalLog log(slider.get());
        slider->setCurFreq(98.50004F);
        QVERIFY(slider->getCurFreq() != 98.5F);
        Touch finger = touch(slider.get());
        finger.press(35 + 330, 5);
        QCoreApplication::processEvents();
        QCOMPARE(paints(*slider, [&] { finger.moveTo(35 + 330, 5); }), 0);
        QVERIFY(slider->getCurFreq() == 98.50004F);
        slider->setCurFreq(98.50006F);
        finger.moveTo(35 + 330, 5);
        QVERIFY(slider->getCurFreq() == 98.5F);
        QCOMPARE(log.take(),
                 (QStringList{QStringLiteral("mousePressed(true)"),
                              QStringLiteral("freqChangedSgl(9850)")}));
    }

    void aReleaseReportsItselfBeforeTheFrequency()
    {
        const auto slider = makeAm();
        SignalLog log(slider.get());
        touch(slider.get()).tap(285, 5);
        QCOMPARE(log.take(),
                 (QStringList{QStringLiteral("mousePressed(true)"),
                              QStringLiteral("mousePressed(false)"),
                              QStringLiteral("freqChangedSgl(999)")}));
    }

    void theFrequencyOfAReleaseIsComputedBeforeTheReleaseIsReported()
    {
        const auto slider = makeAm();
        connect(slider.get(), &MKARVOSlider::mousePressed, slider.get(), [&](bool isPressed) {
            if (!isPressed)
                slider->setRealMinFreq(1530.0F);
        });
        touch(slider.get()).tap(285, 5);
        QCOMPARE(slider->getCurFreq(), 999.0F);
    }

    void touchesAskForNoSoundAndStayHere()
    {
        Parent parent;
        const auto slider = makeAm();
        slider->setParent(&parent);
        SignalLog log(slider.get());
        Touch finger = touch(slider.get());
        QVERIFY(finger.press(285, 5).wasAccepted());
        QVERIFY(finger.moveTo(284, 5).wasAccepted());
        QVERIFY(finger.release().wasAccepted());
        QCoreApplication::processEvents();
        QCOMPARE(log.take(),
                 (QStringList{QStringLiteral("mousePressed(true)"),
                              QStringLiteral("freqChangedSgl(999)"),
                              QStringLiteral("mousePressed(false)")}));
        QCOMPARE(parent.events, QStringList());
    }

    void theFrequencyIsSetBeforeItIsReported()
    {
        const auto slider = makeAm();
        float seen = 0;
        connect(slider.get(), &MKARVOSlider::freqChangedSgl, slider.get(),
                [&] { seen = slider->getCurFreq(); });
        touch(slider.get()).tap(285, 5);
        QCOMPARE(seen, 999.0F);
    }

    void aDragStepPaintsOnce()
    {
        const auto slider = makeAm();
        show(*slider);
        Touch finger = touch(slider.get());
        finger.press(285, 5);
        QCOMPARE(paints(*slider, [&] { finger.moveTo(300, 5); }), 1);
    }

    void fmLeavesInHundredths()
    {
        const auto slider = makeFor(kRadioBands[0]);
        SignalLog log(slider.get());
        call(*slider, 9850.0F);
        QCOMPARE(slider->getCurFreq(), 98.5F);
        QCOMPARE(log.take(), QStringList());
        slider->resize(685, 160);
        painted(*slider);
        slider->setCurFreq(90.0F);
        touch(slider.get()).press(35 + 330, 5).moveTo(35 + 330, 5); // 110 steps of 3 px
        QCOMPARE(slider->getCurFreq(), 98.5F);
        QCOMPARE(log.take(),
                 (QStringList{QStringLiteral("mousePressed(true)"),
                              QStringLiteral("freqChangedSgl(9850)")}));
    }

    void amLeavesTruncated()
    {
        const auto slider = makeSlider();
        call(*slider, false, 522.6F, 1620.9F, 9.0F);
        SignalLog log(slider.get());
        touch(slider.get()).press(0, 0).moveTo(0, 0).moveTo(9999, 0);
        QCOMPARE(log.take(),
                 (QStringList{QStringLiteral("mousePressed(true)"),
                              QStringLiteral("freqChangedSgl(522)"),
                              QStringLiteral("freqChangedSgl(1620)")}));
        QCOMPARE(slider->getCurFreq(), 1620.9F);
    }

    void everyPixelOfEveryBandIsAStation_data() { everyStepOfEveryBandSnapsToItself_data(); }

    // Pixel to frequency, and the indicator back to the pixel.
    void everyPixelOfEveryBandIsAStation()
    {
        QFETCH(int, row);
        const RadioBand &band = kRadioBands[row];
        const auto slider = makeFor(band);
        slider->setIndicatePix(indicator());
        Touch finger = touch(slider.get());
        finger.press(0, 0);
        for (int x = 0; x < 680; x += 7) {
            finger.moveTo(x, 0);
            const float steps = (float(x) - 35.0F) / gapOf(*slider);
            const float asked = std::fma(slider->getFreqStep(), steps, slider->getFreqStart());
            const float expected = slider->calFreqRule(asked);
            QVERIFY(std::fabs(slider->getCurFreq() - expected) <= 5e-5F);
            const int hundredths = int(asked * 100.0F);
            const int step = band.step * (band.isFM ? 1 : 100);
            const int far = std::abs(int(std::lround(expected * 100.0F)) - hundredths);
            const bool isInside = x >= 35 && x <= 645;
            QVERIFY(!isInside || far <= step / 2 + 1);
            if (x % 98 == 0)
                QVERIFY(isAsDocumented(*slider));
        }
    }

    void aTunedFrequencyOutsideTheScaleIsIgnored()
    {
        const auto slider = makeAm();
        call(*slider, 1721.0F);
        QCOMPARE(slider->getCurFreq(), 800.0F);
        call(*slider, 1719.3F);
        QCOMPARE(slider->getCurFreq(), 1719.3F); // not snapped
        QVERIFY(slider->isValidFreq(500.0F));
        QVERIFY(slider->isValidFreq(1720.0F));
        QVERIFY(!slider->isValidFreq(std::nextafter(1720.0F, 2000.0F)));
        QVERIFY(!slider->isValidFreq(std::nextafter(500.0F, 0.0F)));
    }

    void aBandIsLoggedAndIsForSnappingOnly()
    {
        const auto slider = makeSlider();
        LogRecord log;
        call(*slider, true, 87.5F, 108.0F, 0.1F);
        const QVector<LoggedLine> lines = log.take();
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines[0].text, QStringLiteral("====>>>>freqParamChangedSlot  true 87.5 108 0.1"));
        QCOMPARE(lines[0].file, QStringLiteral("src/mkarvoslider"));
        QCOMPARE(
            lines[0].function,
            QStringLiteral("void MKARVOSlider::freqParamChangedSlot(bool, float, float, float)"));
        QCOMPARE(slider->getIsFM(), true);
        QCOMPARE(slider->getRealMinFreq(), 87.5F);
        QCOMPARE(slider->getRealMaxFreq(), 108.0F);
        QCOMPARE(slider->getRealFreqStep(), 0.1F);
        QCOMPARE(slider->getFreqStart(), 500.0F);
        QCOMPARE(slider->getFreqEnd(), 1720.0F);
        QCOMPARE(slider->getFreqStep(), 20.0F);
        QCOMPARE(slider->getCurFreq(), 800.0F);
        call(*slider, false, 1, 2, 3);
        QCOMPARE(log.takeTexts(),
                 QStringList{QStringLiteral("====>>>>freqParamChangedSlot  false 1 2 3")});
    }

    // --- Painting -------------------------------------------------------------------------------

    void pictures_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("position");
        for (int row = -1; row < int(std::size(kRadioBands)); ++row) {
            for (const int mode : {0, 1, 2, 3, -7}) {
                for (const int position : {0, 1})
                    QTest::addRow("%s, mode %d, text %d",
                                  row < 0 ? "default" : kRadioBands[row].name, mode, position)
                        << row << mode << position;
            }
        }
    }

    void pictures()
    {
        QFETCH(int, row);
        QFETCH(int, mode);
        QFETCH(int, position);
        const auto slider = row < 0 ? makeSlider() : makeFor(kRadioBands[row]);
        slider->setIndicatePix(indicator());
        slider->setScaleAlign(MKARVOSlider::ScaleAlignmentMode(mode));
        slider->setTextPosition(MKARVOSlider::TextPosition(position));
        QVERIFY(isAsDocumented(*slider));
        slider->setLineH(9);
        slider->setTextMarginY(-3);
        slider->setScaleMarginY(31);
        slider->setPointMarginY(-5);
        slider->setLineColor(QColor(90, 200, 255, 130));
        QVERIFY(isAsDocumented(*slider));
        slider->setScaleMarginY(2); // over the labels
        QVERIFY(isAsDocumented(*slider));
        slider->setLineColor(QColor());
        QVERIFY(isAsDocumented(*slider));
        QVERIFY(isAsDocumented(*slider)); // from what is kept
    }

    // Every fraction of a pixel is met; lines of no length are points, which Qt rounds otherwise.
    void ticksStandWhereQtPutsThem()
    {
        for (int width = 90; width < 190; ++width) {
            const auto slider = makeSlider({width, 60});
            slider->setScaleMarginY(20);
            slider->setLineH(width % 3);
            slider->setMarginX(width % 7 - 3);
            for (const int mode : {0, 1, 2}) {
                slider->setScaleAlign(MKARVOSlider::ScaleAlignmentMode(mode));
                QVERIFY(isAsDocumented(*slider));
            }
        }
    }

    // Rounded twice, tick 384 would stand at 433.49997 and be no middle one.
    void tickFrequenciesAreFused()
    {
        const auto slider = makeSlider({2900, 100});
        slider->setFreqStart(87.9F);
        slider->setFreqEnd(450.0F);
        slider->setIsFM(true);
        slider->setFreqStep(0.9F);
        QVERIFY(isAsDocumented(*slider));
    }

    // Rounded twice, it would stand a pixel further right.
    void theIndicatorsPlaceIsFused()
    {
        const auto slider = makeFor(kRadioBands[0]);
        slider->resize(1095, 160);
        slider->setIndicatePix(indicator());
        painted(*slider);
        slider->setCurFreq(87.5F + 0.1F * 201.0F);
        QVERIFY(isAsDocumented(*slider));
    }

    void minorTicksAreNotDrawn()
    {
        const auto slider = makeSlider();
        slider->setFreqStep(5.0F); // 2.5 px: every other tick is no multiple of ten
        slider->setTextPosition(MKARVOSlider::TextBottom);
        slider->setScaleMarginY(-90);
        QVERIFY(isAsDocumented(*slider));
        const QImage picture = painted(*slider);
        int lines = 0;
        for (int x = 0; x < 680; ++x)
            lines += qAlpha(picture.pixel(x, 160 - 1 - 25 + 5 - 90 + 80)) > 0;
        QCOMPARE(lines, 123);
    }

    void aDenseScaleIsThatOfTickAfterTick()
    {
        const auto slider = makeSlider({200, 100});
        slider->setLineColor(QColor(200, 90, 30));
        slider->setScaleMarginY(55);
        for (const int mode : {0, 1, 2}) {
            slider->setScaleAlign(MKARVOSlider::ScaleAlignmentMode(mode));
            for (const float step : {3.0F, 1.0F, 0.25F}) {
                slider->setFreqStep(step);
                QVERIFY(isAsDocumented(*slider));
            }
        }
    }

    // Ten px between the margins: so many ticks share each column.
    void ticksInOneColumnAreAllDrawn_data()
    {
        QTest::addColumn<int>("steps");
        QTest::newRow("15 labels") << 300;
        QTest::newRow("17 labels") << 340;
        QTest::newRow("64 lines") << 640;
        QTest::newRow("66 lines") << 660;
        QTest::newRow("thousands") << 9999;
        QTest::newRow("the most") << 100000;
    }

    void ticksInOneColumnAreAllDrawn()
    {
        QFETCH(int, steps);
        const auto slider = makeSlider({80, 60});
        slider->setLineH(9);
        slider->setScaleMarginY(25); // feet under the labels
        slider->setFreqStart(0.0F);
        slider->setFreqEnd(float(steps) / 2);
        slider->setIsFM(true);
        slider->setFreqStep(0.5F); // every other is a major one, the others are middle ones
        for (const QColor &color : {QColor(200, 90, 30), QColor(200, 90, 30, 2)}) {
            slider->setLineColor(color);
            const QVector<int> modes = steps < 1000 ? QVector<int>{0, 1, 2} : QVector<int>{2};
            for (const int mode : modes) {
                slider->setScaleAlign(MKARVOSlider::ScaleAlignmentMode(mode));
                QVERIFY(isAsDocumented(*slider));
            }
        }
    }

    void whereFewStepsHaveTicksMillionsOfThemAreLookedAt()
    {
        const auto slider = makeSlider({80, 60});
        slider->setScaleMarginY(25);
        slider->setLineColor(QColor(200, 90, 30, 2));
        slider->setFreqStart(0.0F);
        slider->setFreqEnd(3000.0F);
        slider->setIsFM(true);
        slider->setFreqStep(0.01F);
        QVERIFY(isAsDocumented(*slider)); // 6,000 ticks in 300,000 steps
    }

    void ofMoreTicksFewerAreLookedAt_data()
    {
        QTest::addColumn<float>("end");
        QTest::addColumn<float>("step");
        QTest::addColumn<int>("looks");
        QTest::newRow("100,000 ticks") << 49999.5F << 0.5F << 100000;
        QTest::newRow("100,001 ticks") << 50000.0F << 0.5F << 100001;
        // Those that tell that there are too many, and each third.
        QTest::newRow("100,002 ticks") << 50000.5F << 0.5F << 100001 + 100001 / 3 + 1;
        QTest::newRow("a million steps") << 10000.0F << 0.01F << 1000001 * 2;
        QTest::newRow("five million steps") << 50000.0F << 0.01F << 1000001 + 5000000 / 77 + 1;
        // Each 75th would miss most of the last two digits.
        QTest::newRow("no multiple of five") << 48500.0F << 0.01F << 1000001 + 4850000 / 77 + 1;
    }

    void ofMoreTicksFewerAreLookedAt()
    {
        if (!fused::canCount)
            QSKIP("the processor has an instruction for what is counted here");
        QFETCH(float, end);
        QFETCH(float, step);
        const auto slider = makeSlider({80, 60});
        slider->setFreqStart(0.0F);
        slider->setFreqEnd(end);
        slider->setIsFM(true);
        slider->setFreqStep(step);
        const int indicators = 1; // it has a multiply-add too
        QTEST(fused::during([&] { painted(*slider); }) - indicators, "looks");
        QCOMPARE(fused::during([&] { painted(*slider); }), indicators);
    }

    void scalesFullOfTicksLookTheSame()
    {
        const auto slider = makeSlider({300, 100});
        slider->setLineColor(QColor(200, 90, 30));
        slider->setScaleMarginY(55);
        QImage pictures[2];
        int number = 0;
        for (const float end : {200000.0F, 9000000.0F}) { // 200,000 steps, and 900,000,000 of them
            slider->setFreqStart(0.0F);
            slider->setFreqEnd(end);
            slider->setFreqStep(number == 0 ? 1.0F : 0.01F);
            pictures[number++] = painted(*slider).copy(40, 60, 220, 40);
        }
        QCOMPARE(pictures[0], pictures[1]); // full of ticks either way
    }

    void theIndicatorFollowsTheFrequency()
    {
        for (const QSize &size : {QSize(10, 11), QSize(11, 10), QSize(301, 231)}) {
            const auto slider = makeAm();
            slider->setIndicatePix(indicator(size));
            for (const float freq : {500.0F, 501.0F, 503.0F, 999.0F, 1720.0F}) {
                slider->setCurFreq(freq);
                QVERIFY(isAsDocumented(*slider));
            }
        }
    }

    void everySetterShowsAtTheNextPaint()
    {
        const auto slider = makeSlider();
        slider->setIndicatePix(indicator());
        for (const Action &action :
             {Action([](auto &s) { s.setLineH(11); }), Action([](auto &s) { s.setMarginX(50); }),
              Action([](auto &s) { s.setFreqStep(10.0F); }),
              Action([](auto &s) { s.setIsFM(true); }),
              Action([](auto &s) { s.setTextMarginY(-9); }),
              Action([](auto &s) { s.setScaleMarginY(19); }),
              Action([](auto &s) { s.setLineColor(Qt::green); }),
              Action([](auto &s) { s.setFont(QFont()); })}) {
            QVERIFY(isAsDocumented(*slider));
            action(*slider);
        }
        QVERIFY(isAsDocumented(*slider));
    }

    void widthsFromOneToTenThousandPixels()
    {
        for (const int width : {1, 2, 69, 71, 10000})
            QVERIFY(isAsDocumented(*makeSlider({width, 100})));
    }

    void aScaleWithoutStepsHasOneTick()
    {
        const auto slider = makeSlider();
        slider->setIndicatePix(indicator());
        slider->setFreqEnd(500.0F);
        slider->setFreqStep(20.0F);
        slider->setCurFreq(500.0F);
        const QImage picture = painted(*slider);
        QVERIFY(qAlpha(picture.pixel(35, 60)) > 0);
        for (int x = 70; x < 680; ++x)
            QCOMPARE(qAlpha(picture.pixel(x, 45)), 0);
        slider->setMarginX(340); // and no width: 0 / 0
        painted(*slider);
        touch(slider.get()).press(3, 3).moveTo(340, 3).release();
    }

    void noNumberIsHarmful()
    {
        using Float = std::numeric_limits<float>;
        const float hostile[] = {Float::quiet_NaN(),
                                 Float::infinity(),
                                 -Float::infinity(),
                                 Float::max(),
                                 -1e9F,
                                 -1.0F,
                                 -0.0F,
                                 0.0F,
                                 Float::denorm_min(),
                                 1e9F};
        const int ints[] = {INT_MIN, -1, 0, INT_MAX};
        const auto slider = makeSlider();
        slider->setIndicatePix(indicator());
        for (const float a : hostile) {
            for (const float b : {Float::quiet_NaN(), -Float::infinity(), 0.0F, 1e9F}) {
                for (const int n : ints) {
                    call(*slider, n == 0, a, b, a);
                    slider->setFreqStart(a);
                    slider->setFreqEnd(b);
                    slider->setFreqStep(n == -1 ? a : 20.0F);
                    call(*slider, b);
                    slider->setLineH(n);
                    slider->setTextMarginY(n);
                    slider->setScaleMarginY(n);
                    slider->setPointMarginY(n);
                    slider->setMarginX(n);
                    if (n == INT_MAX)
                        slider->setLineGap(n);
                    touch(slider.get()).press(n / 2, 0).moveTo(-n / 2, 5).release();
                    // Looked at, drawn, and an indicator.
                    QVERIFY(fused::during([&] { painted(*slider); }) <= 2 * 1000001 + 1);
                }
            }
        }
        slider->setLineH(30);
        slider->setTextMarginY(5);
        slider->setScaleMarginY(40);
        slider->setPointMarginY(46);
        slider->setMarginX(35);
        slider->setFreqStart(500.0F);
        slider->setFreqEnd(1720.0F);
        slider->setFreqStep(20.0F);
        slider->setIsFM(false);
        slider->setCurFreq(800.0F);
        QVERIFY(isAsDocumented(*slider)); // none of it stays
    }

    void aSliderMayBeDeletedByAnyReport()
    {
        checkMayBeDeletedByAnyReport(
            [] { return makeAm(); }, 3,
            [](QWidget *s) { touch(s).press(285, 5).moveTo(285, 5).release(); });
        auto *slider = makeAm().release();
        const QPointer<MKARVOSlider> guard(slider);
        connect(slider, &MKARVOSlider::mousePressed, slider, [slider](bool isPressed) {
            if (!isPressed)
                delete slider; // with a change of the frequency still to come
        });
        touch(slider).tap(500, 5);
        QVERIFY(!guard);
    }
};

WIDGET_TEST_MAIN(tst_MKARVOSlider)
#include "tst_mkarvoslider.moc"
