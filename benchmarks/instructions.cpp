// SPDX-License-Identifier: Apache-2.0
#include "instructions.h"

#include "rows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QString>

#include <valgrind/callgrind.h>

#include <cmath>
#include <cstdio>

namespace
{

constexpr int kWarmUp = 3; // steps; the first computes what is kept for the others
constexpr int kSteps = 20;

void count(const std::string &name, const StepMaker &make)
{
    const Step step = make();
    for (int i = 0; i < kWarmUp; ++i)
        step();
    CALLGRIND_ZERO_STATS;
    for (int i = 0; i < kSteps; ++i)
        step();
    CALLGRIND_DUMP_STATS_AT(name.c_str());
}

QJsonObject describe(const Row &row, const Against<StepMaker> &rival)
{
    QJsonObject description{
        {QStringLiteral("ours"), QString::fromStdString(row.nameOf("ours"))},
        {QStringLiteral("against"), QString::fromStdString(row.nameOf(rival.name))},
    };
    if (std::isfinite(rival.limit))
        description.insert(QStringLiteral("limit"), rival.limit);
    return description;
}

} // namespace

bool countInstructions(const std::vector<Row> &rows, const QString &names)
{
    if (RUNNING_ON_VALGRIND == 0) {
        std::fprintf(stderr, "instructions are only counted under valgrind --tool=callgrind\n");
        return false;
    }
    QJsonArray comparisons;
    CALLGRIND_START_INSTRUMENTATION;
    const QRegularExpression wanted(names);
    for (const Row &row : rows) {
        if (!wanted.match(QString::fromStdString(row.className + '/' + row.state)).hasMatch())
            continue;
        count(row.nameOf("ours"), row.ours);
        for (const Against<StepMaker> &rival : row.rivals) {
            count(row.nameOf(rival.name), rival.make);
            comparisons.append(describe(row, rival));
        }
    }
    CALLGRIND_STOP_INSTRUMENTATION;
    std::printf("%s", QJsonDocument(comparisons).toJson().constData());
    return true;
}
