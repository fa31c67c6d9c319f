#ifndef SPLABEL_H
#define SPLABEL_H

#include "panelkitglobal.h"

#include <QPixmap>
#include <QSize>
#include <QWidget>

#include <memory>

namespace panelkit
{
class ImageLook;
} // namespace panelkit

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

    QPixmap image() const { return m_image; }
    void setImage(const QPixmap &image);

    int imageAlpha() { return m_imageAlpha; }
    void setImageAlpha(const int &alpha);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    bool fitImage();

    QPixmap m_image;
    QSize m_cachedSize{32, 32}; // px, what the picture was last scaled to
    int m_imageAlpha = 154; // 0..255

    std::unique_ptr<panelkit::ImageLook> m_look;
};

#endif // SPLABEL_H
