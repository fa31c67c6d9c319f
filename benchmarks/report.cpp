// SPDX-License-Identifier: Apache-2.0
#include "report.h"

#include "rows.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <cmath>
#include <cstdio>
#include <limits>

namespace
{

constexpr double kNotMeasured = std::numeric_limits<double>::quiet_NaN();

double costOf(const Costs &costs, const std::string &name)
{
    const auto cost = costs.find(name);
    return cost == costs.end() ? kNotMeasured : cost->second;
}

// One line of the table: a row beside one of its peers. In ns.
struct Line {
    double ours = kNotMeasured;
    double blit = kNotMeasured;
    double floor = kNotMeasured;
    std::string peer; // empty for a row without peers
    double peerCost = kNotMeasured;
};

std::vector<Line> linesOf(const Row &row, const Costs &costs)
{
    Line line;
    line.ours = costOf(costs, row.nameOf("ours"));
    line.blit = costOf(costs, row.nameOf("blit"));
    line.floor = costOf(costs, row.nameOf("floor"));
    if (std::isnan(line.ours))
        return {};
    std::vector<Line> lines;
    for (const Against<StepMaker> &rival : row.rivals) {
        if (rival.name == "blit" || rival.name == "floor")
            continue;
        line.peer = rival.name;
        line.peerCost = costOf(costs, row.nameOf(rival.name));
        lines.push_back(line);
    }
    if (lines.empty())
        lines.push_back(line);
    return lines;
}

std::string text(double number, int decimals)
{
    if (std::isnan(number))
        return "-";
    return QString::number(number, 'f', decimals).toStdString();
}

QJsonValue json(double number) { return std::isnan(number) ? QJsonValue() : QJsonValue(number); }

QJsonValue json(const std::string &string)
{
    return string.empty() ? QJsonValue() : QJsonValue(QString::fromStdString(string));
}

} // namespace

void printHeader()
{
    const auto dashes = [](int count) { return std::string(std::size_t(count), '-'); };
    std::printf("| %-9s | %-22s | %-32s | %8s | %8s | %6s | %8s | %7s | %-32s | %8s | %6s |\n",
                "row", "class", "state", "ours ns", "blit ns", "/ blit", "floor ns", "/ floor",
                "peer", "peer ns", "/ peer");
    std::printf("|%s|%s|%s|%s:|%s:|%s:|%s:|%s:|%s|%s:|%s:|\n", dashes(11).c_str(),
                dashes(24).c_str(), dashes(34).c_str(), dashes(9).c_str(), dashes(9).c_str(),
                dashes(7).c_str(), dashes(9).c_str(), dashes(8).c_str(), dashes(34).c_str(),
                dashes(9).c_str(), dashes(7).c_str());
}

void printRow(const Row &row, const Costs &costs, std::size_t number, std::size_t count)
{
    const std::string progress = '[' + std::to_string(number) + '/' + std::to_string(count) + ']';
    for (const Line &line : linesOf(row, costs)) {
        std::printf("| %-9s | %-22s | %-32s | %8s | %8s | %6s | %8s | %7s | %-32s | %8s | %6s |\n",
                    progress.c_str(), row.className.c_str(), row.state.c_str(),
                    text(line.ours, 0).c_str(), text(line.blit, 0).c_str(),
                    text(line.ours / line.blit, 2).c_str(), text(line.floor, 0).c_str(),
                    text(line.ours / line.floor, 2).c_str(), line.peer.c_str(),
                    text(line.peerCost, 0).c_str(), text(line.ours / line.peerCost, 2).c_str());
    }
    std::fflush(stdout);
}

void printNotes(const std::vector<Row> &rows, const Costs &costs)
{
    std::map<std::string, std::string> notes; // the states of each class and reason
    for (const Row &row : rows) {
        if (row.why.empty() || linesOf(row, costs).empty())
            continue;
        std::string &states = notes[row.className + ": " + row.why];
        states += states.empty() ? row.state : ", " + row.state;
    }
    std::printf("%s", notes.empty() ? "" : "\nOther limits than the usual ones:\n");
    for (const auto &[reason, states] : notes)
        std::printf("- %s (%s)\n", reason.c_str(), states.c_str());
}

bool writeJson(const QString &path, const std::vector<Row> &rows, const Costs &costs)
{
    QJsonArray records;
    for (const Row &row : rows) {
        for (const Line &line : linesOf(row, costs)) {
            records.append(QJsonObject{
                {QStringLiteral("class"), json(row.className)},
                {QStringLiteral("state"), json(row.state)},
                {QStringLiteral("kind"), json(row.kind)},
                {QStringLiteral("ns"), json(line.ours)},
                {QStringLiteral("blit_ns"), json(line.blit)},
                {QStringLiteral("ratio_blit"), json(line.ours / line.blit)},
                {QStringLiteral("floor_ns"), json(line.floor)},
                {QStringLiteral("ratio_floor"), json(line.ours / line.floor)},
                {QStringLiteral("peer"), json(line.peer)},
                {QStringLiteral("peer_ns"), json(line.peerCost)},
                {QStringLiteral("ratio_peer"), json(line.ours / line.peerCost)},
                {QStringLiteral("why"), json(row.why)},
            });
        }
    }
    QFile file(path);
    const QByteArray contents = QJsonDocument(records).toJson();
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        && file.write(contents) == contents.size();
}
