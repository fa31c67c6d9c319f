// SPDX-License-Identifier: Apache-2.0
#include "compare.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTextStream>
#include <QVector>

#include <cstdio>

namespace
{

struct KnownNumbers {
    QRegularExpression line;
    QString why;
};

struct KnownPictures {
    int most = 0; // pictures of which a pixel differs by more than one level
    int mostLevels = 0; // of 255
    double mostPixels = 0; // in 10,000 of a picture
    QString why;
};

// What is known to differ on one platform.
struct Known {
    QVector<KnownNumbers> numbers;
    QMap<QString, KnownPictures> pictures; // by class
};

// How the pictures of one class differ.
struct Tally {
    int pictures = 0;
    int equal = 0;
    int oneLevel = 0; // none of their pixels differs by more
    int largest = 0; // levels
    double mostPixels = 0; // by more than one level, in 10,000 of a picture
    QString worst; // the picture of these

    int differing() const { return pictures - equal - oneLevel; }
};

QStringList linesOf(const QString &name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s is missing\n", qPrintable(name));
        return {};
    }
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

// Adds what a line says, if it is about the platform; false if the line is none of the two kinds.
bool take(const QString &line, const QString &platform, Known &known)
{
    const QStringList fields = line.split(QStringLiteral(" | "));
    const QString kind = fields[0].section(QLatin1Char(' '), 0, 0);
    const QStringList platforms = fields[0].section(QLatin1Char(' '), 1).split(QLatin1Char(','));
    const bool isMeant = platforms.contains(platform);
    if (kind == QLatin1String("numbers") && fields.size() == 3) {
        if (isMeant)
            known.numbers += {QRegularExpression(fields[1]), fields[2]};
        return true;
    }
    if (kind == QLatin1String("pictures") && fields.size() == 4) {
        const QStringList limits = fields[2].split(QLatin1Char(' '));
        if (isMeant)
            known.pictures[fields[1]] = {limits.value(0).toInt(), limits.value(1).toInt(),
                                         limits.value(2).toDouble(), fields[3]};
        return true;
    }
    return line.startsWith(QLatin1Char('#'));
}

bool read(const QString &file, const QString &platform, Known &known)
{
    for (const QString &line : linesOf(file)) {
        if (!take(line, platform, known)) {
            std::fprintf(stderr, "%s: not understood: %s\n", qPrintable(file), qPrintable(line));
            return false;
        }
    }
    return true;
}

// Of the levels of the channels.
int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

void compareInto(Tally &tally, const QString &name, const QImage &one, const QImage &other)
{
    constexpr int kShare = 10000;
    ++tally.pictures;
    if (one == other) {
        ++tally.equal;
        return;
    }
    int largest = one.size() == other.size() ? 0 : 255;
    int beyond = 0;
    for (int y = 0; y < one.height() && one.size() == other.size(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const int levels = difference(one.pixel(x, y), other.pixel(x, y));
            largest = std::max(largest, levels);
            beyond += levels > 1 ? 1 : 0;
        }
    }
    tally.oneLevel += largest <= 1 ? 1 : 0;
    tally.largest = std::max(tally.largest, largest);
    const double share = double(beyond) * kShare / std::max(1, one.width() * one.height());
    if (share > tally.mostPixels) {
        tally.mostPixels = share;
        tally.worst = name;
    }
}

// True if all lines agree, or their difference is known.
bool compareNumbers(const QStringList &lines, const QStringList &others,
                    const QVector<KnownNumbers> &known)
{
    constexpr int kMostShown = 20;
    int unknown = 0;
    QMap<QString, int> explained;
    for (int i = 0; i < std::max(lines.size(), others.size()); ++i) {
        const QString line = lines.value(i);
        if (line == others.value(i))
            continue;
        const auto reason = std::find_if(known.begin(), known.end(), [&](const KnownNumbers &k) {
            return k.line.match(line).hasMatch();
        });
        if (reason != known.end()) {
            ++explained[reason->why];
        } else if (++unknown <= kMostShown) {
            std::printf("  - %s\n  + %s\n", qPrintable(line), qPrintable(others.value(i)));
        }
    }
    std::printf("%d numbers and answers, %d differ without a known reason\n", int(lines.size()),
                unknown);
    for (auto i = explained.cbegin(); i != explained.cend(); ++i)
        std::printf("  %d differ: %s\n", i.value(), qPrintable(i.key()));
    return unknown == 0 && !lines.isEmpty();
}

bool isAllowed(const Tally &tally, const KnownPictures &known)
{
    return tally.differing() <= known.most && tally.largest <= std::max(1, known.mostLevels)
        && tally.mostPixels <= known.mostPixels;
}

void print(const QString &className, const Tally &tally, const KnownPictures &known, bool isGood)
{
    std::printf("%-22s %8d %8d %8d %8d %8d %8.1f  %s\n", qPrintable(className), tally.pictures,
                tally.equal, tally.oneLevel, tally.differing(), tally.largest, tally.mostPixels,
                isGood ? qPrintable(known.why)
                       : qPrintable(QStringLiteral("NOT KNOWN, see ") + tally.worst));
}

bool comparePictures(const QDir &folder, const QDir &otherFolder,
                     const QMap<QString, KnownPictures> &known)
{
    const QStringList names = folder.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
    QMap<QString, Tally> tallies;
    for (const QString &name : names)
        compareInto(tallies[name.section(QLatin1Char('-'), 0, 0)], name,
                    QImage(folder.filePath(name)), QImage(otherFolder.filePath(name)));
    std::printf("%-22s %8s %8s %8s %8s %8s %8s\n", "pictures of", "taken", "equal", "1 level",
                "more", "levels", "/10,000");
    bool areAllGood = !names.isEmpty();
    for (auto i = tallies.cbegin(); i != tallies.cend(); ++i) {
        const KnownPictures reason = known.value(i.key());
        const bool isGood = isAllowed(i.value(), reason);
        print(i.key(), i.value(), reason, isGood);
        areAllGood = areAllGood && isGood;
    }
    return areAllGood;
}

} // namespace

bool compare(const QString &folder, const QString &otherFolder, const QString &otherName,
             const QString &knownDifferences)
{
    constexpr int kTitleLines = 2; // of the platform itself
    const QDir one(folder);
    const QDir other(otherFolder);
    Known reasons;
    if (!read(knownDifferences, otherName, reasons))
        return false;
    const QString numbers = QStringLiteral("numbers.txt");
    const QStringList others = linesOf(other.filePath(numbers));
    std::printf("%s: %s\n", qPrintable(otherName),
                qPrintable(others.mid(0, kTitleLines).join(QStringLiteral(", "))));
    const bool agreeInNumbers = compareNumbers(linesOf(one.filePath(numbers)).mid(kTitleLines),
                                               others.mid(kTitleLines), reasons.numbers);
    const bool agreeInPictures =
        comparePictures(one.filePath(QStringLiteral("pictures")),
                        other.filePath(QStringLiteral("pictures")), reasons.pictures);
    return agreeInNumbers && agreeInPictures;
}
