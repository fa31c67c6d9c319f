// SPDX-License-Identifier: Apache-2.0
#include "numbers.h"

#include "samples.h"
#include "witness.h"

#include "panelkitclasses.h"

#include "radiobands.h"
#include "touch.h"
#include "virtualtime.h"

#include <QAbstractScrollArea>

#include <climits>
#include <limits>

namespace
{

QString titled(const char *className, const QSize &size)
{
    return QStringLiteral("%1 %2x%3")
        .arg(QLatin1String(className))
        .arg(size.width())
        .arg(size.height());
}

// A list is touched on what it scrolls.
QWidget *touched(QWidget &widget)
{
    const auto *area = qobject_cast<QAbstractScrollArea *>(&widget);
    return area ? area->viewport() : &widget;
}

// Presses everywhere and beside the widget; each finger moves, rests and lifts.
void writeTouches(QTextStream &out, const Sample &sample, const QSize &size)
{
    constexpr int kColumns = 9;
    constexpr int kRows = 3;
    const auto widget = made(sample, size);
    Witness witness(out, *widget, titled(sample.className, size));
    Touch finger = touch(touched(*widget));
    for (int column = 0; column < kColumns; ++column) {
        for (int row = 0; row < kRows; ++row) {
            const QPoint place((size.width() + 8) * column / (kColumns - 1) - 4,
                               (size.height() + 7) * row / (kRows - 1) - 4);
            const auto step = [&](const char *action) {
                virtualtime::advance(30);
                witness.write(QStringLiteral("%1 %2,%3")
                                  .arg(QLatin1String(action))
                                  .arg(place.x())
                                  .arg(place.y()));
            };
            finger.press(place);
            step("press");
            finger.moveTo(place.x() + 13 - 5 * row, place.y() + 9 - 7 * row);
            step("move");
            finger.release();
            step("release");
        }
    }
}

QVariantList valuesFor(const QMetaProperty &property)
{
    using Double = std::numeric_limits<double>;
    if (property.userType() == QMetaType::Int)
        return {INT_MIN, -1, 0, 1, 7, 33, 50, 100, 255, 10800, INT_MAX};
    return {0.0,
            -0.0,
            0.1,
            0.3,
            1.0 / 3,
            8.05,
            87.5,
            98.7,
            1e9,
            -1e9,
            162.0,
            359.99,
            Double::infinity(),
            Double::quiet_NaN()};
}

// Each number property gets each of the values in turn, and a touch.
void writeValues(QTextStream &out, const Sample &sample)
{
    const auto properties = numberProperties(*made(sample, sample.size));
    for (const QMetaProperty &property : properties) {
        const auto widget = made(sample, sample.size);
        const QString name = QLatin1String(property.name());
        Witness witness(out, *widget, titled(sample.className, sample.size));
        for (const QVariant &value : valuesFor(property)) {
            // The virtual clock stands still while a timer without interval runs.
            if (name == QLatin1String("scrollSpeed") && value.toInt() < 50)
                continue;
            property.write(widget.get(), value);
            witness.write(QStringLiteral("%1 := %2").arg(name, allDigits(value)));
            touch(touched(*widget)).tap(sample.size.width() / 3, sample.size.height() / 3);
            virtualtime::advance(100);
            witness.write(QStringLiteral("tap"));
        }
    }
}

// What moves by itself once it is shown.
void writeTime(QTextStream &out, const Sample &sample)
{
    const auto widget = made(sample, {sample.size.width() / 2, sample.size.height()});
    Witness witness(out, *widget, titled(sample.className, widget->size()));
    widget->show();
    touch(touched(*widget)).press(60, sample.size.height() - 5).hold(20).moveTo(60, 5).release();
    for (int ms : {1, 20, 20, 60, 500, 2500}) {
        virtualtime::advance(ms);
        witness.write(QStringLiteral("after %1 ms").arg(ms));
    }
}

const Sample &sampleOf(const QVector<Sample> &all, const char *className)
{
    return *std::find_if(all.begin(), all.end(), [className](const Sample &sample) {
        return qstrcmp(sample.className, className) == 0;
    });
}

void setBand(QWidget &widget, bool isFM, float start, float end, float step)
{
    QMetaObject::invokeMethod(&widget, "freqParamChangedSlot", Q_ARG(bool, isFM),
                              Q_ARG(float, start), Q_ARG(float, end), Q_ARG(float, step));
}

// A slider with the band drawn and set: frequencies from outside, then a finger over all of it.
template <typename Slider>
void writeBand(QTextStream &out, const Sample &sample, const RadioBand &band, const QSize &size)
{
    const float unit = band.isFM ? 100.0F : 1.0F;
    const auto widget = made(sample, size);
    auto *slider = static_cast<Slider *>(widget.get());
    slider->setIsFM(band.isFM);
    slider->setFreqStart(float(band.start) / unit);
    slider->setFreqEnd(float(band.end) / unit);
    slider->setFreqStep(float(band.step) / unit);
    setBand(*slider, band.isFM, float(band.start) / unit, float(band.end) / unit,
            float(band.step) / unit);
    Witness witness(out, *slider,
                    titled(sample.className, size) + QLatin1Char(' ') + QLatin1String(band.name));
    for (int tenth = 0; tenth <= 10; ++tenth) {
        const int freq = band.start + (band.end - band.start) * tenth / 10 + tenth % 3;
        QMetaObject::invokeMethod(slider, "curFreqChangedSlot", Q_ARG(float, float(freq)));
        touch(slider).press(size.width() / 2, 5);
        witness.write(
            QStringLiteral("tuned to %1, reads %2").arg(freq).arg(allDigits(slider->getCurFreq())));
    }
    Touch finger = touch(slider);
    finger.press(size.width(), 5);
    for (int x = size.width() + 5; x > -5; x -= 7) {
        finger.moveTo(x, 5);
        witness.write(
            QStringLiteral("move %1, reads %2").arg(x).arg(allDigits(slider->getCurFreq())));
    }
    finger.release();
    witness.write(QStringLiteral("release"));
}

MovePoint &needleOf(QWidget &tuner) { return *tuner.findChild<MovePoint *>(); }

void writeTuner(QTextStream &out, const Sample &sample, const RadioBand &band, const QSize &size)
{
    const auto widget = made(sample, size);
    auto *tuner = static_cast<MRadioMovePoint *>(widget.get());
    tuner->freqParamChangedSlot(band.isFM, float(band.start), float(band.end), float(band.step), 10,
                                size.width() - 10, -1, -1);
    Witness witness(out, *tuner,
                    titled(sample.className, size) + QLatin1Char(' ') + QLatin1String(band.name));
    for (int freq = band.start - band.step; freq <= band.end + band.step;
         freq += qMax(band.step, (band.end - band.start) / 40)) {
        tuner->curFreqChangedSlot(float(freq) + 0.7F);
        witness.write(
            QStringLiteral("tuned to %1, needle at %2").arg(freq).arg(needleOf(*tuner).x()));
    }
    Touch finger = touch(tuner);
    for (int x = -20; x < size.width() + 20; x += 11) {
        finger.press(x, 5).moveTo(x + 3, 5).release();
        witness.write(QStringLiteral("touch %1").arg(x));
    }
    setBand(*tuner, false, 53.1F, 162.09F, 0.9F); // multiplied in single precision
    finger.tap(size.width() / 2, 5);
    witness.write(QStringLiteral("a band in tens"));
}

void writeRadio(QTextStream &out)
{
    const auto all = samples();
    for (const RadioBand &band : kRadioBands) {
        for (const QSize &size : {QSize(800, 120), QSize(433, 90)}) {
            writeTuner(out, sampleOf(all, "MRadioMovePoint"), band, size);
            writeBand<MRadioSlider>(out, sampleOf(all, "MRadioSlider"), band, size);
            writeBand<MKARVOSlider>(out, sampleOf(all, "MKARVOSlider"), band, size);
        }
    }
}

// A finger once around, at several distances from the middle.
void writeCircles(QTextStream &out, const Sample &sample)
{
    constexpr int kAround[][2] = {{100, 3},   {98, 17},  {92, 38},  {79, 61},   {61, 79},
                                  {38, 92},   {17, 98},  {3, 100},  {-3, 100},  {-38, 92},
                                  {-61, 79},  {-92, 38}, {-100, 3}, {-98, -17}, {-79, -61},
                                  {-17, -98}, {3, -100}, {38, -92}, {79, -61},  {100, -3}};
    const auto widget = made(sample, sample.size);
    Witness witness(out, *widget, titled(sample.className, sample.size));
    const QPoint middle(sample.size.width() / 2, sample.size.height() / 2);
    Touch finger = touch(widget.get());
    finger.press(middle);
    for (int percent : {40, 100, 147, 230}) {
        for (const auto &direction : kAround) {
            const QPoint place = middle + QPoint(direction[0], direction[1]) * percent / 100;
            finger.moveTo(place.x(), place.y());
            witness.write(QStringLiteral("move %1,%2").arg(place.x()).arg(place.y()));
        }
    }
    finger.release();
    witness.write(QStringLiteral("release"));
}

void writeFunctions(QTextStream &out)
{
    for (qint64 seconds : {-1LL, 0LL, 59LL, 61LL, 3599LL, 3725LL, 86400LL, 360000LL}) {
        QString text;
        transFormTime(seconds, text);
        out << "transFormTime " << seconds << ": " << text << '\n';
    }
    SpIconButton button;
    for (int alpha = -1; alpha <= 256; ++alpha)
        out << "getAlphaOpacity " << alpha << ": " << allDigits(button.getAlphaOpacity(alpha))
            << '\n';
}

} // namespace

void writeNumbers(QTextStream &out)
{
    const auto all = samples();
    for (const Sample &sample : all) {
        for (const QSize &size : {sample.size, QSize(1, 1), QSize(90, 44), QSize(333, 77)})
            writeTouches(out, sample, size);
        writeValues(out, sample);
        writeTime(out, sample);
    }
    writeRadio(out);
    for (const char *round : {"MCircularDial", "MArcScrollBar", "MArcList"})
        writeCircles(out, sampleOf(all, round));
    writeFunctions(out);
}
