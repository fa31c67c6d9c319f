// SPDX-License-Identifier: Apache-2.0
// What the widgets compute and show on this platform, and whether two platforms agree:
//   panelkit_agreement record <folder>
//   panelkit_agreement compare <folder> <other folder> <name of the other> <known differences>

#include "compare.h"
#include "numbers.h"
#include "shots.h"

#include "widgettest.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

#include <cstdio>

namespace
{

QTextStream *log = nullptr; // or nothing is kept

// What a widget logs is part of what it says.
void takeMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (log)
        *log << "logged: " << text << '\n';
}

int record(const QString &folder)
{
    QDir directory(folder);
    QDir(directory.filePath(QStringLiteral("pictures"))).removeRecursively();
    if (!directory.mkpath(QStringLiteral("pictures")))
        return 1;
    QFile file(directory.filePath(QStringLiteral("numbers.txt")));
    if (!file.open(QIODevice::WriteOnly))
        return 1;
    QTextStream out(&file);
    out << "coordinates of " << sizeof(qreal) << " bytes\n";
    out << "processor " << QSysInfo::buildCpuArchitecture() << '\n';
    qInstallMessageHandler(takeMessage);
    log = &out;
    writeNumbers(out);
    log = nullptr;
    takePictures([&directory](const QString &name, const QImage &picture) {
        constexpr int kFast = 80; // of what PNG calls quality
        picture.save(directory.filePath(QStringLiteral("pictures/%1.png").arg(name)), nullptr,
                     kFast);
    });
    return 0;
}

int run(const QStringList &words)
{
    if (words.value(0) == QLatin1String("record") && words.size() == 2)
        return record(words[1]);
    if (words.value(0) == QLatin1String("compare") && words.size() == 5)
        return compare(words[1], words[2], words[3], words[4]) ? 0 : 1;
    std::fputs("What to do? See the head of tests/agreement/main.cpp.\n", stderr);
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    return runPinned(argc, argv, [] { return run(QCoreApplication::arguments().mid(1)); });
}
