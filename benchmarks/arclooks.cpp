// SPDX-License-Identifier: Apache-2.0
#include "arclooks.h"

#include "canvas.h"
#include "floors.h"
#include "mouse.h"
#include "pictures.h"

#include <marclist.h>
#include <QApplication>
#include <QGlyphRun>
#include <QListWidget>
#include <QTextLayout>

#include <vector>

namespace
{

using namespace arclooks;

constexpr int kBox = 40; // px
constexpr int kCurrent = 3; // D
constexpr int kPressed = 5; // F
constexpr double kAngle = -20; // degrees
constexpr double kRadius = 470; // px
constexpr QPoint kOnPressed(439, 368); // on the arc
constexpr QColor kPressColor(250, 220, 60);

QFont letterFont() { return fontOf(24); }

const QPixmap &marker()
{
    static const QPixmap instance = keyPicture(QColor(60, 170, 200), QSize(64, 44));
    return instance;
}

// A letter with everything that can be known before the paint.
struct Letter {
    QTransform transform;
    QGlyphRun run;
    QPointF at;
    bool isPressed;
};

// The layout of a letter in a box, centred, and in the middle or at the bottom of it.
Letter letterIn(const QTransform &transform, const QRectF &box, int flags, int index)
{
    const QFont font = letterFont();
    const QChar letter = QLatin1Char(char('A' + index));
    QTextLayout layout(letter, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(kSize.width());
    layout.endLayout();
    const qreal y = QFontMetricsF(font).boundingRect(box, flags, letter).top();
    return {transform,
            layout.glyphRuns().constFirst(),
            {lineStart(box.left() + (box.width() - line.horizontalAdvance()) / 2), lineStart(y)},
            index == kPressed};
}

std::vector<Letter> lettersOnArc(double pitch)
{
    std::vector<Letter> letters;
    QTransform turned = QTransform::fromTranslate(0, 200);
    turned.rotate(kAngle - 90);
    const QRectF box(-kBox / 2, 0, kBox, kBox);
    for (int i = 0; i < 26; ++i) {
        QTransform upright = turned;
        upright.translate(0, kRadius).rotate(90);
        if (upright.mapRect(box).intersects(QRectF(QPointF(), kSize)))
            letters.push_back(letterIn(upright, box, Qt::AlignCenter, i));
        turned.rotate(pitch);
    }
    return letters;
}

// The marker turned to its place on the arc. Around it there is nothing to copy.
QImage turnedMarker(double degrees, const QRect &place)
{
    const QPixmap picture = drawn(kSize, [degrees](QPainter &painter) {
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.translate(0, 200);
        painter.rotate(degrees);
        painter.drawPixmap(int(kRadius) - 32, -22, marker());
    });
    return picture.toImage().copy(place);
}

QColor letterColor(bool isPressed)
{
    return isPressed ? kPressColor : QApplication::palette().color(QPalette::WindowText);
}

} // namespace

namespace arclooks
{

void prepareList(MArcList &list)
{
    list.setFont(letterFont());
    list.setPressColor(kPressColor);
    list.setPointPixmap(marker());
    for (char c = 'A'; c <= 'Z'; ++c)
        list.addAlpha(QLatin1Char(c));
    list.setCurrentIndex(QLatin1Char('A' + kCurrent));
}

PaintingMaker arc(const Arc &look)
{
    return widgetOf<MArcList>(kSize, [look](MArcList &list) {
        list.setItemHight(look.pitch);
        prepareList(list);
        list.setStartAngle(kAngle);
        list.resize(kSize);
        if (look.isPressed)
            sendMouse(list, QEvent::MouseButtonPress, kOnPressed);
    });
}

PaintingMaker arcFloor(const Arc &look)
{
    const std::vector<Letter> letters = lettersOnArc(look.pitch);
    const auto degreesOf = [&look](int index) { return index * look.pitch + kAngle + 2.5; };
    const QRect place(390, look.pitch < 8 ? 110 : 140, 170, 140);
    const QImage current = turnedMarker(degreesOf(kCurrent), place);
    const QRect pressedPlace(380, 320, 120, 80);
    const QImage pressed =
        look.isPressed ? turnedMarker(degreesOf(kPressed), pressedPlace) : QImage();
    return bareWidget(kSize, [=, isPressed = look.isPressed](QPainter &painter) {
        painter.setFont(letterFont());
        for (const Letter &letter : letters) {
            painter.setPen(letterColor(isPressed && letter.isPressed));
            painter.setWorldTransform(letter.transform);
            painter.drawGlyphRun(letter.at, letter.run);
        }
        painter.resetTransform();
        if (isPressed)
            painter.drawImage(pressedPlace.topLeft(), pressed);
        painter.drawImage(place.topLeft(), current);
    });
}

PaintingMaker column(bool isPressed)
{
    return widgetOf<MArcList>(kSize, [isPressed](MArcList &list) {
        list.setAcrListStyle(MArcList::ARCLIST_STYLE_1);
        list.setItemHight(kRowHeight);
        list.setShowItem(10);
        prepareList(list);
        list.setStartAngle(0);
        if (isPressed)
            sendMouse(list, QEvent::MouseButtonPress, {kFingerX, kPressed * kRowHeight + 5});
    });
}

PaintingMaker columnFloor(bool isPressed)
{
    std::vector<Letter> letters;
    const int left = (kSize.width() - marker().width()) / 2;
    for (int row = 0; row < 10; ++row)
        letters.push_back(letterIn({}, QRect(left, row * kRowHeight + 5, kBox, kBox),
                                   Qt::AlignHCenter | Qt::AlignBottom, row));
    return bareWidget(kSize, [letters, left, isPressed](QPainter &painter) {
        painter.setPen(letterColor(false));
        for (const Letter &letter : letters) {
            if (isPressed && letter.isPressed) // and so are all below it
                painter.setPen(letterColor(true));
            painter.drawGlyphRun(letter.at, letter.run);
        }
        painter.drawPixmap(left + 2, kCurrent * kRowHeight, marker());
    });
}

std::shared_ptr<QListWidget> makePeer()
{
    auto list = std::make_shared<QListWidget>();
    list->setFont(letterFont());
    for (char c = 'A'; c <= 'Z'; ++c)
        list->addItem(QString(QLatin1Char(c)));
    for (int i = 0; i < list->count(); ++i) {
        list->item(i)->setSizeHint(QSize(kBox, kRowHeight));
        list->item(i)->setTextAlignment(Qt::AlignCenter);
    }
    list->item(kCurrent)->setIcon(QIcon(marker()));
    list->setCurrentRow(kCurrent);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    showOffScreen(*list, kSize);
    return list;
}

// A list view paints in its viewport.
void paintPeer(QListWidget &list, QImage &canvas)
{
    list.viewport()->render(&canvas, QPoint(), QRegion(), QWidget::DrawChildren);
}

PaintingMaker peer()
{
    return []() -> Painting {
        const auto canvas = makeCanvas(kSize);
        return {canvas, [list = makePeer(), canvas] { paintPeer(*list, *canvas); }};
    };
}

} // namespace arclooks
