// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_TABLELISTS_H
#define PANELKIT_BENCHMARKS_TABLELISTS_H

#include "canvas.h"
#include "listrows.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QFrame>

#include <memory>

class QListView;
class Rows;
class SpTableList;

// Lists beside Qt's own, with a model of their own each.

constexpr QSize kListSize(kRowWidth, 480);

/// A view on a canvas. It paints on its viewport.
template <class View> class ViewOnCanvas
{
public:
    template <class Prepare>
    ViewOnCanvas(const QSize &size, const std::shared_ptr<QAbstractItemModel> &model,
                 Prepare prepare)
        : m_canvas(makeCanvas(size)), m_model(model), m_view(std::make_shared<View>()),
          m_viewport(new OnCanvas<QWidget>(m_canvas))
    {
        m_view->setViewport(m_viewport);
        m_view->setFrameShape(QFrame::NoFrame);
        m_view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_view->setModel(model.get());
        prepare(*m_view);
        showOffScreen(*m_view, size);
        QApplication::processEvents();
    }

    const std::shared_ptr<QImage> &canvas() const { return m_canvas; }
    View &view() const { return *m_view; }

    void paint() const
    {
        QPaintEvent everything(m_viewport->rect());
        QApplication::sendEvent(m_viewport, &everything);
    }

private:
    std::shared_ptr<QImage> m_canvas;
    std::shared_ptr<QAbstractItemModel> m_model;
    std::shared_ptr<View> m_view;
    OnCanvas<QWidget> *m_viewport;
};

template <class View, class Prepare>
PaintingMaker viewOf(const QSize &size, const std::shared_ptr<QAbstractItemModel> &model,
                     Prepare prepare)
{
    return [size, model, prepare]() -> Painting {
        const ViewOnCanvas<View> shown(size, model, prepare);
        return {shown.canvas(), [shown] { shown.paint(); }};
    };
}

/// Ours with two icons and two lines in a row, and Qt's with the same.
void prepareList(SpTableList &list);
void prepareListView(QListView &view);

/// A tick of a fling, and a touch that flings the list from there, with the first of them.
void tick(SpTableList &list);
void fling(SpTableList &list, int start);

/// The looks of its rows, and all that moves them.
void defineRowsOfTableLists(Rows &rows);

#endif // PANELKIT_BENCHMARKS_TABLELISTS_H
