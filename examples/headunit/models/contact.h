// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_CONTACT_H
#define HEADUNIT_CONTACT_H

#include <QString>
#include <QVector>

namespace headunit
{

/// One number of somebody.
struct PhoneNumber {
    enum class Kind : int { Other, Mobile, Home, Work };

    QString number; ///< as it is written in the card
    Kind kind = Kind::Other;
};

/// Someone to call.
struct Contact {
    QString name;
    QString organisation;
    QVector<PhoneNumber> numbers; ///< the preferred one first
    bool isFavourite = false;
};

} // namespace headunit

#endif // HEADUNIT_CONTACT_H
