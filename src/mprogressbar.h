// SPDX-License-Identifier: Apache-2.0
#ifndef MPROGRESSBAR_H
#define MPROGRESSBAR_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QPoint>
#include <QString>
#include <QWidget>

#include <memory>

/// Writes seconds as HH:MM:SS into `text`, with two digits for each: 3725 becomes "01:02:05". The
/// tens of 100 hours and more run on past '9', and negative numbers before '0', so that the text
/// always has eight characters.
PANELKIT_EXPORT void transFormTime(qint64 seconds, QString &text);

/**
 * A playback bar that can be dragged. The application feeds the position with setRealValue; while
 * a finger is on the bar it shows where the finger is instead, reports that with valueChanging, and
 * on release keeps it and reports it with valueChangedSig.
 *
 * It is drawn with pictures once both grooves have one, otherwise in plain colours. With pictures
 * it can show the position as a time on the knob. On each press it asks the application for a click
 * sound.
 */
class PANELKIT_EXPORT MProgressBar : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap sliderNormalImage READ sliderNormalImage WRITE setSliderNormalImage)
    Q_PROPERTY(QPixmap sliderPressImage READ sliderPressImage WRITE setSliderPressImage)
    Q_PROPERTY(QPixmap sliderDisableImage READ sliderDisableImage WRITE setSliderDisableImage)
    Q_PROPERTY(QPixmap pointNormalImage READ pointNormalImage WRITE setPointNormalImage)
    Q_PROPERTY(QPixmap pointPressImage READ pointPressImage WRITE setPointPressImage)
    Q_PROPERTY(QPixmap pointDisableImage READ pointDisableImage WRITE setPointDisableImage)
    Q_PROPERTY(int itemID READ itemID WRITE setItemID)
    Q_PROPERTY(int maxValue READ maxValue WRITE setMaxValue)
    Q_PROPERTY(int minValue READ getMinValue WRITE setMinValue)
    Q_PROPERTY(int currentValue READ currentValue WRITE setCurrentValue)
    Q_PROPERTY(int ponitRadius READ ponitRadius WRITE setPonitRadius)
    Q_PROPERTY(QColor normalColor READ normalColor WRITE setNormalColor)
    Q_PROPERTY(QColor pointNormalColor READ pointNormalColor WRITE setPointNormalColor)
    Q_PROPERTY(QColor pointPressColor READ pointPressColor WRITE setPointPressColor)
    Q_PROPERTY(QColor pressColor READ pressColor WRITE setPressColor)
    Q_PROPERTY(bool showValue READ showValue WRITE setShowValue)
    Q_PROPERTY(bool boundary READ boundary WRITE setBoundary)
    Q_PROPERTY(QColor boundaryColor READ boundaryColor WRITE setBoundaryColor)

public:
    explicit MProgressBar(QWidget *parent = nullptr);
    ~MProgressBar() override;

    QPixmap sliderNormalImage() const;
    void setSliderNormalImage(const QPixmap &image);
    QPixmap sliderPressImage() const;
    void setSliderPressImage(const QPixmap &image);
    QPixmap sliderDisableImage() const;
    void setSliderDisableImage(const QPixmap &image);
    QPixmap pointNormalImage() const;
    void setPointNormalImage(const QPixmap &image);
    QPixmap pointPressImage() const;
    void setPointPressImage(const QPixmap &image);
    QPixmap pointDisableImage() const;
    void setPointDisableImage(const QPixmap &image);
    int itemID() const;
    void setItemID(int id);
    int maxValue() const;
    void setMaxValue(int value);
    int getMinValue() const;
    void setMinValue(int value);
    int currentValue() const;
    void setCurrentValue(int value);
    int ponitRadius() const;
    void setPonitRadius(int radius);
    QColor normalColor() const;
    void setNormalColor(QColor color);
    QColor pointNormalColor() const;
    void setPointNormalColor(QColor color);
    QColor pointPressColor() const;
    void setPointPressColor(QColor color);
    QColor pressColor() const;
    void setPressColor(QColor color);
    bool showValue() const;
    void setShowValue(bool show);
    bool boundary() const;
    void setBoundary(bool boundary);
    QColor boundaryColor() const;
    void setBoundaryColor(QColor color);

    int realValue() const;
    void setRealValue(int value);
    void updateCurrentValue(QPoint pos);

signals:
    void valueChangedSig(int id, int value);
    void valueChanging(int id, int value);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MPROGRESSBAR_H
