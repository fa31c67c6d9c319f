// SPDX-License-Identifier: Apache-2.0
#include "accessiblekind.h"

#ifndef QT_NO_ACCESSIBILITY

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

} // namespace

const AccessibleKind *accessibleKind(const QString &className)
{
    for (const Kind &kind : kKinds) {
        if (className == QLatin1String(kind.className))
            return &kind;
    }
    return nullptr;
}

} // namespace panelkit

#endif // QT_NO_ACCESSIBILITY
