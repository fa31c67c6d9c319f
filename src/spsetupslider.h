#ifndef SPSETUPSLIDER_H
#define SPSETUPSLIDER_H

#include "panelkitglobal.h"

#include <QFont>
#include <QPixmap>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QWidget>

class QLabel;
class SpIconButton;

/**
 * A vertical slider for a setting, such as one band of an equaliser: a track with a knob to be
 * dragged, the value as a number above it and, on request, a button at either end that steps by
 * one. The largest value is at the top.
 *
 * It takes its size from its pictures once the last of them is there; hasAddDecBtn has to be set
 * before. Every change by touch reports valueChangeSig, the end of a touch saveDataSig and
 * sliderRelease. On each press it asks the application for a click sound.
 */
class PANELKIT_EXPORT SpSetupSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool hasAddDecBtn READ getHasAddDecBtn WRITE setHasAddDecBtn)
    Q_PROPERTY(QPixmap sliderNormalImage READ sliderNormalImage WRITE setSliderNormalImage)
    Q_PROPERTY(QPixmap sliderPressImage READ sliderPressImage WRITE setSliderPressImage)
    Q_PROPERTY(QPixmap pointNormalImage READ pointNormalImage WRITE setPointNormalImage)
    Q_PROPERTY(QPixmap pointPressImage READ pointPressImage WRITE setPointPressImage)
    Q_PROPERTY(QPixmap addBtnNormalImage READ addBtnNormalImage WRITE setAddBtnNormalImage)
    Q_PROPERTY(QPixmap addBtnPressImage READ addBtnPressImage WRITE setAddBtnPressImage)
    Q_PROPERTY(QPixmap decBtnNormalImage READ decBtnNormalImage WRITE setDecBtnNormalImage)
    Q_PROPERTY(QPixmap decBtnPressImage READ decBtnPressImage WRITE setDecBtnPressImage)
    Q_PROPERTY(int itemID READ itemID WRITE setItemID)
    Q_PROPERTY(int maxValue READ maxValue WRITE setMaxValue)
    Q_PROPERTY(int minValue READ getMinValue WRITE setMinValue)
    Q_PROPERTY(int currentValue READ currentValue WRITE setCurrentValue)
    Q_PROPERTY(int topValue READ topValue WRITE setTopValue)
    Q_PROPERTY(QFont font READ getFont WRITE setFont)

public:
    explicit SpSetupSlider(QWidget *parent = nullptr);

    bool getHasAddDecBtn() const { return m_hasAddDecBtn; }
    void setHasAddDecBtn(int has);
    QPixmap sliderNormalImage() const { return m_sliderNormalImage; }
    void setSliderNormalImage(const QPixmap &image);
    QPixmap sliderPressImage() const { return m_sliderPressImage; }
    void setSliderPressImage(const QPixmap &image);
    QPixmap pointNormalImage() const { return m_pointNormalImage; }
    void setPointNormalImage(const QPixmap &image);
    QPixmap pointPressImage() const { return m_pointPressImage; }
    void setPointPressImage(const QPixmap &image);
    QPixmap addBtnNormalImage() const { return m_addBtnNormalImage; }
    void setAddBtnNormalImage(const QPixmap &image);
    QPixmap addBtnPressImage() const { return m_addBtnPressImage; }
    void setAddBtnPressImage(const QPixmap &image);
    QPixmap decBtnNormalImage() const { return m_decBtnNormalImage; }
    void setDecBtnNormalImage(const QPixmap &image);
    QPixmap decBtnPressImage() const { return m_decBtnPressImage; }
    void setDecBtnPressImage(const QPixmap &image);
    int itemID() const { return m_itemID; }
    void setItemID(int id);
    int maxValue() const { return m_maxValue; }
    void setMaxValue(int value);
    int getMinValue() const { return m_minValue; }
    void setMinValue(int value);
    int currentValue() const { return m_currentValue; }
    void setCurrentValue(int value);
    int topValue() const { return m_topValue; }
    void setTopValue(int value);
    QFont getFont() const { return m_font; }
    void setFont(const QFont &font);

    void initWidget();
    void setTouchPos(int value);
    void setTouchPos(QPoint pos);
    QPoint getTouchPos();
    void emitValueChangedSgl();
    void setFontSize(int px);

signals:
    void valueChangeSig(int id, int value, QPoint pos);
    void saveDataSig();
    void sliderRelease(int id, int value);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void changeEvent(QEvent *e) override;

private slots:
    void btnAddDecClickedSlot(QString btnId);

private:
    void layOutTrack();
    void layOutLabels();
    SpIconButton *makeButton(const QPixmap &normal, const QPixmap &press, const QString &id, int y);
    int knobTopAt(int y) const;
    void drawTrack(QPainter &painter) const;
    void drawFill(QPainter &painter) const;

    int m_topValue = 0;
    QLabel *m_knob;
    QLabel *m_valueLabel;
    QLabel *m_topLabel;
    QPointer<SpIconButton> m_addButton; // none before the layout
    QPointer<SpIconButton> m_decButton; // none before the layout
    int m_itemID = 0;
    int m_currentValue = 0;
    int m_maxValue = 5;
    int m_minValue = -5;
    bool m_hasAddDecBtn = false;
    QRect m_trackRect; // px
    QRect m_fillTarget; // px, in the widget
    QRect m_fillSource; // px, in the picture of the filled track
    QRect m_labelRect; // px
    QFont m_font;
    QPoint m_pressPos; // px
    QPixmap m_sliderNormalImage;
    QPixmap m_sliderPressImage;
    QPixmap m_pointNormalImage;
    QPixmap m_pointPressImage;
    QPixmap m_addBtnNormalImage;
    QPixmap m_addBtnPressImage;
    QPixmap m_decBtnNormalImage;
    QPixmap m_decBtnPressImage;
};

#endif // SPSETUPSLIDER_H
