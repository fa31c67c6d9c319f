// SPDX-License-Identifier: Apache-2.0
// What Qt 5 and Qt 6 call by different names, and do otherwise: the only place that asks which of
// them it is.
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

/// Whether drawPixmap() takes the same pixels of a picture that it scales wherever the clip begins.
/// Qt 5 does where it has code for the processor, which is x86. Elsewhere, and in Qt 6, it begins
/// anew at the first column and row that show, with a place that it has rounded less.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) && defined(Q_PROCESSOR_X86_64)
constexpr bool kScalesAlikeUnderAnyClip = true;
#else
constexpr bool kScalesAlikeUnderAnyClip = false;
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
