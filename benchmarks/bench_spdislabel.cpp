// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "peers.h"
#include "pictures.h"
#include "rows.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QPushButton>
#include <spdislabel.h>

namespace
{

constexpr QSize kSize(200, 64);
constexpr QSize kIcon(64, 64);
constexpr QPoint kIconPos(68, 0);
constexpr int kRadius = 20; // px
constexpr double kPeerLimit = 0.8;

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
    return drawn(kSize, [color](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawRoundedRect(QRectF(QPointF(), kSize), kRadius, kRadius);
    });
}

// A ground and a layout that need no more work.
template <class DrawGround>
PaintingMaker floorOf(DrawGround drawGround, const QString &text = shortText())
{
    const LaidOutText caption = laidOut(text, QApplication::font(), QRectF(QPointF(), kSize));
    return bareWidget(kSize, [=](QPainter &painter) {
        drawGround(painter);
        caption.draw(painter, Qt::white);
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
    return styledButton(kSize, sheet, text);
}

void addString(Rows &rows, const char *state, const PaintingMaker &ours, const PaintingMaker &floor,
               const PaintingMaker &peer, const OwnLimits &own = {})
{
    rows.paint("SpDisLabel", state, ours, {floor}, {{"QPushButton style sheet", peer, kPeerLimit}},
               own);
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

} // namespace

void defineRows(Rows &rows, Tag<SpDisLabel>)
{
    addString(rows, "square",
              onGround(label([](SpDisLabel &l) { l.setNormalBackgroundColor(kGround); })),
              squareFloor(kGround), flatButton(shortText(), kGround, 0), keptTextLimit(2.1));
    addString(rows, "rounded", onGround(label([](SpDisLabel &l) {
                  l.setNormalBackgroundColor(kGround);
                  l.setRoundXY(kRadius);
              })),
              roundedFloor(kGround), flatButton(shortText(), kGround, kRadius));
    addString(rows, "rounded translucent pressed", onGround(label([](SpDisLabel &l) {
                  l.setPressBackgroundColor(kTranslucent);
                  l.setRoundXY(kRadius);
                  l.setIsDown(true);
              })),
              roundedFloor(kTranslucent), flatButton(shortText(), kTranslucent, kRadius));
    addString(rows, "no ground", onGround(label(AsItIs())), floorOf([](QPainter &) {}),
              flatButton(shortText(), Qt::transparent, 0), keptTextLimit(3.35));
    addString(rows, "shortened", onGround(label([](SpDisLabel &l) { l.setText(longText()); })),
              floorOf([](QPainter &) {}, shortened()), flatButton(shortened(), Qt::transparent, 0),
              keptTextLimit(2.05));

    rows.paint("SpDisLabel", "picture", label([](SpDisLabel &l) {
                   l.setDisplayMode(SpDisLabel::Picture);
                   l.setIcon(icon());
               }),
               {bareWidget(kSize, [](QPainter &painter) { painter.drawPixmap(kIconPos, icon()); })},
               {{"QLabel", widgetOf<QLabel>(kSize, [](QLabel &label) {
                     label.setAlignment(Qt::AlignCenter);
                     label.setPixmap(icon());
                 })}});
}
