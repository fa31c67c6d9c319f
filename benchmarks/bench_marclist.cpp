// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "mouse.h"
#include "pictures.h"
#include "rows.h"

#include <marclist.h>
#include <QApplication>
#include <QGlyphRun>
#include <QListWidget>
#include <QScrollBar>
#include <QTextLayout>

#include <vector>

namespace
{

constexpr QSize kSize(560, 400);
constexpr int kBox = 40; // px
constexpr int kCurrent = 3; // D
constexpr int kRowHeight = 40; // px
constexpr double kAngle = -20; // degrees
constexpr double kRadius = 470; // px
constexpr double kPitch = 8; // degrees
constexpr double kPeerLimit = 1;

QFont letterFont() { return fontOf(24); }

const QPixmap &marker()
{
    static const QPixmap instance = keyPicture(QColor(60, 170, 200), QSize(64, 44));
    return instance;
}

void prepareList(MArcList &list)
{
    list.setFont(letterFont());
    list.setPointPixmap(marker());
    for (char c = 'A'; c <= 'Z'; ++c)
        list.addAlpha(QLatin1Char(c));
    list.setCurrentIndex(QLatin1Char('A' + kCurrent));
}

PaintingMaker arc()
{
    return widgetOf<MArcList>(kSize, [](MArcList &list) {
        prepareList(list);
        list.setStartAngle(kAngle);
    });
}

PaintingMaker column()
{
    return widgetOf<MArcList>(kSize, [](MArcList &list) {
        list.setAcrListStyle(MArcList::ARCLIST_STYLE_1);
        list.setItemHight(kRowHeight);
        list.setShowItem(10);
        prepareList(list);
        list.setStartAngle(0);
    });
}

// A letter with everything that can be known before the paint.
struct Letter {
    QTransform transform;
    QGlyphRun run;
    QPointF at;
};

// The layout of a letter in a box, centred, and in the middle or at the bottom of it.
Letter letterIn(const QTransform &transform, const QRectF &box, int flags, QChar letter)
{
    const QFont font = letterFont();
    QTextLayout layout(letter, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(kSize.width());
    layout.endLayout();
    const qreal y = QFontMetricsF(font).boundingRect(box, flags, letter).top();
    return {transform,
            layout.glyphRuns().constFirst(),
            {lineStart(box.left() + (box.width() - line.horizontalAdvance()) / 2), lineStart(y)}};
}

// The marker turned to its place on the arc.
QPixmap turnedMarker()
{
    return drawn(kSize, [](QPainter &painter) {
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.translate(0, 200);
        painter.rotate(kCurrent * kPitch + kAngle + 2.5);
        painter.drawPixmap(int(kRadius) - 32, -22, marker());
    });
}

PaintingMaker arcFloor()
{
    std::vector<Letter> letters;
    QTransform turned = QTransform::fromTranslate(0, 200);
    turned.rotate(kAngle - 90);
    const QRectF box(-20, 0, kBox, kBox);
    for (char c = 'A'; c <= 'Z'; ++c) {
        QTransform upright = turned;
        upright.translate(0, kRadius).rotate(90);
        if (upright.mapRect(box).intersects(QRectF(QPointF(), kSize)))
            letters.push_back(letterIn(upright, box, Qt::AlignCenter, QLatin1Char(c)));
        turned.rotate(kPitch);
    }
    // Around the marker there is nothing to copy.
    const QRect place(390, 140, 170, 140);
    const QImage turnedPicture = turnedMarker().toImage().copy(place);
    return bareWidget(kSize, [letters, turnedPicture, place](QPainter &painter) {
        painter.setFont(letterFont());
        painter.setPen(QApplication::palette().color(QPalette::WindowText));
        for (const Letter &letter : letters) {
            painter.setWorldTransform(letter.transform);
            painter.drawGlyphRun(letter.at, letter.run);
        }
        painter.resetTransform();
        painter.drawImage(place.topLeft(), turnedPicture);
    });
}

PaintingMaker columnFloor()
{
    std::vector<Letter> letters;
    const int left = (kSize.width() - marker().width()) / 2;
    for (int row = 0; row < 10; ++row)
        letters.push_back(letterIn({}, QRect(left, row * kRowHeight + 5, kBox, kBox),
                                   Qt::AlignHCenter | Qt::AlignBottom,
                                   QLatin1Char(char('A' + row))));
    return bareWidget(kSize, [letters, left](QPainter &painter) {
        painter.setPen(QApplication::palette().color(QPalette::WindowText));
        for (const Letter &letter : letters)
            painter.drawGlyphRun(letter.at, letter.run);
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
    showOffScreen(*list, kSize);
    return list;
}

// Ten rows with the same letters; a list view paints in its viewport.
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

// Where a finger is that goes up and down.
class Finger
{
public:
    int y() const { return m_y; }

    void move()
    {
        m_y += m_way;
        if (m_y < 60 || m_y > 340)
            m_way = -m_way;
    }

private:
    int m_y = 300; // px
    int m_way = -4; // px
};

// One step of a drag, and the paint that it asks for.
PaintingMaker drag(MArcList::ARCLIST_STYLE style)
{
    return [style]() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto list = shownOn<MArcList>(canvas, kSize, [style](MArcList &fresh) {
            fresh.setAcrListStyle(style);
            if (style == MArcList::ARCLIST_STYLE_1)
                fresh.setItemHight(kRowHeight);
            prepareList(fresh);
        });
        Finger finger;
        sendMouse(*list, QEvent::MouseButtonPress, {460, finger.y()});
        return {canvas, [list, finger]() mutable {
                    finger.move();
                    sendMouse(*list, QEvent::MouseMove, {460, finger.y()});
                    list->paint();
                }};
    };
}

// The same with a list view that is scrolled.
PaintingMaker peerDrag()
{
    return []() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto list = makePeer();
        list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        return {canvas, [list, canvas, finger = Finger()]() mutable {
                    finger.move();
                    list->verticalScrollBar()->setValue(finger.y());
                    paintPeer(*list, *canvas);
                }};
    };
}

} // namespace

void defineRows(Rows &rows, Tag<MArcList>)
{
    rows.paint("MArcList", "arc", arc(), {arcFloor()}, {{"QListWidget", peer(), kPeerLimit}});
    rows.paint("MArcList", "column", column(), {columnFloor()},
               {{"QListWidget", peer(), kPeerLimit}});
    rows.move("MArcList", "column dragged", drag(MArcList::ARCLIST_STYLE_1), {columnFloor()},
              {{"QListWidget", peerDrag(), kPeerLimit}},
              {"besides the paint, which takes 1.10 floors, a step has the finger's move and the "
               "letters' new places",
               {},
               1.28});
    rows.move("MArcList", "arc dragged", drag(MArcList::ARCLIST_STYLE_0), {arcFloor()},
              {{"QListWidget", peerDrag()}},
              {"the letters and the marker of its floor stand still; in motion each of the eight "
               "letters is filled anew from its outline in its new turn, for 34,000 instructions, "
               "and the marker is turned, for 145,000",
               {},
               5.15});
}
