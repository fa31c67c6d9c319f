// SPDX-License-Identifier: Apache-2.0
#ifndef SPLOADINGROUND_H
#define SPLOADINGROUND_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPoint>
#include <QWidget>

#include <memory>

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
    ~SpLoadingRound() override;

    QColor painterColor() const;
    void setPainterColor(const QColor &color);
    int radius() const;
    void setRadius(const int &radius);
    int index() const;
    void setIndex(const int &index);
    bool holdMouseEvent() const;
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
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // SPLOADINGROUND_H
