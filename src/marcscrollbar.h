// SPDX-License-Identifier: Apache-2.0
#ifndef MARCSCROLLBAR_H
#define MARCSCROLLBAR_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QPointF>
#include <QScrollBar>

#include <memory>

class QPainter;

/**
 * A scroll bar in the shape of a stretch of an arc: ticks along it, and a pointer at the value. A
 * radius below 1 makes it a straight vertical bar.
 *
 * Value, range and signals are those of any QScrollBar. The finger does not drag a handle: the
 * value follows the direction, or in the straight bar the height, of every point that is touched.
 *
 * Every value up to a range of 100,000 has its tick; a larger one has no more of them than that.
 */
class PANELKIT_EXPORT MArcScrollBar : public QScrollBar
{
    Q_OBJECT
    Q_PROPERTY(double radius READ radius WRITE setRadius)
    Q_PROPERTY(QColor lineColor READ lineColor WRITE setLineColor)
    Q_PROPERTY(QColor pointColor READ pointColor WRITE setPointColor)
    Q_PROPERTY(double rotateAngle READ rotateAngle WRITE setRotateAngle)
    Q_PROPERTY(double startAngle READ startAngle WRITE setStartAngle)
    Q_PROPERTY(QPixmap pointPixmap READ pointPixmap WRITE setPointPixmap)
    Q_PROPERTY(bool showTicks READ showTicks WRITE setShowTicks)
    Q_PROPERTY(QPointF centerPoint READ centerPoint WRITE setCenterPoint)

public:
    explicit MArcScrollBar(QWidget *parent = nullptr);
    ~MArcScrollBar() override;

    double radius() const;
    void setRadius(double radius);
    QColor lineColor() const;
    void setLineColor(QColor color);
    QColor pointColor() const;
    void setPointColor(QColor color);
    double rotateAngle() const;
    void setRotateAngle(double angle);
    double startAngle() const;
    void setStartAngle(double angle);
    QPixmap pointPixmap() const;
    void setPointPixmap(const QPixmap &pixmap);
    bool showTicks() const;
    void setShowTicks(bool shown);
    QPointF centerPoint() const;
    void setCenterPoint(const QPointF &center);

    void drawTicks(QPainter *painter);
    void drawPointer(QPainter *painter);
    void drawTicksVert(QPainter *painter);
    void drawPointerVert(QPainter *painter);
    void calcCurValue(QPoint p, bool release);
    void calcCurValueVert(QPoint p, bool release);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MARCSCROLLBAR_H
