// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_INSTRUCTIONS_H
#define PANELKIT_BENCHMARKS_INSTRUCTIONS_H

#include <vector>

class QString;
struct Row;

/// Runs the same number of steps of everything in the rows whose name ("SpIconButton/pressed") the
/// regular expression matches, under Callgrind, a dump for each under its full name (Row::nameOf),
/// and prints the rows with their limits as JSON for the script that reads the dumps. False without
/// Callgrind, which alone can count.
bool countInstructions(const std::vector<Row> &rows, const QString &names);

#endif // PANELKIT_BENCHMARKS_INSTRUCTIONS_H
