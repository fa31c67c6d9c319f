// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKITGLOBAL_H
#define PANELKITGLOBAL_H

#include <QtGlobal>

// Every exported class carries this macro; everything else in the library stays hidden. Whoever
// links the static library defines PANELKIT_STATIC; the ways to find it that are installed do.
#if defined(PANELKIT_STATIC)
#define PANELKIT_EXPORT
#elif defined(PANELKIT_BUILD)
#define PANELKIT_EXPORT Q_DECL_EXPORT
#else
#define PANELKIT_EXPORT Q_DECL_IMPORT
#endif

#endif // PANELKITGLOBAL_H
