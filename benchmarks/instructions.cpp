// SPDX-License-Identifier: Apache-2.0
#include "instructions.h"

#include "rows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QString>
#include <QSysInfo>

#include <gnu/libc-version.h>
#include <valgrind/callgrind.h>

#include <cmath>
#include <cstdio>

namespace
{

constexpr int kWarmUp = 3; // steps; the first computes what is kept for the others
constexpr int kSteps = 20;
constexpr int kFewSteps = 6; // of peers, which are what takes the time, and of looks at rest

// At rest, after the warm-up, a paint is like the next.
int stepsOf(const Row &row, const std::string &subject)
{
    const bool isPeer = subject != "ours" && subject != "blit" && subject != "floor";
    return isPeer || row.isAtRest() ? kFewSteps : kSteps;
}

void count(const std::string &name, int steps, const StepMaker &make)
{
    const Step step = make();
    for (int i = 0; i < kWarmUp; ++i)
        step();
    CALLGRIND_ZERO_STATS;
    for (int i = 0; i < steps; ++i)
        step();
    CALLGRIND_DUMP_STATS_AT(name.c_str());
}

// What decides how many instructions Qt takes, besides its code: counts compare with those of the
// same alone.
QString place()
{
    QString vectors;
#ifdef __x86_64__
    vectors = __builtin_cpu_supports("avx2") ? QStringLiteral(", AVX2") : QStringLiteral(", SSE2");
#endif
    return QStringLiteral("Qt %1, libc %2, %3%4")
        .arg(QLatin1String(qVersion()), QLatin1String(gnu_get_libc_version()),
             QSysInfo::currentCpuArchitecture(), vectors);
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
    QJsonObject steps;
    CALLGRIND_START_INSTRUMENTATION;
    const QRegularExpression wanted(names);
    for (const Row &row : rows) {
        if (!wanted.match(QString::fromStdString(row.className + '/' + row.state)).hasMatch())
            continue;
        const auto countOne = [&](const std::string &subject, const StepMaker &make) {
            const std::string name = row.nameOf(subject);
            steps.insert(QString::fromStdString(name), stepsOf(row, subject));
            count(name, stepsOf(row, subject), make);
        };
        countOne("ours", row.ours);
        for (const Against<StepMaker> &rival : row.rivals) {
            countOne(rival.name, rival.make);
            comparisons.append(describe(row, rival));
        }
    }
    CALLGRIND_STOP_INSTRUMENTATION;
    const QJsonObject said{{QStringLiteral("place"), place()},
                           {QStringLiteral("steps"), steps},
                           {QStringLiteral("comparisons"), comparisons}};
    std::printf("%s", QJsonDocument(said).toJson().constData());
    return true;
}
