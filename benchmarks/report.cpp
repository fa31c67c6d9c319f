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

// One line of the table: a row beside one of its peers.
struct Line {
    std::string peer; // empty for a row without peers
    double ours = kNotMeasured; // ns
    double floor = kNotMeasured; // ns
    double peerCost = kNotMeasured; // ns
};

std::vector<Line> linesOf(const Row &row, const Costs &costs)
{
    std::vector<Line> lines;
    Line line;
    line.ours = costOf(costs, row.nameOf("ours"));
    line.floor = costOf(costs, row.nameOf("floor"));
    if (std::isnan(line.ours))
        return lines;
    if (row.peers.empty())
        lines.push_back(line);
    for (const Against<StepMaker> &peer : row.peers) {
        line.peer = peer.name;
        line.peerCost = costOf(costs, row.nameOf(peer.name));
        lines.push_back(line);
    }
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
    std::printf("| %-9s | %-14s | %-30s | %8s | %8s | %7s | %-24s | %8s | %6s |\n", "row", "class",
                "state", "ours ns", "floor ns", "/ floor", "peer", "peer ns", "/ peer");
    std::printf("|%s|%s|%s|%s:|%s:|%s:|%s|%s:|%s:|\n", std::string(11, '-').c_str(),
                std::string(16, '-').c_str(), std::string(32, '-').c_str(),
                std::string(9, '-').c_str(), std::string(9, '-').c_str(),
                std::string(8, '-').c_str(), std::string(26, '-').c_str(),
                std::string(9, '-').c_str(), std::string(7, '-').c_str());
}

void printRow(const Row &row, const Costs &costs, std::size_t number, std::size_t count)
{
    const std::string progress = '[' + std::to_string(number) + '/' + std::to_string(count) + ']';
    for (const Line &line : linesOf(row, costs)) {
        std::printf("| %-9s | %-14s | %-30s | %8s | %8s | %7s | %-24s | %8s | %6s |\n",
                    progress.c_str(), row.className.c_str(), row.state.c_str(),
                    text(line.ours, 0).c_str(), text(line.floor, 0).c_str(),
                    text(line.ours / line.floor, 2).c_str(), line.peer.c_str(),
                    text(line.peerCost, 0).c_str(), text(line.ours / line.peerCost, 2).c_str());
    }
    std::fflush(stdout);
}

bool writeJson(const QString &path, const std::vector<Row> &rows, const Costs &costs)
{
    QJsonArray records;
    for (const Row &row : rows) {
        for (const Line &line : linesOf(row, costs)) {
            records.append(QJsonObject{
                {QStringLiteral("class"), json(row.className)},
                {QStringLiteral("state"), json(row.state)},
                {QStringLiteral("ns"), json(line.ours)},
                {QStringLiteral("floor_ns"), json(line.floor)},
                {QStringLiteral("ratio_floor"), json(line.ours / line.floor)},
                {QStringLiteral("peer"), json(line.peer)},
                {QStringLiteral("peer_ns"), json(line.peerCost)},
                {QStringLiteral("ratio_peer"), json(line.ours / line.peerCost)},
            });
        }
    }
    QFile file(path);
    const QByteArray contents = QJsonDocument(records).toJson();
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        && file.write(contents) == contents.size();
}
