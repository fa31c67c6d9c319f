// SPDX-License-Identifier: Apache-2.0
#ifndef COMPARE_H
#define COMPARE_H

class QString;

/// Compares what two platforms have recorded, and prints it: numbers line by line, pictures level
/// by level. True if they differ in nothing but what the file of known differences allows for the
/// other one. A line of it is one of
///   numbers <platforms> | <regular expression of the line> | <why>
///   pictures <platforms> | <class> | <most pictures> <most levels> <most pixels> | <why>
/// in which platforms is a list with commas. Pixels one level apart need no such line, and do not
/// count; of the others there are at most so many in 10,000 of any picture.
bool compare(const QString &folder, const QString &otherFolder, const QString &otherName,
             const QString &knownDifferences);

#endif // COMPARE_H
