// SPDX-License-Identifier: Apache-2.0
#include "initialproperty.h"

#include <QColor>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QVariant>
#include <QXmlStreamWriter>

namespace
{

void writeColor(QXmlStreamWriter &xml, const QColor &color)
{
    xml.writeStartElement(QStringLiteral("color"));
    xml.writeAttribute(QStringLiteral("alpha"), QString::number(color.alpha()));
    xml.writeTextElement(QStringLiteral("red"), QString::number(color.red()));
    xml.writeTextElement(QStringLiteral("green"), QString::number(color.green()));
    xml.writeTextElement(QStringLiteral("blue"), QString::number(color.blue()));
    xml.writeEndElement();
}

/// The element that holds a plain value of this type; empty for a type that is not plain.
QString elementName(int type)
{
    switch (type) {
    case QMetaType::Bool:
        return QStringLiteral("bool");
    case QMetaType::Int:
        return QStringLiteral("number");
    case QMetaType::Float:
        return QStringLiteral("float");
    case QMetaType::Double:
        return QStringLiteral("double");
    case QMetaType::QString:
        return QStringLiteral("string");
    default:
        return {};
    }
}

/// "Class::Key", or "Class::Key|Class::Other" for a set; empty if it names no value.
QString qualifiedKeys(const QMetaEnum &enumeration, const QString &keys)
{
    bool isKnown = false;
    enumeration.keysToValue(keys.toLatin1().constData(), &isKnown);
    if (!isKnown)
        return {};
    const QString scope = QString::fromLatin1(enumeration.scope()) + QStringLiteral("::");
    return scope + QString(keys).replace(QLatin1Char('|'), QLatin1Char('|') + scope);
}

/// A value in the words of a form; an empty element name if it has none.
struct FormValue {
    QString element;
    QString text;
    QColor color;
};

FormValue formValue(const QMetaProperty &property, const QString &text)
{
    if (property.isEnumType()) {
        const QString keys = qualifiedKeys(property.enumerator(), text);
        const QString element =
            property.isFlagType() ? QStringLiteral("set") : QStringLiteral("enum");
        return {keys.isEmpty() ? QString() : element, keys, {}};
    }
    if (property.userType() == QMetaType::QColor) {
        const QColor color(text);
        return {color.isValid() ? QStringLiteral("color") : QString(), {}, color};
    }
    // QVariant takes any text for a truth value.
    const bool isTruthValue = text == QLatin1String("true") || text == QLatin1String("false");
    if (property.userType() == QMetaType::Bool && !isTruthValue)
        return {};
    QVariant converted(text);
    if (!converted.convert(property.userType()))
        return {};
    return {elementName(property.userType()), text, {}};
}

} // namespace

bool writeInitialProperty(QXmlStreamWriter &xml, const QMetaObject &type, const QString &assignment)
{
    const QString name = assignment.section(QLatin1Char('='), 0, 0);
    const int index = type.indexOfProperty(name.toLatin1().constData());
    if (index < 0)
        return false;
    const FormValue value =
        formValue(type.property(index), assignment.section(QLatin1Char('='), 1));
    if (value.element.isEmpty())
        return false;

    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), name);
    if (value.color.isValid())
        writeColor(xml, value.color);
    else
        xml.writeTextElement(value.element, value.text);
    xml.writeEndElement();
    return true;
}
