// SPDX-License-Identifier: Apache-2.0
#include "feed.h"
#include "finger.h"
#include "mousewitness.h"
#include "touchlog.h"
#include "widgettest.h"

#include <QDialog>
#include <QDir>
#include <QTemporaryDir>
#include <QWindow>

#include <csignal>
#include <sys/resource.h>

namespace
{

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// Lets no file grow beyond this many bytes while it exists.
class SmallDisk
{
public:
    explicit SmallDisk(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit limit = {bytes, m_limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SmallDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY(SmallDisk)

private:
    void (*m_handler)(int);
    rlimit m_limit;
};

} // namespace

class TouchLogTest : public WidgetTest
{
    Q_OBJECT

private:
    /// What is recorded of an action on a shown window of 300 x 200, after the head.
    static QByteArray recorded(const std::function<void(QWidget &window)> &action);

private slots:
    void headNamesVersionAndWindowSize();
    void touchIsRecordedOnceAndAsATouch();
    void mouseIsRecordedWithItsButtons();
    void secondPressOfADoubleClickIsAPress();
    void fingersOfOneReportHaveALineEach();
    void fingerHasTheLowestFreeNumber();
    void positionsAreThoseOfTheWindow();
    void eventsOfTheProgramItselfAreLeftOut();
    void lineIsThereBeforeItsTouchHasAnEffect();
    void menuAndDialogBelongToTheWindow();
    void otherWindowIsLeftOut();
    void lostReleaseIsMadeUpFor();
    void touchBegunBeforeTheRecordingIsLeftOut();
    void touchCalledOffIsLifted();
    void sizeFoundBeforeTheFirstTouchStandsInTheHead();
    void laterSizeEndsTheRecording();
    void startBeginsTheFileAnew();
    void unwritableFileGivesASentence_data();
    void unwritableFileGivesASentence();
    void fullDiskGivesOneSentence();
    void fullDiskLeavesNoHalfLine();
    void logOfADeletedWindowIsSilent();
};

QByteArray TouchLogTest::recorded(const std::function<void(QWidget &)> &action)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("touches"));
    QWidget window;
    window.resize(300, 200);
    show(window);
    TouchLog log(window);
    log.start(path);
    action(window);
    const QByteArray lines = contents(path);
    return lines.mid(lines.indexOf('\n') + 1);
}

void TouchLogTest::headNamesVersionAndWindowSize()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("touches"));
    QWidget window;
    window.resize(300, 200);
    TouchLog log(window);
    QVERIFY(!log.isRecording());
    QVERIFY(log.start(path));
    QVERIFY(log.isRecording());
    QCOMPARE(contents(path), QByteArray("panelkit-touches 1 300x200\n"));
}

void TouchLogTest::touchIsRecordedOnceAndAsATouch()
{
    const QByteArray lines = recorded([](QWidget &window) {
        Finger(&window).hold(100).press({10, 20}).moveTo({70, 50}, 32).hold(68).release();
    });
    QCOMPARE(lines,
             QByteArray("100 touch-press 1 10 20\n"
                        "116 touch-move 1 40 35\n"
                        "132 touch-move 1 70 50\n"
                        "200 touch-release 1 70 50\n"));
}

void TouchLogTest::mouseIsRecordedWithItsButtons()
{
    const QByteArray lines = recorded([](QWidget &window) {
        QWindow &target = *window.windowHandle();
        const Qt::MouseButtons both = Qt::LeftButton | Qt::RightButton;
        feed::mouse(target, QEvent::MouseMove, {5, 6}, Qt::NoButton, {});
        feed::mouse(target, QEvent::MouseButtonPress, {5, 6}, Qt::LeftButton, Qt::LeftButton);
        virtualtime::advance(30);
        feed::mouse(target, QEvent::MouseButtonPress, {5, 6}, Qt::RightButton, both);
        feed::mouse(target, QEvent::MouseMove, {7.5, 6}, Qt::NoButton, both);
        feed::mouse(target, QEvent::MouseButtonRelease, {7.5, 6}, Qt::LeftButton, Qt::RightButton);
        feed::mouse(target, QEvent::MouseButtonRelease, {7.5, 6}, Qt::RightButton, {});
    });
    QCOMPARE(lines,
             QByteArray("0 mouse-move 0 5 6\n"
                        "0 mouse-press 1 5 6\n"
                        "30 mouse-press 2 5 6\n"
                        "30 mouse-move 0 7.5 6\n"
                        "30 mouse-release 1 7.5 6\n"
                        "30 mouse-release 2 7.5 6\n"));
}

void TouchLogTest::secondPressOfADoubleClickIsAPress()
{
    const QByteArray lines = recorded([](QWidget &window) {
        QWindow &target = *window.windowHandle();
        feed::mouse(target, QEvent::MouseMove, {5, 7}, Qt::NoButton, {});
        for (int click = 0; click < 2; ++click) {
            feed::mouse(target, QEvent::MouseButtonPress, {5, 7}, Qt::LeftButton, Qt::LeftButton);
            feed::mouse(target, QEvent::MouseButtonRelease, {5, 7}, Qt::LeftButton, {});
        }
    });
    QCOMPARE(lines,
             QByteArray("0 mouse-move 0 5 7\n"
                        "0 mouse-press 1 5 7\n"
                        "0 mouse-release 1 5 7\n"
                        "0 mouse-press 1 5 7\n"
                        "0 mouse-release 1 5 7\n"));
}

void TouchLogTest::fingersOfOneReportHaveALineEach()
{
    const QByteArray lines = recorded([](QWidget &window) {
        QWindow &target = *window.windowHandle();
        feed::touch(target, {{1, Qt::TouchPointPressed, {1, 2}}});
        feed::touch(target,
                    {{1, Qt::TouchPointStationary, {1, 2}}, {2, Qt::TouchPointPressed, {3, 4}}});
        feed::touch(target, {{1, Qt::TouchPointMoved, {5, 6}}, {2, Qt::TouchPointMoved, {7, 8}}});
        feed::touch(target,
                    {{1, Qt::TouchPointReleased, {5, 6}}, {2, Qt::TouchPointReleased, {7, 8}}});
    });
    QCOMPARE(lines,
             QByteArray("0 touch-press 1 1 2\n"
                        "0 touch-press 2 3 4\n"
                        "0 touch-move 1 5 6\n"
                        "0 touch-move 2 7 8\n"
                        "0 touch-release 1 5 6\n"
                        "0 touch-release 2 7 8\n"));
}

void TouchLogTest::fingerHasTheLowestFreeNumber()
{
    const QByteArray lines = recorded([](QWidget &window) {
        QWindow &target = *window.windowHandle();
        feed::touch(target, {{8, Qt::TouchPointPressed, {1, 2}}});
        feed::touch(target,
                    {{8, Qt::TouchPointStationary, {1, 2}}, {5, Qt::TouchPointPressed, {3, 4}}});
        feed::touch(target,
                    {{8, Qt::TouchPointReleased, {1, 2}}, {5, Qt::TouchPointStationary, {3, 4}}});
        feed::touch(target,
                    {{6, Qt::TouchPointPressed, {5, 6}}, {5, Qt::TouchPointStationary, {3, 4}}});
        feed::touch(target,
                    {{6, Qt::TouchPointReleased, {5, 6}}, {5, Qt::TouchPointReleased, {3, 4}}});
    });
    QCOMPARE(lines,
             QByteArray("0 touch-press 1 1 2\n"
                        "0 touch-press 2 3 4\n"
                        "0 touch-release 1 1 2\n"
                        "0 touch-press 1 5 6\n"
                        "0 touch-release 1 5 6\n"
                        "0 touch-release 2 3 4\n"));
}

void TouchLogTest::positionsAreThoseOfTheWindow()
{
    const QByteArray lines = recorded([](QWidget &window) {
        window.move(70, 40);
        QWidget child(&window);
        child.setGeometry(100, 50, 100, 100);
        child.show();
        Finger(&child).press({1, 2}).moveTo({-500, 2}).release();
    });
    QCOMPARE(lines,
             QByteArray("0 touch-press 1 101 52\n"
                        "0 touch-move 1 -400 52\n"
                        "0 touch-release 1 -400 52\n"));
}

void TouchLogTest::eventsOfTheProgramItselfAreLeftOut()
{
    const QByteArray lines = recorded([](QWidget &window) {
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 2), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &press);
        QCoreApplication::sendEvent(window.windowHandle(), &press);
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 2), Qt::LeftButton, {},
                            Qt::NoModifier);
        QCoreApplication::sendEvent(window.windowHandle(), &release);
    });
    QCOMPARE(lines, QByteArray());
}

void TouchLogTest::lineIsThereBeforeItsTouchHasAnEffect()
{
    class Reading : public QWidget
    {
    public:
        QString path;
        QByteArray seen;

    protected:
        void mousePressEvent(QMouseEvent *) override { seen = contents(path); }
    };
    const QTemporaryDir directory;
    Reading window;
    window.resize(300, 200);
    window.path = directory.filePath(QStringLiteral("touches"));
    show(window);
    TouchLog log(window);
    QVERIFY(log.start(window.path));
    Finger(&window).press({10, 20}).release();
    QCOMPARE(window.seen, QByteArray("panelkit-touches 1 300x200\n0 touch-press 1 10 20\n"));
}

void TouchLogTest::menuAndDialogBelongToTheWindow()
{
    const QByteArray lines = recorded([](QWidget &window) {
        QWidget menu(&window, Qt::Popup);
        menu.setGeometry(QRect(window.mapToGlobal(QPoint(50, 60)), QSize(100, 100)));
        show(menu);
        Finger(&menu).press({1, 2}).release();
        menu.hide();
        QDialog dialog(&window);
        dialog.setModal(true);
        dialog.setGeometry(QRect(window.mapToGlobal(QPoint(70, 80)), QSize(100, 100)));
        show(dialog);
        Finger(&dialog).press({1, 2}).release();
    });
    QCOMPARE(lines,
             QByteArray("0 touch-press 1 51 62\n"
                        "0 touch-release 1 51 62\n"
                        "0 touch-press 1 71 82\n"
                        "0 touch-release 1 71 82\n"));
    takeMessages(); // the offscreen platform's, which has no menus
}

void TouchLogTest::otherWindowIsLeftOut()
{
    const QByteArray lines = recorded([](QWidget &) {
        QWidget other;
        other.resize(100, 100);
        show(other);
        Finger(&other).press({1, 2}).release();
    });
    QCOMPARE(lines, QByteArray());
}

void TouchLogTest::lostReleaseIsMadeUpFor()
{
    const QByteArray lines = recorded([](QWidget &window) {
        QWindow &target = *window.windowHandle();
        feed::mouse(target, QEvent::MouseMove, {5, 8}, Qt::NoButton, {});
        feed::mouse(target, QEvent::MouseButtonPress, {5, 8}, Qt::LeftButton, Qt::LeftButton);
        feed::mouse(target, QEvent::MouseMove, {9, 9}, Qt::NoButton, {});
        feed::mouse(target, QEvent::MouseButtonPress, {9, 9}, Qt::LeftButton, Qt::LeftButton);
        feed::mouse(target, QEvent::MouseButtonRelease, {9, 9}, Qt::LeftButton, {});
    });
    QCOMPARE(lines,
             QByteArray("0 mouse-move 0 5 8\n"
                        "0 mouse-press 1 5 8\n"
                        "0 mouse-move 0 9 9\n"
                        "0 mouse-release 1 9 9\n"
                        "0 mouse-press 1 9 9\n"
                        "0 mouse-release 1 9 9\n"));
}

void TouchLogTest::touchBegunBeforeTheRecordingIsLeftOut()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("touches"));
    QWidget window;
    window.resize(300, 200);
    show(window);
    QWindow &target = *window.windowHandle();
    feed::mouse(target, QEvent::MouseMove, {5, 6}, Qt::NoButton, {});
    feed::mouse(target, QEvent::MouseButtonPress, {5, 6}, Qt::LeftButton, Qt::LeftButton);
    Finger finger(&window);
    finger.press({10, 20});
    TouchLog log(window);
    QVERIFY(log.start(path));
    finger.moveTo({30, 40}).release();
    feed::mouse(target, QEvent::MouseButtonRelease, {30, 40}, Qt::LeftButton, {});
    finger.press({50, 60}).release();
    QCOMPARE(contents(path),
             QByteArray("panelkit-touches 1 300x200\n"
                        "0 touch-press 1 50 60\n"
                        "0 touch-release 1 50 60\n"));
}

void TouchLogTest::touchCalledOffIsLifted()
{
    const QByteArray lines = recorded([](QWidget &window) {
        Finger finger(&window);
        finger.press({10, 20}).moveTo({30, 40});
        QTouchEvent cancel(QEvent::TouchCancel);
        QSpontaneKeyEvent::setSpontaneous(&cancel);
        QCoreApplication::instance()->notify(window.windowHandle(), &cancel);
        finger.moveTo({50, 60}).release();
    });
    QCOMPARE(lines,
             QByteArray("0 touch-press 1 10 20\n"
                        "0 touch-move 1 30 40\n"
                        "0 touch-release 1 30 40\n"));
}

void TouchLogTest::sizeFoundBeforeTheFirstTouchStandsInTheHead()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("touches"));
    QWidget window;
    window.resize(3000, 2000);
    show(window);
    TouchLog log(window);
    QVERIFY(log.start(path));
    window.resize(300, 200);
    Finger(&window).press({10, 20}).release();
    QCOMPARE(contents(path),
             QByteArray("panelkit-touches 1 300x200\n"
                        "0 touch-press 1 10 20\n"
                        "0 touch-release 1 10 20\n"));
}

void TouchLogTest::laterSizeEndsTheRecording()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("touches"));
    QWidget window;
    window.resize(300, 200);
    show(window);
    TouchLog log(window);
    QSignalSpy failed(&log, &TouchLog::failed);
    QVERIFY(log.start(path));
    Finger finger(&window);
    finger.press({10, 20});
    window.resize(300, 201);
    window.resize(300, 202);
    finger.release();
    QVERIFY(!log.isRecording());
    QCOMPARE(failed.size(), 1);
    QCOMPARE(failed.at(0).at(0).toString(),
             QStringLiteral("Touches are not recorded in %1: the window has another size now.")
                 .arg(path));
    QCOMPARE(contents(path), QByteArray("panelkit-touches 1 300x200\n0 touch-press 1 10 20\n"));
}

void TouchLogTest::startBeginsTheFileAnew()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("touches"));
    QWidget window;
    window.resize(300, 200);
    show(window);
    TouchLog log(window);
    QVERIFY(log.start(path));
    Finger finger(&window);
    finger.press({10, 20}).hold(5);
    QVERIFY(log.start(path));
    finger.release().press({30, 40}).release();
    QCOMPARE(contents(path),
             QByteArray("panelkit-touches 1 300x200\n"
                        "0 touch-press 1 30 40\n"
                        "0 touch-release 1 30 40\n"));
}

void TouchLogTest::unwritableFileGivesASentence_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no such folder") << "/nowhere/touches";
    QTest::newRow("a folder") << "/tmp";
    QTest::newRow("no name") << "";
    QTest::newRow("full disk") << "/dev/full";
}

void TouchLogTest::unwritableFileGivesASentence()
{
    QFETCH(QString, path);
    QWidget window;
    TouchLog log(window);
    QSignalSpy failed(&log, &TouchLog::failed);
    QVERIFY(!log.start(path));
    QVERIFY(!log.isRecording());
    QCOMPARE(failed.size(), 1);
    const QString sentence = failed.at(0).at(0).toString();
    QVERIFY2(sentence.startsWith(QStringLiteral("Touches are not recorded in %1: ").arg(path)),
             qPrintable(sentence));
    takeMessages(); // Qt's own, of a file without a name
}

void TouchLogTest::fullDiskGivesOneSentence()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("touches"));
    QWidget window;
    window.resize(300, 200);
    show(window);
    TouchLog log(window);
    QSignalSpy failed(&log, &TouchLog::failed);
    QVERIFY(log.start(path));
    {
        const SmallDisk disk(49); // for the head and one touch
        Finger(&window).press({10, 20}).moveTo({30, 20}).moveTo({50, 20}).release();
    }
    QCOMPARE(failed.size(), 1);
    QVERIFY(failed.at(0).at(0).toString().startsWith(
        QStringLiteral("Touches are not recorded in %1: ").arg(path)));
    QVERIFY(!log.isRecording());
    QCOMPARE(contents(path), QByteArray("panelkit-touches 1 300x200\n0 touch-press 1 10 20\n"));
}

void TouchLogTest::fullDiskLeavesNoHalfLine()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("touches"));
    QWidget window;
    window.resize(300, 200);
    show(window);
    TouchLog log(window);
    QSignalSpy failed(&log, &TouchLog::failed);
    QVERIFY(log.start(path));
    {
        const SmallDisk disk(60); // for the head, one touch and half of another
        Finger(&window).press({10, 20}).moveTo({30, 20}).release();
    }
    QCOMPARE(failed.at(0).at(0).toString(),
             QStringLiteral("Touches are not recorded in %1: the disk is full.").arg(path));
    QCOMPARE(contents(path), QByteArray("panelkit-touches 1 300x200\n0 touch-press 1 10 20\n"));
}

void TouchLogTest::logOfADeletedWindowIsSilent()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("touches"));
    auto *window = new QWidget;
    window->resize(300, 200);
    show(*window);
    TouchLog log(*window);
    QVERIFY(log.start(path));
    delete window;
    QWidget other;
    show(other);
    Finger(&other).press({10, 20}).release();
    QCOMPARE(contents(path), QByteArray("panelkit-touches 1 300x200\n"));
}

WIDGET_TEST_MAIN(TouchLogTest)
#include "tst_touchlog.moc"
