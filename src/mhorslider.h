#ifndef MHORSLIDER_H
#define MHORSLIDER_H

#include "panelkitglobal.h"

#include <QFont>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QWidget>

class QLabel;

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

    QFont getFont() const { return m_font; }
    void setFont(const QFont &font);
    int getTextWidth() const { return m_textWidth; }
    void setTextWidth(int width);
    Qt::Alignment getAlignment() const { return m_alignment; }
    void setAlignment(const Qt::Alignment &alignment);
    QPixmap sliderNormalImage() const { return m_sliderNormalImage; }
    void setSliderNormalImage(const QPixmap &image);
    QPixmap sliderPressImage() const { return m_sliderPressImage; }
    void setSliderPressImage(const QPixmap &image);
    QPixmap sliderNormalDisablePix() const { return m_sliderNormalDisableImage; }
    void setSliderNormalDisablePix(const QPixmap &image);
    QPixmap sliderPressDisablePix() const { return m_sliderPressDisableImage; }
    void setSliderPressDisablePix(const QPixmap &image);
    QPixmap pointNormalImage() const { return m_pointNormalImage; }
    void setPointNormalImage(const QPixmap &image);
    QPixmap pointPressImage() const { return m_pointPressImage; }
    void setPointPressImage(const QPixmap &image);
    QPixmap pointDisableImage() const { return m_pointDisableImage; }
    void setPointDisableImage(const QPixmap &image);
    int itemID() const { return m_itemID; }
    void setItemID(int id);
    int maxValue() const { return m_maxValue; }
    void setMaxValue(int value);
    int getMinValue() const { return m_minValue; }
    void setMinValue(int value);
    int currentValue() const { return m_currentValue; }
    void setCurrentValue(int value);
    bool getIsNormal() const { return m_isNormal; }
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
    void layOutLabels(const QRect &valueRect);
    void placeFill(int value, int knobLeft);
    int knobLeftAt(int x) const;
    bool isDrawnDisabled() const;

    QLabel *m_knob;
    QLabel *m_valueLabel;
    bool m_isNormal = true; // the fill grows from the left end
    int m_itemID = 0;
    int m_currentValue = 0;
    int m_maxValue = 5;
    int m_minValue = -5;
    int m_textWidth = 0; // px
    QRect m_grooveRect; // px
    QRect m_fillTarget; // px, in the widget
    QRect m_fillSource; // px, in the picture of the filled groove
    QFont m_font;
    Qt::Alignment m_alignment;
    QPixmap m_sliderNormalImage;
    QPixmap m_sliderNormalDisableImage;
    QPixmap m_sliderPressImage;
    QPixmap m_sliderPressDisableImage;
    QPixmap m_pointNormalImage;
    QPixmap m_pointPressImage;
    QPixmap m_pointDisableImage;
};

#endif // MHORSLIDER_H
