// SPDX-License-Identifier: Apache-2.0
#ifndef MCIRCULARDIAL_H
#define MCIRCULARDIAL_H

#include "panelkitglobal.h"

#include <QColor>
#include <QString>
#include <QWidget>

#include <memory>

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

    double radius() const;
    void setRadius(double radius);
    double minValue() const;
    void setMinValue(double minimum);
    double maxValue() const;
    void setMaxValue(double maximum);
    double value() const;
    void setValue(double value);
    QString unit() const;
    void setUnit(QString unit);
    QColor textColor() const;
    void setTextColor(QColor color);
    QColor bgColor() const;
    void setBgColor(QColor color);
    QColor centerColor() const;
    void setCenterColor(QColor color);
    double rotateAngle() const;
    void setRotateAngle(double angle);
    double scale() const;
    void setScale(double scale);
    int scaleLong() const;
    void setScaleLong(int wholes);
    double startAngle() const;
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
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MCIRCULARDIAL_H
