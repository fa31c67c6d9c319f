// SPDX-License-Identifier: Apache-2.0
#ifndef SHARED_VALUETEXT_H
#define SHARED_VALUETEXT_H

#include <QString>

class QVariant;

/// A value in a few words: texts in quotation marks, enumerators by name, pictures by their size.
QString valueText(const QVariant &value);

#endif // SHARED_VALUETEXT_H
