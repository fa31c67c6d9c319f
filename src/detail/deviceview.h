// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_DEVICEVIEW_H
#define PANELKIT_DETAIL_DEVICEVIEW_H

#include <QRectF>
#include <QTransform>

class QPainter;

namespace panelkit
{

/// What a painter's device can show. A widget asks it before it prepares something that would lie
/// beside the device: rendering a glyph or turning a picture costs much more than this question.
class DeviceView
{
public:
    DeviceView() = default;
    explicit DeviceView(const QPainter &painter);

    /// False if an area, in the coordinates of this world transform, lies wholly beside the device
    /// or has a coordinate that is no number. Always true on devices that do not hold pixels.
    bool shows(const QTransform &world, const QRectF &area) const;

    bool operator==(const DeviceView &other) const;

private:
    bool m_holdsPixels = false;
    QTransform m_toDevice; // from the painter's combined coordinates
    QRectF m_device; // px
};

/// Whether a distance is a whole number of pixels, but for what rounding leaves.
bool isWholePixels(double distance);

/// Whether pixels that were composed in advance can be copied through a painter: they come out as
/// they are. They are where a widget stands in a window, but not where it is rendered through a
/// painter that scales, fades or mixes it.
bool copiesPixels(const QPainter &painter);

/// Whether a painter's device keeps eight bits of each colour: only there do two steps of mixing
/// round as one does.
bool hasWholeColors(const QPainter &painter);

/// Whether one unit of a painter is one pixel of its device and begins where a pixel does. Only
/// there is a picture scaled in advance the same as one that is scaled in drawing, and a filled
/// rectangle the same as a line.
bool isOnPixels(const QPainter &painter);

} // namespace panelkit

#endif // PANELKIT_DETAIL_DEVICEVIEW_H
