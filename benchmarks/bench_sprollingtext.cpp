// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"
#include "floors.h"
#include "rows.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QLabel>
#include <sprollingtext.h>

#include <vector>

namespace
{

constexpr QSize kSize(300, 48);
constexpr int kFontSize = 24; // px
constexpr int kRollStep = 2; // px
constexpr double kFloorLimit = 0.5; // the floor draws its text in each paint
constexpr double kPeerLimit = 0.3;
constexpr double kMovingLimit = 0.45; // of the floor
constexpr double kMovingPeerLimit = 1.25;

QString shortText() { return QStringLiteral("Radio One"); }

QString longText() { return QStringLiteral("Midnight Lanterns, from the album Maps for Sundays"); }

QFont textFont() { return fontOf(kFontSize); }

void prepare(SpRollingText &text, const QString &content)
{
    text.resize(kSize);
    text.setFontSize(kFontSize);
    text.setText(content);
}

QPen fadingPen()
{
    QLinearGradient fade(0, 0, kSize.width() - 1, kSize.height() - 1);
    fade.setColorAt(0, Qt::transparent);
    fade.setColorAt(qreal(0.08), Qt::white);
    fade.setColorAt(qreal(0.92), Qt::white);
    fade.setColorAt(1, Qt::transparent);
    return {QBrush(fade), 1};
}

// One picture of a text.
LaidOutText frameOf(const QRect &rect, const QString &text)
{
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(Qt::LeftToRight);
    const QFontMetricsF metrics(textFont());
    const qreal top = metrics.boundingRect(QRectF(rect), Qt::AlignCenter, text).top();
    const qreal spare = qreal(rect.width()) - metrics.horizontalAdvance(text);
    return {preparedText(text, textFont(), option),
            {lineStart(qreal(rect.x()) + spare / 2), lineStart(top)}};
}

PaintingMaker restingFloor(const QString &text)
{
    const LaidOutText frame = frameOf(QRect(QPoint(), kSize), text);
    return bareWidget(kSize, [frame](QPainter &painter) {
        painter.setFont(textFont());
        frame.draw(painter, Qt::white);
    });
}

// All pictures of a whole cycle, one for each step.
std::vector<LaidOutText> cycle()
{
    const QFontMetrics metrics(textFont());
    const QString source = longText() + QString(16, QLatin1Char(' '));
    const int count = kSize.width() / metrics.horizontalAdvance(QLatin1Char('.')) + 3;
    std::vector<LaidOutText> frames;
    for (int first = 0; first < source.size(); ++first) {
        QString shown;
        for (int i = 0; i < count; ++i)
            shown += source.at((first + i) % source.size());
        const int width = metrics.horizontalAdvance(shown);
        int offset = 0;
        do {
            frames.push_back(frameOf(QRect(-offset, 0, width, kSize.height()), shown));
            offset += kRollStep;
        } while (offset < metrics.horizontalAdvance(shown.at(0)));
    }
    return frames;
}

PaintingMaker rollingFloor()
{
    return [] {
        static const std::vector<LaidOutText> frames = cycle();
        const QPen pen = fadingPen();
        const QFont font = textFont();
        return bareWidget(kSize, [=, step = std::size_t(0)](QPainter &painter) mutable {
            const LaidOutText &frame = frames[step++ % frames.size()];
            painter.setFont(font);
            painter.setPen(pen);
            painter.drawStaticText(frame.at, frame.layout);
        })();
    };
}

// Each paint is followed by the step that it has queued.
PaintingMaker rolling()
{
    return []() -> Painting {
        const auto canvas = makeCanvas(kSize);
        const auto text = std::make_shared<OnCanvas<SpRollingText>>(canvas);
        showOffScreen(*text, kSize);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(text.get()); // no step is left over from the first paint
        prepare(*text, longText());
        return {canvas, [text] {
                    text->paint();
                    QCoreApplication::sendPostedEvents(text.get(), QEvent::MetaCall);
                }};
    };
}

PaintingMaker label(const QString &content)
{
    return widgetOf<QLabel>(kSize, [content](QLabel &label) {
        QPalette palette = label.palette();
        palette.setColor(QPalette::WindowText, Qt::white);
        label.setPalette(palette);
        label.setFont(textFont());
        label.setAlignment(Qt::AlignCenter);
        label.setText(QFontMetrics(textFont()).elidedText(content, Qt::ElideRight, kSize.width()));
    });
}

// As many dots as the label leaves room for.
QString shortened()
{
    const QFontMetrics metrics(textFont());
    const QString dots = QStringLiteral("...");
    int count = 0;
    while (metrics.horizontalAdvance(dots) + metrics.horizontalAdvance(longText().left(count + 1))
           < kSize.width())
        ++count;
    return longText().left(count) + dots;
}

} // namespace

void defineRows(Rows &rows, Tag<SpRollingText>)
{
    rows.paint("SpRollingText", "fits",
               onGround(widgetOf<SpRollingText>(
                   kSize, [](SpRollingText &text) { prepare(text, shortText()); })),
               {restingFloor(shortText()), kFloorLimit},
               {{"QLabel", label(shortText()), kPeerLimit}}, keptTextLimit(2.15));
    rows.paint("SpRollingText", "shortened",
               onGround(widgetOf<SpRollingText>(kSize,
                                                [](SpRollingText &text) {
                                                    text.setAutoRoll(false);
                                                    prepare(text, longText());
                                                })),
               {restingFloor(shortened()), kFloorLimit},
               {{"QLabel, elided", label(longText()), kPeerLimit}});
    rows.motion(
        "SpRollingText", "rolling step", rolling(), {rollingFloor(), kMovingLimit},
        {{"QLabel, elided", label(longText()), kMovingPeerLimit}},
        {"the label stands still; half of the cost of a step is the text laid out and drawn "
         "anew with each letter that leaves, every seventh step"});
}
