// SPDX-License-Identifier: Apache-2.0
#ifndef MRADIOSLIDER_H
#define MRADIOSLIDER_H

#include "panelkitglobal.h"

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QWidget>

#include <memory>

/**
 * A tuner whose scale is dragged sideways under a fixed indicator. The frequency under the middle
 * of the widget is the tuned one; freqChangedSgl reports it whenever a finger lifts.
 *
 * The scale itself is in display units, MHz for FM; the signal and the slot for the tuned frequency
 * are in hundredths of that for FM (8750 is 87.5 MHz) and unscaled for AM.
 *
 * All ticks and labels are drawn. Only where lineGap is 0, so that all stand at one place, and the
 * scale has more than 100,000 steps, the last 1,024 are.
 */
class PANELKIT_EXPORT MRadioSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap indicatePix READ getIndicatePix WRITE setIndicatePix)
    Q_PROPERTY(QColor lineColor READ getLineColor WRITE setLineColor)
    Q_PROPERTY(QFont font READ getFont WRITE setFont)
    Q_PROPERTY(int lineH READ getLineH WRITE setLineH)
    Q_PROPERTY(int lineW READ getLineW WRITE setLineW)
    Q_PROPERTY(int lineGap READ getLineGap WRITE setLineGap)
    // Whole numbers as properties (kept behaviour); a fraction goes through the accessors.
    Q_PROPERTY(int freqStart READ wholeFreqStart WRITE setWholeFreqStart)
    Q_PROPERTY(int freqEnd READ wholeFreqEnd WRITE setWholeFreqEnd)
    Q_PROPERTY(int freqStep READ wholeFreqStep WRITE setWholeFreqStep)
    Q_PROPERTY(int curFreq READ wholeCurFreq WRITE setWholeCurFreq)
    Q_PROPERTY(bool isFM READ getIsFM WRITE setIsFM)
    Q_PROPERTY(int marginY READ marginY WRITE setMarginY)
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
        AlignCenter = 2 ///< Shorter ones raised, so that all have about the same middle.
    };
    Q_ENUM(ScaleAlignmentMode)

    /// Where the labels stand.
    enum TextPosition : int { TextBottom = 0, TextTop = 1 };
    Q_ENUM(TextPosition)

    explicit MRadioSlider(QWidget *parent = nullptr);
    ~MRadioSlider() override;

    QPixmap getIndicatePix() const;
    void setIndicatePix(const QPixmap &pixmap);
    QColor getLineColor() const;
    void setLineColor(const QColor &color);
    QFont getFont() const;
    void setFont(const QFont &font);
    int getLineH() const;
    void setLineH(int height);
    int getLineW() const;
    void setLineW(int width);
    int getLineGap() const;
    void setLineGap(int gap);
    float getFreqStart() const;
    void setFreqStart(float freq);
    float getFreqEnd() const;
    void setFreqEnd(float freq);
    float getFreqStep() const;
    void setFreqStep(float step);
    float getCurFreq() const;
    void setCurFreq(float freq);
    bool getIsFM() const;
    void setIsFM(bool isFM);
    int marginY() const;
    void setMarginY(int margin);
    ScaleAlignmentMode scaleAlign() const;
    void setScaleAlign(const ScaleAlignmentMode &mode);
    TextPosition getTextPosition() const;
    void setTextPosition(const TextPosition &position);
    int getTextMarginY() const;
    void setTextMarginY(int margin);
    int getScaleMarginY() const;
    void setScaleMarginY(int margin);
    int getPointMarginY() const;
    void setPointMarginY(int margin);

    void initSliderRange();
    bool isValidFreq(float freq);

signals:
    void freqChangedSgl(float freq);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private slots:
    void freqParamChangedSlot(bool isFM, float freqMin, float freqMax, float freqStep);
    void curFreqChangedSlot(float freq);

private:
    int wholeFreqStart() const;
    void setWholeFreqStart(int freq);
    int wholeFreqEnd() const;
    void setWholeFreqEnd(int freq);
    int wholeFreqStep() const;
    void setWholeFreqStep(int step);
    int wholeCurFreq() const;
    void setWholeCurFreq(int freq);

    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MRADIOSLIDER_H
