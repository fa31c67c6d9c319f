// SPDX-License-Identifier: Apache-2.0
#ifndef MLISTVIEW_H
#define MLISTVIEW_H

#include "panelkitglobal.h"

#include <QList>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QWidget>

#include <memory>

class SpTableList;

/**
 * A column or a free arrangement of image buttons, built from a list of pictures, two for each
 * button; on request they are a group of which one is down.
 *
 * With a table list beside it, it is only that. Without one it reports every mouse event with a
 * signal, so that its owner can scroll or drag it.
 */
class PANELKIT_EXPORT MListView : public QWidget
{
    Q_OBJECT

public:
    MListView(QWidget *parent, SpTableList *list, QRect rect);
    MListView(QWidget *parent, QRect rect);
    ~MListView() override;

    void setIsNormalUse(bool normal);
    void setPositionList(QList<QPoint> &list);
    void setPixmapList(QList<QPixmap> &list);
    void setButtonIsChecked(bool enable);

public slots:
    void sltButtonClicked(QString id);
    void sltItemClicked(int index);
    void sltRowCountChange(bool change);

signals:
    void sigMousePress(QPoint pos);
    void sigMouseMove(QPoint pos);
    void sigMouseRelease(QPoint pos);

protected:
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // MLISTVIEW_H
