// SPDX-License-Identifier: Apache-2.0
#include "valuetext.h"

#include <QColor>
#include <QFont>
#include <QLocale>
#include <QMetaEnum>
#include <QMetaType>
#include <QModelIndex>
#include <QPixmap>
#include <QRectF>
#include <QSequentialIterable>
#include <QStringList>
#include <QVariant>

namespace
{

QString numberText(double number) { return QLocale::c().toString(number, 'g', 6); }

// Empty unless the value is one of an enumeration that moc knows.
QString enumText(const QVariant &value)
{
    const int type = value.userType();
    const QMetaObject *scope = QMetaType::metaObjectForType(type);
    if (!scope || !(QMetaType::typeFlags(type) & QMetaType::IsEnumeration))
        return {};
    const QByteArray qualified(value.typeName());
    const QByteArray name = qualified.mid(qualified.lastIndexOf(':') + 1);
    const QMetaEnum enumeration = scope->enumerator(scope->indexOfEnumerator(name.constData()));
    return QString::fromLatin1(enumeration.valueToKey(value.toInt()));
}

QString listText(const QVariant &value)
{
    QStringList texts;
    for (const QVariant &element : value.value<QSequentialIterable>())
        texts.append(valueText(element));
    return QLatin1Char('[') + texts.join(QStringLiteral(", ")) + QLatin1Char(']');
}

QString geometryText(const QVariant &value)
{
    const QRectF rect = value.toRectF();
    const QString size = QStringLiteral("%1 × %2");
    const QString pos = QStringLiteral("(%1, %2)");
    switch (value.userType()) {
    case QMetaType::QPoint:
    case QMetaType::QPointF:
        return pos.arg(numberText(double(value.toPointF().x())),
                       numberText(double(value.toPointF().y())));
    case QMetaType::QSize:
    case QMetaType::QSizeF:
        return size.arg(numberText(double(value.toSizeF().width())),
                        numberText(double(value.toSizeF().height())));
    default:
        return pos.arg(numberText(double(rect.x())), numberText(double(rect.y())))
            + QLatin1Char(' ')
            + size.arg(numberText(double(rect.width())), numberText(double(rect.height())));
    }
}

QString indexText(const QModelIndex &index)
{
    return index.isValid()
        ? QStringLiteral("row %1, column %2").arg(index.row()).arg(index.column())
        : QStringLiteral("no index");
}

QString pixmapText(const QPixmap &pixmap)
{
    return pixmap.isNull()
        ? QStringLiteral("none")
        : QStringLiteral("picture, %1 × %2").arg(pixmap.width()).arg(pixmap.height());
}

} // namespace

QString valueText(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QString:
        return QLatin1Char('"') + value.toString() + QLatin1Char('"');
    case QMetaType::Float:
    case QMetaType::Double:
        return numberText(value.toDouble());
    case QMetaType::QPoint:
    case QMetaType::QPointF:
    case QMetaType::QSize:
    case QMetaType::QSizeF:
    case QMetaType::QRect:
    case QMetaType::QRectF:
        return geometryText(value);
    case QMetaType::QColor:
        return value.value<QColor>().name(QColor::HexArgb);
    case QMetaType::QFont:
        return value.value<QFont>().family();
    case QMetaType::QPixmap:
        return pixmapText(value.value<QPixmap>());
    case QMetaType::QModelIndex:
        return indexText(value.toModelIndex());
    default:
        break;
    }
    QString enumerator = enumText(value);
    if (!enumerator.isEmpty())
        return enumerator;
    if (value.canConvert<QString>())
        return value.toString();
    if (value.canConvert<QVariantList>())
        return listText(value);
    return QLatin1Char('<') + QString::fromLatin1(value.typeName()) + QLatin1Char('>');
}
