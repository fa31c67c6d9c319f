// SPDX-License-Identifier: Apache-2.0
// Frequencies are float, single multiplications and divisions are rounded one by one, and the tick
// frequencies are fused multiply-adds: all of it whatever the width of qreal and the processor.
// What is expected is computed here with float once more, or with whole numbers of hundredths.

#include <MRadioSlider>

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

#include <climits>
#include <cmath>
#include <limits>

namespace
{

using Action = std::function<void(MRadioSlider &)>;

QPixmap indicator(const QSize &size = QSize(9, 60))
{
    QPixmap pixmap(size);
    pixmap.fill(QColor(255, 120, 0, 160));
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), QBrush(QColor(0, 60, 120), Qt::DiagCrossPattern));
    return pixmap;
}

QFont labelFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    return font;
}

float displayed(const RadioBand &band, int freq)
{
    return band.isFM ? float(freq) / 100.0F : float(freq);
}

std::unique_ptr<MRadioSlider> makeSlider(const RadioBand &band = kRadioBands[0],
                                         const QSize &size = QSize(640, 100))
{
    auto slider = std::make_unique<MRadioSlider>(nullptr);
    slider->resize(size);
    slider->setLineColor(Qt::white);
    slider->setFont(labelFont());
    slider->setIsFM(band.isFM);
    slider->setFreqStart(displayed(band, band.start));
    slider->setFreqEnd(displayed(band, band.end));
    slider->setFreqStep(displayed(band, band.step));
    slider->initSliderRange();
    return slider;
}

// Every tick, line after line and label after label, with the pens as they are set.
void paintTicks(QPainter &p, const MRadioSlider &s, int scrollX, int stepCount, int firstStep)
{
    const int h = s.height();
    const int unit = s.getLineH();
    const bool isTextTop = s.getTextPosition() == MRadioSlider::TextTop;
    const int ty = isTextTop ? s.getTextMarginY() : h - 1 - 25 + s.getTextMarginY();
    int base = isTextTop ? h - 1 + s.getScaleMarginY()
                         : h - 1 - 25 + s.getTextMarginY() + s.getScaleMarginY();
    if (s.scaleAlign() == MRadioSlider::AlignTop)
        base = isTextTop ? 25 + s.getTextMarginY() + s.getScaleMarginY() : s.getScaleMarginY();
    for (int i = firstStep; i <= stepCount; ++i) {
        const int x = scrollX + i * s.getLineGap();
        const float f = std::fma(float(i), s.getFreqStep(), s.getFreqStart());
        const int n = int(s.getIsFM() ? f * 100.0F : f);
        const bool isMajor = n % (s.getIsFM() ? 100 : 10) == 0;
        const bool isMiddle = !isMajor && n % (s.getIsFM() ? 50 : 5) == 0;
        const int length = (isMajor ? 3 : isMiddle ? 2 : 1) * unit;
        if (s.scaleAlign() == MRadioSlider::AlignTop) {
            p.drawLine(x, base, x, base + length);
        } else if (s.scaleAlign() == MRadioSlider::AlignCenter && isMiddle) {
            p.drawLine(x, base - unit / 2, x, base - unit / 2 - 2 * unit);
        } else if (s.scaleAlign() == MRadioSlider::AlignCenter && !isMajor) {
            p.drawLine(x, base - unit, x, base - 2 * unit);
        } else {
            p.drawLine(x, base, x, base - length);
        }
        if (isMajor)
            p.drawText(QRect(QPoint(x - 30, ty), QPoint(x + 29, ty + 24)), Qt::AlignCenter,
                       QStringLiteral("%1").arg(double(f)));
    }
}

void paintAll(QPainter &p, const MRadioSlider &s, int scrollX, int stepCount, int firstStep = 0)
{
    p.setPen(QPen(QBrush(Qt::black), qreal(std::max(s.getLineW(), 1))));
    p.setPen(s.getLineColor());
    p.setFont(s.getFont());
    paintTicks(p, s, scrollX, stepCount, firstStep);
    const QPixmap pix = s.getIndicatePix();
    p.drawPixmap(QRectF(QRect((s.width() - pix.width()) / 2,
                              (s.height() - pix.height()) / 2 + s.getPointMarginY(), pix.width(),
                              pix.height())),
                 pix, QRectF());
}

bool isAs(MRadioSlider &slider, int scrollX, int stepCount)
{
    return isSamePicture(
        {painted(slider),
         reference(slider, [&](QPainter &p) { paintAll(p, slider, scrollX, stepCount); })},
        __FILE__, __LINE__);
}

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_MRadioSlider : public WidgetTest
{
    Q_OBJECT

private slots:
    void thePictureIsTheOneThatWasSet()
    {
        MRadioSlider slider(nullptr);
        const QPixmap picture = indicator();
        slider.setIndicatePix(picture);
        QCOMPARE(slider.getIndicatePix().cacheKey(), picture.cacheKey());
    }

    void defaults()
    {
        const MRadioSlider slider(nullptr);
        QVERIFY(slider.getIndicatePix().isNull());
        QVERIFY(!slider.getLineColor().isValid());
        QCOMPARE(slider.getFont(), QFont());
        QCOMPARE(slider.getLineH(), 8);
        QCOMPARE(slider.getLineW(), 1);
        QCOMPARE(slider.getLineGap(), 5);
        QCOMPARE(slider.getFreqStart(), 87.5F);
        QCOMPARE(slider.getFreqEnd(), 108.0F);
        QCOMPARE(slider.getFreqStep(), 0.1F);
        QCOMPARE(slider.getCurFreq(), 87.5F);
        QCOMPARE(slider.getIsFM(), true);
        QCOMPARE(slider.marginY(), 0);
        QCOMPARE(slider.scaleAlign(), MRadioSlider::AlignBottom);
        QCOMPARE(slider.getTextPosition(), MRadioSlider::TextBottom);
        QCOMPARE(slider.getTextMarginY(), 0);
        QCOMPARE(slider.getScaleMarginY(), 0);
        QCOMPARE(slider.getPointMarginY(), 0);
        QVERIFY(!slider.hasMouseTracking());
    }

    void onlyMarginYRepaints_data()
    {
        const TableRows<int, Action> row("expected", "action");
        addRadioSetters<MRadioSlider>(row, indicator(), 0);
        row("textPosition", 0, [](auto &s) { s.setTextPosition(MRadioSlider::TextTop); });
        row("curFreq", 1, [](auto &s) { s.setCurFreq(100.0F); });
        row("curFreq outside", 0, [](auto &s) { s.setCurFreq(108.1F); });
        row("a tuned frequency", 1, [](auto &s) { call(s, 9850.0F); });
    }

    void onlyMarginYRepaints() { checkRepaints(*makeSlider()); }

    void everyPropertyKeepsWhatItIsGiven_data()
    {
        const TableRows<QVariant> row("value");
        addRadioProperties<MRadioSlider>(row, 90, labelFont());
        row("lineGap", 90);
    }

    void everyPropertyKeepsWhatItIsGiven() { checkKeepsProperty(MRadioSlider(nullptr)); }

    void asPropertiesFrequenciesAreWholeNumbers()
    {
        MRadioSlider slider(nullptr);
        QCOMPARE(slider.property("freqStart"), QVariant(87));
        QCOMPARE(slider.property("freqStep"), QVariant(0));
        slider.setProperty("freqEnd", 100.7); // converted before it is written
        QCOMPARE(slider.getFreqEnd(), 101.0F);
        slider.setFreqStart(std::numeric_limits<float>::infinity());
        QCOMPARE(slider.property("freqStart"), QVariant(INT_MAX));
        slider.setFreqStart(std::nanf(""));
        QCOMPARE(slider.property("freqStart"), QVariant(0));
    }

    void theLabelFontIsNotTheWidgetsFont()
    {
        MRadioSlider slider(nullptr);
        const QFont before = slider.font();
        slider.setFont(labelFont());
        QCOMPARE(slider.font(), before);
    }

    // --- Tuning ---------------------------------------------------------------------------------

    void onlyFrequenciesOfTheScaleAreTuned()
    {
        const auto slider = makeSlider();
        QVERIFY(slider->isValidFreq(87.5F));
        QVERIFY(slider->isValidFreq(108.0F));
        QVERIFY(!slider->isValidFreq(std::nextafter(87.5F, 0.0F)));
        QVERIFY(!slider->isValidFreq(std::nextafter(108.0F, 200.0F)));
        QVERIFY(!slider->isValidFreq(std::nanf("")));
        slider->setCurFreq(98.5F);
        slider->setCurFreq(87.4F);
        QCOMPARE(slider->getCurFreq(), 98.5F);
        QVERIFY(isAs(*slider, 320 - 110 * 5, 205));
    }

    void everyStepOfEveryBandIsTunedAndComesBack_data()
    {
        QTest::addColumn<int>("row");
        for (int row = 0; row < int(std::size(kRadioBands)); ++row)
            QTest::newRow(kRadioBands[row].name) << row;
    }

    void everyStepOfEveryBandIsTunedAndComesBack()
    {
        QFETCH(int, row);
        const RadioBand &band = kRadioBands[row];
        const auto slider = makeSlider(band);
        const int steps = (band.end - band.start) / band.step;
        SignalLog log(slider.get());
        for (int i = 0; i <= steps; ++i) {
            const int freq = band.start + i * band.step;
            call(*slider, float(freq));
            QCOMPARE(slider->getCurFreq(), displayed(band, freq));
            touch(slider.get()).tap(9, 9);
            const float reported =
                band.isFM ? displayed(band, freq) * 100.0F : displayed(band, freq);
            QCOMPARE(log.take(),
                     QStringList{QStringLiteral("freqChangedSgl(%1)").arg(double(reported))});
            QCOMPARE(std::lround(reported), long(freq));
            // What stands under the middle: the step itself, but for a pixel of rounding.
            const float way = (displayed(band, freq) - displayed(band, band.start)) * 5.0F
                / displayed(band, band.step);
            const int scrollX = int(320.0F - way);
            QVERIFY(std::abs(scrollX - (320 - i * 5)) <= 1);
            if (i % 40 == 0)
                QVERIFY(isAs(*slider, scrollX, steps));
        }
    }

    void everyStepOfEveryBandIsReachedByDragging_data()
    {
        everyStepOfEveryBandIsTunedAndComesBack_data();
    }

    void everyStepOfEveryBandIsReachedByDragging()
    {
        QFETCH(int, row);
        const RadioBand &band = kRadioBands[row];
        const auto slider = makeSlider(band);
        const int steps = (band.end - band.start) / band.step;
        Touch finger = touch(slider.get());
        finger.press(0, 0).moveTo(10000, 0); // the first stands in the middle
        for (int i = 0; i <= steps; ++i) {
            const float product = displayed(band, band.step) * float(i);
            const float expected = displayed(band, band.start) + product;
            QVERIFY(slider->getCurFreq() == expected); // to the last bit: rounded twice
            const long number = std::lround(band.isFM ? expected * 100.0F : expected);
            QCOMPARE(number, long(band.start + i * band.step));
            finger.moveTo(10000 - (i + 1) * 5, 0);
        }
    }

    void aTunedFrequencyFromOutsideIsInHundredths()
    {
        const auto slider = makeSlider();
        SignalLog log(slider.get());
        call(*slider, 9850.0F);
        QCOMPARE(slider->getCurFreq(), 98.5F);
        touch(slider.get()).tap(5, 5);
        QCOMPARE(log.take(), QStringList{QStringLiteral("freqChangedSgl(9850)")});
    }

    void aNewSliderReportsTheStartOfTheScale()
    {
        MRadioSlider slider(nullptr);
        SignalLog log(&slider);
        touch(&slider).tap(5, 5);
        QCOMPARE(log.take(), QStringList{QStringLiteral("freqChangedSgl(8750)")});
    }

    void amIsReportedUnscaled()
    {
        const auto slider = makeSlider(kRadioBands[3]);
        SignalLog log(slider.get());
        call(*slider, 999.0F);
        touch(slider.get()).tap(5, 5);
        QCOMPARE(log.take(), QStringList{QStringLiteral("freqChangedSgl(999)")});
    }

    // --- Dragging -------------------------------------------------------------------------------

    void aDragMovesTheScaleByPixelsAndTunesByWholeSteps()
    {
        const auto slider = makeSlider();
        slider->setCurFreq(98.5F);
        SignalLog log(slider.get());
        Touch finger = touch(slider.get());
        finger.press(300, 50).moveTo(297, 50);
        QCOMPARE(slider->getCurFreq(), 87.5F + 0.1F * 110.0F);
        QVERIFY(isAs(*slider, 320 - 553, 205));
        finger.moveTo(295, 50);
        QCOMPARE(slider->getCurFreq(), 87.5F + 0.1F * 111.0F);
        finger.moveTo(296, 50); // backwards: truncated again
        QCOMPARE(slider->getCurFreq(), 87.5F + 0.1F * 110.0F);
        QCOMPARE(log.take(), QStringList());
        finger.release();
        QCOMPARE(log.take(),
                 QStringList{QStringLiteral("freqChangedSgl(%1)")
                                 .arg(double((87.5F + 0.1F * 110.0F) * 100.0F))});
    }

    void theScaleIsPinnedAtItsEnds()
    {
        const auto slider = makeSlider();
        touch(slider.get()).press(0, 0).moveTo(-20000, 0).release();
        QCOMPARE(slider->getCurFreq(), 87.5F + 0.1F * 205.0F);
        QVERIFY(isAs(*slider, 320 - 205 * 5, 205));
        touch(slider.get()).press(0, 0).moveTo(20000, 0).release();
        QCOMPARE(slider->getCurFreq(), 87.5F);
        QVERIFY(isAs(*slider, 320, 205));
    }

    void theScaleCanStandOnePixelFromItsEnds()
    {
        const auto slider = makeSlider();
        slider->resize(641, 100);
        slider->initSliderRange();
        Touch finger = touch(slider.get());
        finger.press(0, 0).moveTo(20000, 0);
        QVERIFY(isAs(*slider, 320, 205)); // half of an odd width, truncated
        finger.moveTo(19999, 0);
        QVERIFY(isAs(*slider, 319, 205));
        finger.moveTo(-20000, 0).moveTo(-19999, 0);
        QVERIFY(isAs(*slider, 320 - 205 * 5 + 1, 205));
    }

    void eachMoveCountsFromTheOneBefore()
    {
        const auto slider = makeSlider();
        slider->setCurFreq(98.5F);
        Touch finger = touch(slider.get());
        finger.press(300, 0).moveTo(290, 0).moveTo(290, 0).moveTo(280, 0);
        QVERIFY(isAs(*slider, 320 - 570, 205));
        finger.release().press(100, 0).moveTo(101, 0);
        QVERIFY(isAs(*slider, 320 - 569, 205));
    }

    void aDragStepPaintsOnceAndLogsTwoLines()
    {
        const auto slider = makeSlider();
        show(*slider);
        Touch finger = touch(slider.get());
        finger.press(300, 50);
        QCOMPARE(paints(*slider, [&] { finger.moveTo(280, 50); }), 1);
        LogRecord log;
        finger.moveTo(275, 50);
        const QVector<LoggedLine> lines = log.take();
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0].text, QStringLiteral("pressPoint.x(): 280"));
        QCOMPARE(lines[1].text, QStringLiteral("curPoint.x(): 275"));
        for (const LoggedLine &line : lines) {
            QCOMPARE(line.file, QStringLiteral("src/mradioslider"));
            QCOMPARE(line.function,
                     QStringLiteral("virtual void MRadioSlider::mouseMoveEvent(QMouseEvent*)"));
        }
    }

    void touchesAskForNoSoundAndStayHere()
    {
        Parent parent;
        MRadioSlider slider(&parent);
        SignalLog log(&slider);
        Touch finger = touch(&slider);
        QVERIFY(finger.press(5, 5).wasAccepted());
        QVERIFY(finger.moveTo(6, 5).wasAccepted());
        QVERIFY(finger.release().wasAccepted());
        QCoreApplication::processEvents();
        QCOMPARE(log.take(), QStringList{QStringLiteral("freqChangedSgl(8840)")});
        QCOMPARE(parent.events, QStringList());
    }

    // --- Bands and sizes ------------------------------------------------------------------------

    void stepsAreCountedInHundredths_data()
    {
        QTest::addColumn<float>("start");
        QTest::addColumn<float>("end");
        QTest::addColumn<float>("step");
        QTest::addColumn<int>("steps");
        QTest::newRow("FM Europe") << 87.5F << 108.0F << 0.1F << 205;
        QTest::newRow("FM Americas") << 87.9F << 107.9F << 0.2F << 100;
        QTest::newRow("truncated") << 0.0F << 1.0F << 0.3F << 3;
        QTest::newRow("finer than a hundredth") << 0.0F << 1.0F << 0.004F << 0;
        QTest::newRow("reversed") << 108.0F << 87.5F << 0.1F << -205;
        QTest::newRow("twice reversed") << 108.0F << 87.5F << -0.1F << 205;
        QTest::newRow("none") << 87.5F << 87.5F << 0.1F << 0;
    }

    void stepsAreCountedInHundredths()
    {
        QFETCH(float, start);
        QFETCH(float, end);
        QFETCH(float, step);
        QFETCH(int, steps);
        const auto slider = makeSlider();
        call(*slider, true, start, end, step);
        QVERIFY(isAs(*slider, 0, steps));
    }

    void aBandChangesNeitherTheOffsetNorTheTunedFrequency()
    {
        const auto slider = makeSlider();
        slider->setCurFreq(98.5F);
        call(*slider, false, 522.0F, 1620.0F, 9.0F);
        QCOMPARE(slider->getCurFreq(), 98.5F);
        QCOMPARE(slider->getIsFM(), false);
        QCOMPARE(slider->getFreqStart(), 522.0F);
        QCOMPARE(slider->getFreqEnd(), 1620.0F);
        QCOMPARE(slider->getFreqStep(), 9.0F);
        QVERIFY(isAs(*slider, 320 - 550, 122));
    }

    void theRangeIsThatOfTheConstructorOrTheBand()
    {
        MRadioSlider slider(nullptr);
        const int middle = slider.width() / 2;
        slider.resize(200, 100);
        touch(&slider).press(0, 0).moveTo(20000, 0);
        QVERIFY(isAs(slider, middle, 205));
        call(slider, true, 87.5F, 97.5F, 0.1F);
        touch(&slider).press(0, 0).moveTo(20000, 0);
        QVERIFY(isAs(slider, 100, 100));
        touch(&slider).press(0, 0).moveTo(-20000, 0);
        QVERIFY(isAs(slider, 100 - 100 * 5, 100));
    }

    void nothingElseComputesTheRange_data()
    {
        const TableRows<Action> row("action");
        row("indicatePix", [](auto &s) { s.setIndicatePix(indicator()); });
        row("lineColor", [](auto &s) { s.setLineColor(Qt::red); });
        row("font", [](auto &s) { s.setFont(QFont()); });
        row("lineH", [](auto &s) { s.setLineH(3); });
        row("lineW", [](auto &s) { s.setLineW(3); });
        row("lineGap", [](auto &s) { s.setLineGap(3); });
        row("freqStart", [](auto &s) { s.setFreqStart(88.0F); });
        row("freqEnd", [](auto &s) { s.setFreqEnd(99.0F); });
        row("freqStep", [](auto &s) { s.setFreqStep(0.2F); });
        row("isFM", [](auto &s) { s.setIsFM(false); });
        row("marginY", [](auto &s) { s.setMarginY(7); });
        row("scaleMode", [](auto &s) { s.setScaleAlign(MRadioSlider::AlignTop); });
        row("textPosition", [](auto &s) { s.setTextPosition(MRadioSlider::TextTop); });
        row("textMarginY", [](auto &s) { s.setTextMarginY(3); });
        row("scaleMarginY", [](auto &s) { s.setScaleMarginY(3); });
        row("PointMarginY", [](auto &s) { s.setPointMarginY(3); });
        row("curFreq", [](auto &s) { s.setCurFreq(100.0F); });
        row("a tuned frequency", [](auto &s) { call(s, 9850.0F); });
        row("a tap", [](auto &s) { touch(&s).tap(9, 9); });
        row("a paint", [](auto &s) { painted(s); });
        row("being shown", [](auto &s) { show(s); });
    }

    // The width has changed, so that to compute it anew would change the range in any case.
    void nothingElseComputesTheRange()
    {
        QFETCH(Action, action);
        const auto slider = makeSlider(); // 640 px wide
        slider->resize(200, 100);
        action(*slider);
        touch(slider.get()).press(0, 0).moveTo(20000, 0);
        QVERIFY(isAs(*slider, 320, 205));
        touch(slider.get()).press(0, 0).moveTo(-20000, 0);
        QVERIFY(isAs(*slider, 320 - 205 * 5, 205));
    }

    void aResizeKeepsTheBoundsOfTheDrag()
    {
        const auto slider = makeSlider(); // 640 px wide
        slider->resize(200, 100);
        touch(slider.get()).press(0, 0).moveTo(20000, 0).release();
        QVERIFY(isAs(*slider, 320, 205));
        QCOMPARE(slider->getCurFreq(), 87.5F + 0.1F * float((100 - 320) / 5));
        slider->initSliderRange();
        touch(slider.get()).press(0, 0).moveTo(20000, 0).release();
        QVERIFY(isAs(*slider, 100, 205));
    }

    // --- Painting -------------------------------------------------------------------------------

    void pictures_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("position");
        for (int row = 0; row < int(std::size(kRadioBands)); ++row) {
            for (const int mode : {0, 1, 2, 3, -7}) {
                for (const int position : {0, 1})
                    QTest::addRow("%s, mode %d, text %d", kRadioBands[row].name, mode, position)
                        << row << mode << position;
            }
        }
    }

    void pictures()
    {
        QFETCH(int, row);
        QFETCH(int, mode);
        QFETCH(int, position);
        const RadioBand &band = kRadioBands[row];
        const auto slider = makeSlider(band);
        const int steps = (band.end - band.start) / band.step;
        slider->setIndicatePix(indicator());
        slider->setScaleAlign(MRadioSlider::ScaleAlignmentMode(mode));
        slider->setTextPosition(MRadioSlider::TextPosition(position));
        QVERIFY(isAs(*slider, 0, steps));
        slider->setLineH(7); // an odd half
        slider->setTextMarginY(3);
        slider->setScaleMarginY(-4);
        slider->setPointMarginY(11);
        slider->setLineColor(QColor(90, 200, 255, 130));
        QVERIFY(isAs(*slider, 0, steps));
        slider->setScaleMarginY(position == 0 ? 20 : -70); // over the labels
        QVERIFY(isAs(*slider, 0, steps));
        QVERIFY(isAs(*slider, 0, steps)); // from what is kept
    }

    void theTicksOfTheDefaultScaleAreCounted()
    {
        int major = 0;
        int middle = 0;
        const auto slider = makeSlider(kRadioBands[0], {1200, 100});
        const QImage picture = painted(*slider);
        for (int i = 0; i <= 205; ++i) {
            const int base = 99 - 25;
            const bool isOver8 = qAlpha(picture.pixel(i * 5, base - 9)) > 0;
            const bool isOver16 = qAlpha(picture.pixel(i * 5, base - 17)) > 0;
            major += isOver16;
            middle += isOver8 && !isOver16;
            // 87.5 is the first; a whole MHz comes at tick 5 and then at every tenth.
            QCOMPARE(isOver16, i % 10 == 5);
            QCOMPARE(isOver8, i % 5 == 0);
        }
        QCOMPARE(major, 21);
        QCOMPARE(middle, 21);
    }

    // Rounded twice, tick 384 would stand at 433.49997 and be no middle one.
    void tickFrequenciesAreFused()
    {
        const auto slider = makeSlider();
        call(*slider, true, 87.9F, 450.0F, 0.9F);
        slider->setCurFreq(435.0F);
        QVERIFY(isAs(*slider, int(320.0F - (435.0F - 87.9F) * 5.0F / 0.9F), 402));
    }

    void aWiderPenHasNoEffect()
    {
        const auto slider = makeSlider();
        const QImage before = painted(*slider);
        for (const int width : {5, 0, -3, INT_MAX}) {
            slider->setLineW(width);
            QCOMPARE(painted(*slider), before);
        }
    }

    void anInvalidColourIsBlack()
    {
        const auto slider = makeSlider();
        slider->setLineColor(QColor());
        QVERIFY(isAs(*slider, 0, 205));
        QCOMPARE(painted(*slider).pixel(0, 70), qRgb(0, 0, 0));
    }

    void theIndicatorIsCentredTowardZero()
    {
        for (const QSize &size : {QSize(10, 11), QSize(11, 10), QSize(700, 130), QSize(701, 131)}) {
            const auto slider = makeSlider();
            slider->setIndicatePix(indicator(size));
            slider->setPointMarginY(-3);
            QVERIFY(isAs(*slider, 0, 205));
        }
    }

    void everySetterShowsAtTheNextPaint()
    {
        const auto slider = makeSlider();
        QVERIFY(isAs(*slider, 0, 205));
        for (const Action &action :
             {Action([](auto &s) { s.setLineH(11); }), Action([](auto &s) { s.setLineGap(7); }),
              Action([](auto &s) { s.setFreqStart(88.0F); }),
              Action([](auto &s) { s.setFreqStep(0.2F); }),
              Action([](auto &s) { s.setIsFM(false); }),
              Action([](auto &s) { s.setTextMarginY(-9); }),
              Action([](auto &s) { s.setScaleMarginY(-19); }),
              Action([](auto &s) { s.setLineColor(Qt::green); }),
              Action([](auto &s) { s.setFont(QFont()); }),
              Action([](auto &s) { s.resize(500, 90); })}) {
            action(*slider);
            QVERIFY(isAs(*slider, 0, 205));
        }
    }

    void widthsFromOneToTenThousandPixels()
    {
        for (const int width : {1, 2, 31, 10000}) {
            const auto slider = makeSlider(kRadioBands[0], {width, 100});
            slider->setIndicatePix(indicator());
            slider->setCurFreq(98.5F);
            QVERIFY(isAs(*slider, int(float(width / 2) - (98.5F - 87.5F) * 5.0F / 0.1F), 205));
        }
    }

    void withoutAGapAllTicksStandInOnePlace()
    {
        const auto slider = makeSlider();
        slider->setLineGap(0);
        slider->setLineColor(QColor(255, 255, 255, 40));
        QVERIFY(isAs(*slider, 0, 205));
        slider->setCurFreq(98.5F);
        touch(slider.get()).press(0, 0).moveTo(7, 0).release();
        QCOMPARE(slider->getCurFreq(), 87.5F); // no steps from the middle
    }

    void aNegativeGapTurnsTheScaleRound()
    {
        const auto slider = makeSlider();
        slider->setLineGap(-5);
        slider->setCurFreq(98.5F);
        QVERIFY(isAs(*slider, 320 + 550, 205));
    }

    void ticksInOnePlaceAreAllDrawn_data()
    {
        QTest::addColumn<int>("steps");
        QTest::newRow("1,024 ticks") << 1023;
        QTest::newRow("1,025 ticks") << 1024;
        QTest::newRow("100,000 ticks") << 99999;
        QTest::newRow("100,001 ticks") << 100000;
    }

    void ticksInOnePlaceAreAllDrawn()
    {
        QFETCH(int, steps);
        const auto slider = makeSlider(kRadioBands[3], {70, 60});
        slider->setLineGap(0);
        slider->setTextMarginY(-20); // labels above the feet of the ticks, and under the others
        call(*slider, false, 0.0F, float(steps), 1.0F);
        slider->setCurFreq(0.0F);
        for (const QColor &color : {QColor(Qt::white), QColor(200, 90, 10, 2)}) {
            slider->setLineColor(color);
            QVERIFY(isAs(*slider, 35, steps));
        }
    }

    void ofMoreTicksInOnePlaceTheLastAreDrawn()
    {
        constexpr int kSteps = 100001;
        const auto slider = makeSlider(kRadioBands[3], {70, 60});
        slider->setLineGap(0);
        slider->setLineColor(QColor(200, 90, 10, 2));
        call(*slider, false, 0.0F, float(kSteps), 1.0F);
        slider->setCurFreq(0.0F);
        COMPARE_PICTURES(painted(*slider), reference(*slider, [&](QPainter &p) {
                             paintAll(p, *slider, 35, kSteps, kSteps - 1023);
                         }));
    }

    void aScaledPainterDrawsTheSame()
    {
        const auto slider = makeSlider(kRadioBands[0], {100, 61});
        slider->setScaleMarginY(25); // half of the last row shows
        slider->setIndicatePix(indicator());
        // The first tick stands a pixel left of the widget, the 21st right of it.
        touch(slider.get()).press(0, 0).moveTo(-1, 0).moveTo(0, 0);
        for (const int scrollX : {0, -1}) {
            if (scrollX < 0)
                touch(slider.get()).press(0, 0).moveTo(-1, 0);
            QImage actual(200, 122, QImage::Format_ARGB32_Premultiplied);
            actual.fill(Qt::transparent);
            QImage expected = actual;
            QPainter painter(&actual);
            painter.scale(2, 2);
            slider->render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
            QPainter naive(&expected);
            naive.scale(2, 2);
            paintAll(naive, *slider, scrollX, 205);
            COMPARE_PICTURES(actual, expected);
        }
    }

    void ofMillionsOfTicksOnlyThoseThatShowAreLookedAt()
    {
        const auto slider = makeSlider();
        slider->setLineGap(1);
        call(*slider, true, 0.0F, 20000.0F, 0.01F);
        slider->setCurFreq(15000.0F);
        QVERIFY(fused::during([&] { painted(*slider); }) < 1000);
        QCOMPARE(fused::during([&] { painted(*slider); }), 0); // and once
        slider->setCurFreq(1000.0F);
        QVERIFY(isAs(*slider, 320 - 100000, 200000));
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
                                 0.01F,
                                 1e9F};
        const int ints[] = {INT_MIN, -1, 0, 1, INT_MAX};
        const auto slider = makeSlider();
        slider->setIndicatePix(indicator());
        const QImage before = painted(*slider);
        for (const float a : hostile) {
            for (const float b : hostile) {
                for (const int n : ints) {
                    slider->setLineGap(n);
                    call(*slider, n == 0, a, b, n == 1 ? b : 0.01F);
                    call(*slider, a);
                    slider->setLineH(n);
                    slider->setTextMarginY(n);
                    slider->setScaleMarginY(n);
                    slider->setPointMarginY(n);
                    touch(slider.get()).press(n / 2, 0).moveTo(-n / 2, 5).release();
                    QVERIFY(fused::during([&] { painted(*slider); }) <= 100001);
                }
            }
        }
        slider->setLineGap(5);
        slider->setLineH(8);
        slider->setTextMarginY(0);
        slider->setScaleMarginY(0);
        slider->setPointMarginY(0);
        call(*slider, true, 87.5F, 108.0F, 0.1F);
        slider->setCurFreq(87.5F);
        touch(slider.get()).press(320, 0).moveTo(0, 0);
        COMPARE_PICTURES(painted(*slider), before); // none of it stays
    }

    void aSliderMayBeDeletedByItsReport()
    {
        auto *slider = new MRadioSlider(nullptr);
        const QPointer<MRadioSlider> guard(slider);
        connect(slider, &MRadioSlider::freqChangedSgl, slider, [slider] { delete slider; });
        touch(slider).tap(5, 5);
        QVERIFY(!guard);
    }
};

WIDGET_TEST_MAIN(tst_MRadioSlider)
#include "tst_mradioslider.moc"
