// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "pictures.h"
#include "rows.h"

#include <benchmark/benchmark.h>
#include <QApplication>
#include <QFontMetricsF>
#include <QLabel>
#include <QPushButton>
#include <QStaticText>
#include <spdislabel.h>

namespace
{

constexpr QSize kSize(200, 64);
constexpr QSize kIcon(64, 64);
constexpr QPoint kIconPos(68, 0);
constexpr int kRadius = 20; // px
constexpr double kFloorLimit = 1.15;
constexpr double kPeerLimit = 0.8;
constexpr double kStartUpLimit = 2;

const QColor kGround(40, 60, 90);
const QColor kTranslucent(90, 160, 255, 70);

QString shortText() { return QStringLiteral("Radio One"); }

QString longText() { return QStringLiteral("A station with a very long name"); }

const QPixmap &icon()
{
    static const QPixmap picture = keyPicture(QColor(40, 90, 160), kIcon);
    return picture;
}

// Ours: a label with its text, in the state into which the function brings it.
template <class Enter> PaintingMaker label(Enter enter)
{
    return widgetOf<SpDisLabel>(kSize, [enter](SpDisLabel &label) {
        label.resize(kSize);
        label.setText(shortText());
        enter(label);
    });
}

QPixmap roundedGround(const QColor &color)
{
    QPixmap picture(kSize);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(picture.rect()), kRadius, kRadius);
    return picture;
}

QStaticText preparedText(const QString &text)
{
    QStaticText layout(text);
    layout.setTextFormat(Qt::PlainText);
    layout.prepare(QTransform(), QApplication::font());
    return layout;
}

QPointF textPos(const QString &text)
{
    return QFontMetricsF(QApplication::font())
        .boundingRect(QRectF(QPointF(), kSize), Qt::AlignCenter, text)
        .topLeft();
}

// A ground and a layout that need no more work.
template <class DrawGround>
PaintingMaker floorOf(DrawGround drawGround, const QString &text = shortText())
{
    const QStaticText layout = preparedText(text);
    const QPointF at = textPos(text);
    return bareWidget(kSize, [=](QPainter &painter) {
        drawGround(painter);
        painter.setPen(Qt::white);
        painter.drawStaticText(at, layout);
    });
}

PaintingMaker squareFloor(const QColor &color)
{
    return floorOf([color](QPainter &painter) { painter.fillRect(QRect(QPoint(), kSize), color); });
}

PaintingMaker roundedFloor(const QColor &color)
{
    const QPixmap ground = roundedGround(color);
    return floorOf([ground](QPainter &painter) { painter.drawPixmap(0, 0, ground); });
}

// Qt's own button, flat, with a ground that a style sheet gives. QLabel leaves that ground to the
// window it stands in.
PaintingMaker flatButton(const QString &text, const QColor &color, int radius)
{
    const QString sheet = QStringLiteral("color: white; background-color: %1; border: none; "
                                         "border-radius: %2px;")
                              .arg(color.name(QColor::HexArgb))
                              .arg(radius);
    return widgetOf<QPushButton>(kSize, [text, sheet](QPushButton &button) {
        button.setStyleSheet(sheet);
        button.setText(text);
    });
}

void addString(Rows &rows, const char *state, const PaintingMaker &ours, const PaintingMaker &floor,
               const PaintingMaker &peer)
{
    rows.paint("SpDisLabel", state, ours, {floor, kFloorLimit},
               {{"QPushButton style sheet", peer, kPeerLimit}});
}

// What the label makes of a text that is too long: the same as a first paint of it shows.
QString shortened()
{
    const QFontMetrics metrics{QApplication::font()};
    const QString text = longText();
    int count = 0;
    while (metrics.horizontalAdvance(text.left(count + 1)) < kSize.width())
        ++count;
    while (metrics.horizontalAdvance(text.left(count) + QStringLiteral("...")) > kSize.width())
        --count;
    return text.left(count) + QStringLiteral("...");
}

template <class Widget> StepMaker makeAndDelete()
{
    return [] {
        return [] {
            const Widget widget;
            benchmark::DoNotOptimize(&widget);
        };
    };
}

} // namespace

void defineRows(Rows &rows, Tag<SpDisLabel>)
{
    addString(rows, "square", label([](SpDisLabel &l) { l.setNormalBackgroundColor(kGround); }),
              squareFloor(kGround), flatButton(shortText(), kGround, 0));
    addString(rows, "rounded", label([](SpDisLabel &l) {
                  l.setNormalBackgroundColor(kGround);
                  l.setRoundXY(kRadius);
              }),
              roundedFloor(kGround), flatButton(shortText(), kGround, kRadius));
    addString(rows, "rounded translucent pressed", label([](SpDisLabel &l) {
                  l.setPressBackgroundColor(kTranslucent);
                  l.setRoundXY(kRadius);
                  l.setIsDown(true);
              }),
              roundedFloor(kTranslucent), flatButton(shortText(), kTranslucent, kRadius));
    addString(rows, "no ground", label([](SpDisLabel &) {}), floorOf([](QPainter &) {}),
              flatButton(shortText(), Qt::transparent, 0));
    addString(rows, "shortened", label([](SpDisLabel &l) { l.setText(longText()); }),
              floorOf([](QPainter &) {}, shortened()), flatButton(shortened(), Qt::transparent, 0));

    rows.paint("SpDisLabel", "picture", label([](SpDisLabel &l) {
                   l.setDisplayMode(SpDisLabel::Picture);
                   l.setIcon(icon());
               }),
               {bareWidget(kSize, [](QPainter &painter) { painter.drawPixmap(kIconPos, icon()); }),
                kFloorLimit},
               {{"QLabel", widgetOf<QLabel>(kSize, [](QLabel &label) {
                     label.setAlignment(Qt::AlignCenter);
                     label.setPixmap(icon());
                 })}});
    rows.work("SpDisLabel", "made and deleted", makeAndDelete<SpDisLabel>(),
              {makeAndDelete<QWidget>(), kStartUpLimit},
              {{"QPushButton", makeAndDelete<QPushButton>(), 1.0}});
}
