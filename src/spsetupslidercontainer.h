// SPDX-License-Identifier: Apache-2.0
#ifndef SPSETUPSLIDERCONTAINER_H
#define SPSETUPSLIDERCONTAINER_H

#include "panelkitglobal.h"

#include <QList>
#include <QPoint>
#include <QPointF>
#include <QWidget>

#include <memory>

/**
 * The page on which an application places several SpSetupSlider, such as an equaliser. It hands
 * their signals on as its own, keeps a point and a value for each of them, and reports a long swipe
 * to either side as a change of the page.
 *
 * Connect valueChangeSig of each slider to valueChangeSlot and its saveDataSig to saveDataSlot.
 */
class PANELKIT_EXPORT SpSetupSliderContainer : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int totalNumber READ totalNumber WRITE setTotalNumber)

public:
    explicit SpSetupSliderContainer(QWidget *parent = nullptr);
    ~SpSetupSliderContainer() override;

    int totalNumber() const;
    void setTotalNumber(int number);
    QList<QPointF> getPointList() const;
    void setPointList(QList<QPointF> list);
    QList<int> getValueList() const;
    void setValueList(QList<int> list);

public slots:
    void valueChangeSlot(int id, int value, QPoint pos);
    void saveDataSlot();

signals:
    void valueChangeSig(QList<int> list);
    void saveDataSig();
    void valueChangedSig(int id, int value);
    void pageChanged(bool left);

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif // SPSETUPSLIDERCONTAINER_H
