// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_REPORT_H
#define PANELKIT_BENCHMARKS_REPORT_H

#include <cstddef>
#include <map>
#include <string>
#include <vector>

class QString;
struct Row;

/// What each full name (Row::nameOf) cost, in ns a step; a name that was not measured is missing.
using Costs = std::map<std::string, double>;

/// Prints the head of the Markdown table that printRow() goes on with.
void printHeader();

/// Prints what was measured of a row, one line for each peer. It is so manieth of so many.
void printRow(const Row &row, const Costs &costs, std::size_t number, std::size_t count);

/// Prints which of the rows that were measured have other limits than the usual ones, and why.
void printNotes(const std::vector<Row> &rows, const Costs &costs);

/// Writes the same as JSON; false if the file cannot be written.
bool writeJson(const QString &path, const std::vector<Row> &rows, const Costs &costs);

#endif // PANELKIT_BENCHMARKS_REPORT_H
