// SPDX-License-Identifier: Apache-2.0
#include "shots.h"

#include "samples.h"

#include "panelkitclasses.h"

#include "radiobands.h"
#include "touch.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QAbstractScrollArea>
#include <QRandomGenerator>

namespace
{

using Receive = std::function<void(const QString &name, const QImage &picture)>;

// What is there before is not black, so that translucent edges show.
QImage pictureOf(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(60, 110, 90));
    if (!image.isNull())
        widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

// A layer is drawn directly first and kept the next time: both are looked at.
void take(QWidget &widget, const QString &name, const Receive &receive)
{
    receive(name + QStringLiteral("-direct"), pictureOf(widget));
    pictureOf(widget);
    receive(name + QStringLiteral("-kept"), pictureOf(widget));
}

// From nothing to some three times what the property has by itself.
void takeValues(const Sample &sample, const Receive &receive)
{
    const auto properties = numberProperties(*made(sample, sample.size));
    for (const QMetaProperty &property : properties) {
        const auto widget = made(sample, sample.size);
        const double initial = qMax(3.0, property.read(widget.get()).toDouble());
        for (int step = 0; step <= 4; ++step) {
            QVariant value = initial * step * 0.7;
            value.convert(property.userType());
            property.write(widget.get(), value);
            receive(QStringLiteral("%1-%2-%3")
                        .arg(QLatin1String(sample.className), QLatin1String(property.name()))
                        .arg(step),
                    pictureOf(*widget));
        }
    }
}

// Styles, alignments, orientations, and everything else that has names.
void takeStyles(const Sample &sample, const Receive &receive)
{
    const QMetaObject *type = made(sample, sample.size)->metaObject();
    for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
        const QMetaProperty property = type->property(i);
        if (!property.isEnumType() && property.userType() != QMetaType::Bool)
            continue;
        for (int value = 0; value < 2; ++value) {
            const auto widget = made(sample, sample.size);
            property.write(widget.get(), value);
            take(*widget,
                 QStringLiteral("%1-%2-%3")
                     .arg(QLatin1String(sample.className), QLatin1String(property.name()))
                     .arg(value),
                 receive);
        }
    }
}

// Each number is drawn in a statement of its own: the order in which a compiler takes the arguments
// of a call is another one on each processor.
class RandomPlaces
{
public:
    explicit RandomPlaces(quint32 seed) : m_random(seed) { }

    int below(int limit) { return int(m_random.bounded(limit)); }

    QPoint within(const QSize &size)
    {
        const int x = below(size.width());
        const int y = below(size.height());
        return {x, y};
    }

private:
    QRandomGenerator m_random;
};

// One drive of a finger over a widget without its pictures, which has to paint by itself.
void takeDrive(const Sample &sample, quint32 seed, const Receive &receive)
{
    constexpr int kSteps = 12;
    RandomPlaces places(seed);
    const QPoint corner = places.within({400, 300});
    const QSize size(30 + corner.x(), 30 + corner.y());
    const auto widget = made(sample, size);
    if (seed % 2 == 0) {
        const QMetaObject *type = widget->metaObject();
        for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
            if (type->property(i).userType() == QMetaType::QPixmap)
                type->property(i).write(widget.get(), QPixmap());
        }
    }
    auto *area = qobject_cast<QAbstractScrollArea *>(widget.get());
    Touch finger = touch(area ? area->viewport() : widget.get());
    for (int step = 0; step < kSteps; ++step) {
        const QPoint place = places.within(size);
        const int kind = places.below(3);
        if (kind == 0)
            finger.press(place);
        else if (kind == 1)
            finger.moveTo(place.x(), place.y());
        else
            finger.release();
        virtualtime::advance(places.below(120));
        receive(QStringLiteral("%1-drive%2-%3")
                    .arg(QLatin1String(sample.className))
                    .arg(seed)
                    .arg(step),
                pictureOf(*widget));
    }
}

// The numbers on the scales.
template <typename Slider> void takeBand(const Sample &sample, const Receive &receive)
{
    for (const RadioBand &band : kRadioBands) {
        const float unit = band.isFM ? 100.0F : 1.0F;
        const auto widget = made(sample, sample.size);
        auto *slider = static_cast<Slider *>(widget.get());
        slider->setLineColor(Qt::white);
        slider->setFreqStart(float(band.start) / unit);
        slider->setFreqEnd(float(band.end) / unit);
        slider->setFreqStep(float(band.step) / unit);
        slider->setIsFM(band.isFM);
        slider->setCurFreq(float(band.start + band.end) / 2 / unit);
        QMetaObject::invokeMethod(slider, "freqParamChangedSlot", Q_ARG(bool, band.isFM),
                                  Q_ARG(float, float(band.start) / unit),
                                  Q_ARG(float, float(band.end) / unit),
                                  Q_ARG(float, float(band.step) / unit));
        take(*slider,
             QString(QStringLiteral("%1-band %2"))
                 .arg(QLatin1String(sample.className), QLatin1String(band.name)),
             receive);
    }
}

void takeLooks(const Sample &sample, const Receive &receive)
{
    if (qstrcmp(sample.className, "MRadioSlider") == 0)
        takeBand<MRadioSlider>(sample, receive);
    if (qstrcmp(sample.className, "MKARVOSlider") == 0)
        takeBand<MKARVOSlider>(sample, receive);
    if (qstrcmp(sample.className, "SpLoadingRound") == 0) {
        for (int style = 0; style < 3; ++style) {
            const auto widget = made(sample, sample.size);
            auto *round = static_cast<SpLoadingRound *>(widget.get());
            round->setDrawStyle(SpLoadingRound::DrawStyle(style));
            take(*round, QStringLiteral("SpLoadingRound-style-%1").arg(style), receive);
        }
    }
    if (qstrcmp(sample.className, "SpBackgroundImage") == 0) {
        for (int angle : {1, 30, 45, 90, 133, 180}) {
            const auto widget = made(sample, sample.size);
            static_cast<SpBackgroundImage *>(widget.get())->setRotateAngle(angle);
            take(*widget, QStringLiteral("SpBackgroundImage-turned-%1").arg(angle), receive);
        }
    }
}

} // namespace

void takePictures(const Receive &receive)
{
    constexpr quint32 kDrives = 4;
    for (const Sample &sample : samples()) {
        takeValues(sample, receive);
        takeStyles(sample, receive);
        takeLooks(sample, receive);
        for (quint32 seed = 1; seed <= kDrives; ++seed)
            takeDrive(sample, seed, receive);
    }
}
