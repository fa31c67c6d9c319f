// SPDX-License-Identifier: Apache-2.0
#include "grabs.h"

#include <QFileInfo>
#include <QPixmap>
#include <QSaveFile>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace
{

int wakeEnd = -1; // of the pipe: all that a signal handler may touch

void wake(int)
{
    const int before = errno;
    const char byte = 0;
    if (::write(wakeEnd, &byte, 1) < 0)
        errno = before; // the pipe is full: it will wake up anyway
}

} // namespace

Grabs::Grabs(QWidget &window, const QString &path, QObject *parent)
    : QObject(parent), m_window(&window), m_path(path)
{
    if (::pipe2(m_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    wakeEnd = m_pipe[1];
    auto *notifier = new QSocketNotifier(m_pipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &Grabs::save);
    std::signal(SIGUSR1, wake);
}

Grabs::~Grabs()
{
    std::signal(SIGUSR1, SIG_DFL);
    for (const int end : m_pipe)
        ::close(end);
}

void Grabs::save()
{
    std::array<char, 64> bytes{};
    while (::read(m_pipe[0], bytes.data(), bytes.size()) > 0) { }
    QSaveFile file(m_path);
    const QByteArray format = QFileInfo(m_path).suffix().toLatin1();
    const bool isSaved = m_window && file.open(QIODevice::WriteOnly)
        && m_window->grab().save(&file, format.constData()) && file.commit();
    if (!isSaved)
        std::fprintf(stderr, "The picture cannot be written to %s.\n", qUtf8Printable(m_path));
}
