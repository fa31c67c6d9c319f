// SPDX-License-Identifier: Apache-2.0
#include "catalogue.h"
#include "clicksound.h"
#include "film.h"
#include "launch.h"
#include "mainwindow.h"
#include "playlist.h"
#include "pressfeedback.h"
#include "theme.h"
#include "touchoptions.h"
#include "tour.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

namespace
{

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
    if (launch::isGiven(argc, argv, {"--tour", "--film", "--list", "--help", "-h"}))
        launch::preferNoScreen();
    if (launch::isGiven(argc, argv, {"--film"}))
        Film::prepare();
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
    const QCommandLineOption filmOption(
        QStringLiteral("film"),
        QStringLiteral("Plays what moves, and writes pictures of it at even intervals."),
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
    parser.addOptions({pageOption, tourOption, filmOption, listOption, playlistOption, logOption});
    const TouchOptions touches(parser);
    parser.addHelpOption();
    parser.process(app);
    if (parser.isSet(logOption) && !launch::writeLogTo(parser.value(logOption)))
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
    if (parser.isSet(filmOption))
        return Film(window, parser.value(filmOption)).takeAll(catalogue);
    return showWindow(window, feedback, page ? *page : catalogue.pages().front(), touches);
}
