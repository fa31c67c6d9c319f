// SPDX-License-Identifier: Apache-2.0
#include "touchoptions.h"

#include "touchlog.h"
#include "touchreplay.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

namespace
{

void say(const QString &sentence) { std::fprintf(stderr, "%s\n", qUtf8Printable(sentence)); }

} // namespace

TouchOptions::TouchOptions(QCommandLineParser &parser)
    : m_parser(parser),
      m_log(QStringLiteral("touch-log"),
            QStringLiteral("Records what fingers and the mouse do to the window in this file."),
            QStringLiteral("file")),
      m_replay(QStringLiteral("replay"),
               QStringLiteral("Plays such a file on a window of the same size, then ends."),
               QStringLiteral("file"))
{
    parser.addOptions({m_log, m_replay});
}

// A file can be played and recorded anew at the same time, for it is read before it is emptied.
bool TouchOptions::start(QWidget &window) const
{
    auto *replay = new TouchReplay(window, &window);
    QObject::connect(replay, &TouchReplay::failed, &say);
    QObject::connect(replay, &TouchReplay::finished, QCoreApplication::instance(),
                     &QCoreApplication::quit, Qt::QueuedConnection);
    if (m_parser.isSet(m_replay) && !replay->load(m_parser.value(m_replay)))
        return false;

    auto *log = new TouchLog(window, &window);
    QObject::connect(log, &TouchLog::failed, &say);
    if (m_parser.isSet(m_log) && !log->start(m_parser.value(m_log)))
        return false;
    if (m_parser.isSet(m_replay))
        replay->start();
    return true;
}
