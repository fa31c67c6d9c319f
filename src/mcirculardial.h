#ifndef MCIRCULARDIAL_H
#define MCIRCULARDIAL_H

#include "panelkitglobal.h"

#include <QColor>
#include <QString>
#include <QWidget>

#include <memory>

class QPainter;

namespace panelkit
{
class DeviceView;
} // namespace panelkit

/**
 * A round dial: ticks with numbers along an arc, a pointer at the value, and the value as text. The
 * user sets the value by touching or dragging near the rim.
 *
 * While the finger is down the dial reports currentValueChange, on the release valueChanged;
 * neither comes where the value is already what was touched. It starts out as an FM tuner, 87.5 to
 * 108.
 *
 * Up to 100,000 ticks are all drawn, with their labels. Of more, 10,000 at round values
 * are at most, with at most 400 labels.
 */
class PANELKIT_EXPORT MCircularDial : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double radius READ radius WRITE setRadius)
    Q_PROPERTY(double minValue READ minValue WRITE setMinValue)
    Q_PROPERTY(double maxValue READ maxValue WRITE setMaxValue)
    Q_PROPERTY(double value READ value WRITE setValue)
    Q_PROPERTY(QString unit READ unit WRITE setUnit)
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
    Q_PROPERTY(QColor bgColor READ bgColor WRITE setBgColor)
    Q_PROPERTY(QColor centerColor READ centerColor WRITE setCenterColor)
    Q_PROPERTY(double rotateAngle READ rotateAngle WRITE setRotateAngle)
    Q_PROPERTY(double scale READ scale WRITE setScale)
    Q_PROPERTY(int scaleLong READ scaleLong WRITE setScaleLong)
    Q_PROPERTY(double startAngle READ startAngle WRITE setStartAngle)

public:
    explicit MCircularDial(QWidget *parent = nullptr);
    ~MCircularDial() override;

    double radius() const { return m_radius; }
    void setRadius(double radius);
    double minValue() const { return m_minValue; }
    void setMinValue(double minimum);
    double maxValue() const { return m_maxValue; }
    void setMaxValue(double maximum);
    double value() const { return m_value; }
    void setValue(double value);
    QString unit() const { return m_unit; }
    void setUnit(QString unit);
    QColor textColor() const { return m_textColor; }
    void setTextColor(QColor color);
    QColor bgColor() const { return m_bgColor; }
    void setBgColor(QColor color);
    QColor centerColor() const { return m_centerColor; }
    void setCenterColor(QColor color);
    double rotateAngle() const { return m_rotateAngle; }
    void setRotateAngle(double angle);
    double scale() const { return m_scale; }
    void setScale(double scale);
    int scaleLong() const { return m_scaleLong; }
    void setScaleLong(int wholes);
    double startAngle() const { return m_startAngle; }
    void setStartAngle(double angle);

signals:
    void valueChanged(double value);
    void currentValueChange(double value);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    struct Kept;

    double paintedRadius() const;
    int tickCount() const;
    double span() const;
    double pointerAngle() const;
    bool canKeepFace() const;
    void drawFace(QPainter &painter) const;
    void drawBg(QPainter &painter) const;
    void drawTicks(QPainter &painter) const;
    double valueAt(qint64 tick) const;
    qint64 labelStride(qint64 tickStride) const;
    bool isLong(double value) const;
    void drawTick(QPainter &painter, bool isLong) const;
    void drawLabel(QPainter &painter, const panelkit::DeviceView &view, double value) const;
    void drawPointer(QPainter &painter) const;
    void drawValue(QPainter &painter) const;
    void takeTouch(QMouseEvent *e, bool release);
    void calcCurValue(QPoint p, bool release);

    double m_radius = 250.0; // px
    double m_minValue = 87.5;
    double m_maxValue = 108.0;
    double m_value = 87.5;
    QString m_unit;
    QColor m_textColor{255, 255, 255};
    QColor m_bgColor{173, 173, 173};
    QColor m_centerColor{94, 94, 94};
    double m_rotateAngle = 90.0; // degrees
    double m_scale = 0.1; // of the value, a tick
    int m_scaleLong = 1; // whole values
    double m_startAngle = 120.0; // degrees

    std::unique_ptr<Kept> m_kept;
};

#endif // MCIRCULARDIAL_H
