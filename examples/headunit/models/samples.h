// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SAMPLES_H
#define HEADUNIT_SAMPLES_H

#include <QString>

/// What the head unit shows and sounds when it is given nothing else.
namespace headunit::samples
{

QString musicFolder(); ///< three short pieces, made when the program was built
QString clickSound(); ///< a file: what a touch sounds like
QString stationsFile(); ///< in the program itself
QString contactsFile(); ///< in the program itself

} // namespace headunit::samples

#endif // HEADUNIT_SAMPLES_H
