// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_SCALEPICTURE_H
#define PANELKIT_DETAIL_SCALEPICTURE_H

#include "memo.h"
#include "textcache.h"
#include "textstrip.h"

#include <QColor>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QVector>

#include <unordered_map>
#include <vector>

class QPainter;

namespace panelkit
{

/// The kept picture of a scale: vertical lines, one pixel wide and in two tones, and labels centred
/// in boxes of one size. Drawing it makes the very pixels of drawing line after line with
/// drawLine() and label after label with drawText(), in the order in which they were added, for a
/// fraction of the cost. What is drawn again is kept as pixels, where they can be copied; two
/// letters that touch each other's pixels may differ by one level there.
class ScalePicture
{
public:
    enum Tone { Solid, Faint };
    using Write = QString (*)(double value);

    /// Starts a new picture of this size, outside of which nothing can be shown. Labels once
    /// written stay known, so that a value that comes again is neither written nor laid out again;
    /// where a picture has thousands of them, the last ones are written anew in each drawing.
    void clear(const QSize &area);
    /// A line between two rows, both included, in either order. What is well outside is left out.
    void addLine(Tone tone, int x, int y1, int y2);
    /// The text for a value. A label well outside, or in a box without extent, is left out and not
    /// even written.
    void addLabel(const QRectF &box, double value, Write write);

    /// How far beyond its place an item may show: px that a line is thick where the painter scales,
    /// or that a letter leans out of the box.
    static constexpr int kOverhang = 16;
    /// How many labels stay known.
    static constexpr int kMostKnown = 2048; // several bands' worth

    /// Draws what is needed for a part of the picture, with the painter's font; labels have the
    /// solid colour. An invalid colour draws in black, as with any pen.
    void draw(QPainter &painter, const QRect &part, const QColor &solid,
              const QColor &faint = QColor());

    /// How often its pixels were composed.
    int compositions() const { return m_strip.compositions(); }
    /// How often a text had to be written, and how many layouts the known ones have taken.
    int writings() const { return m_writings; }
    int layouts() const;

private:
    enum Kind { SolidLines, FaintLines, Labels };

    struct Run {
        Kind kind = Labels;
        int begin = 0;
        int end = 0;
    };
    struct Written {
        QString text;
        TextCache layout;
    };
    struct Label {
        QRectF box;
        double value;
        Write write;
        Written *known; // or none, beyond the most that stay known
    };

    // What the kept pixels depend on.
    struct Look {
        int content;
        QRgb solid;
        QRgb faint;
        Qt::LayoutDirection direction;
        QFont font;

        auto tied() const { return std::tie(content, solid, faint, direction, font); }
    };

    bool copy(QPainter &painter, const QRect &part, const QColor &solid, const QColor &faint);
    void drawDirectly(QPainter &painter, const QRect &part, const QColor &solid,
                      const QColor &faint);
    void extend(Kind kind, int end);
    Written *known(double value, Write write);
    bool isOrderFree(const QPainter &painter) const;
    void drawLabels(QPainter &painter, const QRect &part, const Run &run);

    QRect m_area; // with the overhang
    QVector<QRect> m_lines[2]; // by tone
    std::vector<Label> m_labels;
    std::vector<Run> m_runs; // in the order of adding
    QRect m_lineRows; // the bounds of all lines
    QRectF m_labelRows; // the bounds of all labels
    int m_lastSolid = -1; // px, the right-most solid line
    bool m_isToneMixed = false; // a faint line may lie over a solid one
    std::unordered_map<double, Written> m_written;
    int m_writings = 0;
    int m_content = 0; // counts what was added and cleared
    LastKey<Look> m_look;
    TextSmoothing m_smoothing;
    TextStrip m_strip;
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_SCALEPICTURE_H
