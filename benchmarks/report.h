#ifndef PANELKIT_BENCHMARKS_REPORT_H
#define PANELKIT_BENCHMARKS_REPORT_H

#include <map>
#include <string>
#include <vector>

class QString;
struct Row;

/// What each full name (Row::nameOf) cost, in ns a step; a name that was not measured is missing.
using Costs = std::map<std::string, double>;

/// Prints the measured rows as a Markdown table, one line for each peer.
void printTable(const std::vector<Row> &rows, const Costs &costs);

/// Writes the same as JSON; false if the file cannot be written.
bool writeJson(const QString &path, const std::vector<Row> &rows, const Costs &costs);

#endif // PANELKIT_BENCHMARKS_REPORT_H
