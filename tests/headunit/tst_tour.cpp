// SPDX-License-Identifier: Apache-2.0
#include "files.h"
#include "widgettest.h"

#include <QCryptographicHash>
#include <QDir>
#include <QHash>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>

#include <algorithm>
#include <cstdlib>
#include <limits>

/// The head unit's tour beside its references: signals.log, pictures.txt with a number for all
/// pixels of each picture, and the pictures themselves, made small. With PANELKIT_RENEW_TOUR in the
/// environment the references are written anew: see tools/renew-tour. With PANELKIT_TOUR_BY_NAMES
/// it is the tour that knows of the screen what accessibility tells: the same pictures, and from
/// each widget the same signals, but for the pixel that a finger comes down on.
class TourTest : public WidgetTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void endsWell();
    void signalsAreThoseOfTheReference();
    void picturesAreThoseOfTheReference();

private:
    const bool m_isByNames = qEnvironmentVariableIsSet("PANELKIT_TOUR_BY_NAMES");
    const QDir m_tour{m_isByNames ? QStringLiteral(PICTURES "-by-names")
                                  : QStringLiteral(PICTURES)};
    int m_exitCode = -1;
    QString m_errors;
};

namespace
{

constexpr int kSmallWidth = 384; // px
constexpr int kColors = 255;
constexpr int kFewest = 40; // pictures

const QDir kReferences(QStringLiteral(REFERENCES));

QStringList picturesIn(const QDir &directory)
{
    return directory.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
}

QStringList linesOf(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
}

// Compared line by line, so that what differs is seen.
void compareLines(const QStringList &actual, const QStringList &expected)
{
    for (int i = 0; i < std::min(actual.size(), expected.size()); ++i)
        QCOMPARE(actual.at(i), expected.at(i));
    QCOMPARE(actual.size(), expected.size());
}

// What each widget says in each step, without the time and the pixel of it.
QStringList byWidget(QStringList lines)
{
    const QRegularExpression time(QStringLiteral("\t\\d+ ms\t"));
    const QRegularExpression point(QStringLiteral("\\(\\d+, \\d+\\)"));
    for (QString &line : lines)
        line.replace(time, QStringLiteral("\t")).replace(point, QStringLiteral("()"));
    const auto place = [](const QString &line) { return line.section(QLatin1Char('\t'), 0, 1); };
    std::stable_sort(lines.begin(), lines.end(), [place](const QString &one, const QString &other) {
        return place(one) < place(other);
    });
    return lines;
}

QImage withoutPalette(const QImage &picture)
{
    return picture.convertToFormat(QImage::Format_RGB32);
}

QImage picture(const QDir &directory, const QString &name)
{
    return withoutPalette(QImage(directory.filePath(name)));
}

QString numberOf(const QImage &picture)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (int y = 0; y < picture.height(); ++y)
        hash.addData(reinterpret_cast<const char *>(picture.constScanLine(y)),
                     picture.width() * int(sizeof(QRgb)));
    return QString::fromLatin1(hash.result().toHex());
}

QStringList numbersIn(const QDir &directory)
{
    QStringList lines;
    const QStringList names = picturesIn(directory);
    for (const QString &name : names)
        lines += numberOf(picture(directory, name)) + QLatin1Char(' ') + name;
    return lines << QString();
}

QRgb coarse(QRgb color) { return color & 0xfff8f8f8U; }

// The most frequent colours.
QVector<QRgb> paletteOf(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[coarse(picture.pixel(x, y))];
    }
    QVector<QRgb> colors = counts.keys().toVector();
    std::sort(colors.begin(), colors.end(), [&counts](QRgb color, QRgb other) {
        const int difference = counts.value(color) - counts.value(other);
        return difference != 0 ? difference > 0 : color < other;
    });
    return colors.mid(0, kColors);
}

int distance(QRgb color, QRgb other)
{
    return std::abs(qRed(color) - qRed(other)) + std::abs(qGreen(color) - qGreen(other))
        + std::abs(qBlue(color) - qBlue(other));
}

uchar nearest(const QVector<QRgb> &palette, QRgb color)
{
    const auto found =
        std::min_element(palette.begin(), palette.end(), [color](QRgb one, QRgb other) {
            return distance(color, one) < distance(color, other);
        });
    return uchar(found - palette.begin());
}

// As small as a picture can be that is still worth a look.
QImage madeSmall(const QImage &picture)
{
    const QImage scaled =
        withoutPalette(picture.scaledToWidth(kSmallWidth, Qt::SmoothTransformation));
    const QVector<QRgb> palette = paletteOf(scaled);
    QHash<QRgb, uchar> places;
    QImage small(scaled.size(), QImage::Format_Indexed8);
    small.setColorTable(palette);
    for (int y = 0; y < scaled.height(); ++y) {
        for (int x = 0; x < scaled.width(); ++x) {
            const QRgb color = coarse(scaled.pixel(x, y));
            auto place = places.find(color);
            if (place == places.end())
                place = places.insert(color, nearest(palette, color));
            small.scanLine(y)[x] = *place;
        }
    }
    return small;
}

void renewReferences(const QDir &tour)
{
    const QStringList before = picturesIn(kReferences);
    for (const QString &name : before)
        QFile::remove(kReferences.filePath(name));
    kReferences.mkpath(QStringLiteral("."));
    const QStringList names = picturesIn(tour);
    for (const QString &name : names)
        madeSmall(picture(tour, name)).save(kReferences.filePath(name), "PNG", 0);
    writtenFile(kReferences.filePath(QStringLiteral("pictures.txt")),
                numbersIn(tour).join(QLatin1Char('\n')).toUtf8());
    const QString log = kReferences.filePath(QStringLiteral("signals.log"));
    QFile::remove(log);
    QFile::copy(tour.filePath(QStringLiteral("signals.log")), log);
}

} // namespace

void TourTest::initTestCase()
{
    QDir(m_tour).removeRecursively();
    QProcess process;
    QStringList arguments{QStringLiteral("--tour"), m_tour.path()};
    if (m_isByNames)
        arguments += QStringLiteral("--by-names");
    process.start(QStringLiteral(HEADUNIT), arguments);
    process.waitForFinished(-1);
    m_exitCode = process.exitCode();
    m_errors = QString::fromUtf8(process.readAllStandardError());
    if (qEnvironmentVariableIsSet("PANELKIT_RENEW_TOUR"))
        renewReferences(m_tour);
}

// All that it has to say is what it shows on popups.
void TourTest::endsWell()
{
    QVERIFY2(m_exitCode == 0, qPrintable(m_errors));
    QCOMPARE(m_errors,
             QStringLiteral("Not available in this car.\n"
                            "No audio output was found: the music plays on without sound.\n"
                            "Not available in this car.\n"));
    QVERIFY(picturesIn(m_tour).size() >= kFewest);
}

void TourTest::signalsAreThoseOfTheReference()
{
    const QString name = QStringLiteral("signals.log");
    QStringList actual = linesOf(m_tour.filePath(name));
    QStringList expected = linesOf(kReferences.filePath(name));
    if (m_isByNames) {
        actual = byWidget(actual);
        expected = byWidget(expected);
    }
    compareLines(actual, expected);
}

// What is different can be seen, small.
void TourTest::picturesAreThoseOfTheReference()
{
    QCOMPARE(picturesIn(m_tour), picturesIn(kReferences));
    const QStringList expected = linesOf(kReferences.filePath(QStringLiteral("pictures.txt")));
    const QStringList actual = numbersIn(m_tour);
    for (const QString &line : actual) {
        if (expected.contains(line))
            continue;
        const QString name = line.section(QLatin1Char(' '), 1);
        isSamePicture(
            {withoutPalette(madeSmall(picture(m_tour, name))), picture(kReferences, name)},
            qPrintable(name), 0);
    }
    compareLines(actual, expected);
}

WIDGET_TEST_MAIN(TourTest)
#include "tst_tour.moc"
