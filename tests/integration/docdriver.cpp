// SPDX-License-Identifier: Apache-2.0
// Linked into each program that stands in the documentation: lets it show its window, touches it as
// the page says, and ends it. The program is right if it comes here, returns from its event loop,
// and has said what the page says that it does.

#include "finger.h"
#include "virtualtime.h"

#include <QApplication>
#include <QFile>
#include <QThread>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cstdio>

namespace
{

QStringList heard;

// Programs speak by qInfo(); Qt and the widgets have other ways.
void hear(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    if (type == QtInfoMsg)
        heard += message.split(QLatin1Char('\n'));
}

// What the page says beside its program, in the file of this ending; null without one.
QString besideProgram(const char *ending)
{
    QFile file(qEnvironmentVariable("PANELKIT_DOC_PROGRAM") + QLatin1String(ending));
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll())
                                                            : QString();
}

QWidget *widgetOf(const QString &name)
{
    const QWidgetList widgets = QApplication::allWidgets();
    const auto found = std::find_if(widgets.begin(), widgets.end(), [&](const QWidget *widget) {
        return widget->objectName() == name && widget->isVisible();
    });
    return found == widgets.end() ? nullptr : *found;
}

// "120,40", or the middle of the widget where nothing is said.
QPoint pointOf(const QString &text, const QWidget &widget)
{
    const QStringList numbers = text.split(QLatin1Char(','));
    return numbers.size() == 2 ? QPoint(numbers[0].toInt(), numbers[1].toInt())
                               : widget.rect().center();
}

// "tap <name> [x,y]", "hold <name> <ms>", "drag <name> <x,y> <x,y> <ms>", "wait <ms>"
bool touch(const QStringList &words)
{
    if (words.value(0) == QLatin1String("wait")) {
        Finger(nullptr).hold(words.value(1).toInt());
        return true;
    }
    QWidget *const widget = widgetOf(words.value(1));
    if (!widget)
        return false;
    Finger finger(widget);
    if (words[0] == QLatin1String("tap"))
        finger.press(pointOf(words.value(2), *widget)).hold(60).release();
    else if (words[0] == QLatin1String("hold"))
        finger.press().hold(words.value(2).toInt()).release();
    else if (words[0] == QLatin1String("drag"))
        finger.press(pointOf(words.value(2), *widget))
            .moveTo(pointOf(words.value(3), *widget), words.value(4).toInt())
            .release();
    else
        return false;
    finger.hold(100); // what a list reports, it reports a little later
    return true;
}

int look()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    if (std::none_of(windows.begin(), windows.end(),
                     [](const QWidget *window) { return window->isVisible(); })) {
        std::puts("shows nothing");
        return 1;
    }
    const QStringList touches =
        besideProgram(".touches").split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString &step : touches) {
        if (!touch(step.split(QLatin1Char(' '), Qt::SkipEmptyParts))) {
            std::printf("cannot %s\n", qPrintable(step));
            return 1;
        }
    }
    const QString expected = besideProgram(".says");
    if (!expected.isNull() && heard.join(QLatin1Char('\n')) != expected.trimmed()) {
        std::printf("was to say:\n%s\n", qPrintable(expected));
        return 1;
    }
    return 0;
}

// A program that processes events by itself is not yet in its event loop.
void drive()
{
    if (QThread::currentThread()->loopLevel() == 0)
        QTimer::singleShot(0, qApp, drive);
    else
        QApplication::exit(look());
}

void startDriver()
{
    virtualtime::start();
    qInstallMessageHandler(hear);
    QTimer::singleShot(0, qApp, drive);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startDriver)
