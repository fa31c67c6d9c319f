// SPDX-License-Identifier: Apache-2.0
#include "files.h"
#include "widgettest.h"

#include <QProcess>
#include <QTemporaryDir>

/// The programs themselves, with the options of the command line and the true clock.
class TouchOptionsTest : public WidgetTest
{
    Q_OBJECT

private:
    struct Ending {
        int code;
        QString errors;
        QString lastLine() const { return errors.section(QLatin1Char('\n'), -2); }
    };
    Ending run(const QStringList &arguments, const QString &program = QStringLiteral(CATALOGUE))
    {
        QProcess process;
        process.start(program, arguments);
        process.waitForFinished(-1);
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
    }
    QString path(const QString &name) const { return m_directory.filePath(name); }
    static QList<QByteArray> lines(const QString &path)
    {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        return file.readAll().split('\n');
    }

    const QTemporaryDir m_directory;

private slots:
    void initTestCase() { qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_directory.path())); }
    void replayGivesTheSameLogWithTheTrueClock_data();
    void replayGivesTheSameLogWithTheTrueClock();
    void fileCanBeReplayedAndRecordedAnewAtOnce();
    void badFileEndsTheProgramWithASentence();
    void unwritableLogEndsTheProgramWithASentence();
};

namespace
{

const QByteArray kTouches = "panelkit-touches 1 1280x800\n"
                            "20 touch-press 1 600 300\n"
                            "36 touch-move 1 620 310\n"
                            "52 touch-move 1 640.5 320\n"
                            "150 touch-release 1 640.5 320\n"
                            "180 mouse-move 0 100 200\n"
                            "190 mouse-press 1 100 200\n"
                            "260 mouse-release 1 100 200\n";

/// The words after the time of each line, and the times apart.
QList<QByteArray> withoutTimes(const QList<QByteArray> &lines)
{
    QList<QByteArray> words;
    for (const QByteArray &line : lines.mid(1))
        words += line.mid(line.indexOf(' '));
    return words;
}

} // namespace

void TouchOptionsTest::replayGivesTheSameLogWithTheTrueClock_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QByteArray>("size");
    QTest::newRow("catalogue") << CATALOGUE << QByteArray("1280x800");
#ifdef HEADUNIT
    QTest::newRow("head unit") << HEADUNIT << QByteArray("1024x600");
#endif
}

// How late a line may come depends on what else the machine does; early it never is.
void TouchOptionsTest::replayGivesTheSameLogWithTheTrueClock()
{
    QFETCH(QString, program);
    QFETCH(QByteArray, size);
    const QString played =
        writtenFile(path(QStringLiteral("played")), QByteArray(kTouches).replace("1280x800", size));
    const QString log = path(QStringLiteral("log"));
    const Ending ending =
        run({QStringLiteral("--replay"), played, QStringLiteral("--touch-log"), log}, program);
    QVERIFY2(ending.code == 0, qPrintable(ending.errors));
    const QList<QByteArray> first = lines(played);
    const QList<QByteArray> second = lines(log);
    QCOMPARE(second.first(), first.first());
    QCOMPARE(withoutTimes(second), withoutTimes(first));
    for (int i = 1; i < first.size() - 1; ++i)
        QVERIFY(second.at(i).split(' ').first().toInt() >= first.at(i).split(' ').first().toInt());
}

// A recording has the finger by its lowest number.
void TouchOptionsTest::fileCanBeReplayedAndRecordedAnewAtOnce()
{
    QByteArray otherFinger = kTouches;
    otherFinger.replace("-press 1 600", "-press 7 600")
        .replace("-move 1 ", "-move 7 ")
        .replace("-release 1 640", "-release 7 640");
    const QString file = writtenFile(path(QStringLiteral("both")), otherFinger);
    const Ending ending =
        run({QStringLiteral("--replay"), file, QStringLiteral("--touch-log"), file});
    QVERIFY2(ending.code == 0, qPrintable(ending.errors));
    QCOMPARE(withoutTimes(lines(file)), withoutTimes(kTouches.split('\n')));
}

void TouchOptionsTest::badFileEndsTheProgramWithASentence()
{
    const QString file = writtenFile(path(QStringLiteral("bad")), "rubbish\n");
    const Ending ending = run({QStringLiteral("--replay"), file});
    QCOMPARE(ending.code, 1);
    QCOMPARE(ending.lastLine(),
             QStringLiteral("The touches in %1 are not played: line 1: this is not the head of a "
                            "touch log.\n")
                 .arg(file));
}

void TouchOptionsTest::unwritableLogEndsTheProgramWithASentence()
{
    const Ending ending = run({QStringLiteral("--touch-log"), QStringLiteral("/nowhere/touches")});
    QCOMPARE(ending.code, 1);
    QCOMPARE(ending.lastLine(),
             QStringLiteral(
                 "Touches are not recorded in /nowhere/touches: No such file or directory.\n"));
}

WIDGET_TEST_MAIN(TouchOptionsTest)
#include "tst_touchoptions.moc"
