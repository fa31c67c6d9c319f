// SPDX-License-Identifier: Apache-2.0
#include "marquee.h"

#include <QBrush>
#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace panelkit
{

namespace
{

constexpr double kFadeIn = 0.08; // of the diagonal
constexpr double kFadeOut = 0.92;
constexpr int kWidestEnd = 254; // px, what a byte counts
constexpr int kSpare = 2; // px, that rounding may move the end of a fade
constexpr int kFarthest = 255; // px, likewise
constexpr int kLongestInk = 64; // px, of one letter: a text as large is not kept
constexpr int kSixteenthsOfText = 20; // of a pixel's memory, its stretch included
constexpr int kPicturesOfEnds = 6; // two of each end, their turns, and one for both

// A premultiplied colour for a coverage, as the raster engine rounds it.
QRgb covered(QRgb color, uint coverage)
{
    const auto scaled = [coverage](uint pair) {
        const uint product = (pair & 0xff00ff) * coverage;
        return ((product + ((product >> 8) & 0xff00ff) + 0x800080) >> 8) & 0xff00ff;
    };
    return scaled(color) | (scaled(color >> 8) << 8);
}

QRgb over(QRgb above, QRgb below) { return above + covered(below, 255 - uint(qAlpha(above))); }

QRgb *row(QImage &image, int y) { return reinterpret_cast<QRgb *>(image.scanLine(y)); }

const QRgb *row(const QImage &image, int y)
{
    return reinterpret_cast<const QRgb *>(image.constScanLine(y));
}

bool isEmptyRow(const QImage &image, int y)
{
    const QRgb *line = row(image, y);
    return std::all_of(line, line + image.width(), [](QRgb pixel) { return pixel == 0; });
}

// 0 for an area without room for the ends.
int endWidthIn(const QSize &area)
{
    const double across = area.width() - 1;
    const double down = area.height() - 1;
    const double exact = (across * across + down * down) * kFadeIn / across;
    return exact < kWidestEnd - kSpare - 1 ? int(std::ceil(exact)) + kSpare : 0;
}

} // namespace

QPen Marquee::pen(const QSize &area, const QColor &color)
{
    QLinearGradient gradient(0, 0, qreal(area.width() - 1), qreal(area.height() - 1));
    gradient.setColorAt(0, Qt::transparent);
    gradient.setColorAt(qreal(kFadeIn), color);
    gradient.setColorAt(qreal(kFadeOut), color);
    gradient.setColorAt(1, Qt::transparent);
    return {gradient, qreal(area.width()), Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin};
}

bool Marquee::draw(QPainter &painter, const Look &look, int offset, int reach, const Paint &paint)
{
    const QSize &area = look.area;
    const QColor color(look.color);
    if (area.width() < 2 || area.height() < 1 || !m_smoothing.canCopy(painter, color))
        return false;
    if (m_fade.changesTo({look.color, area}) && !composeEnds())
        m_endWidth = 0;
    if (m_endWidth == 0)
        return false;
    const bool isNew = m_look.changesTo(look);
    if (isNew || !m_stretch.contains(QRect(QPoint(offset, 0), area))) {
        const int width = std::min(mostWidth(), area.width() + std::max(reach - offset, 0));
        m_isKept = composeText(painter, {offset, 0, width, area.height()}, paint);
    }
    if (!m_isKept)
        return false;
    if (m_strip.isNull())
        return true;
    const int from = offset - m_stretch.left() + m_endWidth;
    painter.drawImage(QPoint(m_endWidth, m_top), m_strip,
                      QRect(from, 0, m_ends[1].left - m_endWidth, m_strip.height()));
    for (const End &end : m_ends)
        drawEnd(painter, end, offset);
    return true;
}

int Marquee::pixels() const
{
    const QImage *const images[] = {&m_strip,
                                    &m_since,
                                    &m_shown,
                                    &m_ends[0].colors,
                                    &m_ends[0].laterColors,
                                    &m_ends[0].turns,
                                    &m_ends[1].colors,
                                    &m_ends[1].laterColors,
                                    &m_ends[1].turns};
    qsizetype bytes = qsizetype(m_meetings.size()) * qsizetype(sizeof(Meeting));
    for (const QImage *image : images)
        bytes += image->sizeInBytes();
    return int(bytes / qsizetype(sizeof(QRgb)));
}

// Of the text, so that all that is kept is no more than twice the area.
int Marquee::mostWidth() const
{
    return (2 * m_fade->area.width() - kPicturesOfEnds * m_endWidth) * 16 / kSixteenthsOfText;
}

bool Marquee::composeEnds()
{
    const int width = m_fade->area.width();
    m_endWidth = endWidthIn(m_fade->area);
    m_ends[0].left = 0;
    m_ends[1].left = width - m_endWidth;
    m_shown = QImage(m_endWidth, m_fade->area.height(), QImage::Format_ARGB32_Premultiplied);
    return !m_shown.isNull() && mostWidth() >= width && composeEnd(m_ends[0])
        && composeEnd(m_ends[1]);
}

// The place in the area counts, too. From the right to the left: what begins at each pixel, and how
// much farther to the left something has to begin to come out as another colour, the last there is.
// Ink may begin before the end does.
bool Marquee::composeEnd(End &end) const
{
    const QSize size(m_endWidth, m_fade->area.height());
    QImage filled(m_fade->area, QImage::Format_ARGB32_Premultiplied);
    end.colors = QImage(size, filled.format());
    end.laterColors = QImage(size, filled.format());
    end.turns = QImage(size, QImage::Format_Alpha8);
    if (filled.isNull() || end.colors.isNull() || end.laterColors.isNull() || end.turns.isNull())
        return false;
    end.turns.fill(0);

    const QBrush brush = pen(m_fade->area, QColor(m_fade->color)).brush();
    QPainter painter(&filled);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (int begin = size.width() - 1; begin >= -std::min(end.left, kLongestInk); --begin) {
        painter.fillRect(end.left + begin, 0, size.width() - begin, size.height(), brush);
        for (int y = 0; y < size.height(); ++y) {
            const QRgb *pixels = row(qAsConst(filled), y) + end.left;
            QRgb *colors = row(end.colors, y);
            uchar *turns = end.turns.scanLine(y);
            if (begin >= 0)
                colors[begin] = pixels[begin];
            const int last = std::min(size.width() - 1, begin + kFarthest);
            for (int x = std::max(begin + 1, 0); x <= last; ++x) {
                if (turns[x] == 0 && pixels[x] != colors[x]) {
                    turns[x] = uchar(x - begin);
                    row(end.laterColors, y)[x] = pixels[x];
                }
            }
        }
    }
    return true;
}

// Neighbours are drawn apart, for it to be known where the ink of each begins.
bool Marquee::composeText(const QPainter &like, const QRect &stretch, const Paint &paint)
{
    QImage images[2];
    for (int first : {0, 1}) {
        images[first] = drawnText(like, QColor(m_look->color), stretch.size(), kFarLeft,
                                  [&](QPainter &painter) { return paint(painter, first); });
        if (images[first].isNull())
            return false;
    }
    ++m_compositions;
    m_stretch = stretch;
    const auto isInk = [&](int y) {
        return !isEmptyRow(images[0], y) || !isEmptyRow(images[1], y);
    };
    int top = 0;
    int bottom = stretch.height();
    while (top < bottom && !isInk(top))
        ++top;
    while (bottom > top && !isInk(bottom - 1))
        --bottom;
    m_top = top;
    m_strip = QImage();
    if (top == bottom)
        return true;
    const QRect rows(0, top, stretch.width(), bottom - top);
    m_strip = images[0].copy(rows);
    return !m_strip.isNull() && take(images[1].copy(rows));
}

// Lays the odd letters over the even ones. False if any has colours of its own.
bool Marquee::take(const QImage &odd)
{
    QRgb colors[256];
    for (uint coverage = 0; coverage < 256; ++coverage)
        colors[coverage] = covered(m_look->color, coverage);
    const int width = m_strip.width();
    m_meetings.clear();
    m_since = QImage(m_strip.size(), QImage::Format_Alpha8);
    bool isPlain = !m_since.isNull();
    for (int y = 0; isPlain && y < odd.height(); ++y) {
        QRgb *pixels = row(m_strip, y);
        const QRgb *others = row(odd, y);
        uchar *since = m_since.scanLine(y);
        int begins[2] = {0, 0}; // of the stretches
        for (int x = 0; x < width; ++x) {
            const QRgb even = pixels[x];
            const QRgb other = others[x];
            if (even == 0)
                begins[0] = x + 1;
            if (other == 0)
                begins[1] = x + 1;
            if ((even | other) == 0)
                continue;
            const Ink inks[2] = {{uchar(qAlpha(even)), uchar(std::min(x - begins[0], kFarthest))},
                                 {uchar(qAlpha(other)), uchar(std::min(x - begins[1], kFarthest))}};
            isPlain &= even == colors[inks[0].coverage] && other == colors[inks[1].coverage];
            since[x] = inks[even == 0 ? 1 : 0].since;
            if (even == 0) {
                pixels[x] = other;
            } else if (other != 0) {
                m_meetings.push_back({{x, y}, {inks[0], inks[1]}});
                pixels[x] = over(other, even);
            }
        }
    }
    return isPlain;
}

Marquee::EndRow Marquee::rowOf(const End &end, int y)
{
    return {end.left, row(end.colors, y), row(end.laterColors, y), end.turns.constScanLine(y)};
}

// Before the left edge of the widget nothing begins.
QRgb Marquee::EndRow::faded(int x, const Ink &ink) const
{
    const int turn = turns[x];
    const bool isLater = turn != 0 && std::min(int(ink.since), left + x) >= turn;
    return covered((isLater ? laterColors : colors)[x], ink.coverage);
}

void Marquee::drawEnd(QPainter &painter, const End &end, int offset)
{
    const int from = offset + end.left - m_stretch.left();
    for (int i = 0; i < m_strip.height(); ++i) {
        const QRgb *text = row(m_strip, i) + from;
        const uchar *since = m_since.constScanLine(i) + from;
        QRgb *shown = row(m_shown, m_top + i);
        const EndRow fade = rowOf(end, m_top + i);
        for (int x = 0; x < m_endWidth; ++x)
            shown[x] = text[x] == 0 ? 0 : fade.faded(x, {uchar(qAlpha(text[x])), since[x]});
    }
    for (const Meeting &meeting : m_meetings) {
        const int x = meeting.at.x() - from;
        const int y = m_top + meeting.at.y();
        if (x < 0 || x >= m_endWidth)
            continue;
        const EndRow fade = rowOf(end, y);
        row(m_shown, y)[x] = over(fade.faded(x, meeting.ink[1]), fade.faded(x, meeting.ink[0]));
    }
    painter.drawImage(QPoint(end.left, m_top), m_shown,
                      QRect(0, m_top, m_endWidth, m_strip.height()));
}

} // namespace panelkit
