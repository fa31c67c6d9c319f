// SPDX-License-Identifier: Apache-2.0
// What Qt 5 and Qt 6 call by different names: the only place that asks which of them it is.
#ifndef PANELKIT_DETAIL_QTVERSION_H
#define PANELKIT_DETAIL_QTVERSION_H

#include <QFont>
#include <QVariant>

namespace panelkit
{

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
using Hash = uint;
#else
using Hash = size_t;
#endif

/// Makes a font say that every attribute was chosen: a widget takes none of its parent's.
inline void setFullyResolved(QFont &font)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    font.resolve(~0U);
#else
    font.setResolveMask(~0U);
#endif
}

/// A value of which only the number of its type is known.
inline QVariant variantOf(int type, const void *value)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QVariant(type, value);
#else
    return QVariant(QMetaType(type), value);
#endif
}

} // namespace panelkit

#endif // PANELKIT_DETAIL_QTVERSION_H
