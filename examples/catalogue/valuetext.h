// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_VALUETEXT_H
#define CATALOGUE_VALUETEXT_H

#include <QString>

class QVariant;

/// A value in a few words: texts in quotation marks, enumerators by name, pictures by their size.
QString valueText(const QVariant &value);

#endif // CATALOGUE_VALUETEXT_H
