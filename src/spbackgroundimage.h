// SPDX-License-Identifier: Apache-2.0
#ifndef SPBACKGROUNDIMAGE_H
#define SPBACKGROUNDIMAGE_H

#include "panelkitglobal.h"

#include <QPixmap>
#include <QWidget>

#include <memory>

/**
 * A picture behind other widgets, stretched over the whole widget and turned by any angle about its
 * middle. With holdMouseEvent it keeps touches away from its parent and reports their end with
 * releaseSig.
 */
class PANELKIT_EXPORT SpBackgroundImage : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap pixmap READ pixmap WRITE setPixmap)
    Q_PROPERTY(bool holdMouseEvent READ holdMouseEvent WRITE setholdMouseEvent DESIGNABLE false)
    Q_PROPERTY(bool fitPixmapSize READ fitPixmapSize WRITE setFitPixmapSize)

public:
    explicit SpBackgroundImage(QWidget *parent = nullptr);
    ~SpBackgroundImage() override;

    QPixmap pixmap() const;
    void setPixmap(const QPixmap &pixmap);
    bool holdMouseEvent() const;
    void setholdMouseEvent(const bool &hold);
    bool fitPixmapSize() const;
    void setFitPixmapSize(const bool &fit);

    void setPaintInCenter(bool inCenter);
    int rotateAngle() const;
    void setRotateAngle(const int &degrees);

signals:
    void releaseSig();

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // SPBACKGROUNDIMAGE_H
