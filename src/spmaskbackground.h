// SPDX-License-Identifier: Apache-2.0
#ifndef SPMASKBACKGROUND_H
#define SPMASKBACKGROUND_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPoint>
#include <QWidget>

#include <memory>

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
    ~SpMaskBackground() override;

    QColor painterColor() const;
    void setPainterColor(const QColor &color);
    int roundX() const;
    void setRoundX(const int &radius);
    int roundY() const;
    void setRoundY(const int &radius);
    bool holdMouseEvent() const;
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
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // SPMASKBACKGROUND_H
