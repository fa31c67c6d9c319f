// SPDX-License-Identifier: Apache-2.0
// Prints what the library holds of the memory once it is loaded, and what each class adds to the
// heap for one new object: lines of a name and a number of bytes.

#include <panelkitclasses.h>

#include <QApplication>
#include <QFile>

#include <cstdio>
#include <malloc.h>
#include <memory>
#include <vector>

namespace
{

constexpr int kObjects = 64; // of each class
constexpr qint64 kBytesPerKilobyte = 1024;

// Memory of this process alone among what is mapped from the library.
qint64 privateDirty()
{
    QFile maps(QStringLiteral("/proc/self/smaps"));
    if (!maps.open(QIODevice::ReadOnly))
        return -1;
    qint64 kilobytes = 0;
    bool isOurs = false;
    const QList<QByteArray> lines = maps.readAll().split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> words = line.simplified().split(' ');
        if (!words.first().endsWith(':'))
            isOurs = words.last().contains("/libpanelkit");
        else if (isOurs && words.first() == "Private_Dirty:")
            kilobytes += words.at(1).toLongLong();
    }
    return kilobytes * kBytesPerKilobyte;
}

// The first object of a class pays for what all of them share.
template <typename Create> void printHeap(const char *name, Create create)
{
    const auto first = create();
    std::vector<decltype(create())> objects;
    objects.reserve(kObjects);
    const size_t before = mallinfo2().uordblks;
    for (int i = 0; i < kObjects; ++i)
        objects.push_back(create());
    std::printf("%s %zu\n", name, (mallinfo2().uordblks - before) / kObjects);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    std::printf("dirty %lld\n", static_cast<long long>(privateDirty()));
#define PRINT_HEAP(Class, create, ...)           \
    printHeap(#Class, [] {                       \
        QWidget *const parent = nullptr;         \
        return std::unique_ptr<QWidget>(create); \
    });
    PANELKIT_FOR_EACH_WIDGET(PRINT_HEAP)
    return 0;
}
