// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_LISTROLES_H
#define PANELKIT_DETAIL_LISTROLES_H

#include <qnamespace.h>

namespace panelkit
{

/// What the model of a table list says of a row.
enum ListRole : int {
    ContentRole = Qt::UserRole + 2, ///< int: which parts the row has
    HeaderIconRole, ///< QPixmap
    PressedHeaderIconRole, ///< QPixmap
    HeaderNumberRole, ///< QString
    CentreTextRole, ///< QString
    TailTextRole, ///< QString
    TailIconRole, ///< QPixmap
    PressedTailIconRole, ///< QPixmap
    SelectedRole, ///< bool: the model marks the row
    HeaderPressedRole, ///< bool
    TailPressedRole ///< bool
};

// The bits of ContentRole; any bit of a part says that the row has it.
constexpr int kHasHeaderIcon = 0x0000000F;
constexpr int kHasHeaderNumber = 0x000000F0; ///< counts without an icon
constexpr int kHasCentreText = 0x0000F000;
constexpr int kHasTailIcon = 0x000F0000;
constexpr int kHasTailText = 0x00F00000; ///< counts without an icon

} // namespace panelkit

#endif // PANELKIT_DETAIL_LISTROLES_H
