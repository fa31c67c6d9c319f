// SPDX-License-Identifier: Apache-2.0
#ifndef SHARED_TOUCHOPTIONS_H
#define SHARED_TOUCHOPTIONS_H

#include <QCommandLineOption>

class QCommandLineParser;
class QWidget;

/// The options --touch-log and --replay of a program with one window.
class TouchOptions
{
public:
    explicit TouchOptions(QCommandLineParser &parser);

    /// Records and plays what the command line asks for, once it is parsed and the window is shown;
    /// the program ends after the last touch. False, and a sentence on standard error, if that is
    /// not possible.
    bool start(QWidget &window) const;

private:
    const QCommandLineParser &m_parser;
    const QCommandLineOption m_log;
    const QCommandLineOption m_replay;
};

#endif // SHARED_TOUCHOPTIONS_H
