// SPDX-License-Identifier: Apache-2.0
#include "tourlog.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QDial>
#include <QTemporaryDir>

#include <optional>

class TourLogTest : public WidgetTest
{
    Q_OBJECT

private:
    static QStringList lines(const QTemporaryDir &directory)
    {
        QFile file(directory.filePath(QStringLiteral("signals.log")));
        file.open(QIODevice::ReadOnly);
        return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    }

private slots:
    void signalIsWrittenWithStepTimeAndName();
    void noteIsWrittenAndIsNoSignal();
    void outsideOfStepsNothingIsWritten();
    void signalsAreCountedByStep();
    void signalsOfBaseClassesAreNotHeard();
    void deletedSubjectIsForgotten();
    void pictureIsNamedAfterItsStep();
    void pictureMayHaveANameOfItsOwn();
    void failedCheckFailsTheTour();
    void unwritableDirectoryFailsTheTour();
    void fullDiskFailsTheTour();
    void blankPictureIsOneOfOneColour();
};

void TourLogTest::signalIsWrittenWithStepTimeAndName()
{
    const QTemporaryDir directory;
    TourLog log(directory.path());
    QDial dial;
    log.listenTo(&dial, QStringLiteral("volume"));
    log.step(QStringLiteral("louder"));
    virtualtime::advance(120);
    dial.setValue(7);
    QCOMPARE(log.conclude(), 0);
    QCOMPARE(lines(directory), QStringList({"louder\t120 ms\tvolume\tvalueChanged(7)", ""}));
}

void TourLogTest::noteIsWrittenAndIsNoSignal()
{
    const QTemporaryDir directory;
    TourLog log(directory.path());
    log.step(QStringLiteral("louder"));
    log.addNote(QStringLiteral("volume"), QStringLiteral("beep"));
    QCOMPARE(log.signalsOfStep(), 0);
    log.addSignal(QStringLiteral("volume"), QStringLiteral("muted()"));
    QCOMPARE(log.signalsOfStep(), 1);
    QCOMPARE(log.conclude(), 0);
    QCOMPARE(lines(directory),
             QStringList({"louder\t0 ms\tvolume\tbeep", "louder\t0 ms\tvolume\tmuted()", ""}));
}

void TourLogTest::outsideOfStepsNothingIsWritten()
{
    const QTemporaryDir directory;
    TourLog log(directory.path());
    QDial dial;
    log.listenTo(&dial, QStringLiteral("volume"));
    dial.setValue(1);
    log.step(QStringLiteral("louder"));
    log.endStep();
    dial.setValue(2);
    log.addNote(QStringLiteral("volume"), QStringLiteral("beep"));
    QCOMPARE(log.signalsOfStep(), 0);
    QCOMPARE(log.conclude(), 0);
    QCOMPARE(lines(directory), QStringList({""}));
}

void TourLogTest::signalsAreCountedByStep()
{
    const QTemporaryDir directory;
    TourLog log(directory.path());
    QDial dial;
    log.listenTo(&dial, QStringLiteral("volume"));
    log.step(QStringLiteral("louder"));
    dial.setValue(1);
    dial.setValue(2);
    QCOMPARE(log.signalsOfStep(), 2);
    log.step(QStringLiteral("louder still"));
    QCOMPARE(log.signalsOfStep(), 0);
    QCOMPARE(log.conclude(), 0);
}

void TourLogTest::signalsOfBaseClassesAreNotHeard()
{
    const QTemporaryDir directory;
    TourLog log(directory.path());
    QDial dial;
    log.listenTo(&dial, QStringLiteral("volume"));
    log.step(QStringLiteral("louder"));
    dial.setObjectName(QStringLiteral("dial"));
    dial.setWindowTitle(QStringLiteral("dial"));
    QCOMPARE(log.signalsOfStep(), 0);
    QCOMPARE(log.conclude(), 0);
}

void TourLogTest::deletedSubjectIsForgotten()
{
    const QTemporaryDir directory;
    TourLog log(directory.path());
    log.step(QStringLiteral("louder"));
    std::optional<QDial> dial; // the second one is where the first one was
    dial.emplace();
    log.listenTo(&*dial, QStringLiteral("volume"));
    dial->setValue(1);
    dial.emplace();
    log.listenTo(&*dial, QStringLiteral("other"));
    dial->setValue(2);
    QCOMPARE(log.conclude(), 0);
    QCOMPARE(lines(directory),
             QStringList({"louder\t0 ms\tvolume\tvalueChanged(1)",
                          "louder\t0 ms\tother\tvalueChanged(2)", ""}));
}

void TourLogTest::pictureIsNamedAfterItsStep()
{
    const QTemporaryDir directory;
    TourLog log(directory.path());
    QImage picture(2, 1, QImage::Format_RGB32);
    picture.fill(Qt::red);
    log.step(QStringLiteral("volume louder"));
    log.save(picture);
    log.step(QStringLiteral("muted"));
    log.save(picture);
    QCOMPARE(log.conclude(), 0);
    QCOMPARE(QImage(directory.filePath(QStringLiteral("01-volume-louder.png"))), picture);
    QCOMPARE(QImage(directory.filePath(QStringLiteral("02-muted.png"))), picture);
}

void TourLogTest::pictureMayHaveANameOfItsOwn()
{
    const QTemporaryDir directory;
    TourLog log(directory.path());
    QImage picture(2, 1, QImage::Format_RGB32);
    picture.fill(Qt::red);
    log.save(picture, QStringLiteral("window.png"));
    QCOMPARE(log.conclude(), 0);
    QCOMPARE(QImage(directory.filePath(QStringLiteral("window.png"))), picture);
}

void TourLogTest::failedCheckFailsTheTour()
{
    const QTemporaryDir directory;
    TourLog log(directory.path());
    log.check(true, QStringLiteral("This holds."));
    QCOMPARE(log.conclude(), 0);
    log.check(false, QStringLiteral("This does not."));
    QCOMPARE(log.conclude(), 1);
}

void TourLogTest::unwritableDirectoryFailsTheTour()
{
    TourLog log(QDir(QStringLiteral("/proc/tour")));
    log.step(QStringLiteral("louder"));
    log.addSignal(QStringLiteral("volume"), QStringLiteral("muted()"));
    QCOMPARE(log.conclude(), 1);
    takeMessages(); // Qt's own, of the closed file
}

void TourLogTest::fullDiskFailsTheTour()
{
    const QTemporaryDir directory;
    QVERIFY(QFile::link(QStringLiteral("/dev/full"),
                        directory.filePath(QStringLiteral("signals.log"))));
    TourLog log(directory.path());
    log.step(QStringLiteral("louder"));
    for (int i = 0; i < 10000; ++i)
        log.addSignal(QStringLiteral("volume"), QStringLiteral("muted()"));
    QCOMPARE(log.conclude(), 1);
}

void TourLogTest::blankPictureIsOneOfOneColour()
{
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(TourLog::isBlank(picture));
    picture.setPixel(2, 1, qRgb(254, 0, 0));
    QVERIFY(!TourLog::isBlank(picture));
}

WIDGET_TEST_MAIN(TourLogTest)
#include "tst_tourlog.moc"
