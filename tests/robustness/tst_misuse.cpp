// SPDX-License-Identifier: Apache-2.0
// What happens to a program that does what it should not, or has too little: each case is a process
// of its own, this program with the name of the case.

#include <panelkitclasses.h>
#include <SpIconButton>
#include <SpLabel>

#include <QApplication>
#include <QCryptographicHash>
#include <QMetaProperty>
#include <QProcess>
#include <QTest>

#include <cstdio>
#include <malloc.h>
#include <map>
#include <memory>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace
{

#ifdef __SANITIZE_ADDRESS__ // which needs terabytes of addresses itself
constexpr bool kCanLimitMemory = false;
#else
constexpr bool kCanLimitMemory = true;
#endif
constexpr int kFine = 0;
constexpr int kWrong = 1;

std::vector<std::unique_ptr<QWidget>> oneOfEach()
{
    std::vector<std::unique_ptr<QWidget>> widgets;
    QWidget *const parent = nullptr;
#define MAKE(Class, create, ...) widgets.emplace_back(create);
    PANELKIT_FOR_EACH_WIDGET(MAKE)
#undef MAKE
    return widgets;
}

void setPictures(QWidget &widget, const QPixmap &pixmap)
{
    const QMetaObject *const type = widget.metaObject();
    for (int i = 0; i < type->propertyCount(); ++i) {
        if (type->property(i).userType() == QMetaType::QPixmap)
            type->property(i).write(&widget, pixmap);
    }
}

int withoutApplication(int, char **)
{
    const SpIconButton button;
    return kFine;
}

// Only what has never been shown may be: Qt's own widgets crash otherwise, too.
int longerThanTheApplication(int argc, char **argv)
{
    std::vector<std::unique_ptr<QWidget>> widgets;
    {
        QApplication app(argc, argv);
        widgets = oneOfEach();
        QPixmap pixmap(40, 30);
        pixmap.fill(Qt::red);
        for (const auto &widget : widgets) {
            setPictures(*widget, pixmap);
            widget->resize(80, 60);
            widget->grab();
        }
    }
    widgets.clear();
    return kFine;
}

// One application after the other, as tests and plug-ins have them.
int twoApplications(int argc, char **argv)
{
    for (int i = 0; i < 2; ++i) {
        QApplication app(argc, argv);
        const auto widgets = oneOfEach();
        for (const auto &widget : widgets) {
            widget->resize(80, 60);
            widget->grab();
        }
    }
    return kFine;
}

int aHundredThousand(int argc, char **argv)
{
    constexpr int kPages = 1000,
                  kOnEach = 100; // of widgets in one parent Qt paints each in the next
    QApplication app(argc, argv);
    QWidget screen;
    for (int i = 0; i < kPages; ++i) {
        auto *page = new QWidget(&screen);
        page->resize(800, 480);
        page->setVisible(i == 0);
        for (int j = 0; j < kOnEach; ++j)
            new SpIconButton(page);
        QCoreApplication::processEvents();
    }
    screen.resize(800, 480);
    screen.show();
    screen.grab();
    return screen.findChildren<SpIconButton *>().size() == kPages * kOnEach ? kFine : kWrong;
}

constexpr QSize kScreen(2000, 2000);

// A sum of what a widget shows, on a screen that takes no more memory.
QByteArray seen(QWidget &widget, QImage &screen)
{
    screen.fill(Qt::transparent);
    widget.render(&screen);
    const auto *bits = reinterpret_cast<const char *>(screen.constBits());
    return QCryptographicHash::hash(QByteArray::fromRawData(bits, int(screen.sizeInBytes())),
                                    QCryptographicHash::Md5);
}

// Each class, larger than memory has room for a copy of, with a picture for all its looks.
std::vector<std::unique_ptr<QWidget>> largeOnes(const QPixmap &pixmap)
{
    auto widgets = oneOfEach();
    for (const auto &widget : widgets) {
        setPictures(*widget, pixmap);
        widget->resize(kScreen);
    }
    return widgets;
}

bool leaveMemory(rlim_t bytes)
{
    std::FILE *sizes = std::fopen("/proc/self/statm", "r");
    unsigned long pages = 0;
    const bool isRead = sizes && std::fscanf(sizes, "%lu", &pages) == 1;
    std::fclose(sizes);
    const rlim_t most = pages * rlim_t(sysconf(_SC_PAGESIZE)) + bytes;
    const rlimit limit{most, most};
    return isRead && setrlimit(RLIMIT_AS, &limit) == 0;
}

// A copy that would be kept is done without; what is shown is the same.
int withoutMemory(int argc, char **argv)
{
    constexpr rlim_t kLeft = 12 << 20; // bytes, of which a copy of the screen takes 16 << 20
    mallopt(M_MMAP_THRESHOLD, 1 << 20); // what is freed goes back at once
    QApplication app(argc, argv);
    QPixmap pixmap(600, 400);
    pixmap.fill(QColor(0, 200, 0, 100));
    QImage screen(kScreen, QImage::Format_ARGB32_Premultiplied);
    // The first paint has no copy yet, and the edges of one may differ from it by one level of 255.
    std::vector<std::vector<QByteArray>> expected;
    for (const auto &widget : largeOnes(pixmap)) {
        const QByteArray first = seen(*widget, screen);
        expected.push_back({first, seen(*widget, screen)});
    }
    const auto widgets = largeOnes(pixmap);
    if (!leaveMemory(kLeft) || !QImage(kScreen, QImage::Format_RGB32).isNull())
        return kWrong;
    int result = kFine;
    for (size_t i = 0; i < widgets.size(); ++i) {
        seen(*widgets[i], screen);
        const QByteArray shown = seen(*widgets[i], screen);
        // A veil is drawn on a copy of its picture, or not at all.
        if (shown != expected[i].front() && shown != expected[i].back()
            && !qobject_cast<SpLabel *>(widgets[i].get())) {
            std::fprintf(stderr, "%s\n", widgets[i]->metaObject()->className());
            result = kWrong;
        }
        // One that has no pixels, though it says that it is there.
        setPictures(*widgets[i], QPixmap(8192, 8192));
        seen(*widgets[i], screen);
    }
    return result;
}

using Case = int (*)(int, char **);

const std::map<QString, Case> kCases{
    {QStringLiteral("withoutApplication"), withoutApplication},
    {QStringLiteral("longerThanTheApplication"), longerThanTheApplication},
    {QStringLiteral("twoApplications"), twoApplications},
    {QStringLiteral("aHundredThousand"), aHundredThousand},
    {QStringLiteral("withoutMemory"), withoutMemory},
};

} // namespace

class tst_Misuse : public QObject
{
    Q_OBJECT

private slots:
    void theProgramEndsWell_data()
    {
        QTest::addColumn<QString>("name");
        for (const auto &entry : kCases) {
            if (entry.second != withoutApplication
                && (entry.second != withoutMemory || kCanLimitMemory))
                QTest::newRow(qPrintable(entry.first)) << entry.first;
        }
    }

    void theProgramEndsWell()
    {
        QFETCH(QString, name);
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {name});
        QVERIFY(process.waitForFinished(-1));
        QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == kFine,
                 process.readAllStandardError());
    }

    // Qt says what is missing, and ends the program.
    void aWidgetWithoutAnApplicationIsRefused()
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("withoutApplication")});
        QVERIFY(process.waitForFinished(-1));
        QVERIFY(process.exitStatus() == QProcess::CrashExit);
        QVERIFY(process.readAllStandardError().contains("Must construct a QApplication"));
    }

    // While an application runs on; three times, by a program that is not linked with the library.
    void theLibraryIsLoadedAndUnloaded()
    {
        QProcess process;
        process.start(
            QStringLiteral(UNLOAD),
            {QStringLiteral(LIBRARY), QStringLiteral("_ZN12SpIconButton11GetInstanceEv")});
        QVERIFY(process.waitForFinished(-1));
        QVERIFY2(process.exitStatus() == QProcess::NormalExit, process.readAllStandardError());
        QCOMPARE(process.exitCode(), kFine);
    }
};

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const auto wanted = kCases.find(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    if (wanted != kCases.end())
        return wanted->second(argc, argv);
    QCoreApplication app(argc, argv);
    tst_Misuse test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_misuse.moc"
