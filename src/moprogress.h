#ifndef MOPROGRESS_H
#define MOPROGRESS_H

#include "panelkitglobal.h"

#include <QColor>
#include <QRectF>
#include <QString>
#include <QWidget>

#include <memory>

/**
 * Progress as a ring: the part that is done runs clockwise from the top around a filled middle,
 * with the percentage and a caption in it. A tap reports btnClicked with itemID.
 */
class PANELKIT_EXPORT MOProgress : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int itemID READ itemID WRITE setItemID)
    Q_PROPERTY(int currentValue READ currentValue WRITE setCurrentValue)
    Q_PROPERTY(int radius READ radius WRITE setRadius)
    Q_PROPERTY(QColor normalColor READ normalColor WRITE setNormalColor)
    Q_PROPERTY(QColor pressColor READ pressColor WRITE setPressColor)
    Q_PROPERTY(bool boundary READ boundary WRITE setBoundary)
    Q_PROPERTY(QColor boundaryColor READ boundaryColor WRITE setBoundaryColor)
    Q_PROPERTY(int arcHeight READ arcHeight WRITE setArcHeight)
    Q_PROPERTY(QColor insideColor READ insideColor WRITE setInsideColor)
    Q_PROPERTY(int fontSize READ fontSize WRITE setFontSize)
    Q_PROPERTY(QString dispalyText READ dispalyText WRITE setDispalyText)
    Q_PROPERTY(QColor displayTextColor READ displayTextColor WRITE setDisplayTextColor)

public:
    explicit MOProgress(QWidget *parent = nullptr);
    ~MOProgress() override;

    int itemID() const { return m_itemID; }
    void setItemID(int id);
    int currentValue() const { return m_currentValue; }
    void setCurrentValue(int percent);
    int radius() const { return m_radius; }
    void setRadius(int radius);
    QColor normalColor() const { return m_normalColor; }
    void setNormalColor(QColor color);
    QColor pressColor() const { return m_pressColor; }
    void setPressColor(QColor color);
    bool boundary() const { return m_boundary; }
    void setBoundary(bool boundary);
    QColor boundaryColor() const { return m_boundaryColor; }
    void setBoundaryColor(QColor color);
    int arcHeight() const { return m_arcHeight; }
    void setArcHeight(int height);
    QColor insideColor() const { return m_insideColor; }
    void setInsideColor(QColor color);
    int fontSize() const { return m_fontSize; }
    void setFontSize(int px);
    QString dispalyText() const { return m_dispalyText; }
    void setDispalyText(QString text);
    QColor displayTextColor() const { return m_displayTextColor; }
    void setDisplayTextColor(QColor color);

signals:
    void btnClicked(int btnID);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    struct Kept;

    template <typename T> void change(T &member, const T &value);
    QRectF square() const;
    void layOut();
    void drawRing(QPainter &painter) const;
    void drawTexts(QPainter &painter) const;

    int m_itemID = 0;
    int m_currentValue = 50; // percent
    int m_radius = 100; // px
    QColor m_normalColor{150, 150, 150, 100};
    QColor m_pressColor{255, 125, 0, 255};
    bool m_boundary = true;
    QColor m_boundaryColor{255, 255, 255, 255};
    int m_arcHeight = 20; // px
    QColor m_insideColor{0, 0, 0, 100};
    int m_fontSize = 25; // px
    QString m_dispalyText;
    QColor m_displayTextColor{255, 255, 255, 255};

    std::unique_ptr<Kept> m_kept;
};

#endif // MOPROGRESS_H
