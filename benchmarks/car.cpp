// SPDX-License-Identifier: Apache-2.0
#include "car.h"

#include "musicfiles.h"

#include <QCoreApplication>
#include <QFile>

#include <ctime>

double used()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

void writeMusic(const QTemporaryDir &folder, int count)
{
    for (int i = 0; i < count; ++i) {
        const QByteArray title = QByteArray(1, char('A' + i * 26 / count))
            + "ir for the road, number " + QByteArray::number(i);
        QFile file(folder.filePath(QStringLiteral("%1.wav").arg(i)));
        if (!file.open(QIODevice::WriteOnly) || file.write(musicfiles::wave(title)) < 0)
            qFatal("cannot write %s", qPrintable(file.fileName()));
    }
}

Car::Car(const QString &folder)
{
    player.setModel(music.tracks());
    music.open(folder);
    screen.show();
}

void Car::waitForMusic()
{
    while (!music.isFinished())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}
