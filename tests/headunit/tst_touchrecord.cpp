// SPDX-License-Identifier: Apache-2.0
#include "touchrecord.h"
#include "widgettest.h"

#include <QBuffer>

namespace
{

struct Outcome {
    TouchRecording recording;
    QString sentence;
};

Outcome read(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    Outcome outcome;
    outcome.recording = TouchRecording::read(buffer, &outcome.sentence);
    return outcome;
}

const QByteArray kHead = "panelkit-touches 1 300x200\n";

QByteArray written(const Outcome &outcome)
{
    QByteArray bytes = TouchRecording::head(outcome.recording.window);
    for (const TouchRecord &record : outcome.recording.records)
        bytes += record.line();
    return bytes;
}

} // namespace

class TouchRecordTest : public WidgetTest
{
    Q_OBJECT

private slots:
    void lineNamesTimeKindNumberAndPosition();
    void positionHasThreeDecimalsAtMost();
    void readingGivesWhatWasWritten();
    void emptyLogOfAWindowIsALog();
    void linesMayEndAsOnOtherSystems();
    void whatIsDownAtTheEndIsLifted();
    void badFileIsRefused_data();
    void badFileIsRefused();
    void refusedFileGivesNoRecords();
    void endlessLineIsRefusedAtOnce();
    void fingersHaveALimit();
};

void TouchRecordTest::lineNamesTimeKindNumberAndPosition()
{
    const TouchRecord record = {1234, TouchRecord::TouchMove, 2, QPointF(10, -20)};
    QCOMPARE(record.line(), QByteArray("1234 touch-move 2 10 -20\n"));
    QCOMPARE(TouchRecording::head({1024, 600}), QByteArray("panelkit-touches 1 1024x600\n"));
}

void TouchRecordTest::positionHasThreeDecimalsAtMost()
{
    const TouchRecord record = {0, TouchRecord::MouseMove, 0, QPointF(10.12345, -0.0001)};
    QCOMPARE(record.line(), QByteArray("0 mouse-move 0 10.123 0\n"));
}

void TouchRecordTest::readingGivesWhatWasWritten()
{
    const QByteArray log = kHead
        + "0 touch-press 1 10 20\n"
          "5 touch-press 2 30.5 -7.25\n"
          "5 touch-move 1 11 20\n"
          "9 touch-release 1 11 20\n"
          "9 touch-release 2 30.5 -7.25\n"
          "100 mouse-move 0 1 2\n"
          "110 mouse-press 1 1 2\n"
          "111 mouse-press 2 1 2\n"
          "120 mouse-release 1 1 2\n"
          "2147483647 mouse-release 2 1 2\n";
    const Outcome outcome = read(log);
    QCOMPARE(outcome.sentence, QString());
    QCOMPARE(outcome.recording.window, QSize(300, 200));
    QCOMPARE(outcome.recording.records.size(), 10);
    QCOMPARE(written(outcome), log);
}

void TouchRecordTest::emptyLogOfAWindowIsALog()
{
    const Outcome outcome = read(kHead);
    QCOMPARE(outcome.sentence, QString());
    QVERIFY(outcome.recording.records.isEmpty());
}

void TouchRecordTest::linesMayEndAsOnOtherSystems()
{
    QByteArray log = kHead + "0 mouse-move 0 10 20\n";
    log.replace("\n", "\r\n");
    QCOMPARE(read(log).recording.records.size(), 1);
}

void TouchRecordTest::whatIsDownAtTheEndIsLifted()
{
    const QByteArray log = kHead
        + "0 touch-press 1 10 20\n"
          "0 touch-press 7 40 20\n"
          "3 touch-move 7 41 20\n"
          "5 mouse-press 2 1 2\n"
          "8 mouse-move 0 3 4\n";
    const QByteArray lifted = "8 touch-release 1 10 20\n"
                              "8 touch-release 7 41 20\n"
                              "8 mouse-release 2 3 4\n";
    QCOMPARE(written(read(log)), log + lifted);
}

void TouchRecordTest::badFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("sentence");
    const auto head = [](const char *name, const QByteArray &bytes, const char *sentence) {
        QTest::newRow(name) << bytes << QStringLiteral("line 1: ") + QLatin1String(sentence);
    };
    const auto line = [](const char *name, const QByteArray &text, const char *sentence) {
        QTest::newRow(name) << kHead + "7 mouse-move 0 1 2\n" + text + '\n'
                            << QStringLiteral("line 3: ") + QLatin1String(sentence);
    };
    const char *noHead = "this is not the head of a touch log";
    head("empty", "", noHead);
    head("binary",
         QByteArray("\x7f"
                    "ELF\0\0\xff\xfe\n\n\0",
                    12),
         noHead);
    head("zeros", QByteArray(100000, '\0'), noHead);
    head("without head", "7 mouse-move 0 1 2\n", noHead);
    head("later version", "panelkit-touches 2 300x200\n",
         "this version of the format is not known");
    head("no size", "panelkit-touches 1 300\n", "this is not the size of a window");
    head("negative size", "panelkit-touches 1 -3x-4\n", "this is not the size of a window");
    head("huge size", "panelkit-touches 1 99999999999x2\n", "this is not the size of a window");
    head("three sides", "panelkit-touches 1 1x2x3\n", "this is not the size of a window");
    head("head cut off", "panelkit-touches 1 300x20", noHead);

    const char *words = "time, kind, number, x and y are expected";
    line("blank", "", words);
    line("word missing", "7 mouse-move 0 1", words);
    line("word more", "7 mouse-move 0 1 2 3", words);
    line("two blanks", "7  mouse-move 0 1 2", words);
    const char *time = "the time is not a number of ms from 0 to 2147483647";
    line("negative time", "-1 mouse-move 0 1 2", time);
    line("huge time", "2147483648 mouse-move 0 1 2", time);
    line("time beyond numbers", QByteArray(30, '9') + " mouse-move 0 1 2", time);
    line("no time", "now mouse-move 0 1 2", time);
    line("back in time", "6 mouse-move 0 1 2", "the time is before that of the line above");
    line("unknown kind", "7 mouse-jump 0 1 2", "there is no such kind of event");
    line("negative finger", "7 touch-press -1 1 2", "this is not the number of a finger");
    line("huge finger", "7 touch-press 4294967296 1 2", "this is not the number of a finger");
    const char *button = "this is not the number of a mouse button";
    line("no button", "7 mouse-press 0 1 2", button);
    line("two buttons", "7 mouse-press 3 1 2", button);
    line("negative button", "7 mouse-press -2147483648 1 2", button);
    line("huge button", "7 mouse-press 268435456 1 2", button);
    line("moving button", "7 mouse-move 1 1 2", button);
    for (const char *number : {"x", "nan", "inf", "-1e300", "16777216", "1,5"}) {
        line(number, QByteArray("7 mouse-move 0 ") + number + " 2", "this is not a position");
        line(number, QByteArray("7 mouse-move 0 1 ") + number, "this is not a position");
    }
    line("finger not down", "7 touch-move 1 1 2", "this finger is not down");
    line("finger lifted twice", "7 touch-release 1 1 2", "this finger is not down");
    line("button not down", "7 mouse-release 1 1 2", "this button is not down");
    QTest::newRow("finger down twice") << kHead + "0 touch-press 1 1 2\n0 touch-press 1 1 2\n"
                                       << "line 3: this finger is down already";
    QTest::newRow("button down twice") << kHead + "0 mouse-press 1 1 2\n0 mouse-press 1 1 2\n"
                                       << "line 3: this button is down already";
    QTest::newRow("cut off") << kHead + "0 mouse-move 0 10 2"
                             << "line 2: it is cut off";
}

void TouchRecordTest::badFileIsRefused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, sentence);
    QCOMPARE(read(bytes).sentence, sentence);
}

void TouchRecordTest::refusedFileGivesNoRecords()
{
    const Outcome outcome = read(kHead + "0 mouse-move 0 1 2\nrubbish\n");
    QVERIFY(outcome.recording.records.isEmpty());
    QVERIFY(!outcome.recording.window.isValid());
}

void TouchRecordTest::endlessLineIsRefusedAtOnce()
{
    QFile endless(QStringLiteral("/dev/zero"));
    QVERIFY(endless.open(QIODevice::ReadOnly));
    QString sentence;
    TouchRecording::read(endless, &sentence);
    QCOMPARE(sentence, QStringLiteral("line 1: this is not the head of a touch log"));
}

void TouchRecordTest::fingersHaveALimit()
{
    QByteArray log = kHead;
    for (int finger = 0; finger < 64; ++finger)
        log += "0 touch-press " + QByteArray::number(finger) + " 1 2\n";
    QCOMPARE(read(log).sentence, QString());
    QCOMPARE(read(log + "0 touch-press 64 1 2\n").sentence,
             QStringLiteral("line 66: these are too many fingers"));
}

WIDGET_TEST_MAIN(TouchRecordTest)
#include "tst_touchrecord.moc"
