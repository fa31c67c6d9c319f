// SPDX-License-Identifier: Apache-2.0
#ifndef SPSETUPSLIDER_H
#define SPSETUPSLIDER_H

#include "panelkitglobal.h"

#include <QFont>
#include <QPixmap>
#include <QPoint>
#include <QString>
#include <QWidget>

#include <memory>

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
    ~SpSetupSlider() override;

    bool getHasAddDecBtn() const;
    void setHasAddDecBtn(int has);
    QPixmap sliderNormalImage() const;
    void setSliderNormalImage(const QPixmap &image);
    QPixmap sliderPressImage() const;
    void setSliderPressImage(const QPixmap &image);
    QPixmap pointNormalImage() const;
    void setPointNormalImage(const QPixmap &image);
    QPixmap pointPressImage() const;
    void setPointPressImage(const QPixmap &image);
    QPixmap addBtnNormalImage() const;
    void setAddBtnNormalImage(const QPixmap &image);
    QPixmap addBtnPressImage() const;
    void setAddBtnPressImage(const QPixmap &image);
    QPixmap decBtnNormalImage() const;
    void setDecBtnNormalImage(const QPixmap &image);
    QPixmap decBtnPressImage() const;
    void setDecBtnPressImage(const QPixmap &image);
    int itemID() const;
    void setItemID(int id);
    int maxValue() const;
    void setMaxValue(int value);
    int getMinValue() const;
    void setMinValue(int value);
    int currentValue() const;
    void setCurrentValue(int value);
    int topValue() const;
    void setTopValue(int value);
    QFont getFont() const;
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
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // SPSETUPSLIDER_H
