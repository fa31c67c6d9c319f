#ifndef MARCLIST_H
#define MARCLIST_H

#include "panelkitglobal.h"

#include <QChar>
#include <QColor>
#include <QPixmap>
#include <QPoint>
#include <QTimer>
#include <QVector>
#include <QWidget>

#include <array>
#include <memory>

class QPainter;

namespace panelkit
{
class KeptLayer;
class KeptLetters;
} // namespace panelkit

/**
 * A short list of single characters, such as the index of a contact book, that a finger scrolls and
 * taps: on an arc around the middle of the left edge, or in a straight column.
 *
 * Fill it with addAlpha(). While it is touched it emits listMoveing with the index that is
 * selected; a tap selects a character and emits itemClicked. A flick goes on scrolling. It does not
 * ask for a click sound.
 */
class PANELKIT_EXPORT MArcList : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double radius READ radius WRITE setRadius)
    Q_PROPERTY(QPixmap pointPixmap READ pointPixmap WRITE setPointPixmap)
    Q_PROPERTY(double startAngle READ startAngle WRITE setStartAngle)
    Q_PROPERTY(double itemHight READ itemHight WRITE setItemHight)
    Q_PROPERTY(QColor pressColor READ pressColor WRITE setPressColor)
    Q_PROPERTY(ARCLIST_STYLE acrListStyle READ acrListStyle WRITE setAcrListStyle)
    Q_PROPERTY(int showItem READ showItem WRITE setShowItem)
    Q_PROPERTY(double pixXOffset READ pixXOffset WRITE setPixXOffset)

public:
    /// Where the characters stand.
    enum ARCLIST_STYLE : int {
        ARCLIST_STYLE_0 = 0, ///< On an arc; dragging down turns it clockwise.
        ARCLIST_STYLE_1 = 1 ///< In a column, in rows.
    };
    Q_ENUM(ARCLIST_STYLE)

    explicit MArcList(QWidget *parent = nullptr);
    ~MArcList() override;

    double radius() const { return m_radius; }
    void setRadius(double radius);
    QPixmap pointPixmap() const { return m_pointPixmap; }
    void setPointPixmap(const QPixmap &pixmap);
    double startAngle() const { return m_startAngle; }
    void setStartAngle(double angle);
    double itemHight() const { return m_itemHight; }
    void setItemHight(double height);
    QColor pressColor() const { return m_pressColor; }
    void setPressColor(const QColor &color);
    ARCLIST_STYLE acrListStyle() const { return m_style; }
    void setAcrListStyle(ARCLIST_STYLE style);
    int showItem() const { return m_showItem; }
    void setShowItem(int count);
    double pixXOffset() const { return m_pixXOffset; }
    void setPixXOffset(double offset);
    int getTextXOffset() const { return m_textXOffset; }
    void setTextXOffset(int offset);

    void addAlpha(QChar c);
    void clearData();
    void setCurrentIndex(QChar c);

    void moveList(QPoint p);
    void calcCurValue(QPoint p, bool release);
    void drawTicks(QPainter *painter);
    void drawPointer(QPainter *painter);
    void drawTicks1(QPainter *painter);
    void drawPointer1(QPainter *painter);
    int getCurrentTime();

signals:
    void itemClicked(QChar c);
    void listMoveing(int index);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private slots:
    void speedTimerSlot();

private:
    struct ArcPlaces;

    bool isItem(qint64 index) const;
    double arcEnd() const;
    double lastFirstRow() const;
    void touchArc(const QPoint &p, bool release);
    void touchColumn(const QPoint &p, bool release);
    void takeTouch(int index, bool release, bool isTap);
    void fling(double way, double low, double high);
    void startFling(const QPoint &pos);
    void placeOnArc(const QPainter &painter);
    void drawMarker(QPainter &painter, int marker, int index);

    double m_radius = 470.0; // px
    double m_startAngle = 0.0; // degrees; in a column the index of the first row
    double m_itemHight = 8.0; // degrees; in a column px
    double m_pixXOffset = 2.5; // degrees; in a column px
    QColor m_pressColor{255, 255, 255, 255};
    ARCLIST_STYLE m_style = ARCLIST_STYLE_0;
    int m_showItem = 15;
    QPixmap m_pointPixmap;
    QVector<QChar> m_characters;
    QPoint m_lastPos;
    QPoint m_pressPos;
    int m_currentIndex = -1; // -1: none
    int m_pressedIndex = -1; // -1: none
    bool m_moved = false;
    int m_moveStartTime = 0; // ms of getCurrentTime(), 0: no move since the press
    int m_textXOffset = 0; // px
    QTimer m_flingTimer;
    int m_flingSteps = 0; // ticks still to run
    bool m_movingDown = false;

    std::unique_ptr<panelkit::KeptLetters> m_letters;
    std::unique_ptr<ArcPlaces> m_places;
    std::array<std::unique_ptr<panelkit::KeptLayer>, 2> m_markers; // pressed, current
};

#endif // MARCLIST_H
