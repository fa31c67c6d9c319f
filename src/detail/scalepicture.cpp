// SPDX-License-Identifier: Apache-2.0
#include "scalepicture.h"

#include "deviceview.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace panelkit
{

namespace
{

// Rectangles without a pen are filled twenty times faster than lines are drawn. One unit has to be
// one pixel of the device for both to be the same pixels.
void drawLines(QPainter &painter, const QColor &color, const QRect *lines, int count)
{
    painter.setPen(color);
    if (!isOnPixels(painter)) {
        for (int i = 0; i < count; ++i)
            painter.drawLine(lines[i].topLeft(), lines[i].bottomLeft());
        return;
    }
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawRects(lines, count);
    painter.setBrush(Qt::NoBrush);
}

} // namespace

void ScalePicture::clear(const QSize &area)
{
    ++m_content;
    m_area = QRect(QPoint(), area).adjusted(-kOverhang, -kOverhang, kOverhang, kOverhang);
    for (QVector<QRect> &lines : m_lines)
        lines.clear();
    m_labels.clear();
    m_runs.clear();
    m_lineRows = {};
    m_labelRows = {};
    m_lastSolid = -1;
    m_isToneMixed = false;
    if (m_written.size() >= kMostKnown)
        m_written.clear();
}

void ScalePicture::addLine(Tone tone, int x, int y1, int y2)
{
    ++m_content;
    const int top = std::max(std::min(y1, y2), m_area.top());
    const int bottom = std::min(std::max(y1, y2), m_area.bottom());
    if (x < m_area.left() || x > m_area.right() || top > bottom)
        return;
    const QRect line(QPoint(x, top), QPoint(x, bottom));
    m_lines[tone].append(line);
    m_lineRows |= line;
    if (tone == Solid)
        m_lastSolid = std::max(m_lastSolid, x);
    else if (x <= m_lastSolid)
        m_isToneMixed = true;
    extend(tone == Solid ? SolidLines : FaintLines, int(m_lines[tone].size()));
}

void ScalePicture::addLabel(const QRectF &box, double value, Write write)
{
    ++m_content;
    if (!box.isValid() || !box.intersects(QRectF(m_area)))
        return;
    m_labels.push_back({box, value, write, known(value, write)});
    m_labelRows |= box;
    extend(Labels, int(m_labels.size()));
}

ScalePicture::Written *ScalePicture::known(double value, Write write)
{
    // Nothing equals a value that is no number: it is known by one that no scale shows.
    constexpr double kNoNumber = -1e300;
    const double key = std::isnan(value) ? kNoNumber : value;
    const auto found = m_written.find(key);
    if (found != m_written.end())
        return &found->second;
    if (m_written.size() >= kMostKnown)
        return nullptr;
    Written &written = m_written[key];
    written.text = write(value);
    ++m_writings;
    return &written;
}

void ScalePicture::draw(QPainter &painter, const QRect &part, const QColor &solid,
                        const QColor &faint)
{
    if (!copy(painter, part, solid, faint))
        drawDirectly(painter, part, solid, faint);
}

// What is drawn only once is not worth keeping. Colours that shine through could lie upon each
// other, which is rounded in another way.
bool ScalePicture::copy(QPainter &painter, const QRect &part, const QColor &solid,
                        const QColor &faint)
{
    const Look look{m_content, solid.rgba(), faint.rgba(), painter.layoutDirection(),
                    painter.font()};
    if (m_look.changesTo(look)) {
        m_strip.clear();
        return false;
    }
    const QRect all = m_area.adjusted(kOverhang, kOverhang, -kOverhang, -kOverhang);
    if (part.isEmpty() || !all.contains(part) || m_isToneMixed
        || !m_smoothing.canCopy(painter, solid))
        return false;
    const auto drawAll = [&](QPainter &p) { drawDirectly(p, all, solid, faint); };
    if (!m_strip.holds(painter, part) && !m_strip.compose(painter, solid, all, drawAll))
        return false;
    m_strip.copy(painter, part.topLeft(), part);
    return true;
}

void ScalePicture::drawDirectly(QPainter &painter, const QRect &part, const QColor &solid,
                                const QColor &faint)
{
    const auto drawRun = [&](const Run &run) {
        if (run.kind == Labels) {
            painter.setPen(solid);
            drawLabels(painter, part, run);
        } else if (run.begin < run.end) {
            const Tone tone = run.kind == SolidLines ? Solid : Faint;
            drawLines(painter, tone == Solid ? solid : faint, m_lines[tone].constData() + run.begin,
                      run.end - run.begin);
        }
    };
    if (isOrderFree(painter)) {
        drawRun({FaintLines, 0, int(m_lines[Faint].size())});
        drawRun({SolidLines, 0, int(m_lines[Solid].size())});
        drawRun({Labels, 0, int(m_labels.size())});
    } else {
        std::for_each(m_runs.begin(), m_runs.end(), drawRun);
    }
}

int ScalePicture::layouts() const
{
    int sum = 0;
    for (const auto &known : m_written)
        sum += known.second.layout.layouts();
    return sum;
}

void ScalePicture::extend(Kind kind, int end)
{
    if (m_runs.empty() || m_runs.back().kind != kind)
        m_runs.push_back({kind, end - 1, end});
    else
        m_runs.back().end = end;
}

// Where nothing lies over anything of another kind, each kind can be drawn at once. Lines may well
// reach into the boxes of labels, above or below their text.
bool ScalePicture::isOrderFree(const QPainter &painter) const
{
    if (m_isToneMixed)
        return false;
    if (m_labels.empty() || !m_labelRows.intersects(QRectF(m_lineRows)))
        return true;
    constexpr qreal kRounding = 2; // px that a glyph may be moved or blurred by
    const qreal textHeight = QFontMetricsF(painter.font()).height();
    const qreal free = (m_labels.front().box.height() - textHeight) / 2 - kRounding;
    return free > 0 && !m_labelRows.adjusted(0, free, 0, -free).intersects(QRectF(m_lineRows));
}

void ScalePicture::drawLabels(QPainter &painter, const QRect &part, const Run &run)
{
    const QRectF needed(part.adjusted(-kOverhang, -kOverhang, kOverhang, kOverhang));
    for (auto label = m_labels.begin() + run.begin; label != m_labels.begin() + run.end; ++label) {
        if (!label->box.intersects(needed))
            continue;
        if (Written *known = label->known) {
            known->layout.draw(painter, label->box, Qt::AlignCenter, known->text);
        } else {
            painter.drawText(label->box, Qt::AlignCenter, label->write(label->value));
            ++m_writings;
        }
    }
}

} // namespace panelkit
