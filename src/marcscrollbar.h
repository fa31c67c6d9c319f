#ifndef MARCSCROLLBAR_H
#define MARCSCROLLBAR_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QPointF>
#include <QScrollBar>

#include <memory>

class QPainter;

namespace panelkit
{
class KeptLayer;
} // namespace panelkit

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

    double radius() const { return m_radius; }
    void setRadius(double radius);
    QColor lineColor() const { return m_lineColor; }
    void setLineColor(QColor color);
    QColor pointColor() const { return m_pointColor; }
    void setPointColor(QColor color);
    double rotateAngle() const { return m_rotateAngle; }
    void setRotateAngle(double angle);
    double startAngle() const { return m_startAngle; }
    void setStartAngle(double angle);
    QPixmap pointPixmap() const { return m_pointPixmap; }
    void setPointPixmap(const QPixmap &pixmap);
    bool showTicks() const { return m_showTicks; }
    void setShowTicks(bool shown);
    QPointF centerPoint() const { return m_centerPoint; }
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
    bool isStraight() const;
    qint64 range() const;
    double span() const;
    double pointerAngle() const;
    bool ticksStandApart(const QPainter &painter) const;
    void drawTicksOneByOne(QPainter &painter) const;
    void touch(const QPoint &p, bool release);
    void takeValue(double exact, bool release);

    double m_radius = 570.0; // px, below 1: straight
    QPointF m_centerPoint{-460.0, 200.0}; // px
    QColor m_lineColor{173, 173, 173, 255};
    QColor m_pointColor{94, 94, 94, 255};
    double m_rotateAngle = 90.0; // degrees
    double m_startAngle = 162.0; // degrees
    QPixmap m_pointPixmap;
    bool m_showTicks = true;

    std::unique_ptr<panelkit::KeptLayer> m_ticks;
    std::unique_ptr<panelkit::KeptLayer> m_pointer;
};

#endif // MARCSCROLLBAR_H
