// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_VCARD_H
#define HEADUNIT_VCARD_H

#include "contact.h"

#include <QByteArray>

/// Cards of the formats vCard 2.1, 3.0 and 4.0.
namespace headunit::vcard
{

struct Reading {
    QVector<Contact> contacts; ///< in the order of the file
    int broken = 0; ///< cards that say nothing or do not end
    int firstBroken = 0; ///< the line in which the first of them begins
    bool isFull = false; ///< there are more cards
};

/// Reads the cards of a file, but no more than so many.
Reading read(const QByteArray &bytes, int most);

} // namespace headunit::vcard

#endif // HEADUNIT_VCARD_H
