// SPDX-License-Identifier: Apache-2.0
#include "formvalues.h"

#include <QColor>
#include <QDir>
#include <QFont>
#include <QMetaEnum>
#include <QPixmap>
#include <QPointF>
#include <QRect>
#include <QXmlStreamWriter>

namespace
{

constexpr int kPictures = 5;

QString pictureFile(const QString &folder, int number)
{
    return QDir(folder).absoluteFilePath(QStringLiteral("picture%1.png").arg(number % kPictures));
}

QFont sampleFont(int number)
{
    QFont font;
    font.setFamily(QStringLiteral("DejaVu Sans"));
    font.setPointSize(6 + number % 10);
    return font;
}

void writeNumbers(QXmlStreamWriter &xml, const QString &element, const char *const (&names)[4],
                  const QVector<int> &numbers)
{
    xml.writeStartElement(element);
    for (int i = 0; i < numbers.size(); ++i)
        xml.writeTextElement(QString::fromLatin1(names[i]), QString::number(numbers[i]));
    xml.writeEndElement();
}

QString qualifiedKey(const QMetaEnum &type, int value)
{
    const QString scope = QString::fromLatin1(type.scope()) + QStringLiteral("::");
    if (type.isFlag())
        return scope
            + QString::fromLatin1(type.valueToKeys(value))
                  .replace(QLatin1Char('|'), QLatin1Char('|') + scope);
    return scope + QString::fromLatin1(type.valueToKey(value));
}

QVariant enumerator(const QMetaEnum &type, int number)
{
    if (type.isFlag()) // Qt::Alignment is the only one
        return int(Qt::AlignRight | (number % 2 != 0 ? Qt::AlignTop : Qt::AlignBottom));
    return type.value(number % type.keyCount());
}

QVariant sample(const QMetaProperty &property, int number)
{
    if (property.isEnumType())
        return enumerator(property.enumerator(), number);
    switch (property.userType()) {
    case QMetaType::Bool:
        return number % 2 != 0;
    case QMetaType::Int:
        return 3 + number;
    case QMetaType::Double:
        return 2.5 + number;
    case QMetaType::QString:
        return QStringLiteral("Text %1 & <more>").arg(number);
    case QMetaType::QColor:
        return QColor(10 * number % 256, 200, 90, 255 - number);
    case QMetaType::QPoint:
        return QPoint(5 + number, 9);
    case QMetaType::QPointF:
        return QPointF(qreal(5.25 + number), qreal(9.5));
    case QMetaType::QSize:
        return QSize(20 + number, 24);
    case QMetaType::QRect:
        return QRect(2, 3, 60 + number, 30);
    case QMetaType::QFont:
        return sampleFont(number);
    default:
        qFatal("no form value of type %s", property.typeName());
    }
}

} // namespace

FormValue::FormValue(const QMetaProperty &property, int number, const QString &pictures)
    : m_property(property)
{
    const QString name = QString::fromLatin1(property.name());
    const bool isPicture = property.userType() == QMetaType::QPixmap;
    const bool isFile = property.userType() == QMetaType::QString
        && (name.endsWith(QLatin1String("Path")) || name.endsWith(QLatin1String("Image")));
    if (isPicture || isFile)
        m_picture = pictureFile(pictures, number);
    if (isPicture)
        m_value = QPixmap(m_picture);
    else
        m_value = isFile ? QVariant(m_picture) : sample(property, number);
}

bool FormValue::isTranslated() const
{
    return m_property.userType() == QMetaType::QString && m_picture.isEmpty()
        && !QByteArray(m_property.name()).toLower().endsWith("id");
}

void FormValue::write(QXmlStreamWriter &xml) const
{
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), QString::fromLatin1(m_property.name()));
    if (!m_property.hasStdCppSet())
        xml.writeAttribute(QStringLiteral("stdset"), QStringLiteral("0"));
    writeValue(xml);
    xml.writeEndElement();
}

void FormValue::writeValue(QXmlStreamWriter &xml) const
{
    const auto writeText = [&](const char *element, const QString &text) {
        xml.writeTextElement(QString::fromLatin1(element), text);
    };
    if (m_property.isEnumType()) {
        writeText(m_property.isFlagType() ? "set" : "enum",
                  qualifiedKey(m_property.enumerator(), m_value.toInt()));
        return;
    }
    switch (m_property.userType()) {
    case QMetaType::Bool:
        return writeText("bool", m_value.toString());
    case QMetaType::Int:
        return writeText("number", m_value.toString());
    case QMetaType::Double:
        return writeText("double", m_value.toString());
    case QMetaType::QString:
        xml.writeStartElement(QStringLiteral("string"));
        if (!isTranslated())
            xml.writeAttribute(QStringLiteral("notr"), QStringLiteral("true"));
        xml.writeCharacters(m_value.toString());
        return xml.writeEndElement();
    case QMetaType::QPixmap:
        return writeText("pixmap", m_picture);
    case QMetaType::QColor: {
        const auto color = m_value.value<QColor>();
        xml.writeStartElement(QStringLiteral("color"));
        xml.writeAttribute(QStringLiteral("alpha"), QString::number(color.alpha()));
        writeText("red", QString::number(color.red()));
        writeText("green", QString::number(color.green()));
        writeText("blue", QString::number(color.blue()));
        return xml.writeEndElement();
    }
    case QMetaType::QPoint: {
        const QPoint point = m_value.toPoint();
        return writeNumbers(xml, QStringLiteral("point"), {"x", "y"}, {point.x(), point.y()});
    }
    case QMetaType::QPointF: {
        const QPointF point = m_value.toPointF();
        xml.writeStartElement(QStringLiteral("pointf"));
        writeText("x", QString::number(point.x()));
        writeText("y", QString::number(point.y()));
        return xml.writeEndElement();
    }
    case QMetaType::QSize: {
        const QSize size = m_value.toSize();
        return writeNumbers(xml, QStringLiteral("size"), {"width", "height"},
                            {size.width(), size.height()});
    }
    case QMetaType::QRect: {
        const QRect rect = m_value.toRect();
        return writeNumbers(xml, QStringLiteral("rect"), {"x", "y", "width", "height"},
                            {rect.x(), rect.y(), rect.width(), rect.height()});
    }
    case QMetaType::QFont: {
        const auto font = m_value.value<QFont>();
        xml.writeStartElement(QStringLiteral("font"));
        writeText("family", font.family());
        writeText("pointsize", QString::number(font.pointSize()));
        return xml.writeEndElement();
    }
    default:
        qFatal("no form value of type %s", m_property.typeName());
    }
}

QVector<FormValue> formValues(const QMetaObject &type, int number, const QString &pictures)
{
    QVector<FormValue> values;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i) {
        if (type.property(i).isDesignable() && type.property(i).isWritable())
            values += FormValue(type.property(i), number + i, pictures);
    }
    return values;
}

void writeFormPictures(const QString &folder)
{
    for (int i = 0; i < kPictures; ++i) {
        QPixmap picture(16 + 8 * i, 20 + 4 * i);
        picture.fill(QColor(40 * i, 120, 255 - 40 * i));
        if (!picture.save(pictureFile(folder, i)))
            qFatal("cannot write %s", qPrintable(pictureFile(folder, i)));
    }
}

void writeFormPlace(QXmlStreamWriter &xml, const QRect &place)
{
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("geometry"));
    writeNumbers(xml, QStringLiteral("rect"), {"x", "y", "width", "height"},
                 {place.x(), place.y(), place.width(), place.height()});
    xml.writeEndElement();
}

void writeFormWidget(QXmlStreamWriter &xml, const QString &className, const QString &name,
                     const QRect &place, const QVector<FormValue> &values)
{
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), className);
    xml.writeAttribute(QStringLiteral("name"), name);
    writeFormPlace(xml, place);
    for (const FormValue &value : values)
        value.write(xml);
    xml.writeEndElement();
}
