// SPDX-License-Identifier: Apache-2.0
#ifndef MONOFFBUTTON_H
#define MONOFFBUTTON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QRect>
#include <QString>
#include <QWidget>

#include <memory>

class QPainterPath;

/**
 * An on/off switch: a track with a knob at one end for on and at the other for off.
 *
 * A tap lets the knob glide to the other end, a drag carries it there. Give it pictures of the
 * track and of the knob, or let it paint one of two looks in two colours. Whatever the finger did
 * is reported by onoffStatusChanged with btnID, so that one slot can serve a whole screen;
 * setOnoffStatus is silent. It counts as a tap what was no drag, unless a list is being scrolled
 * under the finger: see the property "listMoving" of the application object.
 */
class PANELKIT_EXPORT MOnOffButton : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor onColor READ onColor WRITE setOnColor)
    Q_PROPERTY(QColor offColor READ offColor WRITE setOffColor)
    Q_PROPERTY(QString btnID READ btnID WRITE setBtnID)
    Q_PROPERTY(bool onoffStatus READ onoffStatus WRITE setOnoffStatus)
    Q_PROPERTY(bool btnDisable READ btnDisable WRITE setBtnDisable)
    Q_PROPERTY(QPixmap normalBkgPix READ normalBkgPix WRITE setNormalBkgPix)
    Q_PROPERTY(QPixmap pressBkgPix READ pressBkgPix WRITE setPressBkgPix)
    Q_PROPERTY(QPixmap normalChunkPix READ normalChunkPix WRITE setNormalChunkPix)
    Q_PROPERTY(QPixmap pressChunkPix READ pressChunkPix WRITE setPressChunkPix)
    Q_PROPERTY(bool reverse READ reverse WRITE setReverse)
    Q_PROPERTY(OnOff_STYLE UIStyle READ UIStyle WRITE setUIStyle)

public:
    /// The look that is painted without pictures.
    enum OnOff_STYLE : int {
        ONOFF_STYLE_0 = 0, ///< A round knob as high as the widget on a slim track.
        ONOFF_STYLE_1 = 1 ///< A flat knob inside a track of the widget's height.
    };
    Q_ENUM(OnOff_STYLE)

    explicit MOnOffButton(QWidget *parent = nullptr);
    ~MOnOffButton() override;

    QColor onColor() const;
    void setOnColor(const QColor &color);
    QColor offColor() const;
    void setOffColor(const QColor &color);
    QString btnID() const;
    void setBtnID(const QString &id);
    bool onoffStatus() const;
    void setOnoffStatus(const bool &on);
    bool btnDisable() const;
    void setBtnDisable(const bool &disabled);
    QPixmap normalBkgPix() const;
    void setNormalBkgPix(const QPixmap &pixmap);
    QPixmap pressBkgPix() const;
    void setPressBkgPix(const QPixmap &pixmap);
    QPixmap normalChunkPix() const;
    void setNormalChunkPix(const QPixmap &pixmap);
    QPixmap pressChunkPix() const;
    void setPressChunkPix(const QPixmap &pixmap);
    bool reverse() const;
    void setReverse(bool reversed);
    OnOff_STYLE UIStyle() const;
    void setUIStyle(OnOff_STYLE style);

    /// Switches as a tap does: reports at once, then glides.
    void changeStatus(bool status);

signals:
    void onoffStatusChanged(QString id, bool status);
    void buttonClicked();

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void timerEvent(QTimerEvent *e) override;

    /// Adds a rectangle whose corners are rounded by quadratic curves.
    void createRectPath(QPainterPath &path, QRectF rect, int radius);
    /// Draws a dimmed copy of the pixmap into the target.
    void drawDisableImage(QRect target, QPixmap pixmap, QPainter &painter);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MONOFFBUTTON_H
