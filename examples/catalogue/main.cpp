// SPDX-License-Identifier: Apache-2.0
#include "catalogue.h"
#include "clicksound.h"
#include "mainwindow.h"
#include "playlist.h"
#include "pressfeedback.h"
#include "theme.h"
#include "touchoptions.h"
#include "tour.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QMutex>
#include <QMutexLocker>

#include <algorithm>
#include <cstdio>

namespace
{

// Only the window needs a screen; without another choice nothing else looks for one. The platform
// is chosen before there is an application that could parse the command line.
void preferNoScreen(int argc, char *argv[])
{
    const bool isWithoutWindow = std::any_of(argv + 1, argv + argc, [](const char *argument) {
        const QByteArray option = QByteArray(argument).split('=').constFirst();
        return QByteArrayList{"--tour", "--list", "--help", "-h"}.contains(option);
    });
    if (isWithoutWindow && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

// What the log is written to instead of the console, up to the very end of the program.
QFile &logFile()
{
    static auto *const file = new QFile;
    return *file;
}

void writeToLogFile(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    static QMutex mutex; // sound and pictures are decoded in threads of their own
    const QMutexLocker locker(&mutex);
    logFile().write(qFormatLogMessage(type, context, message).toLocal8Bit() + '\n');
    logFile().flush();
}

bool redirectLog(const QString &path)
{
    logFile().setFileName(path);
    if (!logFile().open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        std::fprintf(stderr, "The log cannot be written to %s.\n", qUtf8Printable(path));
        return false;
    }
    qInstallMessageHandler(writeToLogFile);
    return true;
}

int listPages(const Catalogue &catalogue)
{
    for (const Page &page : catalogue.pages())
        std::printf("%s\n", qUtf8Printable(page.name));
    return 0;
}

int takeTour(const Catalogue &catalogue, MainWindow &window, const QString &directory,
             const Page *onlyPage)
{
    Tour tour(window, directory);
    for (const Page &page : catalogue.pages()) {
        if (!onlyPage || &page == onlyPage)
            tour.play(page);
    }
    return tour.conclude();
}

int showWindow(MainWindow &window, const PressFeedback &feedback, const Page &firstPage,
               const TouchOptions &touches)
{
    ClickSound click;
    QObject::connect(&feedback, &PressFeedback::requested, &click, &ClickSound::play);
    window.showPage(firstPage);
    return touches.start(window) ? QApplication::exec() : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    preferNoScreen(argc, argv);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("panelkit-catalogue"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every PanelKit widget."));
    const QCommandLineOption pageOption(
        QStringLiteral("page"), QStringLiteral("Opens at this page."), QStringLiteral("name"));
    const QCommandLineOption tourOption(
        QStringLiteral("tour"),
        QStringLiteral("Plays every page, or the one of --page, and writes pictures and signals."),
        QStringLiteral("directory"));
    const QCommandLineOption listOption(QStringLiteral("list"), QStringLiteral("Lists the pages."));
    const QCommandLineOption playlistOption(
        QStringLiteral("playlist"),
        QStringLiteral("Shows this CSV (title,artist,album,seconds) or M3U file in the lists."),
        QStringLiteral("file"));
    const QCommandLineOption logOption(
        QStringLiteral("log"),
        QStringLiteral("Writes what Qt and the widgets log to this file, not to the console."),
        QStringLiteral("file"));
    parser.addOptions({pageOption, tourOption, listOption, playlistOption, logOption});
    const TouchOptions touches(parser);
    parser.addHelpOption();
    parser.process(app);
    if (parser.isSet(logOption) && !redirectLog(parser.value(logOption)))
        return 1;

    const Catalogue catalogue;
    if (parser.isSet(listOption))
        return listPages(catalogue);
    const Page *page = catalogue.find(parser.value(pageOption));
    if (parser.isSet(pageOption) && !page) {
        std::fprintf(stderr, "There is no page %s.\n", qUtf8Printable(parser.value(pageOption)));
        return 1;
    }

    if (parser.isSet(playlistOption) && !Playlist::open(parser.value(playlistOption))) {
        std::fprintf(stderr, "There are no titles in %s.\n",
                     qUtf8Printable(parser.value(playlistOption)));
        return 1;
    }

    Theme::apply();
    PressFeedback feedback;
    QApplication::instance()->installEventFilter(&feedback);
    MainWindow window(catalogue);
    QObject::connect(&feedback, &PressFeedback::requested, &window, &MainWindow::addPressFeedback);
    window.show();
    if (parser.isSet(tourOption))
        return takeTour(catalogue, window, parser.value(tourOption), page);
    return showWindow(window, feedback, page ? *page : catalogue.pages().front(), touches);
}
