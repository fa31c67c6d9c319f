// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_CANVAS_H
#define PANELKIT_BENCHMARKS_CANVAS_H

#include "rows.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPaintEvent>
#include <QSize>
#include <QWidget>

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

// How paints are measured. A widget gets its paint event directly, and its painter is led to a kept
// image of the format of a translucent window. Everything that the widget itself is responsible
// for is in the measurement: its event handler, opening the painter on the widget with the widget's
// font and colours, every pixel. What Qt does around any paint event is not: the walk over the
// widget tree, the clip of the dirty region, the copy to the screen. It costs about the same for
// all, and adding it to each number would only bring the ratios closer to one. A widget made of
// several widgets is painted in this way with its own step around QWidget::render().

inline void clear(QImage &canvas) { canvas.fill(QColor(24, 28, 36)); }

// Lines start where a vector register's worth of pixels does, as in the memory of a window: how
// many instructions a line takes depends on it.
inline std::shared_ptr<QImage> makeCanvas(const QSize &size)
{
    constexpr int kAlignment = 64; // bytes
    constexpr int kPixel = 4; // bytes
    const int line = (size.width() * kPixel + kAlignment - 1) / kAlignment * kAlignment;
    void *memory = std::aligned_alloc(kAlignment, std::size_t(line) * std::size_t(size.height()));
    auto canvas =
        std::make_shared<QImage>(static_cast<uchar *>(memory), size.width(), size.height(), line,
                                 QImage::Format_ARGB32_Premultiplied, &std::free, memory);
    clear(*canvas);
    return canvas;
}

/// A widget that paints onto a canvas instead of its window.
template <class Widget> class OnCanvas final : public Widget
{
public:
    explicit OnCanvas(std::shared_ptr<QImage> canvas) : m_canvas(std::move(canvas)) { }

    void paint()
    {
        QPaintEvent everything(this->rect());
        this->event(&everything);
    }

protected:
    QPaintDevice *redirected(QPoint *) const override { return m_canvas.get(); }

private:
    std::shared_ptr<QImage> m_canvas;
};

/// Makes the widget visible to itself: with style, layout and size.
inline void showOffScreen(QWidget &widget, const QSize &size)
{
    widget.resize(size);
    widget.setAttribute(Qt::WA_DontShowOnScreen);
    widget.show();
}

/// A widget on the canvas that was made, prepared by each of the functions, and given its size.
template <class Widget, class... Prepare>
std::shared_ptr<OnCanvas<Widget>> shownOn(const std::shared_ptr<QImage> &canvas, const QSize &size,
                                          Prepare... prepare)
{
    auto widget = std::make_shared<OnCanvas<Widget>>(canvas);
    (prepare(*widget), ...);
    showOffScreen(*widget, size);
    return widget;
}

/// Prepares nothing.
struct AsItIs {
    template <class Widget> void operator()(Widget &) const { }
};

/// Paintings of such a widget.
template <class Widget, class... Prepare>
PaintingMaker widgetOf(const QSize &size, Prepare... prepare)
{
    return [size, prepare...]() -> Painting {
        const auto canvas = makeCanvas(size);
        const auto widget = shownOn<Widget>(canvas, size, prepare...);
        return {canvas, [widget] { widget->paint(); }};
    };
}

/// A bare widget whose paint event is one function.
template <class Draw> class BareWidget : public QWidget
{
public:
    void setDraw(const Draw &draw) { m_draw.emplace(draw); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        (*m_draw)(painter);
    }

private:
    std::optional<Draw> m_draw;
};

/// Paintings of a bare widget whose whole paint event is the function, called with the painter.
template <class Draw> PaintingMaker bareWidget(const QSize &size, const Draw &draw)
{
    return widgetOf<BareWidget<Draw>>(size,
                                      [draw](BareWidget<Draw> &widget) { widget.setDraw(draw); });
}

#endif // PANELKIT_BENCHMARKS_CANVAS_H
