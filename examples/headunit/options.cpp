// SPDX-License-Identifier: Apache-2.0
#include "options.h"

#include "languages.h"
#include "models/samples.h"

#include <QRegularExpression>
#include <QStandardPaths>
#include <QTextStream>

#include <cstdlib>

namespace headunit
{

namespace
{

constexpr int kSmallest = 480; // px, of the lower side
constexpr int kLargest = 4096; // px

[[noreturn]] void refuse(const QString &sentence)
{
    QTextStream(stderr) << sentence << '\n';
    std::exit(2);
}

QSize sizeOf(const QString &text)
{
    const QRegularExpressionMatch match =
        QRegularExpression(QStringLiteral("^(\\d{3,4})x(\\d{3,4})$")).match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    if (size.height() < kSmallest || size.width() < size.height() || size.width() > kLargest)
        refuse(QStringLiteral("--size takes a width and a height such as 1024x600, not \"%1\".")
                   .arg(text));
    return size;
}

QString languageOf(const QString &code)
{
    if (!code.isEmpty() && !Languages::codes().contains(code))
        refuse(QStringLiteral("--language takes one of %1, not \"%2\".")
                   .arg(Languages::codes().join(QStringLiteral(", ")), code));
    return code;
}

QString orElse(const QString &given, const QString &otherwise)
{
    return given.isEmpty() ? otherwise : given;
}

} // namespace

Options::Options(const QStringList &arguments)
{
    const auto takes = [](const char *name, const char *value, const char *description) {
        return QCommandLineOption(QLatin1String(name), QLatin1String(description),
                                  QLatin1String(value));
    };
    QCommandLineOption sizeOption = takes("size", "WxH", "The screen, 1024x600 without it.");
    sizeOption.setDefaultValue(QStringLiteral("1024x600"));
    const QCommandLineOption night(QStringLiteral("night"),
                                   QStringLiteral("Begins with the look of the night."));
    const auto music = takes("music", "DIR", "The folder with the music to play.");
    const auto contacts = takes("contacts", "FILE", "The telephone book, a vCard file.");
    const auto stations =
        takes("stations", "FILE", "The stations on the air, as CSV: band,frequency,name,text.");
    const auto settings = takes("settings", "FILE", "Where settings are kept.");
    const auto tour =
        takes("tour", "DIR", "Drives through every page and writes pictures and signals.");
    const QCommandLineOption byNames(
        QStringLiteral("by-names"),
        QStringLiteral("Finds on the tour all by the names that accessibility tells."));
    const auto log = takes("log", "FILE",
                           "Writes what Qt and the widgets log to this file, not to the console.");
    const auto grab =
        takes("grab", "FILE", "Writes a picture of the screen to this file at each SIGUSR1.");
    const auto languageOption = takes("language", "CODE", "The language: en, de or ar.");
    const QCommandLineOption loopback(
        QStringLiteral("loopback"),
        QStringLiteral("Lets the platform vnc listen on this machine's loopback only."));
    m_parser.setApplicationDescription(QStringLiteral("A car's screen made of PanelKit."));
    m_parser.addOptions({sizeOption, night, music, contacts, stations, settings, languageOption,
                         tour, byNames, log, grab, loopback});
    m_parser.addHelpOption();
    m_parser.process(arguments);

    size = sizeOf(m_parser.value(sizeOption));
    isNight = m_parser.isSet(night);
    language = languageOf(m_parser.value(languageOption));
    musicFolder = orElse(m_parser.value(music), samples::musicFolder());
    contactsFile = orElse(m_parser.value(contacts), samples::contactsFile());
    stationsFile = orElse(m_parser.value(stations), samples::stationsFile());
    settingsFile = orElse(m_parser.value(settings),
                          QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
                              + QStringLiteral("/headunit.ini"));
    tourFolder = m_parser.value(tour);
    isTourByNames = m_parser.isSet(byNames);
    logFile = m_parser.value(log);
    grabFile = m_parser.value(grab);
    isOnLoopbackOnly = m_parser.isSet(loopback);
}

} // namespace headunit
