// SPDX-License-Identifier: Apache-2.0
#include "film.h"

#include "catalogue.h"
#include "mainwindow.h"
#include "virtualtime.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QScreen>

#include <algorithm>
#include <cstdio>

namespace
{

constexpr int kEach = 50; // ms between pictures: what moves long enough, at its own speed
constexpr int kSlow = 16; // ms: what is short is shown at a third of its speed
constexpr int kMargin = 12; // px around the content
constexpr int kFingerRadius = 14; // px

// What moves. tests/integration/pages.py knows the classes, too.
struct Shot {
    const char *page;
    const char *act;
    int rest; // ms, for which the film goes on after the act
    int interval; // ms
};

constexpr Shot kShots[] = {
    {"MArcList", "flung", 600, kSlow},
    {"MArcScrollBar", "dragged", 200, kSlow},
    {"MCircularDial", "dragged", 200, kSlow},
    {"MGifPlay", "playing", 1600, kEach},
    {"MHorSlider", "dragged", 200, kSlow},
    {"MKARVOSlider FM Europe", "drag", 200, kSlow},
    {"MOnOffButton", "gliding on", 900, kSlow},
    {"MProgressBar", "dragged", 200, kSlow},
    {"MRadioMovePoint FM Europe", "drag", 200, kSlow},
    {"MRadioSlider FM Europe", "drag", 200, kSlow},
    {"MVScrollLabel", "scrolling", 0, kEach},
    {"SpHomeIcon", "animated, pressed", 1500, kEach},
    {"Busy rings", "turning", 1000, kEach},
    {"SpRollingText", "rolling", 3000, kEach},
    {"SpSetupSlider", "dragged", 200, kSlow},
    {"SpTableList", "fling", 600, kEach},
};

} // namespace

void Film::prepare()
{
    qputenv("QT_NO_GLIB", "1");
    virtualtime::start();
}

Film::Film(MainWindow &window, const QDir &directory) : m_window(window), m_directory(directory)
{
    m_camera.setTimerType(Qt::PreciseTimer);
    connect(&m_camera, &QTimer::timeout, this, &Film::takePicture);
    QCoreApplication::instance()->installEventFilter(this);
}

int Film::takeAll(const Catalogue &catalogue)
{
    const bool areAll = std::all_of(std::begin(kShots), std::end(kShots), [&](const Shot &shot) {
        m_camera.setInterval(shot.interval);
        return take(catalogue, QString::fromLatin1(shot.page), QString::fromLatin1(shot.act),
                    shot.rest);
    });
    return areAll ? 0 : 1;
}

bool Film::take(const Catalogue &catalogue, const QString &pageName, const QString &actName,
                int rest)
{
    const Page *page = catalogue.find(pageName);
    const auto act = page ? std::find_if(page->acts.begin(), page->acts.end(),
                                         [&](const Act &a) { return a.name == actName; })
                          : std::vector<Act>::const_iterator();
    if (!page || act == page->acts.end()) {
        std::fprintf(stderr, "There is no %s, %s.\n", qUtf8Printable(pageName),
                     qUtf8Printable(actName));
        return false;
    }
    m_className = page->classInfo.name.toLower();
    m_pictures = 0;
    m_directory.mkpath(m_className);
    m_window.showPage(*page);
    m_frame = {};
    m_camera.start();
    m_window.perform(int(act - page->acts.begin()));
    virtualtime::advance(rest);
    m_camera.stop();
    return true;
}

void Film::takePicture()
{
    QWidget *const scene = m_window.scene();
    if (m_frame.isNull())
        m_frame =
            scene->childrenRect().adjusted(-kMargin, -kMargin, kMargin, kMargin) & scene->rect();
    // What is on the screen already: a picture of its own would be a paint more, and some widgets
    // move by being painted.
    const QRect inWindow(scene->mapTo(&m_window, m_frame.topLeft()), m_frame.size());
    QPixmap picture = m_window.screen()->grabWindow(m_window.winId(), inWindow.x(), inWindow.y(),
                                                    inWindow.width(), inWindow.height());
    if (m_isTouching) {
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(255, 255, 255, 200), 2));
        painter.setBrush(QColor(255, 255, 255, 70));
        painter.drawEllipse(scene->mapFromGlobal(m_finger) - m_frame.topLeft(), kFingerRadius,
                            kFingerRadius);
    }
    picture.save(m_directory.filePath(
        QStringLiteral("%1/%2.png").arg(m_className).arg(++m_pictures, 3, 10, QLatin1Char('0'))));
}

bool Film::eventFilter(QObject *watched, QEvent *event)
{
    if (watched->isWidgetType()
        && (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove
            || event->type() == QEvent::MouseButtonRelease)) {
        m_finger = static_cast<QMouseEvent *>(event)->globalPos();
        m_isTouching = event->type() != QEvent::MouseButtonRelease;
    }
    return QObject::eventFilter(watched, event);
}
