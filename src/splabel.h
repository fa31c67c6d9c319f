// SPDX-License-Identifier: Apache-2.0
#ifndef SPLABEL_H
#define SPLABEL_H

#include "panelkitglobal.h"

#include <QPixmap>
#include <QWidget>

#include <memory>

/**
 * Shows a picture stretched over the widget, darkened by a black veil over its opaque pixels: a
 * backdrop that lets what stands on it be the brightest thing. It reports nothing.
 */
class PANELKIT_EXPORT SpLabel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap image READ image WRITE setImage)

public:
    explicit SpLabel(QWidget *parent = nullptr);
    ~SpLabel() override;

    QPixmap image() const;
    void setImage(const QPixmap &image);

    int imageAlpha() const;
    void setImageAlpha(const int &alpha);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // SPLABEL_H
