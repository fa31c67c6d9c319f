// SPDX-License-Identifier: Apache-2.0
// What whole pages of the head unit cost: painted anew, and each frame while something in them
// moves, through the backing store of a window. As a multiple of what it takes to copy the memory
// of the screen once, which is measured after each frame.
//
// usage: panelkit-scenes [--count | FILE.json]
//
// With --count it prints nothing: Callgrind or a plugin of qemu counts the instructions of each
// frame. Time is virtual then, so that the same frames are painted however slow that is.

#include "car.h"
#include "counted.h"
#include "finger.h"
#include "sidekeys.h"
#include "virtualtime.h"

#include <spiconbutton.h>
#include <sprollingtext.h>
#include <spsetupslider.h>
#include <sptablelist.h>

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

using namespace headunit;

namespace
{

constexpr int kTitles = 400;
constexpr int kMarqueeWait = 150; // ms
constexpr std::size_t kScreenBytes = std::size_t(kScreen.width()) * kScreen.height() * 4;

/// The copy of a screen into another one.
class ScreenCopy
{
public:
    void run()
    {
        std::memcpy(m_to.data(), m_from.data(), kScreenBytes);
        asm volatile("" : : "r"(m_to.data()) : "memory"); // it is not left out
    }

private:
    std::vector<char> m_from = std::vector<char>(kScreenBytes, 1);
    std::vector<char> m_to = std::vector<char>(kScreenBytes);
};

struct Frame {
    double cost; // ms
    double copy; // ms
};

/// Notes what each frame of a window costs, and the copy of a screen after it. What counts
/// instructions counts those of each frame of a scene under its name.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    /// The frames while something is played.
    template <class Action> std::vector<Frame> framesOf(const std::string &scene, Action action)
    {
        m_scene = scene;
        m_frames.clear();
        action();
        m_scene.clear();
        return m_frames;
    }

    bool notify(QObject *receiver, QEvent *event) override
    {
        m_hasPainted = m_hasPainted || event->type() == QEvent::Paint;
        if (event->type() != QEvent::UpdateRequest || m_isInFrame)
            return QApplication::notify(receiver, event);
        m_isInFrame = true;
        m_hasPainted = false;
        bool result = false;
        counted::begin();
        const double cost = costOf([&] { result = QApplication::notify(receiver, event); });
        counted::end(m_hasPainted ? m_scene.c_str() : "");
        const double copy = costOf([this] { m_screenCopy.run(); });
        if (m_hasPainted)
            m_frames.push_back({cost, copy});
        m_isInFrame = false;
        return result;
    }

private:
    template <class Action> double costOf(Action action)
    {
        const double before = used();
        action();
        return used() - before;
    }

    std::string m_scene; // empty between the scenes
    std::vector<Frame> m_frames;
    ScreenCopy m_screenCopy;
    bool m_isInFrame = false;
    bool m_hasPainted = false;
};

Application &application() { return *static_cast<Application *>(QApplication::instance()); }

struct Scene {
    std::string name;
    double limit = 0; // copies of the screen; 0: none
    std::vector<Frame> frames;

    double median(double Frame::*part) const
    {
        std::vector<double> parts;
        for (const Frame &frame : frames)
            parts.push_back(frame.*part);
        std::nth_element(parts.begin(), parts.begin() + int(parts.size() / 2), parts.end());
        return parts.at(parts.size() / 2);
    }
    double copies() const { return median(&Frame::cost) / median(&Frame::copy); }
};

/// The scenes of one head unit, in the order in which they are played.
class Scenes
{
public:
    /// With so many frames where a page is painted anew as often as one likes.
    Scenes(const QString &music, int fullFrames) : m_fullFrames(fullFrames), m_car(music)
    {
        {
            const virtualtime::Standstill clock;
            m_car.waitForMusic();
        }
        Finger(&m_car.screen).hold(500); // until all is at rest
    }

    std::vector<Scene> play()
    {
        full("home", 4);
        pressTile();
        marquee();
        smallestFrame();
        flingList();
        dragNeedle();
        dragEqualiser();
        return m_scenes;
    }

private:
    template <class Action> void add(const std::string &name, double limit, Action action)
    {
        m_scenes.push_back({name, limit, application().framesOf(name, action)});
    }

    QWidget *open(const char *page)
    {
        m_car.screen.openPage(QLatin1String(page));
        Finger(&m_car.screen).hold(500);
        return m_car.screen.page(QLatin1String(page));
    }

    template <class Widget> Widget *find(const char *page, const char *name)
    {
        auto *widget = m_car.screen.page(QLatin1String(page))->findChild<Widget *>(name);
        if (widget == nullptr || !widget->isVisible())
            qFatal("%s is not to be seen on the page %s", name, page);
        return widget;
    }

    void full(const std::string &page, double limit = 0)
    {
        add(page + ", all of it", limit, [this] {
            for (int i = 0; i < m_fullFrames; ++i) {
                m_car.screen.update();
                QCoreApplication::processEvents();
            }
        });
    }

    void pressTile()
    {
        auto *tile = find<QWidget>("home", "soundTile");
        add("home, a tile pressed and left", 0, [this, tile] {
            Finger finger(tile);
            for (int i = 0; i < m_fullFrames / 2; ++i) // it is left before it is released: no click
                finger.press().hold(20).moveTo({-200, -200}).hold(20).release().hold(20);
        });
    }

    void marquee()
    {
        auto *title = find<SpRollingText>("home", "title");
        title->setText(
            QStringLiteral("A title that is too long for its place, and rolls ").repeated(4));
        Finger(title).hold(500);
        add("home, marquee step", 0.2, [title] { Finger(title).hold(2000); });
        title->setText({});
    }

    // What any frame costs after a wait like that of a marquee, in which the processor's caches
    // have gone to others.
    void smallestFrame()
    {
        QWidget dot(m_car.screen.page(QStringLiteral("home")));
        dot.setAttribute(Qt::WA_OpaquePaintEvent);
        dot.resize(1, 1);
        dot.show();
        Finger finger(&m_car.screen);
        finger.hold(kMarqueeWait);
        add("home, the smallest frame", 0, [&] {
            for (int i = 0; i < m_fullFrames / 2; ++i) {
                dot.update();
                finger.hold(kMarqueeWait);
            }
        });
    }

    void flingList()
    {
        QWidget *page = open("media");
        emit page->findChild<SideKeys *>(QStringLiteral("sideKeys"))->chosen(1);
        auto *list = find<SpTableList>("media", "list");
        Finger finger(list->viewport());
        finger.hold(300);
        full("list");
        add("list, fling frame", 6, [&] {
            const QPoint from(list->width() / 2, list->height() - 10);
            finger.press(from).moveTo({from.x(), 10}, 120).release().hold(2000);
        });
        finger.hold(1000);
    }

    void dragNeedle()
    {
        open("radio");
        full("radio");
        drag("radio, drag frame", 3, find<QWidget>("radio", "needleScale"), Qt::Horizontal);
    }

    void dragEqualiser()
    {
        open("sound");
        full("equaliser");
        drag("equaliser, drag frame", 0, find<QWidget>("sound", "bass"), Qt::Vertical);
    }

    void drag(const std::string &name, double limit, QWidget *widget, Qt::Orientation way)
    {
        const QSize part = widget->size() / 4;
        const QPoint middle = widget->rect().center();
        const QPoint reach =
            way == Qt::Horizontal ? QPoint(part.width(), 0) : QPoint(0, part.height());
        add(name, limit, [&] {
            Finger finger(widget);
            finger.press(middle - reach)
                .moveTo(middle + reach, 800)
                .moveTo(middle - reach, 800)
                .release();
        });
    }

    int m_fullFrames;
    Car m_car;
    std::vector<Scene> m_scenes;
};

void print(const std::vector<Scene> &scenes)
{
    std::printf(
        "| %-32s | %6s | %8s | %8s | %6s | %6s | %-5s |\n|%s|%s:|%s:|%s:|%s:|%s:|%s|\n", "scene",
        "frames", "frame us", "copy us", "copies", "limit", "holds", std::string(34, '-').c_str(),
        std::string(7, '-').c_str(), std::string(9, '-').c_str(), std::string(9, '-').c_str(),
        std::string(7, '-').c_str(), std::string(7, '-').c_str(), std::string(7, '-').c_str());
    for (const Scene &scene : scenes) {
        const QString limit = scene.limit == 0 ? QString() : QString::number(scene.limit);
        const char *holds = scene.copies() <= scene.limit ? "yes" : "no";
        std::printf("| %-32s | %6zu | %8.0f | %8.0f | %6.2f | %6s | %-5s |\n", scene.name.c_str(),
                    scene.frames.size(), scene.median(&Frame::cost) * 1e3,
                    scene.median(&Frame::copy) * 1e3, scene.copies(), qPrintable(limit),
                    scene.limit == 0 ? "" : holds);
    }
}

bool writeJson(const QString &path, const std::vector<Scene> &scenes)
{
    QJsonArray records;
    for (const Scene &scene : scenes)
        records.append(QJsonObject{
            {QStringLiteral("scene"), QString::fromStdString(scene.name)},
            {QStringLiteral("frames"), int(scene.frames.size())},
            {QStringLiteral("frame_us"), scene.median(&Frame::cost) * 1e3},
            {QStringLiteral("copy_us"), scene.median(&Frame::copy) * 1e3},
            {QStringLiteral("copies"), scene.copies()},
            {QStringLiteral("limit"), scene.limit == 0 ? QJsonValue() : QJsonValue(scene.limit)},
        });
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(records).toJson()) > 0;
}

} // namespace

int main(int argc, char **argv)
{
    const bool isCounted = argc == 2 && std::strcmp(argv[1], "--count") == 0;
    if (isCounted)
        virtualtime::start();
    Application app(argc, argv);
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans")));
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const QTemporaryDir music;
    writeMusic(music, kTitles);
    // Counts are the same each time, times are not.
    Scenes player(music.path(), isCounted ? 4 : 40);
    const std::vector<Scene> scenes = player.play();
    for (const Scene &scene : scenes) {
        if (scene.frames.empty())
            qFatal("%s has no frames", scene.name.c_str());
    }
    if (isCounted)
        return 0;
    print(scenes);
    return argc < 2 || writeJson(QString::fromLocal8Bit(argv[1]), scenes) ? 0 : 1;
}
