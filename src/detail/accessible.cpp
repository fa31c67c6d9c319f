// SPDX-License-Identifier: Apache-2.0
#include "accessible.h"

#include "accessiblerows.h"

#ifndef QT_NO_ACCESSIBILITY

#include "../marclist.h"
#include "../mradiomovepoint.h"
#include "../sptablelist.h"

namespace panelkit
{

namespace
{

using Kind = AccessibleKind;
using Teller = AccessibleTeller;

constexpr int kHold = 1500; // ms, of a preset and of a selection
constexpr int kToggle = Kind::Press | Kind::Toggle;

constexpr Kind kKinds[] = {
    Kind("SpIconButton", QAccessible::Button)
        .named("displayText")
        .identifiedBy("buttonID")
        .disabledBy("disableState")
        .can(Kind::Press | Kind::LongPress),
    Kind("SpHorStrButton", QAccessible::Button)
        .named("displayString")
        .identifiedBy("buttonId")
        .tells(Teller::HorStrButton)
        .can(Kind::Press),
    Kind("SpVerStrButton", QAccessible::Button)
        .named("displayString")
        .pressedBy("isDown")
        .disabledBy("disable")
        .can(Kind::Press),
    Kind("SpDisLabel", QAccessible::Button).named("text").pressedBy("isDown").can(Kind::Press),
    Kind("MOnOffButton", QAccessible::CheckBox)
        .identifiedBy("btnID")
        .checkedBy("onoffStatus")
        .disabledBy("btnDisable")
        .can(kToggle),
    Kind("MFocusButton", QAccessible::RadioButton)
        .named("displayText")
        .identifiedBy("buttonID")
        .pressedBy("down")
        .checkedBy("checked")
        .can(kToggle | Kind::LongPress),
    Kind("MPresetButton", QAccessible::Button)
        .named("displayText", "displayText2")
        .identifiedBy("buttonID")
        .pressedBy("down")
        .checkedBy("checked")
        .can(Kind::Press | Kind::LongPress, kHold),
    Kind("MSelectButton", QAccessible::Button)
        .named("displayText")
        .identifiedBy("buttonID")
        .checkedBy(nullptr)
        .tells(Teller::SelectButton)
        .can(Kind::Press | Kind::LongPress, kHold),
    Kind("SpMultipleButton", QAccessible::Button)
        .disabledBy("disableState")
        .valued("currentValue", nullptr, nullptr)
        .tells(Teller::MultipleButton)
        .can(Kind::Press),
    Kind("MultipleStateButton", QAccessible::Button)
        .valued(nullptr, nullptr, nullptr)
        .tells(Teller::MultipleStateButton)
        .can(Kind::Press),
    Kind("PlayButton", QAccessible::Button).tells(Teller::PlayButton).can(Kind::Press),
    Kind("SpLockButton", QAccessible::Button)
        .named("displayText")
        .identifiedBy("buttonID")
        .checkedBy("isDown")
        .disabledBy("disableState")
        .can(kToggle),
    Kind("SpHomeIcon", QAccessible::Button)
        .named("iconText")
        .identifiedBy("iconName")
        .can(Kind::Press),
    Kind("SpMaskBackground", QAccessible::LayeredPane).can(Kind::Press),
    Kind("SpBackgroundImage", QAccessible::Graphic).can(Kind::Press),
    Kind("MGifPlay", QAccessible::Animation).can(Kind::Press),
    Kind("SpLabel", QAccessible::Graphic),
    Kind("SpTableList", QAccessible::List),
    Kind("MArcList", QAccessible::List).tells(Teller::ArcList),
    Kind("MArcScrollBar", QAccessible::ScrollBar)
        .valued("value", "minimum", "maximum", Kind::Circular)
        .tells(Teller::ArcScrollBar),
    Kind("MListView", QAccessible::Grouping),
    Kind("SpRollingText", QAccessible::StaticText).named("text"),
    Kind("MVScrollLabel", QAccessible::StaticText).named("text").identifiedBy("buttonID"),
    Kind("SpSetupSlider", QAccessible::Slider)
        .valued("currentValue", "minValue", "maxValue", Kind::Vertical)
        .tells(Teller::SetupSlider),
    Kind("SpSetupSliderContainer", QAccessible::Grouping).can(Kind::Pages),
    Kind("MHorSlider", QAccessible::Slider)
        .valued("currentValue", "minValue", "maxValue", Kind::Horizontal)
        .tells(Teller::HorSlider),
    Kind("MCircularDial", QAccessible::Dial)
        .valued("value", "minValue", "maxValue", Kind::Circular)
        .tells(Teller::CircularDial),
    Kind("MProgressBar", QAccessible::Slider)
        .valued("currentValue", "minValue", "maxValue", Kind::Horizontal)
        .tells(Teller::ProgressBar),
    Kind("MOProgress", QAccessible::ProgressBar)
        .named("dispalyText")
        .valued("currentValue", nullptr, nullptr)
        .can(Kind::Press),
    Kind("SpLoadingRound", QAccessible::Animation).can(Kind::Press),
    Kind("MRadioMovePoint", QAccessible::Slider)
        .valued(nullptr, nullptr, nullptr, Kind::Horizontal),
    Kind("ScaleBkg", QAccessible::Graphic),
    Kind("MovePoint", QAccessible::Indicator),
    Kind("MRadioSlider", QAccessible::Slider)
        .valued(nullptr, nullptr, nullptr, Kind::Tape)
        .tells(Teller::RadioSlider),
    Kind("MKARVOSlider", QAccessible::Slider)
        .valued(nullptr, nullptr, nullptr, Kind::Horizontal)
        .tells(Teller::KarvoSlider),
};

TellAccessible tellers[int(AccessibleTeller::Count)];

const Kind *kindOf(const QString &className)
{
    for (const Kind &kind : kKinds) {
        if (className == QLatin1String(kind.className))
            return &kind;
    }
    return nullptr;
}

// Qt asks for the name of each class that an object is of, first for that of its own.
QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    // moc takes the scale of a tuner for a label.
    const bool isScale =
        className == QLatin1String("QLabel") && dynamic_cast<ScaleBkg *>(object) != nullptr;
    const Kind *kind = kindOf(isScale ? QStringLiteral("ScaleBkg") : className);
    auto *widget = qobject_cast<QWidget *>(object);
    if (!kind || !widget)
        return nullptr;
    if (className == QLatin1String("SpTableList"))
        return new AccessibleTableList(widget, *kind);
    if (className == QLatin1String("MArcList"))
        return new AccessibleArcList(widget, *kind);
    if (kind->hasValue)
        return new AccessibleSlider(widget, *kind);
    return new AccessibleWidget(widget, *kind);
}

struct Installation {
    Installation() { QAccessible::installFactory(makeInterface); }
    ~Installation() { QAccessible::removeFactory(makeInterface); }
    Q_DISABLE_COPY(Installation)
};

} // namespace

void installAccessibility() { static const Installation installed; }

void installAccessibility(AccessibleTeller teller, TellAccessible tell)
{
    tellers[int(teller)] = tell;
    installAccessibility();
}

double toldAccessible(AccessibleTeller teller, const QWidget *widget, AccessibleFact fact,
                      const QPoint &at)
{
    return tellers[int(teller)](widget, fact, at);
}

} // namespace panelkit

#else

namespace panelkit
{

void installAccessibility() { }
void installAccessibility(AccessibleTeller, TellAccessible) { }

} // namespace panelkit

#endif // QT_NO_ACCESSIBILITY
