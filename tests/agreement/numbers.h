// SPDX-License-Identifier: Apache-2.0
#ifndef NUMBERS_H
#define NUMBERS_H

class QTextStream;

/// Writes what the widgets compute, with all digits: one line for each action - a touch, a
/// property, a frequency, time that passes - with what was said, stored and shown in answer.
void writeNumbers(QTextStream &out);

#endif // NUMBERS_H
