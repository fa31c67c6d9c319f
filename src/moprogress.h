// SPDX-License-Identifier: Apache-2.0
#ifndef MOPROGRESS_H
#define MOPROGRESS_H

#include "panelkitglobal.h"

#include <QColor>
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

    int itemID() const;
    void setItemID(int id);
    int currentValue() const;
    void setCurrentValue(int percent);
    int radius() const;
    void setRadius(int radius);
    QColor normalColor() const;
    void setNormalColor(QColor color);
    QColor pressColor() const;
    void setPressColor(QColor color);
    bool boundary() const;
    void setBoundary(bool boundary);
    QColor boundaryColor() const;
    void setBoundaryColor(QColor color);
    int arcHeight() const;
    void setArcHeight(int height);
    QColor insideColor() const;
    void setInsideColor(QColor color);
    int fontSize() const;
    void setFontSize(int px);
    QString dispalyText() const;
    void setDispalyText(QString text);
    QColor displayTextColor() const;
    void setDisplayTextColor(QColor color);

signals:
    void btnClicked(int btnID);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MOPROGRESS_H
