#ifndef SPMASKBACKGROUND_H
#define SPMASKBACKGROUND_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPoint>
#include <QWidget>

/**
 * A mask in one colour, square or rounded, mostly translucent: lay it over a page and under a popup
 * to dim the page. It reports where it is touched with pressMask and releaseMask, and each touch
 * with clicked, so that a touch beside the popup can close it.
 */
class PANELKIT_EXPORT SpMaskBackground : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor painterColor READ painterColor WRITE setPainterColor)
    Q_PROPERTY(int roundX READ roundX WRITE setRoundX)
    Q_PROPERTY(int roundY READ roundY WRITE setRoundY)
    Q_PROPERTY(bool holdMouseEvent READ holdMouseEvent WRITE setholdMouseEvent DESIGNABLE false)

public:
    explicit SpMaskBackground(QWidget *parent = nullptr);

    QColor painterColor() const { return m_painterColor; }
    void setPainterColor(const QColor &color);
    int roundX() const { return m_roundX; }
    void setRoundX(const int &radius);
    int roundY() const { return m_roundY; }
    void setRoundY(const int &radius);
    bool holdMouseEvent() const { return m_holdMouseEvent; }
    void setholdMouseEvent(const bool &hold);

signals:
    void pressMask(QPoint pos);
    void releaseMask(QPoint pos);
    void clicked();

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    QColor m_painterColor = Qt::black;
    int m_roundX = 0; // px
    int m_roundY = 0; // px
    bool m_holdMouseEvent = false;
};

#endif // SPMASKBACKGROUND_H
