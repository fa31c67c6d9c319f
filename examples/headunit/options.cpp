// SPDX-License-Identifier: Apache-2.0
#include "options.h"

#include "languages.h"
#include "models/samples.h"

#include <QCommandLineParser>
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
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A car's screen made of PanelKit."));
    parser.addHelpOption();
    const QCommandLineOption sizeOption(QStringLiteral("size"),
                                        QStringLiteral("The screen, 1024x600 without it."),
                                        QStringLiteral("WxH"), QStringLiteral("1024x600"));
    const QCommandLineOption night(QStringLiteral("night"),
                                   QStringLiteral("Begins with the look of the night."));
    const QCommandLineOption music(QStringLiteral("music"),
                                   QStringLiteral("The folder with the music to play."),
                                   QStringLiteral("DIR"));
    const QCommandLineOption contacts(QStringLiteral("contacts"),
                                      QStringLiteral("The telephone book, a vCard file."),
                                      QStringLiteral("FILE"));
    const QCommandLineOption stations(
        QStringLiteral("stations"),
        QStringLiteral("The stations on the air, as CSV: band,frequency,name,text."),
        QStringLiteral("FILE"));
    const QCommandLineOption settings(QStringLiteral("settings"),
                                      QStringLiteral("Where settings are kept."),
                                      QStringLiteral("FILE"));
    const QCommandLineOption languageOption(QStringLiteral("language"),
                                            QStringLiteral("The language: en, de or ar."),
                                            QStringLiteral("CODE"));
    parser.addOptions({sizeOption, night, music, contacts, stations, settings, languageOption});
    parser.process(arguments);

    size = sizeOf(parser.value(sizeOption));
    isNight = parser.isSet(night);
    language = languageOf(parser.value(languageOption));
    musicFolder = orElse(parser.value(music), samples::musicFolder());
    contactsFile = orElse(parser.value(contacts), samples::contactsFile());
    stationsFile = orElse(parser.value(stations), samples::stationsFile());
    settingsFile = orElse(parser.value(settings),
                          QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
                              + QStringLiteral("/headunit.ini"));
}

} // namespace headunit
