#include "spsetupslidercontainer.h"

#include <QMetaType>
#include <QMouseEvent>
#include <QPointer>

namespace
{

constexpr int kSwipe = 120; // px; a release farther to a side than this changes the page
constexpr int kMostSliders = 1000000; // more than any page holds

} // namespace

/** A page for two sliders. It paints nothing itself. */
SpSetupSliderContainer::SpSetupSliderContainer(QWidget *parent) : QWidget(parent)
{
    qRegisterMetaType<QList<int>>("QList<int>");
}

/**
 * How many sliders there are; 2 by default. If there are more or fewer points than that, both lists
 * start anew with zeros. Numbers above 1,000,000 are ignored; below 0 both lists are empty.
 */
void SpSetupSliderContainer::setTotalNumber(int number)
{
    if (number > kMostSliders)
        return;
    m_totalNumber = number;
    if (number == m_pointList.size())
        return;
    m_pointList.clear();
    m_valueList.clear();
    for (int i = 0; i < number; ++i) {
        m_pointList += QPointF();
        m_valueList += 0;
    }
}

/** Replaces the points, whatever their number is. Repaints. */
void SpSetupSliderContainer::setPointList(QList<QPointF> list)
{
    m_pointList = std::move(list);
    update();
}

/** Replaces the values, whatever their number is. */
void SpSetupSliderContainer::setValueList(QList<int> list)
{
    m_valueList = std::move(list);
}

/** Hands a slider's valueChangeSig on as valueChangedSig, without the position of the knob. */
void SpSetupSliderContainer::valueChangeSlot(int id, int value, QPoint)
{
    emit valueChangedSig(id, value);
}

/** Hands a slider's saveDataSig on. */
void SpSetupSliderContainer::saveDataSlot()
{
    emit saveDataSig();
}

void SpSetupSliderContainer::paintEvent(QPaintEvent *e)
{
    QWidget::paintEvent(e);
}

/** A press marks where a swipe starts; it goes on to the parent. */
void SpSetupSliderContainer::mousePressEvent(QMouseEvent *e)
{
    if (!e)
        return;
    m_pressPos = e->pos();
    QWidget::mousePressEvent(e);
}

/**
 * A release more than 120 px left of the press emits pageChanged(true), one more than 120 px right
 * of it pageChanged(false); it goes on to the parent. A slider's own touches do not come here.
 */
void SpSetupSliderContainer::mouseReleaseEvent(QMouseEvent *e)
{
    if (!e)
        return;
    const qint64 way = qint64(e->pos().x()) - m_pressPos.x();
    const QPointer<SpSetupSliderContainer> guard(this);
    if (way < -kSwipe)
        emit pageChanged(true);
    else if (way > kSwipe)
        emit pageChanged(false);
    if (guard)
        QWidget::mouseReleaseEvent(e);
}
