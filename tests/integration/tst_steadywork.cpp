// SPDX-License-Identifier: Apache-2.0
// Who asks for memory while nothing changes but what a finger moves: nobody in the library. What Qt
// needs for a paint event is its own affair; it is printed for each class.

#include "accessiblespecimens.h"
#include "allocations.h"
#include "touch.h"
#include "widgettest.h"

#include <dlfcn.h>
#include <execinfo.h>

#include <QImage>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>

namespace
{

constexpr int kMostFrames = 24;
constexpr int kPaints = 5;
constexpr int kWarmUps = 3;

struct Frame {
    std::string binary;
    std::string function;
};

Frame frameAt(void *address)
{
    Dl_info info{};
    if (dladdr(address, &info) == 0 || !info.dli_fname)
        return {};
    const char *slash = std::strrchr(info.dli_fname, '/');
    return {slash ? slash + 1 : info.dli_fname, info.dli_sname ? info.dli_sname : "?"};
}

bool isIn(const Frame &frame, const char *name)
{
    return frame.binary.compare(0, std::strlen(name), name) == 0;
}

bool isQtCore(const Frame &frame) { return isIn(frame, "libQt5Core") || isIn(frame, "libQt6Core"); }

// Functions of QtCore that are no containers: what they need is for events, clocks and messages.
// One without a name is what a signal goes through.
bool isContainer(const Frame &frame)
{
    for (const char *part :
         {"QCoreApplication", "QMetaObject", "7QObject", "6QTimer", "QBasicTimer", "5QTime",
          "9QDateTime", "QMessageLogger", "QTextStream"}) {
        if (frame.function.find(part) != std::string::npos)
            return false;
    }
    return frame.function != "?";
}

// Where the requests of an action came from: how often each place in the library asked, itself or
// through a container of Qt's, and how often Qt did.
class Requests
{
public:
    static Requests during(const std::function<void()> &action)
    {
        Requests requests;
        s_current = &requests;
        allocations::watcher = &Requests::take;
        action();
        allocations::watcher = nullptr;
        s_current = nullptr;
        return requests;
    }

    std::map<std::string, int> ours;
    int insideQt = 0;

private:
    static void take()
    {
        static thread_local bool isTaking = false;
        if (isTaking)
            return;
        isTaking = true;
        s_current->add();
        isTaking = false;
    }

    void add()
    {
        void *addresses[kMostFrames];
        const int count = backtrace(addresses, kMostFrames);
        const Frame program = frameAt(reinterpret_cast<void *>(&Requests::during));
        int i = 0;
        Frame frame = frameAt(addresses[i]);
        const auto next = [&] { frame = ++i < count ? frameAt(addresses[i]) : Frame(); };
        while (
            i < count
            && (frame.binary == program.binary || isIn(frame, "libc.") || isIn(frame, "libstdc++")))
            next();
        const bool isDirect = !isQtCore(frame);
        Frame called = frame;
        while (isQtCore(frame)) {
            called = frame;
            next();
        }
        if (isIn(frame, "libpanelkit") && (isDirect || isContainer(called)))
            ++ours[(isDirect ? "itself" : called.function) + " for " + frame.function];
        else
            ++insideQt;
    }

    static Requests *s_current;
};

Requests *Requests::s_current = nullptr;

// Paints a widget over and over on the same image.
class Canvas
{
public:
    explicit Canvas(QWidget *widget)
        : m_widget(widget), m_image(widget->size(), QImage::Format_ARGB32_Premultiplied)
    {
    }

    // Each time on the same ground, as in a window.
    void paint()
    {
        m_image.fill(Qt::black);
        m_widget->render(&m_image, QPoint(), QRegion(), QWidget::DrawChildren);
        QCoreApplication::sendPostedEvents();
    }

private:
    QWidget *m_widget;
    QImage m_image;
};

// Those of the looks that a specimen does not have, which keep most.
std::vector<Specimen> furtherLooks()
{
    const QString text = QStringLiteral("Midnight Lanterns, from the album Maps for Sundays. ");
    const auto arcList = [](MArcList &list) {
        list.setPointPixmap(picture(Qt::red));
        list.resize(560, 400);
        for (char c = 'A'; c <= 'Z'; ++c)
            list.addAlpha(QLatin1Char(c));
        list.setCurrentIndex(QLatin1Char('B'));
    };
    const auto rolling = [text](SpRollingText &label) {
        label.resize(240, 40);
        label.setText(text);
        label.setWaitRoll(10000);
    };
    const auto notice = [text](MVScrollLabel &label) {
        label.resize(240, 100);
        label.setText(text.repeated(6));
    };
    return {
        {"MArcList", QAccessible::NoRole, "on an arc", "", "", made<MArcList>(arcList)},
        {"MArcScrollBar", QAccessible::NoRole, "on an arc", "", "",
         made<MArcScrollBar>([](MArcScrollBar &bar) { bar.resize(160, 400); })},
        {"SpRollingText", QAccessible::NoRole, "too wide", "", "", made<SpRollingText>(rolling)},
        {"MVScrollLabel", QAccessible::NoRole, "too high", "", "", made<MVScrollLabel>(notice)},
    };
}

void report(const Specimen &specimen, const char *work, const Requests &requests)
{
    std::printf("%-24s %-6s %4d requests inside Qt\n", specimen.name, work, requests.insideQt);
    for (const auto &[place, count] : requests.ours)
        std::printf("    %4d of ours: %s\n", count, place.c_str());
}

} // namespace

class tst_SteadyWork : public WidgetTest
{
    Q_OBJECT

    const std::vector<Specimen> m_all = allSpecimens();
    const std::vector<Specimen> m_further = furtherLooks();

private slots:
    void initTestCase()
    {
        void *address = nullptr;
        QVERIFY(backtrace(&address, 1) == 1); // what it needs itself, once
    }

    void requestsOfTheLibraryAreFound()
    {
        const auto contains = [](const Requests &requests, const char *text) {
            return std::any_of(requests.ours.begin(), requests.ours.end(), [=](const auto &each) {
                return each.first.find(text) != std::string::npos;
            });
        };
        const Requests construction = Requests::during([] { const SpIconButton button; });
        QVERIFY(contains(construction, "itself for ")); // its private part
        QVERIFY(construction.insideQt > 0); // the widget's own
        MArcList list;
        const Requests append = Requests::during([&] { list.addAlpha(QLatin1Char('a')); });
        QVERIFY(contains(append, "QArrayData"));
    }

    void aPaintAsksForNothing_data() { rows(); }

    void aPaintAsksForNothing()
    {
        QFETCH(const Specimen *, specimen);
        QWidget window;
        Canvas canvas(shown(*specimen, window));
        for (int i = 0; i < kWarmUps; ++i)
            canvas.paint();
        const Requests requests = Requests::during([&] {
            for (int i = 0; i < kPaints; ++i)
                canvas.paint();
        });
        report(*specimen, "paint", requests);
        QVERIFY(requests.ours.empty());
    }

    void aMoveAsksForNothing_data() { rows(); }

    // The finger goes to and fro between two points, and stays where it is. A value that changes
    // may be said to whoever listens, in words; anything else was there before.
    void aMoveAsksForNothing()
    {
        QFETCH(const Specimen *, specimen);
        QWidget window;
        QWidget *widget = shown(*specimen, window);
        Canvas canvas(widget);
        Touch finger = touch(widget);
        const QPoint middle = widget->rect().center();
        const auto toAndFro = [&] {
            for (const int way : {0, 20, 20, 0}) {
                finger.moveTo(middle.x() + way, middle.y() + way);
                canvas.paint();
            }
        };
        finger.press(middle.x(), middle.y());
        for (int i = 0; i < kWarmUps; ++i)
            toAndFro();
        Requests requests = Requests::during(toAndFro);
        finger.release();
        report(*specimen, "move", requests);
        const std::map<std::string, const char *> words{
            {"SpSetupSlider", "7QString6number"}, // of the value, which is shown and emitted
            {"MHorSlider", "7QString6number"},
            {"MRadioMovePoint", "fromUtf8"}, // of the messages that it writes
            {"MRadioSlider", "fromUtf8"},
        };
        const auto isSaid = [&](const std::string &place) {
            const auto said = words.find(specimen->name);
            return said != words.end() && place.find(said->second) != std::string::npos;
        };
        for (const auto &[place, count] : requests.ours)
            QVERIFY2(isSaid(place), place.c_str());
    }

private:
    void rows()
    {
        QTest::addColumn<const Specimen *>("specimen");
        for (const Specimen &each : m_all)
            QTest::newRow(each.name) << &each;
        for (const Specimen &each : m_further)
            QTest::addRow("%s, %s", each.name, each.text) << &each;
    }
};

WIDGET_TEST_MAIN(tst_SteadyWork)
#include "tst_steadywork.moc"
