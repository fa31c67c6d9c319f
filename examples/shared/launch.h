// SPDX-License-Identifier: Apache-2.0
#ifndef SHARED_LAUNCH_H
#define SHARED_LAUNCH_H

#include <QByteArray>
#include <QList>
#include <QString>

/// What a program does before it has a window.
namespace launch
{

/// Whether one of these options is given, for what has to be known before there is an application
/// that could parse the command line.
bool isGiven(int argc, char **argv, const QByteArrayList &options);

/// Nothing but a window needs a screen: unless the environment says otherwise, none is looked for.
void preferNoScreen();

/// Writes what Qt and the widgets log to this file from now on, not to the console. False, and a
/// sentence on standard error, if the file cannot be written.
bool writeLogTo(const QString &path);

} // namespace launch

#endif // SHARED_LAUNCH_H
