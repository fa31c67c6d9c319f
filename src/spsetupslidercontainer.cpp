// SPDX-License-Identifier: Apache-2.0
#include "spsetupslidercontainer.h"

#include "detail/accessible.h"

#include <QMetaType>
#include <QMouseEvent>
#include <QPointer>

using namespace panelkit;

namespace
{

constexpr int kSwipe = 120; // px; a release farther to a side than this changes the page
constexpr int kMostSliders = 1000000; // more than any page holds

} // namespace

class Q_DECL_HIDDEN SpSetupSliderContainer::Private
{
public:
    // The lists of a new page, which all share.
    struct NewLists {
        NewLists() { qRegisterMetaType<QList<int>>("QList<int>"); }

        QList<QPointF> points{{0, 0}, {1, 1}};
        QList<int> values{0, 0};
    };
    static const NewLists &newLists()
    {
        static const NewLists lists;
        return lists;
    }

    QList<QPointF> pointList = newLists().points; // one for each slider
    QList<int> valueList = newLists().values; // one for each slider
    QPoint pressPos; // px
    int totalNumber = 2;
};

/** A page for two sliders. It paints nothing itself. */
SpSetupSliderContainer::SpSetupSliderContainer(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>())
{
    installAccessibility();
}

SpSetupSliderContainer::~SpSetupSliderContainer() = default;

int SpSetupSliderContainer::totalNumber() const { return d->totalNumber; }

/**
 * How many sliders there are; 2 by default. If there are more or fewer points than that, both lists
 * start anew with zeros. Numbers above 1,000,000 are ignored; below 0 both lists are empty.
 */
void SpSetupSliderContainer::setTotalNumber(int number)
{
    if (number > kMostSliders)
        return;
    d->totalNumber = number;
    if (number == d->pointList.size())
        return;
    d->pointList.clear();
    d->valueList.clear();
    for (int i = 0; i < number; ++i) {
        d->pointList += QPointF();
        d->valueList += 0;
    }
}

QList<QPointF> SpSetupSliderContainer::getPointList() const { return d->pointList; }

/** Replaces the points, whatever their number is. Repaints. */
void SpSetupSliderContainer::setPointList(QList<QPointF> list)
{
    d->pointList = std::move(list);
    update();
}

QList<int> SpSetupSliderContainer::getValueList() const { return d->valueList; }

/** Replaces the values, whatever their number is. */
void SpSetupSliderContainer::setValueList(QList<int> list) { d->valueList = std::move(list); }

/** Hands a slider's valueChangeSig on as valueChangedSig, without the position of the knob. */
void SpSetupSliderContainer::valueChangeSlot(int id, int value, QPoint)
{
    emit valueChangedSig(id, value);
}

/** Hands a slider's saveDataSig on. */
void SpSetupSliderContainer::saveDataSlot() { emit saveDataSig(); }

void SpSetupSliderContainer::paintEvent(QPaintEvent *e) { QWidget::paintEvent(e); }

/** A press marks where a swipe starts; it goes on to the parent. */
void SpSetupSliderContainer::mousePressEvent(QMouseEvent *e)
{
    d->pressPos = e->pos();
    QWidget::mousePressEvent(e);
}

/**
 * A release more than 120 px left of the press emits pageChanged(true), one more than 120 px right
 * of it pageChanged(false); it goes on to the parent. A slider's own touches do not come here.
 */
void SpSetupSliderContainer::mouseReleaseEvent(QMouseEvent *e)
{
    const qint64 way = qint64(e->pos().x()) - d->pressPos.x();
    const QPointer<SpSetupSliderContainer> guard(this);
    if (way < -kSwipe)
        emit pageChanged(true);
    else if (way > kSwipe)
        emit pageChanged(false);
    if (guard)
        QWidget::mouseReleaseEvent(e);
}
