// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_INSTRUCTIONS_H
#define PANELKIT_BENCHMARKS_INSTRUCTIONS_H

#include <vector>

struct Row;

/// Runs the same number of steps of everything in the rows under Callgrind, a dump for each under
/// its full name (Row::nameOf), and prints the rows with their limits as JSON for the script that
/// reads the dumps. False without Callgrind, which alone can count.
bool countInstructions(const std::vector<Row> &rows);

#endif // PANELKIT_BENCHMARKS_INSTRUCTIONS_H
