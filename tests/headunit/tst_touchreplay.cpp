// SPDX-License-Identifier: Apache-2.0
#include "files.h"
#include "finger.h"
#include "mousewitness.h"
#include "touchlog.h"
#include "touchreplay.h"
#include "widgettest.h"

#include <QDialog>
#include <QTemporaryDir>
#include <QWindow>

class TouchReplayTest : public WidgetTest
{
    Q_OBJECT

private:
    /// The path of a log of a window of 300 x 200.
    QString file(const QByteArray &lines)
    {
        return writtenFile(m_directory.filePath(QStringLiteral("touches")),
                           "panelkit-touches 1 300x200\n" + lines);
    }
    /// What is recorded while such a log is played on a window of 300 x 200.
    QByteArray replayed(const QByteArray &lines);
    /// What is recorded of an action on such a window.
    QByteArray recorded(const std::function<void(QWidget &window)> &action);

    const QTemporaryDir m_directory;

private slots:
    void touchesComeAtTheirTimes();
    void mouseComesAsAMouse();
    void nothingHappensBeforeStart();
    void finishedComesOnceAfterTheLast();
    void emptyLogIsFinishedToo();
    void replayOfAPersonGivesTheSameLog();
    void replayOfAnyLogGivesTheSameLog_data();
    void replayOfAnyLogGivesTheSameLog();
    void replayOfRandomTouchesGivesTheSameLog();
    void widgetsGetTheSameFromAReplay();
    void fingersOfOneTimeAreReportedTogether();
    void stillFingersAreReportedToo();
    void unendedTouchIsLifted();
    void menuGetsItsTouches();
    void dialogGetsItsTouches();
    void replayGoesOnBehindADialogThatIsWaitedFor();
    void slotMayDeleteTheReplay();
    void windowMayBeDeleted();
    void canBePlayedTwice();
    void badFileIsRefusedWithItsLine();
    void missingFileIsRefused();
    void windowOfAnotherSizeIsRefused();
};

QByteArray TouchReplayTest::recorded(const std::function<void(QWidget &)> &action)
{
    const QString path = m_directory.filePath(QStringLiteral("recorded"));
    QWidget window;
    window.resize(300, 200);
    show(window);
    TouchLog log(window);
    log.start(path);
    action(window);
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    file.readLine();
    return file.readAll();
}

QByteArray TouchReplayTest::replayed(const QByteArray &lines)
{
    return recorded([&](QWidget &window) {
        TouchReplay replay(window);
        QSignalSpy finished(&replay, &TouchReplay::finished);
        if (!replay.load(file(lines)))
            return;
        replay.start();
        finished.wait(100000);
    });
}

void TouchReplayTest::touchesComeAtTheirTimes()
{
    MouseWitness window;
    window.resize(300, 200);
    show(window);
    TouchReplay replay(window);
    QVERIFY(replay.load(file("100 touch-press 1 10 20\n"
                             "116 touch-move 1 30 40\n"
                             "1500 touch-release 1 30 40\n")));
    window.take();
    replay.start();
    virtualtime::advance(2000);
    QCOMPARE(window.take(),
             QStringList({"press 10,20 at 100", "move 30,40 at 116", "release 30,40 at 1500"}));
}

void TouchReplayTest::mouseComesAsAMouse()
{
    MouseWitness window;
    window.resize(300, 200);
    window.setMouseTracking(true);
    show(window);
    TouchReplay replay(window);
    QVERIFY(replay.load(file("5 mouse-move 0 10 20\n"
                             "6 mouse-press 2 10 20\n"
                             "7 mouse-move 0 30 40\n"
                             "8 mouse-release 2 30 40\n")));
    window.take();
    replay.start();
    virtualtime::advance(10);
    QCOMPARE(window.take(),
             QStringList(
                 {"move 10,20 at 5", "press 10,20 at 6", "move 30,40 at 7", "release 30,40 at 8"}));
}

void TouchReplayTest::nothingHappensBeforeStart()
{
    MouseWitness window;
    window.resize(300, 200);
    show(window);
    TouchReplay replay(window);
    QSignalSpy finished(&replay, &TouchReplay::finished);
    QVERIFY(replay.load(file("0 touch-press 1 10 20\n")));
    virtualtime::advance(1000);
    QCOMPARE(window.take(), QStringList());
    QCOMPARE(finished.size(), 0);
}

void TouchReplayTest::finishedComesOnceAfterTheLast()
{
    MouseWitness window;
    window.resize(300, 200);
    show(window);
    TouchReplay replay(window);
    QStringList seen;
    QSignalSpy finished(&replay, &TouchReplay::finished);
    connect(&replay, &TouchReplay::finished, [&] { seen = window.take(); });
    QVERIFY(replay.load(file("0 touch-press 1 10 20\n50 touch-release 1 10 20\n")));
    replay.start();
    virtualtime::advance(49);
    QCOMPARE(finished.size(), 0);
    virtualtime::advance(1000);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(seen.size(), 2);
}

void TouchReplayTest::emptyLogIsFinishedToo()
{
    QWidget window;
    window.resize(300, 200);
    TouchReplay replay(window);
    QSignalSpy finished(&replay, &TouchReplay::finished);
    QVERIFY(replay.load(file("")));
    replay.start();
    QCOMPARE(finished.size(), 0);
    virtualtime::advance(0);
    QCOMPARE(finished.size(), 1);
}

void TouchReplayTest::replayOfAPersonGivesTheSameLog()
{
    const QByteArray log = recorded([](QWidget &window) {
        Finger(&window).hold(70).press({10, 20}).moveTo({200, 150}, 300).hold(700).release();
        Finger(&window).press().hold(80).release().hold(100).press().hold(80).release();
    });
    QCOMPARE(log.count('\n'), 24);
    QCOMPARE(replayed(log), log);
}

void TouchReplayTest::replayOfAnyLogGivesTheSameLog_data()
{
    QTest::addColumn<QByteArray>("log");
    QTest::newRow("parts of a pixel") << QByteArray("3 touch-press 1 10.1 20.7\n"
                                                    "4 touch-move 1 -10.333 199.999\n"
                                                    "4 touch-release 1 0.001 -0.5\n");
    QTest::newRow("a tap within 1 ms") << QByteArray("3 touch-press 1 10 20\n"
                                                     "3 touch-release 1 10 20\n"
                                                     "3 touch-press 1 10 20\n"
                                                     "3 touch-release 1 10 20\n");
    QTest::newRow("two moves within 1 ms") << QByteArray("3 touch-press 1 10 20\n"
                                                         "4 touch-move 1 11 20\n"
                                                         "4 touch-move 1 12 20\n"
                                                         "4 touch-release 1 12 20\n");
    QTest::newRow("two fingers") << QByteArray("3 touch-press 1 10 20\n"
                                               "5 touch-press 2 100 120\n"
                                               "9 touch-move 2 101 120\n"
                                               "9 touch-move 1 11 20\n"
                                               "12 touch-release 1 11 20\n"
                                               "13 touch-press 1 10 20\n"
                                               "14 touch-release 2 101 120\n"
                                               "14 touch-release 1 10 20\n");
    QTest::newRow("mouse and finger") << QByteArray("3 mouse-move 0 10 20\n"
                                                    "4 mouse-press 1 10 20\n"
                                                    "5 touch-press 1 50 60\n"
                                                    "6 mouse-move 0 11 20\n"
                                                    "7 touch-release 1 50 60\n"
                                                    "8 mouse-move 0 12 20\n"
                                                    "9 mouse-release 1 12 20\n");
    QTest::newRow("double click") << QByteArray("3 mouse-move 0 15 25\n"
                                                "4 mouse-press 1 15 25\n"
                                                "5 mouse-release 1 15 25\n"
                                                "6 mouse-press 1 15 25\n"
                                                "7 mouse-release 1 15 25\n");
    QTest::newRow("long pause") << QByteArray("3 touch-press 1 10 20\n"
                                              "90000 touch-release 1 10 20\n");
}

void TouchReplayTest::replayOfAnyLogGivesTheSameLog()
{
    QFETCH(QByteArray, log);
    QCOMPARE(replayed(log), log);
}

void TouchReplayTest::replayOfRandomTouchesGivesTheSameLog()
{
    QRandomGenerator random(20);
    QByteArray log;
    int time = 0;
    for (int touch = 0; touch < 500; ++touch) {
        const auto line = [&](const char *kind) {
            time += int(random.bounded(100));
            log += QByteArray::number(time) + kind + QByteArray::number(random.bounded(2999) / 10.0)
                + ' ' + QByteArray::number(random.bounded(1999) / 10.0) + '\n';
        };
        line(" touch-press 1 ");
        for (int moves = int(random.bounded(20)); moves > 0; --moves)
            line(" touch-move 1 ");
        line(" touch-release 1 ");
    }
    QVERIFY(time > 100000);
    recorded([&](QWidget &window) {
        TouchReplay replay(window);
        QSignalSpy finished(&replay, &TouchReplay::finished);
        QVERIFY(replay.load(file(log)));
        replay.start();
        QVERIFY(finished.wait(time + 1));
    });
    QFile file(m_directory.filePath(QStringLiteral("recorded")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    file.readLine();
    QCOMPARE(file.readAll(), log);
}

void TouchReplayTest::widgetsGetTheSameFromAReplay()
{
    MouseWitness window;
    window.resize(300, 200);
    show(window);
    TouchLog log(window);
    const QString path = m_directory.filePath(QStringLiteral("log"));
    QVERIFY(log.start(path));
    window.take();
    Finger finger(&window);
    finger.hold(40).press({10, 20}).moveTo({200, 150}, 200).release().hold(100);
    finger.press({200, 150}).hold(50).release().hold(50).press({200, 150}).release();
    const QStringList first = window.take();
    QCOMPARE(first.size(), 18);
    QVERIFY(first.at(16).startsWith(QStringLiteral("double")));

    virtualtime::advance(10000);
    TouchReplay replay(window);
    QVERIFY(replay.load(path));
    window.take();
    replay.start();
    virtualtime::advance(1000);
    QCOMPARE(window.take(), first);
}

namespace
{

/// What comes in at windows, a word for each report: the states of its points.
class Reports : public QObject
{
public:
    Reports() { qApp->installEventFilter(this); }
    QStringList words;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isTouch =
            event->type() >= QEvent::TouchBegin && event->type() <= QEvent::TouchEnd;
        if (watched->isWindowType() && isTouch) {
            QString word;
            for (const auto &point : static_cast<QTouchEvent *>(event)->touchPoints())
                word += QStringLiteral("%1%2")
                            .arg(letter(point.state()))
                            .arg(point.id() & 0xffffff); // without the screen
            words += word;
        }
        return false;
    }

private:
    static QChar letter(Qt::TouchPointState state)
    {
        return QLatin1Char(state == Qt::TouchPointPressed        ? 'p'
                               : state == Qt::TouchPointMoved    ? 'm'
                               : state == Qt::TouchPointReleased ? 'r'
                                                                 : 's');
    }
};

} // namespace

void TouchReplayTest::fingersOfOneTimeAreReportedTogether()
{
    const Reports reports;
    replayed("0 touch-press 1 10 20\n"
             "0 touch-press 2 30 20\n"
             "5 touch-move 1 10 21\n"
             "5 touch-move 2 30 21\n"
             "5 touch-move 1 10 22\n"
             "5 touch-release 1 10 22\n"
             "5 touch-release 2 30 21\n");
    QCOMPARE(reports.words, QStringList({"p1p2", "m1m2", "m1s2", "r1r2"}));
}

void TouchReplayTest::stillFingersAreReportedToo()
{
    const Reports reports;
    replayed("0 touch-press 1 10 20\n"
             "1 touch-press 2 30 20\n"
             "5 touch-move 2 30 21\n"
             "6 touch-release 2 30 21\n"
             "7 touch-release 1 10 20\n");
    QCOMPARE(reports.words, QStringList({"p1", "p2s1", "m2s1", "r2s1", "r1"}));
}

void TouchReplayTest::unendedTouchIsLifted()
{
    QCOMPARE(replayed("0 touch-press 1 10 20\n5 touch-move 1 11 20\n"),
             QByteArray("0 touch-press 1 10 20\n"
                        "5 touch-move 1 11 20\n"
                        "5 touch-release 1 11 20\n"));
}

void TouchReplayTest::menuGetsItsTouches()
{
    QWidget window;
    window.resize(300, 200);
    show(window);
    MouseWitness menu(&window, Qt::Popup);
    menu.setGeometry(QRect(window.mapToGlobal(QPoint(50, 60)), QSize(100, 100)));
    show(menu);
    TouchReplay replay(window);
    QVERIFY(replay.load(file("5 touch-press 1 51 62\n6 touch-release 1 51 62\n")));
    menu.take();
    replay.start();
    virtualtime::advance(10);
    QCOMPARE(menu.take(), QStringList({"press 1,2 at 5", "release 1,2 at 6"}));
    menu.hide();
    takeMessages(); // the offscreen platform's, which has no menus
}

void TouchReplayTest::dialogGetsItsTouches()
{
    QWidget window;
    window.resize(300, 200);
    show(window);
    QDialog dialog(&window);
    dialog.setModal(true);
    dialog.setGeometry(QRect(window.mapToGlobal(QPoint(50, 60)), QSize(100, 100)));
    MouseWitness content(&dialog);
    content.setGeometry(0, 0, 100, 100);
    show(dialog);
    TouchReplay replay(window);
    QVERIFY(replay.load(file("5 touch-press 1 51 62\n6 touch-release 1 51 62\n")));
    content.take();
    replay.start();
    virtualtime::advance(10);
    QCOMPARE(content.take(), QStringList({"press 1,2 at 5", "release 1,2 at 6"}));
}

void TouchReplayTest::replayGoesOnBehindADialogThatIsWaitedFor()
{
    class Asking : public QWidget
    {
    public:
        QStringList answers;

    protected:
        void mousePressEvent(QMouseEvent *) override
        {
            QDialog dialog(this);
            dialog.setGeometry(QRect(mapToGlobal(QPoint(50, 60)), QSize(100, 100)));
            MouseWitness content(&dialog);
            content.setGeometry(0, 0, 100, 100);
            QTimer::singleShot(100, &dialog, &QDialog::accept);
            content.take();
            dialog.exec();
            answers += content.take();
        }
    };
    Asking window;
    window.resize(300, 200);
    show(window);
    TouchReplay replay(window);
    QSignalSpy finished(&replay, &TouchReplay::finished);
    QVERIFY(replay.load(file("0 touch-press 1 10 20\n"
                             "5 touch-release 1 10 20\n"
                             "50 touch-press 1 51 62\n"
                             "60 touch-release 1 51 62\n")));
    replay.start();
    virtualtime::advance(1000);
    QCOMPARE(window.answers, QStringList({"press 1,2 at 50", "release 1,2 at 60"}));
    QCOMPARE(finished.size(), 1);
}

void TouchReplayTest::slotMayDeleteTheReplay()
{
    class Deleting : public QWidget
    {
    public:
        QPointer<TouchReplay> replay;

    protected:
        void mousePressEvent(QMouseEvent *) override { delete replay; }
    };
    Deleting window;
    window.resize(300, 200);
    show(window);
    for (const QByteArray kind : {"touch", "mouse"}) {
        window.replay = new TouchReplay(window);
        QVERIFY(window.replay->load(
            file("0 " + kind + "-press 1 10 20\n9 " + kind + "-release 1 10 20\n")));
        window.replay->start();
        virtualtime::advance(100);
        QVERIFY(!window.replay);
        replayed(kind == "mouse" ? "0 mouse-press 1 1 2\n" : "0 touch-press 1 1 2\n"); // lifts it
    }
}

void TouchReplayTest::windowMayBeDeleted()
{
    auto *window = new QWidget;
    window->resize(300, 200);
    show(*window);
    TouchReplay replay(*window);
    QSignalSpy finished(&replay, &TouchReplay::finished);
    QVERIFY(replay.load(file("5 touch-press 1 10 20\n9 touch-release 1 10 20\n")));
    replay.start();
    delete window;
    virtualtime::advance(100);
    QCOMPARE(finished.size(), 1);
}

void TouchReplayTest::canBePlayedTwice()
{
    MouseWitness window;
    window.resize(300, 200);
    show(window);
    TouchReplay replay(window);
    QVERIFY(replay.load(file("5 touch-press 1 10 20\n9 touch-release 1 10 20\n")));
    for (int time = 0; time < 2; ++time) {
        window.take();
        replay.start();
        virtualtime::advance(1000);
        QCOMPARE(window.take(), QStringList({"press 10,20 at 5", "release 10,20 at 9"}));
    }
}

void TouchReplayTest::badFileIsRefusedWithItsLine()
{
    QWidget window;
    window.resize(300, 200);
    TouchReplay replay(window);
    QSignalSpy failed(&replay, &TouchReplay::failed);
    const QString path = file("5 touch-press 1 10 20\n-9 touch-release 1 10 20\n");
    QVERIFY(!replay.load(path));
    QCOMPARE(failed.size(), 1);
    QCOMPARE(failed.at(0).at(0).toString(),
             QStringLiteral("The touches in %1 are not played: line 3: the time is not a number of "
                            "ms from 0 to 2147483647.")
                 .arg(path));
}

void TouchReplayTest::missingFileIsRefused()
{
    QWidget window;
    TouchReplay replay(window);
    QSignalSpy failed(&replay, &TouchReplay::failed);
    QVERIFY(!replay.load(QStringLiteral("/nowhere/touches")));
    QVERIFY(!replay.load(QStringLiteral("/tmp")));
    QCOMPARE(failed.size(), 2);
    QCOMPARE(failed.at(0).at(0).toString(),
             QStringLiteral(
                 "The touches in /nowhere/touches are not played: No such file or directory."));
}

void TouchReplayTest::windowOfAnotherSizeIsRefused()
{
    MouseWitness window;
    window.resize(300, 201);
    show(window);
    TouchReplay replay(window);
    QSignalSpy failed(&replay, &TouchReplay::failed);
    const QString path = file("5 touch-press 1 10 20\n");
    QVERIFY(!replay.load(path));
    QCOMPARE(failed.at(0).at(0).toString(),
             QStringLiteral("The touches in %1 are not played: they were made on a window of "
                            "300 x 200, and this one has 300 x 201.")
                 .arg(path));
    replay.start();
    virtualtime::advance(100);
    QCOMPARE(window.take(), QStringList());
}

WIDGET_TEST_MAIN(TouchReplayTest)
#include "tst_touchreplay.moc"
