#ifndef SPLOADINGROUND_H
#define SPLOADINGROUND_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPoint>
#include <QWidget>

/**
 * A busy ring: twelve spokes, brighter and darker around a circle, that a timer turns by one step
 * of 30 degrees. Laid over other content it is also a mask for touches, which it reports with
 * pressMask, releaseMask and, for a touch that did not move, clicked.
 */
class PANELKIT_EXPORT SpLoadingRound : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor painterColor READ painterColor WRITE setPainterColor)
    Q_PROPERTY(int radius READ radius WRITE setRadius)
    Q_PROPERTY(int index READ index WRITE setIndex)
    Q_PROPERTY(bool holdMouseEvent READ holdMouseEvent WRITE setholdMouseEvent DESIGNABLE false)

public:
    /// The shape of the spokes.
    enum DrawStyle : int {
        EllipseStyle = 0, ///< Ellipses of one colour that fade.
        RectStyle = 1, ///< Rectangles of one colour that fade.
        GrayStyle = 2 ///< Rounded rectangles in shades of grey.
    };

    explicit SpLoadingRound(QWidget *parent = nullptr);

    QColor painterColor() const { return m_painterColor; }
    void setPainterColor(const QColor &color);
    int radius() const { return m_radius; }
    void setRadius(const int &radius);
    int index() const { return m_index; }
    void setIndex(const int &index);
    bool holdMouseEvent() const { return m_holdMouseEvent; }
    void setholdMouseEvent(const bool &hold);

    void setDrawStyle(SpLoadingRound::DrawStyle style);
    void setTimer(int ms);
    void stopTimer();

signals:
    void pressMask(QPoint pos);
    void releaseMask(QPoint pos);
    void clicked();

protected:
    void paintEvent(QPaintEvent *e) override;
    void timerEvent(QTimerEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    void drawSpoke(QPainter &painter, int number);

    DrawStyle m_drawStyle = EllipseStyle;
    QColor m_painterColor = Qt::white;
    int m_radius = 30; // px
    int m_index = 0; // steps of 30 degrees
    bool m_holdMouseEvent = false;
    bool m_moved = false; // since the press
    int m_timerId = 0; // 0: stopped
};

#endif // SPLOADINGROUND_H
