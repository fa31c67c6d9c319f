// SPDX-License-Identifier: Apache-2.0
#ifndef MRADIOMOVEPOINT_H
#define MRADIOMOVEPOINT_H

#include "panelkitglobal.h"

#include <QColor>
#include <QLabel>
#include <QPixmap>
#include <QWidget>

#include <memory>

class MRadioMovePoint;

/// How far apart a scale's units are: pixels and frequency units for one scale unit.
struct MapPixAndHz {
    int pix; // px per scale unit
    int hz; // frequency units per scale unit
};

/**
 * The scale of an MRadioMovePoint: tick lines of three heights and numbers above them. It works out
 * how many pixels and how many frequency units one scale unit takes, from which the needle finds
 * its way. Frequencies are whole numbers; an FM scale shows them divided by 100.
 *
 * All ticks and labels are drawn. Only where a unit takes no pixels, so that all stand at one
 * place, and there are more than 100,000 of them, the last 2,048 are.
 */
class PANELKIT_EXPORT ScaleBkg : public QLabel
{
public:
    ScaleBkg(int freqStart, int freqEnd, int step, int lineStart, int lineEnd, bool isFM,
             int suggestStart, int suggestEnd, MRadioMovePoint *owner, QWidget *parent,
             int pixCountMeta, int bMid, int bLarge, int totalCountMeta);
    ~ScaleBkg() override;

    void resetParam(int freqStart, int freqEnd, int step, int lineStart, int lineEnd, bool isFM,
                    int suggestStart, int suggestEnd, int pixCountMeta, int bMid, int bLarge,
                    int totalCountMeta);
    void init();

    int getValidStartFreq(int freq, int step, bool isStart);
    int getPosByCount(int count);
    int getValueByPos(int pos);
    int getBeishu(int freq);
    int getHeightByCount(int count);
    QRect getRectBYCertalXpos(int x);
    int getPointStart();
    int getPointEnd();
    virtual int getEnd();
    int getLine_start() const;
    void setLine_start(int start);
    int getLine_end() const;
    void setLine_end(int end);

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    friend class MRadioMovePoint; // hands the geometry on to the needle
    class Private;
    const std::unique_ptr<Private> d;
};

/**
 * The needle of an MRadioMovePoint: a picture that moves sideways over the scale and stands on
 * whole frequency steps within the band. Its frequency is that of its middle; none is stored.
 */
class PANELKIT_EXPORT MovePoint : public QLabel
{
    Q_OBJECT

public:
    MovePoint(int lineStart, int firstTick, int minFreq, int step, int maxFreq,
              const MapPixAndHz &map, QPixmap *pixmap, MRadioMovePoint *owner);
    ~MovePoint() override;

    void resetParam(int lineStart, int firstTick, int minFreq, int step, int maxFreq,
                    const MapPixAndHz &map);
    int cacPosMapFreq(int pos);
    int cacFreqMapPos(int freq);
    virtual int getPosValid(int pos);
    virtual bool isAm();
    virtual void moveByPos(int pos);
    void moveByFreq(int freq);
    void emitFreq();

signals:
    void freqChanged(int fmFreq, bool isAm);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

/** The needle that MRadioMovePoint makes: a MovePoint that says it is not for AM. */
class PANELKIT_EXPORT FmMovePoint : public MovePoint
{
public:
    FmMovePoint(int lineStart, int firstTick, int minFreq, int step, int maxFreq,
                const MapPixAndHz &map, QPixmap *pixmap, MRadioMovePoint *owner);
    ~FmMovePoint() override;

    bool isAm() override;
};

/**
 * A tuner: a scale with a needle that is dragged over it. The tuned frequency is reported when the
 * finger lifts. Frequencies are whole numbers in the unit of the application, for FM 10 kHz, so
 * that 8750 is 87.5 MHz.
 *
 * Set the band and the looks first, then write initByCustomeValue, which applies them all. At run
 * time a band comes through freqParamChangedSlot and a frequency through curFreqChangedSlot.
 */
class PANELKIT_EXPORT MRadioMovePoint : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int freqStep READ getFreqStep WRITE setFreqStep)
    Q_PROPERTY(int freqStart READ getFreqStart WRITE setFreqStart)
    Q_PROPERTY(int suggestFreqStart READ getSuggestFreqStart WRITE setSuggestFreqStart)
    Q_PROPERTY(int suggestFreqEnd READ getSuggestFreqEnd WRITE setSuggestFreqEnd)
    Q_PROPERTY(int freqEnd READ getFreqEnd WRITE setFreqEnd)
    Q_PROPERTY(int lineStart READ getLineStart WRITE setLineStart)
    Q_PROPERTY(int lineEnd READ getLineEnd WRITE setLineEnd)
    Q_PROPERTY(int pixCountMeta READ getPixCountMeta WRITE setPixCountMeta)
    Q_PROPERTY(int bMid READ getBMid WRITE setBMid)
    Q_PROPERTY(int bLarge READ getBLarge WRITE setBLarge)
    Q_PROPERTY(int totalCountMeta READ getTotalCountMeta WRITE setTotalCountMeta)
    Q_PROPERTY(BNADTYPE bandType READ getBandType WRITE setBandType)
    Q_PROPERTY(QPixmap pointPix READ getPointPix WRITE setPointPix)
    Q_PROPERTY(QColor lineColor READ getLineColor WRITE setLineColor)
    Q_PROPERTY(int txtYpos READ getTxtYpos WRITE setTxtYpos)
    Q_PROPERTY(int lineYpos READ getLineYpos WRITE setLineYpos)
    Q_PROPERTY(int pointYpos READ getPointYpos WRITE setPointYpos)
    Q_PROPERTY(bool initByCustomeValue READ getInitByCustomeValue WRITE setInitByCustomeValue)

public:
    /// The band, which decides how the scale writes its numbers.
    enum BNADTYPE : int {
        AM = 0, ///< As they are.
        FM = 1 ///< Divided by 100.
    };
    Q_ENUM(BNADTYPE)

    explicit MRadioMovePoint(QWidget *parent = nullptr);
    ~MRadioMovePoint() override;

    int getFreqStep() const;
    void setFreqStep(int step);
    int getFreqStart() const;
    void setFreqStart(int freq);
    int getSuggestFreqStart() const;
    void setSuggestFreqStart(int freq);
    int getSuggestFreqEnd() const;
    void setSuggestFreqEnd(int freq);
    int getFreqEnd() const;
    void setFreqEnd(int freq);
    int getLineStart() const;
    void setLineStart(int x);
    int getLineEnd() const;
    void setLineEnd(int x);
    int getPixCountMeta() const;
    void setPixCountMeta(int count);
    int getBMid() const;
    void setBMid(int count);
    int getBLarge() const;
    void setBLarge(int factor);
    int getTotalCountMeta() const;
    void setTotalCountMeta(int count);
    BNADTYPE getBandType() const;
    void setBandType(const BNADTYPE &type);
    QPixmap getPointPix() const;
    void setPointPix(const QPixmap &pixmap);
    QColor getLineColor() const;
    void setLineColor(const QColor &color);
    int getTxtYpos() const;
    void setTxtYpos(int y);
    int getLineYpos() const;
    void setLineYpos(int y);
    int getPointYpos() const;
    void setPointYpos(int y);
    bool getInitByCustomeValue() const;
    void setInitByCustomeValue(bool value);

    void connectSignalAndSlots();

public slots:
    void freqChanged(int freq, bool isAm);
    void freqParamChangedSlot(bool isFM, float freqMin, float freqMax, float freqStep);
    void freqParamChangedSlot(bool isFM, float freqMin, float freqMax, float freqStep,
                              int lineStart, int lineEnd, int c_suggestFreqStart,
                              int c_suggestFreqEnd);
    void curFreqChangedSlot(float freq);

signals:
    void freqChangedSgl(float fmFreq);
    void amFreqChanged(int amFreq);

protected:
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MRADIOMOVEPOINT_H
