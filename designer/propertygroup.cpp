// SPDX-License-Identifier: Apache-2.0
#include "propertygroup.h"

#include <QMetaProperty>

namespace
{

bool endsWith(const QString &name, const char *ending)
{
    return name.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
}

} // namespace

/** A picture may also be given as the name of its file, and an identifier is always a text. */
QString propertyGroup(const QMetaProperty &property)
{
    const QString name = QString::fromLatin1(property.name());
    switch (property.userType()) {
    case QMetaType::QPixmap:
        return QStringLiteral("Pictures");
    case QMetaType::QColor:
        return QStringLiteral("Colours");
    case QMetaType::QString:
        if (endsWith(name, "image") || endsWith(name, "path"))
            return QStringLiteral("Pictures");
        return endsWith(name, "id") ? QStringLiteral("Identifiers") : QString();
    default:
        return {};
    }
}
