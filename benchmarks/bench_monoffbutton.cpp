// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "mouse.h"
#include "pictures.h"
#include "rows.h"
#include "ticks.h"

#include <monoffbutton.h>
#include <QCheckBox>
#include <QPainterPath>

namespace
{

constexpr QSize kSize(120, 48);
constexpr QRect kWhole(QPoint(), kSize);
constexpr int kKnob = 52; // px, in motion
constexpr double kMovingLimit = 1.15; // of the floor
constexpr double kKeptPlatesLimit = 0.25; // of the floor, which keeps nothing
constexpr double kPeerLimit = 0.6; // of what paints pictures only
constexpr QColor kOn(255, 145, 20);
constexpr QColor kOff(155, 155, 155);

struct Artwork {
    QPixmap on = keyPicture(QColor(230, 120, 20), kSize);
    QPixmap off = keyPicture(QColor(110, 110, 110), kSize);
    QPixmap knob = keyPicture(QColor(40, 90, 160), QSize(48, 48));
    QPixmap moving = keyPicture(QColor(60, 170, 200), QSize(48, 48));
};

const Artwork &artwork()
{
    static const Artwork instance;
    return instance;
}

// Ours, in the state into which the function brings it.
template <class Enter> PaintingMaker button(Enter enter)
{
    return onGround(widgetOf<MOnOffButton>(kSize, enter));
}

// The knob in motion: it goes a pixel back or forth, and is painted.
template <class Enter> PaintingMaker movingButton(Enter enter)
{
    return onGround([enter]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto button = shownOn<MOnOffButton>(canvas, kSize, enter);
        return {canvas, [button, x = kKnob]() mutable {
                    x = x == kKnob ? kKnob + 1 : kKnob;
                    sendMouse(*button, QEvent::MouseMove, {x, 10});
                    button->paint();
                }};
    });
}

// The knob on its way to the other end: a tick of the glide, and its paint. Where it has come to
// its end, it goes back.
template <class Enter> PaintingMaker glidingButton(Enter enter)
{
    return onGround([enter]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto button = shownOn<MOnOffButton>(canvas, kSize, enter);
        return {canvas, [button] {
                    if (timerOf(*button) == 0)
                        button->changeStatus(!button->onoffStatus());
                    sendTick(*button, timerOf(*button));
                    button->paint();
                }};
    });
}

void setPictures(MOnOffButton &button)
{
    button.setNormalBkgPix(artwork().on);
    button.setPressBkgPix(artwork().off);
    button.setNormalChunkPix(artwork().knob);
    button.setPressChunkPix(artwork().moving);
}

void moveKnob(MOnOffButton &button)
{
    button.resize(kSize);
    sendMouse(button, QEvent::MouseMove, {kKnob, 10});
}

QPainterPath roundedPath(const QRectF &r, qreal k)
{
    QPainterPath path;
    path.moveTo(r.right() - k, r.top());
    path.lineTo(r.left() + k, r.top());
    path.quadTo(r.topLeft(), r.topLeft() + QPointF(0, k));
    path.lineTo(r.left(), r.bottom() - k);
    path.quadTo(r.bottomLeft(), r.bottomLeft() + QPointF(k, 0));
    path.lineTo(r.right() - k, r.bottom());
    path.quadTo(r.bottomRight(), r.bottomRight() - QPointF(0, k));
    path.lineTo(r.right(), r.top() + k);
    path.quadTo(r.topRight(), r.topRight() - QPointF(k, 0));
    return path;
}

// One shape of a painted look, with everything about it prepared.
struct Shape {
    QPainterPath path;
    QPen pen;
    QBrush brush;
    QBrush ground = QBrush(Qt::NoBrush); // painted first, under the soft edge
    QRect circle = QRect(); // instead of the path
};

PaintingMaker floorOf(const QVector<Shape> &shapes)
{
    return bareWidget(kSize, [shapes](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        for (const Shape &shape : shapes) {
            if (shape.ground.style() != Qt::NoBrush)
                painter.fillPath(shape.path, shape.ground);
            painter.setPen(shape.pen);
            painter.setBrush(shape.brush);
            if (shape.circle.isNull())
                painter.drawPath(shape.path);
            else
                painter.drawEllipse(shape.circle);
        }
    });
}

QColor part(const QColor &color, int numerator, int denominator, int alpha = 255)
{
    return {color.red() * numerator / denominator, color.green() * numerator / denominator,
            color.blue() * numerator / denominator, alpha};
}

Shape slimTrack(int left, int right, const QColor &pen, const QColor &brush, const QColor &ground)
{
    const QRectF rect(QRect(QPoint(left, 9), QPoint(right, 40)));
    return {roundedPath(rect, 16), pen, brush, ground};
}

Shape roundKnob(int left, const QColor &pen, const QColor &brush)
{
    return {{}, pen, brush, QBrush(Qt::NoBrush), QRect(left, 0, 48, 48)};
}

Shape plate(const QRect &rect, const QColor &pen, const QColor &brush)
{
    return {roundedPath(rect, qreal(rect.height() / 2)), pen, brush};
}

QVector<Shape> plates(int knobLeft, const QColor &innerPen, const QColor &innerBrush)
{
    return {plate(kWhole.adjusted(1, 1, -1, -1), kOn, kOn),
            plate(kWhole.adjusted(6, 6, -6, -6), innerPen, innerBrush),
            plate(QRect(knobLeft, 16, 28, 16), kOn, kOn)};
}

// Of a look at rest.
PaintingMaker picturesFloor(const QImage &track, const QImage &knob, const QPoint &at)
{
    return bareWidget(kSize, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawImage(0, 0, track);
        painter.drawImage(at, knob);
    });
}

// The picture as it is dimmed for a place on the widget.
QImage dimmed(const QPixmap &pixmap, const QPoint &at)
{
    const QRect target(at, pixmap.size());
    QImage image = pixmap.toImage();
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(target, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawPixmap(target, pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(target, QColor(0, 0, 0, 154));
    return image;
}

// The knob on the border of both tracks.
PaintingMaker movingFloor()
{
    const Artwork &art = artwork();
    return bareWidget(kSize, [&art](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawPixmap(0, 0, kKnob, 48, art.on);
        painter.drawPixmap(kKnob, 0, 120 - kKnob, 48, art.off);
        painter.drawPixmap(kKnob - 24, 0, art.moving);
    });
}

// Qt's own thing with two states.
PaintingMaker checkBox(bool enabled)
{
    return widgetOf<QCheckBox>(kSize, [enabled](QCheckBox &box) {
        box.setChecked(true);
        box.setEnabled(enabled);
    });
}

void addPaintedLooks(Rows &rows)
{
    const QColor line(70, 70, 70);
    rows.paint("MOnOffButton", "style 0", button([](MOnOffButton &b) { b.setOnoffStatus(true); }),
               {floorOf({slimTrack(1, 118, line, part(kOn, 2, 3), kOn), roundKnob(71, line, kOn)})},
               {{"QCheckBox", checkBox(true)}});
    rows.move(
        "MOnOffButton", "style 0 in motion", movingButton(AsItIs()),
        {floorOf({slimTrack(1, kKnob - 1, line, part(kOff, 2, 3), kOff),
                  slimTrack(kKnob, 118, line, part(kOn, 2, 3), kOn),
                  roundKnob(kKnob - 24, line, kOff)}),
         kMovingLimit},
        {{"QCheckBox", checkBox(true)}},
        {"both parts of its track change their length with each step, so that three shapes are "
         "filled and stroked anew; a check box does not move"});
    rows.paint("MOnOffButton", "style 0 disabled", button([](MOnOffButton &b) {
                   b.setOnoffStatus(true);
                   b.setBtnDisable(true);
               }),
               {floorOf({slimTrack(1, 118, part(kOn, 2, 5), part(kOn, 2, 5), part(kOn, 2, 3)),
                         roundKnob(71, part(kOn, 2, 3), part(kOn, 2, 3))})},
               {{"QCheckBox", checkBox(false)}});
    rows.paint("MOnOffButton", "style 1", button([](MOnOffButton &b) {
                   b.setOnoffStatus(true);
                   b.setUIStyle(MOnOffButton::ONOFF_STYLE_1);
               }),
               {floorOf(plates(76, kOn, part(kOn, 1, 2, 155)))}, {{"QCheckBox", checkBox(true)}});
    const QColor dark = part(kOn, 1, 3);
    rows.paint("MOnOffButton", "style 1 disabled", button([](MOnOffButton &b) {
                   b.setOnoffStatus(true);
                   b.setUIStyle(MOnOffButton::ONOFF_STYLE_1);
                   b.setBtnDisable(true);
               }),
               {floorOf({plate(kWhole.adjusted(1, 1, -1, -1), part(kOn, 2, 3), part(kOn, 2, 3)),
                         plate(kWhole.adjusted(6, 6, -6, -6), dark, dark),
                         plate(QRect(76, 16, 28, 16), dark, dark)})},
               {{"QCheckBox", checkBox(false)}});
    rows.move("MOnOffButton", "style 1 in motion", movingButton([](MOnOffButton &b) {
                  b.setOnoffStatus(true);
                  b.setUIStyle(MOnOffButton::ONOFF_STYLE_1);
              }),
              {floorOf(plates(39, part(kOn, 1, 2), part(kOn, 1, 2))), kKeptPlatesLimit},
              {{"QCheckBox", checkBox(true)}},
              {"its knob is filled and stroked with each step over plates that are kept; a check "
               "box does not move"});
}

void addGlides(Rows &rows)
{
    const QColor line(70, 70, 70);
    rows.move("MOnOffButton", "style 0 gliding", glidingButton(AsItIs()),
              {floorOf({slimTrack(1, kKnob - 1, line, part(kOff, 2, 3), kOff),
                        slimTrack(kKnob, 118, line, part(kOn, 2, 3), kOn),
                        roundKnob(kKnob - 24, line, kOff)})},
              {});
    rows.move("MOnOffButton", "style 1 gliding",
              glidingButton([](MOnOffButton &b) { b.setUIStyle(MOnOffButton::ONOFF_STYLE_1); }),
              {floorOf(plates(39, part(kOn, 1, 2), part(kOn, 1, 2)))}, {});
}

void addPicturedLooks(Rows &rows)
{
    const Artwork &art = artwork();
    rows.paint("MOnOffButton", "pictures", button([](MOnOffButton &b) {
                   setPictures(b);
                   b.setOnoffStatus(true);
               }),
               {picturesFloor(art.on.toImage(), art.knob.toImage(), {71, 0})},
               {{"QCheckBox", checkBox(true), kPeerLimit}});
    rows.paint("MOnOffButton", "pictures disabled", button([](MOnOffButton &b) {
                   setPictures(b);
                   b.setOnoffStatus(true);
                   b.setBtnDisable(true);
               }),
               {picturesFloor(dimmed(art.on, {0, 0}), dimmed(art.knob, {71, 0}), {71, 0})},
               {{"QCheckBox", checkBox(false), kPeerLimit}});
    // A knob in motion never stands in one place twice: squeezing the tracks is part of the floor.
    rows.motion("MOnOffButton", "pictures in motion", button([](MOnOffButton &b) {
                    setPictures(b);
                    moveKnob(b);
                }),
                {movingFloor(), kMovingLimit}, {{"QCheckBox", checkBox(true)}});
    rows.move("MOnOffButton", "pictures gliding", glidingButton(setPictures), {movingFloor()}, {});
}

} // namespace

void defineRows(Rows &rows, Tag<MOnOffButton>)
{
    addPaintedLooks(rows);
    addPicturedLooks(rows);
    addGlides(rows);
}
