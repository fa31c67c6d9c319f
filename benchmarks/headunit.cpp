// SPDX-License-Identifier: Apache-2.0
// What the head unit costs with much music: how long it takes to the first picture, and each frame
// of a list that is flung, beside a plain list of Qt's and beside the least that the same area can
// cost. Fails where a frame takes longer than a screen of 60 Hz has, or many files make a slow
// start.

#include "car.h"
#include "finger.h"
#include "sidekeys.h"

#include <sptablelist.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QListView>
#include <QLoggingCategory>
#include <QPainter>
#include <QScrollBar>
#include <QStringListModel>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

using namespace headunit;

namespace
{

constexpr int kFew = 3; // files
constexpr int kTitles = 2'000;
constexpr int kMany = 20'000;
constexpr double kMostFrame = 16; // ms
constexpr double kMostLonger = 1000; // ms that many files may add to the start

/// Notes what each frame of a window costs.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    std::vector<double> takeFrames() { return std::exchange(m_frames, {}); }

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (event->type() != QEvent::UpdateRequest)
            return QApplication::notify(receiver, event);
        const double before = used();
        const bool result = QApplication::notify(receiver, event);
        m_frames.push_back(used() - before);
        return result;
    }

private:
    std::vector<double> m_frames;
};

Application &application() { return *static_cast<Application *>(QApplication::instance()); }

struct Start {
    double firstPicture; // ms of true time
    double toTheEnd; // ms of the screen's thread until all tags are read
    int reports; // of the progress
};

Start start(const QTemporaryDir &folder)
{
    application().takeFrames();
    QElapsedTimer clock;
    clock.start();
    const double before = used();
    Start result{};
    Car car(folder.path());
    QObject::connect(&car.music, &MusicLibrary::progress, [&result] { ++result.reports; });
    while (application().takeFrames().empty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    result.firstPicture = double(clock.nsecsElapsed()) / 1e6;
    car.waitForMusic();
    result.toTheEnd = used() - before;
    return result;
}

struct Frames {
    int count;
    double mean; // ms
    double longest; // ms
};

Frames summary(const std::vector<double> &frames)
{
    double sum = 0;
    for (const double frame : frames)
        sum += frame;
    return {int(frames.size()), frames.empty() ? 0 : sum / double(frames.size()),
            frames.empty() ? 0 : *std::max_element(frames.begin(), frames.end())};
}

// A list that is flung upwards, until it rests.
Frames fling(const QTemporaryDir &folder)
{
    Car car(folder.path());
    car.waitForMusic();
    car.screen.openPage(QStringLiteral("media"));
    QWidget *page = car.screen.page(QStringLiteral("media"));
    emit page->findChild<SideKeys *>(QStringLiteral("sideKeys"))->chosen(1);
    auto *list = page->findChild<SpTableList *>(QStringLiteral("list"));
    Finger finger(list->viewport());
    finger.hold(200);
    application().takeFrames();
    const QPoint from(list->width() / 2, list->height() - 10);
    finger.press(from).moveTo({from.x(), 10}, 120).release().hold(3000);
    return summary(application().takeFrames());
}

// The same area, scrolled by as much a frame: what Qt's own list takes for bare text.
Frames scrollPlainList(const QSize &area)
{
    QStringList titles;
    for (int i = 0; i < kTitles; ++i)
        titles += QStringLiteral("Air for the road, number %1").arg(i);
    QStringListModel model(titles);
    QListView list;
    list.setModel(&model);
    list.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list.setUniformItemSizes(true);
    list.resize(area);
    list.show();
    QCoreApplication::processEvents();
    application().takeFrames();
    for (int i = 0; i < 100; ++i) {
        list.verticalScrollBar()->setValue(i * 40);
        list.viewport()->update();
        QCoreApplication::processEvents();
    }
    return summary(application().takeFrames());
}

// The least: one picture of the area, over and over.
Frames blit(const QSize &area)
{
    QPixmap picture(area);
    picture.fill(Qt::darkBlue);
    QPixmap screen(area);
    std::vector<double> frames;
    for (int i = 0; i < 100; ++i) {
        const double before = used();
        QPainter painter(&screen);
        painter.drawPixmap(0, 0, picture);
        painter.end();
        frames.push_back(used() - before);
    }
    return summary(frames);
}

void print(const char *what, const Frames &frames)
{
    std::printf("%-34s %8d %10.2f %10.2f\n", what, frames.count, frames.mean, frames.longest);
}

} // namespace

int main(int argc, char **argv)
{
    Application app(argc, argv);
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans")));
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const QTemporaryDir few;
    const QTemporaryDir titles;
    const QTemporaryDir many;
    writeMusic(few, kFew);
    writeMusic(titles, kTitles);
    writeMusic(many, kMany);

    start(few); // whatever is read from the disk for the first time is read now
    const Start quick = start(few);
    const Start slow = start(many);
    std::printf("%-34s %8s %10s %10s\n", "start, ms", "picture", "thread", "reports");
    std::printf("%-34s %8.0f %10.0f %10d\n", "3 files", quick.firstPicture, quick.toTheEnd,
                quick.reports);
    std::printf("%-34s %8.0f %10.0f %10d\n", "20,000 files", slow.firstPicture, slow.toTheEnd,
                slow.reports);

    const Frames flung = fling(titles);
    const Frames longer = fling(many);
    std::printf("\n%-34s %8s %10s %10s\n", "fling, processor ms a frame", "frames", "mean",
                "longest");
    print("tracks, 2,000 titles", flung);
    print("tracks, 20,000 titles", longer);
    const QSize area(700, 400);
    print("floor: QListView with bare text", scrollPlainList(area));
    print("floor: one picture of the area", blit(area));

    const bool isStartQuick = slow.firstPicture - quick.firstPicture < kMostLonger;
    const bool isSmooth = flung.longest < kMostFrame && longer.longest < kMostFrame;
    const bool isTold = slow.reports > quick.reports;
    if (!isStartQuick || !isSmooth || !isTold)
        std::printf("\nThat is too much.\n");
    return isStartQuick && isSmooth && isTold ? 0 : 1;
}
