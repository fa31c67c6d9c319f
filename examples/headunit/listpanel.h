// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_LISTPANEL_H
#define HEADUNIT_LISTPANEL_H

class QLabel;
class SpTableList;

namespace headunit
{

class Theme;

/// How much of a panel's height a list takes: whole rows, within the panel's border.
int listHeight(const QLabel &panel, const Theme &theme);

/// Dresses a panel and the list in its layout, which ends at the panel's border. Where there are
/// more rows beyond an end of the list, they fade into the panel.
void dressListPanel(QLabel &panel, SpTableList &list, const Theme &theme);

} // namespace headunit

#endif // HEADUNIT_LISTPANEL_H
