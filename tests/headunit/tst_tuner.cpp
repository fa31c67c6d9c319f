// SPDX-License-Identifier: Apache-2.0
#include "samples.h"
#include "stations.h"
#include "tuner.h"

#include "files.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace headunit;

namespace
{

const QByteArray kFile = "# a comment\n"
                         "band,frequency,name,text\n"
                         "FM,9800,Mid,\"One, two\"\n"
                         "FM,8750,Low,\"Say \"\"hello\"\"\"\n"
                         "fm, 10800 ,High,\n"
                         "\n"
                         "AM,522,Deep,Low down\n"
                         "AM,1620,Top\n";

QVector<int> frequenciesOf(const Stations &stations, Band band)
{
    QVector<int> list;
    for (const Station &station : stations.of(band))
        list.append(station.frequency);
    return list;
}

} // namespace

class tst_Tuner : public WidgetTest
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString written(const QByteArray &bytes) const
    {
        return writtenFile(m_folder.filePath(QStringLiteral("stations.csv")), bytes);
    }

    // The one sentence that loading these bytes brings; empty if there is none.
    QString problemOf(Stations &stations, const QByteArray &bytes) const
    {
        QSignalSpy problems(&stations, &Stations::problem);
        stations.load(written(bytes));
        return problems.count() == 1 ? problems.first().first().toString() : QString();
    }

    QString settingsFile() const { return m_folder.filePath(QStringLiteral("settings.ini")); }

private slots:
    void stationsAreSortedByFrequency()
    {
        Stations stations;
        QSignalSpy problems(&stations, &Stations::problem);
        QVERIFY(stations.load(written(kFile)));
        QCOMPARE(problems.count(), 0);
        QCOMPARE(frequenciesOf(stations, Band::Fm), QVector<int>({8750, 9800, 10800}));
        QCOMPARE(frequenciesOf(stations, Band::Am), QVector<int>({522, 1620}));
        QCOMPARE(stations.at(Band::Fm, 9800)->text, QStringLiteral("One, two"));
        QCOMPARE(stations.at(Band::Fm, 8750)->text, QStringLiteral("Say \"hello\""));
        QCOMPARE(stations.at(Band::Am, 1620)->name, QStringLiteral("Top"));
        QVERIFY(!stations.at(Band::Fm, 9810));
        QVERIFY(!stations.at(Band::Am, 9800));
    }

    void theSamplesAreInOrder()
    {
        Stations stations;
        QSignalSpy problems(&stations, &Stations::problem);
        QVERIFY(stations.load(samples::stationsFile()));
        QCOMPARE(problems.count(), 0);
        QCOMPARE(stations.of(Band::Fm).size(), 14);
        QCOMPARE(stations.of(Band::Am).size(), 8);
    }

    void aLineThatMakesNoSenseIsLeftOut_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("band") << QByteArray("UKW,9800,A,B");
        QTest::newRow("number") << QByteArray("FM,98.0,A,B");
        QTest::newRow("too low") << QByteArray("FM,8740,A,B");
        QTest::newRow("too high") << QByteArray("FM,10810,A,B");
        QTest::newRow("huge") << QByteArray("FM,99999999999999999999,A,B");
        QTest::newRow("negative") << QByteArray("AM,-531,A,B");
        QTest::newRow("off the grid") << QByteArray("AM,523,A,B");
        QTest::newRow("no name") << QByteArray("FM,9800,,B");
        QTest::newRow("name of blanks") << QByteArray("FM,9800, \t ,B");
        QTest::newRow("too few") << QByteArray("FM,9800");
        QTest::newRow("open quotation mark") << QByteArray("FM,9800,\"A,B");
        QTest::newRow("taken") << QByteArray("FM,10000,A,B");
        QTest::newRow("zeros") << QByteArray("FM\0,9800,A,B", 13);
    }

    void aLineThatMakesNoSenseIsLeftOut()
    {
        QFETCH(QByteArray, line);
        Stations stations;
        const QString problem = problemOf(stations, "FM,10000,X,Y\n" + line + "\n" + line + "\n");
        QCOMPARE(problem,
                 QStringLiteral("Lines of stations.csv that make no sense and are left out: 2. "
                                "The first is line 2."));
        QCOMPARE(frequenciesOf(stations, Band::Fm), QVector<int>({10000}));
        QVERIFY(stations.of(Band::Am).isEmpty());
    }

    void otherLineEndsAndAMarkAreUnderstood()
    {
        Stations stations;
        QCOMPARE(problemOf(stations, "\xEF\xBB\xBF" + QByteArray(kFile).replace("\n", "\r\n")),
                 QString());
        QCOMPARE(stations.of(Band::Fm).size(), 3);
    }

    void textsAreMadeFitForTheScreen()
    {
        Stations stations;
        stations.load(written("FM,9800,A\tB \xE2\x80\xAE"
                              "C\x07,"
                              + QByteArray("x").repeated(100000) + "\n"));
        QCOMPARE(stations.at(Band::Fm, 9800)->name, QStringLiteral("A B C"));
        QCOMPARE(stations.at(Band::Fm, 9800)->text.size(), 300);
        stations.load(written("FM,9900,M\xFCll,\n"));
        QCOMPARE(stations.at(Band::Fm, 9900)->name, QStringLiteral("Müll")); // Latin-1
    }

    void aFileThatCannotBeReadSaysWhy()
    {
        Stations stations;
        QSignalSpy problems(&stations, &Stations::problem);
        const QString pipe = m_folder.filePath(QStringLiteral("pipe"));
        mkfifo(QFile::encodeName(pipe).constData(), 0600);
        const QString empty = writtenFile(m_folder.filePath(QStringLiteral("empty")), "");
        const QString words = writtenFile(m_folder.filePath(QStringLiteral("words")), "Hello\n");
        for (const QString &path :
             {QStringLiteral("/no/such"), m_folder.path(), pipe, empty, words, QString()})
            QVERIFY(!stations.load(path));
        QCOMPARE(problems.count(), 6);
        QCOMPARE(problems.at(0).first().toString(), QStringLiteral("There is no file /no/such."));
        QCOMPARE(problems.at(1).first().toString(),
                 m_folder.path() + QStringLiteral(" is a folder and not a file."));
        QCOMPARE(problems.at(2).first().toString(), pipe + QStringLiteral(" is no ordinary file."));
        QCOMPARE(problems.at(3).first().toString(), empty + QStringLiteral(" is empty."));
        QCOMPARE(problems.at(4).first().toString(), words + QStringLiteral(" has no stations."));
    }

    void aHugeFileIsBounded()
    {
        Stations stations;
        QByteArray broken;
        while (broken.size() < 40 * 1024 * 1024)
            broken += "FM,9801,Name of a station,And its text that goes on for a while\n";
        const QString problem = problemOf(stations, "FM,9800,A,\n" + broken);
        QVERIFY(problem.endsWith(
            QStringLiteral("stations.csv is too long: only the first 1 stations are taken.")));
        QCOMPARE(stations.of(Band::Fm).size(), 1);
    }

    void anythingIsReadWithoutHarm()
    {
        Stations stations;
        QRandomGenerator random(1);
        for (int i = 0; i < 200; ++i) {
            QByteArray bytes = kFile;
            for (int k = 0; k < 20; ++k)
                bytes[random.bounded(bytes.size())] = char(random.bounded(256));
            stations.load(written(bytes));
            for (const Band band : {Band::Fm, Band::Am}) {
                for (const Station &station : stations.of(band))
                    QVERIFY(!station.name.isEmpty());
            }
        }
    }

    void aStationIsHeardOnItsFrequencyOnly()
    {
        Stations stations;
        stations.load(written(kFile));
        QSettings settings(settingsFile(), QSettings::IniFormat);
        settings.clear();
        Tuner tuner(&stations, &settings);
        QCOMPARE(tuner.frequency(), 8750); // nothing is stored: the first station
        QCOMPARE(tuner.stationName(), QStringLiteral("Low"));
        QSignalSpy frequencies(&tuner, &Tuner::frequencyChanged);
        QSignalSpy heard(&tuner, &Tuner::stationChanged);
        tuner.setFrequency(9804);
        QCOMPARE(tuner.frequency(), 9800);
        QCOMPARE(tuner.radioText(), QStringLiteral("One, two"));
        QCOMPARE(tuner.frequencyText(), QStringLiteral("98.0"));
        tuner.stepUp();
        QCOMPARE(tuner.frequency(), 9810);
        QCOMPARE(tuner.stationName(), QString());
        QCOMPARE(tuner.radioText(), QString());
        tuner.setFrequency(9810);
        QCOMPARE(frequencies.count(), 2);
        QCOMPARE(heard.count(), 2);
    }

    void frequenciesStayOnTheGridOfTheBand()
    {
        Stations stations;
        QSettings settings(settingsFile(), QSettings::IniFormat);
        settings.clear();
        Tuner tuner(&stations, &settings);
        tuner.setFrequency(std::numeric_limits<int>::max());
        QCOMPARE(tuner.frequency(), 10800);
        tuner.stepUp();
        QCOMPARE(tuner.frequency(), 8750);
        tuner.stepDown();
        QCOMPARE(tuner.frequency(), 10800);
        tuner.setBand(Band::Am);
        tuner.setFrequency(std::numeric_limits<int>::min());
        QCOMPARE(tuner.frequency(), 522);
        QCOMPARE(tuner.frequencyText(), QStringLiteral("522"));
        QCOMPARE(tuner.unitText(), QStringLiteral("kHz"));
        tuner.setFrequency(1000);
        QCOMPARE(tuner.frequency(), 999);
        tuner.setFrequency(1619);
        QCOMPARE(tuner.frequency(), 1620);
        tuner.setBand(static_cast<Band>(5));
        QCOMPARE(tuner.band(), Band::Am);
    }

    void seekGoesRoundAtTheEndsOfTheBand()
    {
        Stations stations;
        stations.load(written(kFile));
        QSettings settings(settingsFile(), QSettings::IniFormat);
        settings.clear();
        Tuner tuner(&stations, &settings);
        tuner.setFrequency(9000);
        QVector<int> visited;
        for (int i = 0; i < 4; ++i) {
            tuner.seekUp();
            visited.append(tuner.frequency());
        }
        for (int i = 0; i < 4; ++i) {
            tuner.seekDown();
            visited.append(tuner.frequency());
        }
        QCOMPARE(visited, QVector<int>({9800, 10800, 8750, 9800, 8750, 10800, 9800, 8750}));
    }

    void scanStaysThreeSecondsOnEachStation()
    {
        Stations stations;
        stations.load(written(kFile));
        QSettings settings(settingsFile(), QSettings::IniFormat);
        settings.clear();
        Tuner tuner(&stations, &settings);
        QSignalSpy scans(&tuner, &Tuner::scanningChanged);
        tuner.setScanning(true);
        QCOMPARE(tuner.frequency(), 9800);
        virtualtime::advance(2999);
        QCOMPARE(tuner.frequency(), 9800);
        virtualtime::advance(1);
        QCOMPARE(tuner.frequency(), 10800);
        virtualtime::advance(3000);
        QCOMPARE(tuner.frequency(), 8750);
        tuner.setScanning(false);
        virtualtime::advance(10000);
        QCOMPARE(tuner.frequency(), 8750);
        tuner.setScanning(true);
        tuner.setFrequency(9000);
        QVERIFY(!tuner.isScanning());
        QCOMPARE(scans.count(), 4);
    }

    void withoutStationsSeekStaysAndScanSaysSo()
    {
        Stations stations;
        QSettings settings(settingsFile(), QSettings::IniFormat);
        settings.clear();
        Tuner tuner(&stations, &settings);
        QSignalSpy problems(&tuner, &Tuner::problem);
        tuner.seekUp();
        tuner.seekDown();
        QCOMPARE(tuner.frequency(), 8750);
        tuner.setScanning(true);
        QVERIFY(!tuner.isScanning());
        QCOMPARE(problems.count(), 1);
        QCOMPARE(tuner.preset(0), 0);
        tuner.recallPreset(0);
        QCOMPARE(tuner.frequency(), 8750);
    }

    void presetsPersistWithTheBandAndTheFrequencies()
    {
        Stations stations;
        stations.load(written(kFile));
        {
            QSettings settings(settingsFile(), QSettings::IniFormat);
            settings.clear();
            Tuner tuner(&stations, &settings);
            tuner.setFrequency(9330);
            tuner.storePreset(11);
            tuner.setFrequency(9800);
            tuner.setBand(Band::Am);
            tuner.setFrequency(1620);
            tuner.storePreset(0);
            tuner.storePreset(12);
            tuner.storePreset(-1);
        }
        QSettings settings(settingsFile(), QSettings::IniFormat);
        Tuner tuner(&stations, &settings);
        QCOMPARE(tuner.band(), Band::Am);
        QCOMPARE(tuner.frequency(), 1620);
        QCOMPARE(tuner.preset(0), 1620);
        QCOMPARE(tuner.preset(1), 1620); // never stored: the second station
        QCOMPARE(tuner.preset(2), 0);
        QCOMPARE(tuner.presetInUse(), 0);
        tuner.setBand(Band::Fm);
        QCOMPARE(tuner.frequency(), 9800);
        QCOMPARE(tuner.presetName(11), QStringLiteral("93.3"));
        QCOMPARE(tuner.presetName(1), QStringLiteral("Mid"));
        QCOMPARE(tuner.presetName(12), QString());
        tuner.recallPreset(11);
        QCOMPARE(tuner.frequency(), 9330);
        QCOMPARE(tuner.presetInUse(), 11);
    }

    void frequenciesAreWrittenWhenTheyRest()
    {
        Stations stations;
        stations.load(written(kFile));
        QSettings settings(settingsFile(), QSettings::IniFormat);
        settings.clear();
        Tuner tuner(&stations, &settings);
        for (int i = 0; i < 5; ++i) {
            tuner.stepUp();
            virtualtime::advance(500);
        }
        QVERIFY(!settings.contains(QStringLiteral("tuner/fm/frequency")));
        virtualtime::advance(500);
        QCOMPARE(settings.value(QStringLiteral("tuner/fm/frequency")).toInt(), 8800);
    }

    void settingsThatMakeNoSenseAreNotTaken()
    {
        Stations stations;
        stations.load(written(kFile));
        QSettings settings(settingsFile(), QSettings::IniFormat);
        settings.clear();
        settings.setValue(QStringLiteral("tuner/band"), QStringLiteral("LW"));
        settings.setValue(QStringLiteral("tuner/fm/frequency"), 9803);
        settings.setValue(QStringLiteral("tuner/am/frequency"), QStringLiteral("loud"));
        settings.setValue(QStringLiteral("tuner/fm/preset1"), 77777);
        settings.setValue(QStringLiteral("tuner/fm/preset2"), QByteArray("\xff\0", 2));
        Tuner tuner(&stations, &settings);
        QCOMPARE(tuner.band(), Band::Fm);
        QCOMPARE(tuner.frequency(), 8750);
        QCOMPARE(tuner.preset(0), 8750);
        QCOMPARE(tuner.preset(1), 9800);
        tuner.setBand(Band::Am);
        QCOMPARE(tuner.frequency(), 522);
    }

    void otherStationsAreHeardAtOnce()
    {
        Stations stations;
        stations.load(written(kFile));
        QSettings settings(settingsFile(), QSettings::IniFormat);
        settings.clear();
        Tuner tuner(&stations, &settings);
        tuner.setScanning(true);
        QSignalSpy heard(&tuner, &Tuner::stationChanged);
        stations.load(written("AM,522,Deep,\n"));
        QCOMPARE(tuner.stationName(), QString());
        QCOMPARE(heard.count(), 1);
        QVERIFY(!tuner.isScanning());
    }
};

WIDGET_TEST_MAIN(tst_Tuner)

#include "tst_tuner.moc"
