#ifndef MPROGRESSBAR_H
#define MPROGRESSBAR_H

#include "panelkitglobal.h"

#include <QColor>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QWidget>

#include <memory>

namespace panelkit
{
class KeptText;
} // namespace panelkit

/// Writes seconds as HH:MM:SS into `text`, with two digits for each: 3725 becomes "01:02:05". The
/// tens of 100 hours and more run on past '9', and negative numbers before '0', on purpose: the
/// text always has eight characters.
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

    QPixmap sliderNormalImage() const { return m_sliderNormalImage; }
    void setSliderNormalImage(const QPixmap &image);
    QPixmap sliderPressImage() const { return m_sliderPressImage; }
    void setSliderPressImage(const QPixmap &image);
    QPixmap sliderDisableImage() const { return m_sliderDisableImage; }
    void setSliderDisableImage(const QPixmap &image);
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
    int ponitRadius() const { return m_ponitRadius; }
    void setPonitRadius(int radius);
    QColor normalColor() const { return m_normalColor; }
    void setNormalColor(QColor color);
    QColor pointNormalColor() const { return m_pointNormalColor; }
    void setPointNormalColor(QColor color);
    QColor pointPressColor() const { return m_pointPressColor; }
    void setPointPressColor(QColor color);
    QColor pressColor() const { return m_pressColor; }
    void setPressColor(QColor color);
    bool showValue() const { return m_showValue; }
    void setShowValue(bool show);
    bool boundary() const { return m_boundary; }
    void setBoundary(bool boundary);
    QColor boundaryColor() const { return m_boundaryColor; }
    void setBoundaryColor(QColor color);

    int realValue() const { return m_realValue; }
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
    bool hasPictures() const;
    bool isScaled(const QPainter &painter) const;
    int bounded(int value) const;
    int partOf(int length) const;
    int valueAt(int x) const;
    QRect grooveRect() const;
    QRect knobRect() const;
    const QPixmap &currentKnob() const;
    void drawGroove(QPainter &painter) const;
    void drawKnob(QPainter &painter) const;
    void drawTime(QPainter &painter) const;
    void drawPlain(QPainter &painter) const;

    int m_itemID = 0;
    int m_currentValue = 50; // the one that is shown
    int m_maxValue = 100;
    int m_minValue = 0;
    bool m_pressed = false;
    int m_realValue = 0; // s, when it is shown as a time
    QPixmap m_sliderNormalImage; // the played part
    QPixmap m_sliderPressImage; // the whole groove
    QPixmap m_sliderDisableImage;
    QPixmap m_pointNormalImage;
    QPixmap m_pointPressImage;
    QPixmap m_pointDisableImage;
    int m_ponitRadius = 0; // px
    QColor m_normalColor{150, 150, 150};
    QColor m_pressColor{255, 125, 0};
    QColor m_pointNormalColor{230, 230, 230};
    QColor m_pointPressColor{255, 155, 20};
    bool m_showValue = false;
    bool m_boundary = false;
    QColor m_boundaryColor{210, 210, 210};

    std::unique_ptr<panelkit::KeptText> m_time;
};

#endif // MPROGRESSBAR_H
