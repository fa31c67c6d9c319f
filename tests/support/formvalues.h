// SPDX-License-Identifier: Apache-2.0
#ifndef FORMVALUES_H
#define FORMVALUES_H

#include <QMetaProperty>
#include <QString>
#include <QVariant>
#include <QVector>

class QXmlStreamWriter;

/// A value for a property, in the words of a form and as it is set in code. The picture files that
/// it names have been written by writeFormPictures().
class FormValue
{
public:
    /// Values of different numbers differ, but for truth values.
    FormValue(const QMetaProperty &property, int number, const QString &pictures);

    const QMetaProperty &property() const { return m_property; }
    QVariant value() const { return m_value; }

    /// A text to be read is translated, an identifier or the name of a file is not.
    bool isTranslated() const;

    /// The <property> element, as Designer writes it.
    void write(QXmlStreamWriter &xml) const;

private:
    void writeValue(QXmlStreamWriter &xml) const;

    QMetaProperty m_property;
    QVariant m_value;
    QString m_picture; // the file of a picture
};

/// One value for each property that Designer shows of the class itself, in the order of the class.
QVector<FormValue> formValues(const QMetaObject &type, int number, const QString &pictures);

/// Writes the picture files that values name into a folder.
void writeFormPictures(const QString &folder);

/// The <property> element that says where a widget is.
void writeFormPlace(QXmlStreamWriter &xml, const QRect &place);

/// A <widget> element with a place and these values.
void writeFormWidget(QXmlStreamWriter &xml, const QString &className, const QString &name,
                     const QRect &place, const QVector<FormValue> &values);

#endif // FORMVALUES_H
