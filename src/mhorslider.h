// SPDX-License-Identifier: Apache-2.0
#ifndef MHORSLIDER_H
#define MHORSLIDER_H

#include "panelkitglobal.h"

#include <QFont>
#include <QPixmap>
#include <QPoint>
#include <QWidget>

#include <memory>

/**
 * A horizontal slider made of pictures: a groove that fills up to the knob, and the value as a
 * number to its right. The fill grows from the left end or, for balance and fader, from the middle
 * to either side.
 *
 * Give it its values and pictures, and pointPressImage last, which lays it out. A drag reports each
 * change with valueChangeSig, the end of a touch saveDataSig, both with itemID. On each press it
 * asks the application for a click sound.
 */
class PANELKIT_EXPORT MHorSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QFont font READ getFont WRITE setFont)
    Q_PROPERTY(int textWidth READ getTextWidth WRITE setTextWidth)
    Q_PROPERTY(Qt::Alignment alignment READ getAlignment WRITE setAlignment)
    Q_PROPERTY(QPixmap sliderNormalImage READ sliderNormalImage WRITE setSliderNormalImage)
    Q_PROPERTY(QPixmap sliderPressImage READ sliderPressImage WRITE setSliderPressImage)
    Q_PROPERTY(QPixmap sliderNormalDisableImage READ sliderNormalDisablePix WRITE
                   setSliderNormalDisablePix DESIGNABLE false)
    Q_PROPERTY(QPixmap sliderPressDisableImage READ sliderPressDisablePix WRITE
                   setSliderPressDisablePix DESIGNABLE false)
    Q_PROPERTY(QPixmap pointNormalImage READ pointNormalImage WRITE setPointNormalImage)
    Q_PROPERTY(QPixmap pointPressImage READ pointPressImage WRITE setPointPressImage)
    Q_PROPERTY(QPixmap pointDisableImage READ pointDisableImage WRITE setPointDisableImage)
    Q_PROPERTY(int itemID READ itemID WRITE setItemID)
    Q_PROPERTY(int maxValue READ maxValue WRITE setMaxValue)
    Q_PROPERTY(int minValue READ getMinValue WRITE setMinValue)
    Q_PROPERTY(int currentValue READ currentValue WRITE setCurrentValue)
    Q_PROPERTY(bool normalUse READ getIsNormal WRITE setIsNormal DESIGNABLE false)

public:
    explicit MHorSlider(QWidget *parent = nullptr);
    ~MHorSlider() override;

    QFont getFont() const;
    void setFont(const QFont &font);
    int getTextWidth() const;
    void setTextWidth(int width);
    Qt::Alignment getAlignment() const;
    void setAlignment(const Qt::Alignment &alignment);
    QPixmap sliderNormalImage() const;
    void setSliderNormalImage(const QPixmap &image);
    QPixmap sliderPressImage() const;
    void setSliderPressImage(const QPixmap &image);
    QPixmap sliderNormalDisablePix() const;
    void setSliderNormalDisablePix(const QPixmap &image);
    QPixmap sliderPressDisablePix() const;
    void setSliderPressDisablePix(const QPixmap &image);
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
    bool getIsNormal() const;
    void setIsNormal(bool isNormal);

    void initWidget();
    void setTouchPos(int value);
    void setTouchPos(QPoint pos);
    void setIsShowValue(bool isShown);
    QPoint getTouchPos();
    void emitValueChangedSgl();

signals:
    void valueChangeSig(int id, int value);
    void saveDataSig(int id, int value);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void changeEvent(QEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MHORSLIDER_H
