// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_OPTIONS_H
#define HEADUNIT_OPTIONS_H

#include <QSize>
#include <QString>

class QStringList;

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
};

} // namespace headunit

#endif // HEADUNIT_OPTIONS_H
