// SPDX-License-Identifier: Apache-2.0
#ifndef MARCLIST_H
#define MARCLIST_H

#include "panelkitglobal.h"

#include <QChar>
#include <QColor>
#include <QPixmap>
#include <QPoint>
#include <QWidget>

#include <memory>

class QPainter;

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

    double radius() const;
    void setRadius(double radius);
    QPixmap pointPixmap() const;
    void setPointPixmap(const QPixmap &pixmap);
    double startAngle() const;
    void setStartAngle(double angle);
    double itemHight() const;
    void setItemHight(double height);
    QColor pressColor() const;
    void setPressColor(const QColor &color);
    ARCLIST_STYLE acrListStyle() const;
    void setAcrListStyle(ARCLIST_STYLE style);
    int showItem() const;
    void setShowItem(int count);
    double pixXOffset() const;
    void setPixXOffset(double offset);
    int getTextXOffset() const;
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
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MARCLIST_H
