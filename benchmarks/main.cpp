// SPDX-License-Identifier: Apache-2.0
#include "instructions.h"
#include "report.h"
#include "rows.h"

#include <benchmark/benchmark.h>
#include <panelkitclasses.h>
#include <QApplication>
#include <QFont>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <sstream>
#include <utility>
#include <vector>

#define PANELKIT_DECLARE_ROWS(Class, ...) void defineRows(Rows &rows, Tag<Class>);
PANELKIT_FOR_EACH_CLASS(PANELKIT_DECLARE_ROWS)

namespace
{

// Keeps the fastest repetition of each benchmark: whatever else the machine does only makes one
// slower, so that the fastest is the one nearest to what the code costs.
class FastestReporter final : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred)
                continue;
            const double cost = run.GetAdjustedCPUTime();
            const auto known = m_costs.emplace(run.run_name.function_name, cost).first;
            known->second = std::min(known->second, cost);
        }
    }

    const Costs &costs() const { return m_costs; }

private:
    Costs m_costs;
};

Rows allRows()
{
    Rows rows;
#define PANELKIT_DEFINE_ROWS(Class, ...) defineRows(rows, Tag<Class>());
    PANELKIT_FOR_EACH_CLASS(PANELKIT_DEFINE_ROWS)
    return rows;
}

constexpr int kWarmUp = 3; // steps; a look that is wanted again is only then composed to be kept

// Each repetition measures a fresh subject: where its memory happens to lie is part of the noise.
void measure(const std::string &name, const StepMaker &make)
{
    benchmark::RegisterBenchmark(name.c_str(), [make](benchmark::State &state) {
        const Step step = make();
        for (int i = 0; i < kWarmUp; ++i)
            step();
        for (auto _ : state)
            step();
    });
}

void registerAll(const Row &row)
{
    measure(row.nameOf("ours"), row.ours);
    for (const Against<StepMaker> &rival : row.rivals)
        measure(row.nameOf(rival.name), rival.make);
}

// Takes the argument that starts like this out of the arguments; the rest of it, if there is one.
std::optional<QString> take(std::vector<char *> &arguments, const QString &start)
{
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        const QString text = QString::fromLocal8Bit(*argument);
        if (text.startsWith(start)) {
            arguments.erase(argument);
            return text.mid(start.size());
        }
    }
    return std::nullopt;
}

void initialize(std::vector<char *> arguments)
{
    static char interleaving[] = "--benchmark_enable_random_interleaving=true";
    static char repetitions[] = "--benchmark_repetitions=21";
    static char shortRuns[] = "--benchmark_min_time=0.005";
    arguments.insert(arguments.begin() + 1, {interleaving, repetitions, shortRuns});
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        std::exit(2);
}

// Runs what the arguments ask for and prints each row once it is measured. Repetitions of what
// stands in one row are mixed, so that a slow moment of the machine meets all of them alike; the
// arguments may say otherwise.
Costs measuredCosts(const std::vector<Row> &rows)
{
    FastestReporter reporter;
    std::ostringstream complaints; // that a filter matches nothing of a row, or nothing at all
    reporter.SetErrorStream(&complaints);
    std::size_t matching = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        complaints.str({});
        benchmark::ClearRegisteredBenchmarks();
        registerAll(rows[i]);
        const bool isFirst = reporter.costs().empty();
        matching += benchmark::RunSpecifiedBenchmarks(&reporter);
        if (isFirst && !reporter.costs().empty())
            printHeader();
        printRow(rows[i], reporter.costs(), i + 1, rows.size());
    }
    if (matching == 0) {
        std::cerr << complaints.str();
        std::exit(2);
    }
    return reporter.costs();
}

} // namespace

int main(int argc, char **argv)
{
    // The same style and font on every machine.
    QApplication::setStyle(QStringLiteral("fusion"));
    const QApplication application(argc, argv);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(14);
    QApplication::setFont(font);

    std::vector<char *> arguments(argv, argv + argc);
    const std::optional<QString> jsonPath = take(arguments, QStringLiteral("--json="));
    const std::optional<QString> counted = take(arguments, QStringLiteral("--instructions="));

    const Rows rows = allRows();
    if (counted)
        return countInstructions(rows.all(), *counted) && !rows.hasRefused() ? 0 : 1;

    initialize(std::move(arguments));
    const Costs costs = measuredCosts(rows.all());
    printNotes(rows.all(), costs);
    if (jsonPath && !writeJson(*jsonPath, rows.all(), costs)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(*jsonPath));
        return 1;
    }
    return rows.hasRefused() ? 1 : 0;
}
