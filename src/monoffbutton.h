#ifndef MONOFFBUTTON_H
#define MONOFFBUTTON_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QVector>
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

    QColor onColor() const { return m_onColor; }
    void setOnColor(const QColor &color);
    QColor offColor() const { return m_offColor; }
    void setOffColor(const QColor &color);
    QString btnID() const { return m_btnID; }
    void setBtnID(const QString &id);
    bool onoffStatus() const { return m_onoffStatus; }
    void setOnoffStatus(const bool &on);
    bool btnDisable() const { return m_btnDisable; }
    void setBtnDisable(const bool &disabled);
    QPixmap normalBkgPix() const { return m_normalBkgPix; }
    void setNormalBkgPix(const QPixmap &pixmap);
    QPixmap pressBkgPix() const { return m_pressBkgPix; }
    void setPressBkgPix(const QPixmap &pixmap);
    QPixmap normalChunkPix() const { return m_normalChunkPix; }
    void setNormalChunkPix(const QPixmap &pixmap);
    QPixmap pressChunkPix() const { return m_pressChunkPix; }
    void setPressChunkPix(const QPixmap &pixmap);
    bool reverse() const { return m_reverse; }
    void setReverse(bool reversed);
    OnOff_STYLE UIStyle() const { return m_style; }
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
    struct Dimmed;
    struct Surface;

    int knobRadius() const { return height() / 2; }
    int farthestKnob() const { return width() - knobRadius(); }
    bool isMoving() const { return m_knobPos != 0; }
    QColor statusColor() const { return m_onoffStatus ? m_onColor : m_offColor; }
    void endGlide();
    void releaseDrag(const QPoint &pos);
    void releaseTap(const QPoint &pos);
    bool hasPictures() const;
    QRect bkgRect() const;
    QRect restingChunkRect() const;
    void drawPictures(QPainter &painter);
    void drawSplitBkg(QPainter &painter) const;
    void drawMovingChunk(QPainter &painter) const;
    void drawStyle0(QPainter &painter);
    void drawSlimTrack(QPainter &painter, int left, int right, const Surface &surface);
    void drawRoundKnob(QPainter &painter, int left, const QColor &pen, const QColor &brush) const;
    void drawStyle1(QPainter &painter);
    int flatKnobLeft() const;
    void drawPlate(QPainter &painter, const QRect &rect, const Surface &surface);

    QColor m_onColor{255, 145, 20, 255};
    QColor m_offColor{155, 155, 155, 255};
    QString m_btnID = QStringLiteral("ID_MOnOffButton");
    bool m_onoffStatus = false;
    int m_timerId = 0; // 0: no glide
    int m_knobPos = 0; // px, middle of the knob; 0: at rest
    bool m_isDragged = false;
    QPoint m_pressPoint;
    bool m_btnDisable = false;
    QPixmap m_normalBkgPix;
    QPixmap m_pressBkgPix;
    QPixmap m_normalChunkPix;
    QPixmap m_pressChunkPix;
    bool m_reverse = false;
    OnOff_STYLE m_style = ONOFF_STYLE_0;

    QVector<int> m_overtakenTimers; // of glides that another one took over from
    std::unique_ptr<Dimmed> m_dimmedBkg;
    std::unique_ptr<Dimmed> m_dimmedChunk;
};

#endif // MONOFFBUTTON_H
