// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_OPTIONS_H
#define HEADUNIT_OPTIONS_H

#include "touchoptions.h"

#include <QCommandLineParser>
#include <QSize>
#include <QString>

namespace headunit
{

/// What the command line asks for. An argument that makes no sense ends the program with a
/// sentence.
struct Options {
    explicit Options(const QStringList &arguments);

    QSize size{1024, 600}; ///< px, of the screen
    bool isNight = false;
    QString language; ///< empty: that of the settings
    QString musicFolder;
    QString contactsFile;
    QString stationsFile;
    QString settingsFile;
    QString logFile; ///< empty: the console
    QString grabFile; ///< empty: none
    QString tourFolder; ///< empty: no tour
    bool isTourByNames = false;
    bool isOnLoopbackOnly = false;

private:
    QCommandLineParser m_parser;

public:
    const TouchOptions touches{m_parser};
};

} // namespace headunit

#endif // HEADUNIT_OPTIONS_H
