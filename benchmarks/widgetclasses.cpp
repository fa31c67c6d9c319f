// SPDX-License-Identifier: Apache-2.0
#include "widgetclasses.h"

#include <panelkitclasses.h>

const std::vector<WidgetClass> &widgetClasses()
{
#define PANELKIT_WIDGET(Class, create, header, family, toolTip, width, height, initial) \
    {#Class, family, {width, height}, [](QWidget *parent) -> QWidget * { return create; }},
    static const std::vector<WidgetClass> instance = {PANELKIT_FOR_EACH_WIDGET(PANELKIT_WIDGET)};
    return instance;
}
