// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DESIGNER_PROPERTYGROUP_H
#define PANELKIT_DESIGNER_PROPERTYGROUP_H

#include <QString>

class QMetaProperty;

/// The heading under which Designer's property editor lists a property of PanelKit; empty if that
/// is the heading of its class.
QString propertyGroup(const QMetaProperty &property);

#endif // PANELKIT_DESIGNER_PROPERTYGROUP_H
