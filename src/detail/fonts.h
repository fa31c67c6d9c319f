// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_FONTS_H
#define PANELKIT_DETAIL_FONTS_H

#include <QFont>

namespace panelkit
{

/// A font in another size in px; as it is for a size below 1, which no font can have.
QFont resized(QFont font, int px);

/// The application's font in this size. It leaves nothing open that a painter would take from the
/// font of its widget.
QFont applicationFont(int px);

} // namespace panelkit

#endif // PANELKIT_DETAIL_FONTS_H
