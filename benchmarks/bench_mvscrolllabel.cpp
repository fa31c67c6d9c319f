// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "mouse.h"
#include "rows.h"
#include "ticks.h"

#include <mvscrolllabel.h>
#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStaticText>
#include <QStringList>

#include <vector>

namespace
{

constexpr QSize kSize(300, 160);
constexpr int kNever = 1000000; // ms, no tick comes by itself
constexpr double kFloorLimit = 0.15; // the floor draws its lines in each paint
constexpr double kPeerLimit = 0.1;

QString notice()
{
    return QStringLiteral("Take this program along wherever you drive. Pass it on to friends, look "
                          "under its bonnet and change what you find there. ")
        .repeated(5);
}

// As the label wraps it: between any two characters.
QStringList wrappedNotice()
{
    const QFontMetrics metrics{QApplication::font()};
    QStringList lines{QString()};
    int width = 0;
    for (const QChar c : notice()) {
        const int advance = metrics.horizontalAdvance(c);
        if (width + advance > kSize.width()) {
            lines += QString();
            width = 0;
        }
        lines.last() += c;
        width += advance;
    }
    return lines;
}

// From line to line, as drawText() places them.
int pitchOf(const QFontMetrics &metrics)
{
    const QRect room(QPoint(), kSize);
    return metrics.boundingRect(room, Qt::AlignTop, QStringLiteral("a\nb")).height()
        - metrics.boundingRect(room, Qt::AlignTop, QStringLiteral("a")).height();
}

void prepare(MVScrollLabel &label)
{
    label.resize(kSize);
    label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label.setText(notice());
}

// Each step is a tick of the label's own timer, and its paint.
PaintingMaker scrolling()
{
    return []() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto label = shownOn<MVScrollLabel>(canvas, kSize, prepare);
        label->setScrollSpeed(kNever);
        label->startScroll();
        return {canvas, [label, timer = timerOf(*label)] {
                    sendTick(*label, timer);
                    label->paint();
                }};
    };
}

// The finger pushes the text up and back, and each of its steps is painted.
PaintingMaker pushed()
{
    return []() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto label = shownOn<MVScrollLabel>(canvas, kSize, prepare);
        sendMouse(*label, QEvent::MouseButtonPress, {150, 80});
        return {canvas, [label, y = 80]() mutable {
                    y = y == 80 ? 77 : 80;
                    sendMouse(*label, QEvent::MouseMove, {150, y});
                    label->paint();
                }};
    };
}

// Only the lines that are in sight, from each repetition of the text.
PaintingMaker floor(int firstOffset, int speed)
{
    std::vector<QStaticText> lines;
    for (const QString &line : wrappedNotice())
        lines.push_back(preparedText(line, QApplication::font()));
    const QFontMetrics metrics{QApplication::font()};
    const int pitch = pitchOf(metrics);
    const int cycle = int(lines.size()) * metrics.height() + 10 + kSize.height();
    return bareWidget(kSize, [=, offset = firstOffset](QPainter &painter) mutable {
        for (int y = -offset; y < kSize.height(); y += cycle) {
            painter.setClipRect(QRect(0, y, kSize.width(), cycle));
            for (int i = 0; i < int(lines.size()); ++i) {
                const int top = y + i * pitch;
                if (top > -pitch && top < kSize.height())
                    painter.drawStaticText(0, top, lines[std::size_t(i)]);
            }
        }
        offset = (offset + speed) % cycle;
    });
}

PaintingMaker scrollArea()
{
    return []() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto area = std::make_shared<QScrollArea>();
        auto *label = new QLabel(wrappedNotice().join(QLatin1Char('\n')));
        area->setFrameStyle(QFrame::NoFrame);
        area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setWidget(label);
        showOffScreen(*area, kSize);
        return {canvas, [canvas, area] {
                    QScrollBar *bar = area->verticalScrollBar();
                    bar->setValue(bar->value() == bar->maximum() ? 0 : bar->value() + 1);
                    area->render(canvas.get(), QPoint(), QRegion(), QWidget::DrawChildren);
                }};
    };
}

PaintingMaker label()
{
    return widgetOf<QLabel>(kSize, [](QLabel &label) {
        label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
        label.setText(wrappedNotice().join(QLatin1Char('\n')));
    });
}

} // namespace

void defineRows(Rows &rows, Tag<MVScrollLabel>)
{
    rows.paint("MVScrollLabel", "at rest", widgetOf<MVScrollLabel>(kSize, prepare),
               {floor(0, 0), kFloorLimit}, {{"QLabel", label(), kPeerLimit}});
    rows.motion("MVScrollLabel", "scrolling step", scrolling(), {floor(1, 1), kFloorLimit},
                {{"QScrollArea with QLabel", scrollArea(), kPeerLimit}});
    rows.move("MVScrollLabel", "pushed", pushed(), {floor(0, 0), kFloorLimit}, {});
}
