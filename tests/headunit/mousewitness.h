// SPDX-License-Identifier: Apache-2.0
#ifndef MOUSEWITNESS_H
#define MOUSEWITNESS_H

#include "virtualtime.h"

#include <QMouseEvent>
#include <QStringList>
#include <QWidget>

/// A widget that writes down the mouse events it gets: "press 10,20 at 0", in ms since the last
/// take().
class MouseWitness : public QWidget
{
public:
    using QWidget::QWidget;

    QStringList take()
    {
        m_start = virtualtime::now();
        return std::exchange(m_lines, QStringList());
    }

protected:
    void mousePressEvent(QMouseEvent *e) override { add("press", *e); }
    void mouseMoveEvent(QMouseEvent *e) override { add("move", *e); }
    void mouseReleaseEvent(QMouseEvent *e) override { add("release", *e); }
    void mouseDoubleClickEvent(QMouseEvent *e) override { add("double", *e); }

private:
    void add(const char *what, const QMouseEvent &e)
    {
        m_lines += QStringLiteral("%1 %2,%3 at %4")
                       .arg(QLatin1String(what))
                       .arg(e.x())
                       .arg(e.y())
                       .arg(virtualtime::now() - m_start);
    }

    qint64 m_start = virtualtime::now();
    QStringList m_lines;
};

#endif // MOUSEWITNESS_H
