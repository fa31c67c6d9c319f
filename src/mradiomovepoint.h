#ifndef MRADIOMOVEPOINT_H
#define MRADIOMOVEPOINT_H

#include "panelkitglobal.h"

#include <QColor>
#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <QSharedPointer>
#include <QWidget>

#include <memory>

class MRadioMovePoint;

namespace panelkit
{
class ScalePicture;
} // namespace panelkit

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
    int getLine_start() { return m_lineStart; }
    void setLine_start(int start);
    int getLine_end() { return m_lineEnd; }
    void setLine_end(int end);

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    struct Look;
    friend class MRadioMovePoint; // hands the geometry on to the needle

    Look look() const;
    void layOut(const Look &look);
    void layOutLabels(const Look &look);
    void layOutTicks(const Look &look);

    int m_step = 0;
    int m_validStart = 0;
    int m_firstTick = 0; // frequency at scale count 0
    int m_validEnd = 0;
    int m_lastTick = 0; // frequency at the right end of the drawable width
    int m_posFactor = 10;
    MapPixAndHz m_map{1, 10};
    int m_pixCountMeta = 0; // scale units from tick to tick
    int m_bMid = 0; // scale units from label to label, ticks from middle to middle
    int m_bLarge = 0; // middle ticks from long to long
    int m_lineStart = 0; // px
    int m_lineEnd = 0; // px
    int m_tickUnitHeight = 6; // px
    int m_unitCount = 0;
    int m_lineY = 40; // px, the owner's at construction; drawing takes the current one
    bool m_isFM = false;
    QColor m_color; // invalid; drawing takes the owner's
    QPointer<MRadioMovePoint> m_owner;

    std::unique_ptr<Look> m_look; // of the kept picture
    std::unique_ptr<panelkit::ScalePicture> m_picture;
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
    int m_lineStart; // px, x of scale count 0
    int m_firstTick; // frequency at scale count 0
    int m_minFreq;
    int m_step;
    int m_maxFreq;
    MapPixAndHz m_map;
    bool m_amFlag = false;
};

/** The needle that MRadioMovePoint makes: a MovePoint that says it is not for AM. */
class PANELKIT_EXPORT FmMovePoint : public MovePoint
{
public:
    using MovePoint::MovePoint;

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

    int getFreqStep() const { return m_freqStep; }
    void setFreqStep(int step);
    int getFreqStart() const { return m_freqStart; }
    void setFreqStart(int freq);
    int getSuggestFreqStart() const { return m_suggestFreqStart; }
    void setSuggestFreqStart(int freq);
    int getSuggestFreqEnd() const { return m_suggestFreqEnd; }
    void setSuggestFreqEnd(int freq);
    int getFreqEnd() const { return m_freqEnd; }
    void setFreqEnd(int freq);
    int getLineStart() const { return m_lineStart; }
    void setLineStart(int x);
    int getLineEnd() const { return m_lineEnd; }
    void setLineEnd(int x);
    int getPixCountMeta() const { return m_pixCountMeta; }
    void setPixCountMeta(int count);
    int getBMid() const { return m_bMid; }
    void setBMid(int count);
    int getBLarge() const { return m_bLarge; }
    void setBLarge(int factor);
    int getTotalCountMeta() const { return m_totalCountMeta; }
    void setTotalCountMeta(int count);
    BNADTYPE getBandType() const { return m_bandType; }
    void setBandType(const BNADTYPE &type);
    QPixmap getPointPix() const { return m_pointPix; }
    void setPointPix(const QPixmap &pixmap);
    QColor getLineColor() const { return m_lineColor; }
    void setLineColor(const QColor &color);
    int getTxtYpos() const { return m_txtYpos; }
    void setTxtYpos(int y);
    int getLineYpos() const { return m_lineYpos; }
    void setLineYpos(int y);
    int getPointYpos() const { return m_pointYpos; }
    void setPointYpos(int y);
    bool getInitByCustomeValue() const { return m_initByCustomeValue; }
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
    void resetNeedle(int minFreq, int step, int maxFreq);

    int m_freqStart = 8500;
    int m_freqEnd = 10800;
    int m_freqStep = 10;
    int m_suggestFreqStart = -1; // -1: from the band
    int m_suggestFreqEnd = -1; // -1: from the band
    int m_lineStart = 10; // px
    int m_lineEnd = 500; // px
    int m_pixCountMeta = 10; // scale units from tick to tick
    int m_bMid = 5; // scale units from label to label, ticks from middle to middle
    int m_bLarge = 2; // middle ticks from long to long
    int m_totalCountMeta = 100; // scale units between lineStart and lineEnd
    BNADTYPE m_bandType = AM;
    QColor m_lineColor;
    int m_txtYpos = 30; // px
    int m_lineYpos = 40; // px
    int m_pointYpos = 40; // px
    bool m_initByCustomeValue = false;
    QPixmap m_pointPix{10, 30};
    QSharedPointer<MovePoint> m_needle;
    QSharedPointer<ScaleBkg> m_scale;
};

#endif // MRADIOMOVEPOINT_H
