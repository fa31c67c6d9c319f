#ifndef MKARVOSLIDER_H
#define MKARVOSLIDER_H

#include "panelkitglobal.h"

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QPoint>
#include <QWidget>

#include <memory>

namespace panelkit
{
class ScalePicture;
} // namespace panelkit

/**
 * A tuner whose indicator is dragged over a fixed scale. The frequency under the finger snaps to a
 * band of its own, which comes from the radio and may differ from the drawn scale; each change is
 * reported during the drag.
 *
 * The scale itself is in display units, MHz for FM; the signal and the slot for the tuned frequency
 * are in hundredths of that for FM (8750 is 87.5 MHz) and unscaled for AM.
 *
 * All ticks and labels are drawn, up to 100,000 ticks in 1,000,000 steps. Of more, those of about
 * 65,000 steps are.
 */
class PANELKIT_EXPORT MKARVOSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap indicatePix READ getIndicatePix WRITE setIndicatePix)
    Q_PROPERTY(QColor lineColor READ getLineColor WRITE setLineColor)
    Q_PROPERTY(QFont font READ getFont WRITE setFont)
    Q_PROPERTY(int lineH READ getLineH WRITE setLineH)
    Q_PROPERTY(int lineW READ getLineW WRITE setLineW)
    // Whole numbers as properties, on purpose: what has a fraction goes through the accessors.
    Q_PROPERTY(int freqStart READ wholeFreqStart WRITE setWholeFreqStart)
    Q_PROPERTY(int freqEnd READ wholeFreqEnd WRITE setWholeFreqEnd)
    Q_PROPERTY(int freqStep READ wholeFreqStep WRITE setWholeFreqStep)
    Q_PROPERTY(int curFreq READ wholeCurFreq WRITE setWholeCurFreq)
    Q_PROPERTY(bool isFM READ getIsFM WRITE setIsFM)
    Q_PROPERTY(int marginY READ marginY WRITE setMarginY)
    Q_PROPERTY(int marginX READ marginX WRITE setMarginX)
    Q_PROPERTY(ScaleAlignmentMode scaleMode READ scaleAlign WRITE setScaleAlign DESIGNABLE false)
    Q_PROPERTY(TextPosition textPosition READ getTextPosition WRITE setTextPosition)
    Q_PROPERTY(int textMarginY READ getTextMarginY WRITE setTextMarginY)
    Q_PROPERTY(int scaleMarginY READ getScaleMarginY WRITE setScaleMarginY)
    Q_PROPERTY(int PointMarginY READ getPointMarginY WRITE setPointMarginY)

public:
    /// Where the ticks stand.
    enum ScaleAlignmentMode : int {
        AlignBottom = 0, ///< On a common foot.
        AlignTop = 1, ///< Hanging from a common top.
        AlignCenter = 2 ///< Hanging too, the upper part of the shorter ones faint.
    };
    Q_ENUM(ScaleAlignmentMode)

    /// Where the labels stand.
    enum TextPosition : int { TextBottom = 0, TextTop = 1 };
    Q_ENUM(TextPosition)

    explicit MKARVOSlider(QWidget *parent = nullptr);
    ~MKARVOSlider() override;

    QPixmap getIndicatePix() const { return m_indicatePix; }
    void setIndicatePix(const QPixmap &pixmap);
    QColor getLineColor() const { return m_lineColor; }
    void setLineColor(const QColor &color);
    QFont getFont() const { return m_font; }
    void setFont(const QFont &font);
    int getLineH() const { return m_lineH; }
    void setLineH(int height);
    int getLineW() const { return m_lineW; }
    void setLineW(int width);
    int getLineGap() const;
    void setLineGap(int gap);
    float getFreqStart() const { return m_freqStart; }
    void setFreqStart(float freq);
    float getFreqEnd() const { return m_freqEnd; }
    void setFreqEnd(float freq);
    float getFreqStep() const { return m_freqStep; }
    void setFreqStep(float step);
    float getCurFreq() const { return m_curFreq; }
    void setCurFreq(float freq);
    bool getIsFM() const { return m_isFM; }
    void setIsFM(bool isFM);
    int marginY() const { return m_marginY; }
    void setMarginY(int margin);
    int marginX() const { return m_marginX; }
    void setMarginX(int margin);
    ScaleAlignmentMode scaleAlign() const { return m_scaleMode; }
    void setScaleAlign(const ScaleAlignmentMode &mode);
    TextPosition getTextPosition() const { return m_textPosition; }
    void setTextPosition(const TextPosition &position);
    int getTextMarginY() const { return m_textMarginY; }
    void setTextMarginY(int margin);
    int getScaleMarginY() const { return m_scaleMarginY; }
    void setScaleMarginY(int margin);
    int getPointMarginY() const { return m_pointMarginY; }
    void setPointMarginY(int margin);
    float getRealMinFreq() const { return m_realMinFreq; }
    void setRealMinFreq(float freq);
    float getRealMaxFreq() const { return m_realMaxFreq; }
    void setRealMaxFreq(float freq);
    float getRealFreqStep() const { return m_realFreqStep; }
    void setRealFreqStep(float step);

    void initSliderRange();
    float calFreqRule(float freq);
    bool isValidFreq(float freq);

signals:
    void freqChangedSgl(float freq);
    void mousePressed(bool isPressed);

protected:
    void paintEvent(QPaintEvent *e) override;
    void resizeEvent(QResizeEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private slots:
    void freqParamChangedSlot(bool isFM, float freqMin, float freqMax, float freqStep);
    void curFreqChangedSlot(float freq);

private:
    struct Look;

    int wholeFreqStart() const;
    void setWholeFreqStart(int freq);
    int wholeFreqEnd() const;
    void setWholeFreqEnd(int freq);
    int wholeFreqStep() const;
    void setWholeFreqStep(int step);
    int wholeCurFreq() const;
    void setWholeCurFreq(int freq);

    struct Tick;

    float freqAt(int x);
    void tune(float freq);
    Look look() const;
    void layOut(const Look &look);
    void addLines(const Tick &tick);
    void addLabel(const Tick &tick);
    int tickBase() const;
    int labelTop() const;
    void drawIndicator(QPainter &painter) const;

    QPixmap m_indicatePix;
    QColor m_lineColor{255, 255, 255, 255};
    QFont m_font;
    QPoint m_pressPoint;
    float m_leftX = 0; // px, x of the first tick
    float m_widthF = 0; // px
    float m_realMinFreq = 1620.0F; // above the maximum on purpose, until a band comes
    float m_realMaxFreq = 522.0F;
    float m_realFreqStep = 9.0F;
    int m_stepCount = 0;
    int m_lineH = 30; // px
    int m_lineW = 1; // px, without effect
    float m_lineGap = 5.0F; // px from step to step
    float m_freqStart = 500.0F;
    float m_freqEnd = 1720.0F;
    float m_freqStep = 20.0F;
    bool m_isFM = false;
    int m_marginY = 0; // px, without effect
    int m_marginX = 35; // px, left and right of the scale
    ScaleAlignmentMode m_scaleMode = AlignCenter;
    TextPosition m_textPosition = TextTop;
    int m_textMarginY = 5; // px
    int m_scaleMarginY = 40; // px
    int m_pointMarginY = 46; // px
    float m_curFreq = 800.0F;

    std::unique_ptr<Look> m_look; // of the kept picture
    std::unique_ptr<panelkit::ScalePicture> m_picture;
};

#endif // MKARVOSLIDER_H
