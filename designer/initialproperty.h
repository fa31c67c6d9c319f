// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DESIGNER_INITIALPROPERTY_H
#define PANELKIT_DESIGNER_INITIALPROPERTY_H

#include <QMetaObject>
#include <QString>

class QXmlStreamWriter;

/**
 * Writes "property=value", one initial value of a new widget, as a <property> element. The type of
 * the property decides the form: text, number, truth value, enumerator, set of enumerators, colour
 * or alignment. Returns false, and writes nothing, if the class has no such property or the value
 * is not one of its type.
 */
bool writeInitialProperty(QXmlStreamWriter &xml, const QMetaObject &type,
                          const QString &assignment);

#endif // PANELKIT_DESIGNER_INITIALPROPERTY_H
