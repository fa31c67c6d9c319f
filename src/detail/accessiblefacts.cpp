// SPDX-License-Identifier: Apache-2.0
#include "accessiblekind.h"

#ifndef QT_NO_ACCESSIBILITY

#include "../mcirculardial.h"
#include "../mfocusbutton.h"
#include "../mkarvoslider.h"
#include "../moprogress.h"
#include "../mradiomovepoint.h"
#include "../mradioslider.h"
#include "../mselectbutton.h"
#include "../multiplestatebutton.h"
#include "../spdislabel.h"
#include "../sphomeicon.h"
#include "../spiconbutton.h"
#include "../spmultiplebutton.h"

#include <QPoint>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace panelkit
{

namespace
{

constexpr int kFarOff = 1000000; // px, beyond either end of any scale

// A frequency as it is meant: of a float only so many digits are.
double rounded(float frequency) { return std::round(double(frequency) * 1e4) / 1e4; }

// Where its needle stands, or would stand at this point of the scale.
QVariant frequencyAt(const MRadioMovePoint &tuner, int x, bool isNeedle = false)
{
    auto *needle = tuner.findChild<MovePoint *>();
    if (!needle)
        return {};
    return needle->cacPosMapFreq(isNeedle ? needle->x() + needle->width() / 2 : x);
}

// Until a tuner has given a band the ends of the one to snap to are crossed.
bool hasBand(const MKARVOSlider &slider)
{
    return slider.getRealMinFreq() <= slider.getRealMaxFreq();
}

} // namespace

QVariant AccessibleFacts::property(const char *name) const
{
    return m_object ? m_object->property(name) : QVariant();
}

QString AccessibleFacts::text(const char *name) const { return property(name).toString(); }

bool AccessibleFacts::isAlive() const { return m_object && m_object->inherits(m_kind.className); }

double AccessibleFacts::told(AccessibleFact fact, int x, int y) const
{
    if (m_kind.teller == AccessibleTeller::None || !isAlive())
        return 0;
    return toldAccessible(m_kind.teller, static_cast<const QWidget *>(m_object), fact, {x, y});
}

// What is dragged along a track has its values to tell and nothing else.
bool AccessibleFacts::isTold(AccessibleFact fact) const
{
    return m_kind.track == AccessibleKind::NoTrack && told(fact) > 0;
}

QString AccessibleFacts::caption() const
{
    const auto *label = qobject_cast<const SpDisLabel *>(m_object);
    if (label && label->displayMode() == SpDisLabel::Picture)
        return {};
    const QString second = text(m_kind.caption2);
    const QString first = text(m_kind.caption);
    return first.isEmpty() || second.isEmpty() ? first + second : first + QLatin1Char(' ') + second;
}

QString AccessibleFacts::name() const
{
    for (const QString &known : {text("accessibleName"), caption(), text("objectName")}) {
        if (!known.isEmpty())
            return known;
    }
    return text(m_kind.id);
}

QString AccessibleFacts::description() const
{
    for (const QString &known : {text("accessibleDescription"), text("toolTip")}) {
        if (!known.isEmpty())
            return known;
    }
    return text("objectName");
}

bool AccessibleFacts::isPressed() const
{
    if (const auto *button = qobject_cast<const SpIconButton *>(m_object))
        return button->isDown();
    if (auto *tile = qobject_cast<SpHomeIcon *>(m_object))
        return tile->getIsPressing();
    return property(m_kind.pressed).toBool() || isTold(AccessibleFact::IsPressed);
}

bool AccessibleFacts::isChecked() const
{
    if (const auto *button = qobject_cast<const MSelectButton *>(m_object))
        return button->selectState();
    return property(m_kind.checked).toBool();
}

bool AccessibleFacts::isDisabled() const
{
    return property(m_kind.disabled).toBool() || isTold(AccessibleFact::IsDisabled);
}

bool AccessibleFacts::hasFocusLook() const { return property("isFocus").toBool(); }

int AccessibleFacts::longPress() const
{
    if (const auto *button = qobject_cast<const SpIconButton *>(m_object))
        return std::max(0, button->timerInterval());
    if (auto *button = qobject_cast<MFocusButton *>(m_object))
        return std::max(0, button->getLongPressIntal());
    return m_kind.longPress;
}

QVariant AccessibleFacts::value() const
{
    if (const auto *tuner = qobject_cast<const MRadioMovePoint *>(m_object))
        return frequencyAt(*tuner, 0, true);
    if (const auto *slider = qobject_cast<const MRadioSlider *>(m_object))
        return rounded(slider->getCurFreq());
    if (const auto *slider = qobject_cast<const MKARVOSlider *>(m_object))
        return rounded(slider->getCurFreq());
    if (auto *button = qobject_cast<MultipleStateButton *>(m_object))
        return button->getButtonValue();
    if (qobject_cast<const MOProgress *>(m_object)) // it is bounded when it is painted
        return qBound(0, property(m_kind.value).toInt(), 100);
    return property(m_kind.value);
}

QVariant AccessibleFacts::minimum() const
{
    if (const auto *tuner = qobject_cast<const MRadioMovePoint *>(m_object))
        return frequencyAt(*tuner, -kFarOff);
    if (const auto *slider = qobject_cast<const MRadioSlider *>(m_object))
        return rounded(slider->getFreqStart());
    if (const auto *slider = qobject_cast<const MKARVOSlider *>(m_object))
        return rounded(hasBand(*slider) ? slider->getRealMinFreq() : slider->getFreqStart());
    return m_kind.minimum ? property(m_kind.minimum) : QVariant(0);
}

QVariant AccessibleFacts::maximum() const
{
    if (const auto *tuner = qobject_cast<const MRadioMovePoint *>(m_object))
        return frequencyAt(*tuner, kFarOff);
    if (const auto *slider = qobject_cast<const MRadioSlider *>(m_object))
        return rounded(slider->getFreqEnd());
    if (const auto *slider = qobject_cast<const MKARVOSlider *>(m_object))
        return rounded(hasBand(*slider) ? slider->getRealMaxFreq() : slider->getFreqEnd());
    if (const auto *button = qobject_cast<const SpMultipleButton *>(m_object))
        return button->totalValue() - 1;
    if (qobject_cast<const MultipleStateButton *>(m_object))
        return int(told(AccessibleFact::StateCount)) - 1;
    return m_kind.maximum ? property(m_kind.maximum) : QVariant(100);
}

QVariant AccessibleFacts::step() const
{
    if (const auto *tuner = qobject_cast<const MRadioMovePoint *>(m_object))
        return tuner->getFreqStep();
    if (const auto *slider = qobject_cast<const MRadioSlider *>(m_object))
        return rounded(slider->getFreqStep());
    if (const auto *slider = qobject_cast<const MKARVOSlider *>(m_object))
        return rounded(hasBand(*slider) ? slider->getRealFreqStep() : slider->getFreqStep());
    if (const auto *dial = qobject_cast<const MCircularDial *>(m_object))
        return dial->scale();
    return 1;
}

} // namespace panelkit

#endif // QT_NO_ACCESSIBILITY
