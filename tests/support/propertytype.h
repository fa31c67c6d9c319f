// SPDX-License-Identifier: Apache-2.0
#ifndef PROPERTYTYPE_H
#define PROPERTYTYPE_H

#include <QMetaEnum>
#include <QMetaProperty>
#include <QString>

/// The type of a property as its class wrote it. Qt 5 keeps that text. Qt 6 has the compiler's name
/// of the type instead, with its class and without aliases such as Qt::Alignment: of an enumeration
/// this takes the name it is declared by, without the class if that is the property's own.
inline QString writtenType(const QMetaProperty &property)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    if (property.isEnumType()) {
        const QMetaEnum type = property.enumerator();
        const QString name = QString::fromLatin1(type.name());
        return qstrcmp(type.scope(), property.enclosingMetaObject()->className()) == 0
            ? name
            : QStringLiteral("%1::%2").arg(QString::fromLatin1(type.scope()), name);
    }
#endif
    return QString::fromLatin1(property.typeName());
}

#endif // PROPERTYTYPE_H
