// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"

#include <mprogressbar.h>
#include <QApplication>
#include <QPalette>
#include <qwt_thermo.h>

namespace
{

constexpr double kPeerLimit = 0.5;
constexpr QSize kGroove(320, 20);
constexpr QSize kKnob(40, 40);
constexpr QSize kSize(360, 40);
constexpr int kLeft = (kSize.width() - kGroove.width()) / 2;
constexpr int kTop = (kSize.height() - kGroove.height()) / 2;

const SliderArtwork &artwork()
{
    static const SliderArtwork instance(kGroove, kKnob);
    return instance;
}

void givePictures(MProgressBar &bar)
{
    bar.setSliderNormalImage(artwork().fill);
    bar.setSliderPressImage(artwork().groove);
    bar.setPointNormalImage(artwork().knob);
    bar.setPointPressImage(artwork().knob);
}

void giveKnob(MProgressBar &bar) { bar.setPonitRadius(20); }

// Another value, and its paint.
template <class Prepare> PaintingMaker moved(Prepare prepare)
{
    return onGround([prepare]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto bar = shownOn<MProgressBar>(canvas, kSize, prepare);
        return {canvas, [bar] {
                    bar->setCurrentValue(bar->currentValue() == 50 ? 51 : 50);
                    bar->paint();
                }};
    });
}

PaintingMaker picturesFloor()
{
    return bareWidget(kSize, [](QPainter &painter) {
        painter.drawPixmap(kLeft, kTop, artwork().groove);
        painter.drawPixmap(kLeft, kTop, artwork().fill, 0, 0, kGroove.width() / 2,
                           kGroove.height());
        painter.drawPixmap((kSize.width() - kKnob.width()) / 2, 0, artwork().knob);
    });
}

// A knob that is wide enough for a time.
const QPixmap &wideKnob()
{
    static const QPixmap picture = keyPicture(QColor(60, 170, 200), QSize(90, 40));
    return picture;
}

void giveTime(MProgressBar &bar)
{
    givePictures(bar);
    bar.setPointNormalImage(wideKnob());
    bar.setPointPressImage(wideKnob());
    bar.setShowValue(true);
}

PaintingMaker timeFloor()
{
    const QRect knob(QPoint((kSize.width() - 90) / 2, 0), wideKnob().size());
    const LaidOutText time = laidOut(QStringLiteral("00:00:50"), QApplication::font(), knob);
    return bareWidget(kSize, [=](QPainter &painter) {
        painter.drawPixmap(kLeft, kTop, artwork().groove);
        painter.drawPixmap(kLeft, kTop, artwork().fill, 0, 0, kGroove.width() / 2,
                           kGroove.height());
        painter.drawPixmap(knob.topLeft(), wideKnob());
        time.draw(painter, QApplication::palette().color(QPalette::WindowText));
    });
}

// A disabled one has its own fill, squeezed into the part that is played.
void disable(MProgressBar &bar)
{
    givePictures(bar);
    bar.setSliderDisableImage(artwork().fill);
    bar.setEnabled(false);
}

PaintingMaker disabledFloor()
{
    const QPixmap squeezed = drawn({kGroove.width() / 2, kGroove.height()}, [](QPainter &painter) {
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.drawPixmap(QRect(0, 0, kGroove.width() / 2, kGroove.height()), artwork().fill);
    });
    return bareWidget(kSize, [squeezed](QPainter &painter) {
        painter.drawPixmap(kLeft, kTop, artwork().groove);
        painter.drawPixmap(kLeft, kTop, squeezed);
        painter.drawPixmap((kSize.width() - kKnob.width()) / 2, 0, artwork().knob);
    });
}

PaintingMaker outlinedFloor()
{
    return bareWidget(kSize, [](QPainter &painter) {
        const QRect track(0, 16, kSize.width(), 8);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QColor(210, 210, 210));
        painter.setBrush(QColor(150, 150, 150));
        painter.drawRect(track);
        painter.setBrush(QColor(255, 125, 0));
        painter.drawRect(track.adjusted(0, 0, -kSize.width() / 2, 0));
        painter.setBrush(QColor(230, 230, 230));
        painter.drawEllipse((kSize.width() - 20) / 2, 10, 20, 20);
    });
}

PaintingMaker plainFloor()
{
    return bareWidget(kSize, [](QPainter &painter) {
        constexpr int kRadius = 20;
        const int left = (kSize.width() - kRadius) / 2;
        painter.fillRect(0, 16, kSize.width(), 8, QColor(150, 150, 150));
        painter.fillRect(0, 16, left + kRadius / 2, 8, QColor(255, 125, 0));
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(230, 230, 230));
        painter.drawEllipse(left, 10, kRadius, kRadius);
    });
}

// A circle with soft edges costs several times its square one.
PaintingMaker peer()
{
    return styledSlider(
        kSize, Qt::Horizontal,
        QStringLiteral("QSlider::groove:horizontal { height: 8px; background: #969696; }"
                       "QSlider::sub-page:horizontal { background: #ff7d00; }"
                       "QSlider::handle:horizontal { width: 20px; border-radius: 10px; "
                       "background: #e6e6e6; }"),
        50);
}

// A bar of the same colours, filled as far, without scale and knob.
void giveBar(QwtThermo &thermo)
{
    thermo.setOrientation(Qt::Horizontal);
    thermo.setScalePosition(QwtThermo::NoScale);
    thermo.setScale(0, 100);
    thermo.setBorderWidth(0);
    thermo.setPipeWidth(8);
    QPalette palette = thermo.palette();
    palette.setColor(QPalette::Base, QColor(150, 150, 150));
    palette.setColor(QPalette::ButtonText, QColor(255, 125, 0));
    thermo.setPalette(palette);
    thermo.setValue(50);
}

PaintingMaker movedThermo()
{
    return onGround([]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto thermo = shownOn<QwtThermo>(canvas, kSize, giveBar);
        return {canvas, [thermo] {
                    thermo->setValue(thermo->value() == 50 ? 51 : 50);
                    thermo->paint();
                }};
    });
}

} // namespace

void defineRows(Rows &rows, Tag<MProgressBar>)
{
    rows.paint("MProgressBar", "pictures", onGround(widgetOf<MProgressBar>(kSize, givePictures)),
               {picturesFloor()},
               {{"QSlider pictures", onGround(picturedSlider(kSize, Qt::Horizontal, artwork(), 50)),
                 kPeerLimit}});
    rows.paint("MProgressBar", "plain colours", onGround(widgetOf<MProgressBar>(kSize, giveKnob)),
               {plainFloor()},
               {{"QSlider style sheet", peer()},
                {"QwtThermo", onGround(widgetOf<QwtThermo>(kSize, giveBar))}});
    rows.paint("MProgressBar", "pictures with time",
               onGround(widgetOf<MProgressBar>(kSize, giveTime,
                                               [](MProgressBar &bar) { bar.setRealValue(50); })),
               {timeFloor()}, {});
    rows.paint("MProgressBar", "pictures disabled",
               onGround(widgetOf<MProgressBar>(kSize, disable)), {disabledFloor()}, {});
    rows.paint("MProgressBar", "plain colours outlined",
               onGround(widgetOf<MProgressBar>(kSize, giveKnob,
                                               [](MProgressBar &bar) { bar.setBoundary(true); })),
               {outlinedFloor()}, {});
    rows.move("MProgressBar", "pictures moved", moved(givePictures), {picturesFloor()}, {});
    rows.move("MProgressBar", "plain colours moved", moved(giveKnob), {plainFloor()},
              {{"QwtThermo", movedThermo()}});
}
