// SPDX-License-Identifier: Apache-2.0
#include "tour.h"

#include "headunit.h"
#include "launch.h"
#include "models/musiclibrary.h"
#include "models/preferences.h"
#include "steadypicture.h"
#include "tournames.h"
#include "virtualtime.h"

#include <panelkitclasses.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QSet>

#include <unistd.h>

namespace headunit
{

namespace
{

constexpr int kTimeOfDay = (10 * 60 + 8) * 60'000; // ms, of the first picture
constexpr int kAfterTouch = 150; // ms until the next touch
constexpr int kWhileDown = 350; // ms until a finger that stays down is seen to be there
constexpr int kLongestTap = 150; // ms
constexpr int kLongPress = 1500; // ms
constexpr int kSettling = 700; // ms from the last touch of a step to its picture

bool isOfPanelKit(const QObject *object)
{
#define PANELKIT_WIDGET(Class, ...) QByteArrayLiteral(#Class),
#define PANELKIT_PART(Class) QByteArrayLiteral(#Class),
    static const QSet<QByteArray> names{PANELKIT_FOR_EACH_WIDGET(PANELKIT_WIDGET)
                                            PANELKIT_FOR_EACH_PART(PANELKIT_PART)};
#undef PANELKIT_PART
#undef PANELKIT_WIDGET
    for (const QMetaObject *type = object->metaObject(); type; type = type->superClass()) {
        if (names.contains(type->className()))
            return true;
    }
    return false;
}

// "radio/preset5": the page and the object. What has no name has that of its parent too, and what
// tells it from its like.
QString nameOf(const QObject &object)
{
    const QObject *parent = object.parent();
    if (!object.objectName().isEmpty()) {
        const QObject *page = parent;
        while (page && !page->inherits("headunit::Page"))
            page = page->parent();
        return page ? page->objectName() + QLatin1Char('/') + object.objectName()
                    : object.objectName();
    }
    const QString type = QString::fromLatin1(object.metaObject()->className());
    const QString id = object.property("buttonID").toString();
    const QString own = id.isEmpty() ? type : type + QLatin1Char(' ') + id;
    return parent ? nameOf(*parent) + QLatin1Char('/') + own : own;
}

// Some processors turn and shrink pictures in ways that give other pixels. Qt has looked at what
// this one can do before main(), so the program begins again.
void pinProcessor(char **argv)
{
    const char *const variable = "QT_NO_CPU_FEATURE";
    const QByteArray features = "ssse3 sse4.1 sse4.2 avx avx2 bmi bmi2 f16c avx512f";
    if (qgetenv(variable) == features)
        return;
    qputenv(variable, features);
    ::execv("/proc/self/exe", argv);
}

QString tileOf(const QString &page) { return page + QStringLiteral("Tile"); }

} // namespace

void Tour::prepare(char **argv)
{
    pinProcessor(argv);
    launch::preferNoScreen();
    for (const char *variable : {"LANG", "LANGUAGE", "LC_MESSAGES", "LC_TIME", "LC_NUMERIC"})
        qunsetenv(variable);
    qunsetenv("QT_SCALE_FACTOR");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
    qputenv("QT_NO_GLIB", "1");
    virtualtime::start();
}

Tour::Tour(HeadUnit &screen, const Context &context, const QString &directory, By by)
    : m_screen(screen), m_context(context), m_log(QDir(directory)),
      m_finger(&screen, [this] { takePicture(); }), m_by(by)
{
    QCoreApplication::instance()->installEventFilter(this);
    const auto widgets = screen.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->testAttribute(Qt::WA_WState_Polished))
            listenTo(*widget);
    }
}

int Tour::play()
{
    waitForMusic();
    virtualtime::advance(kTimeOfDay);
    m_screen.show();
    virtualtime::advance(kSettling);
    const QStringList pages = m_screen.pageNames();
    for (const QString &page : pages)
        playPage(page);
    playNight();
    return m_log.conclude();
}

// A widget is polished once, before it is seen for the first time.
bool Tour::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Polish && watched->isWidgetType())
        listenTo(*static_cast<QWidget *>(watched));
    return false;
}

void Tour::listenTo(QWidget &widget)
{
    if (isOfPanelKit(&widget) && widget.window() == &m_screen)
        m_log.listenTo(&widget, nameOf(widget));
}

// Threads look for the music and read pictures, in a time of their own.
void Tour::waitForMusic()
{
    const virtualtime::Standstill standstill;
    while (!m_context.music.isFinished() || m_context.music.isReadingCovers())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void Tour::playPage(const QString &page)
{
    openPage(page);
    const QVector<TourStep> steps = tourOf(page, m_context.preferences.language());
    for (const TourStep &step : steps)
        playStep(page, step);
    goHome();
}

void Tour::playStep(const QString &page, const TourStep &step)
{
    m_log.step(page == step.name ? page : page + QLatin1Char(' ') + step.name);
    for (const TourTouch &each : step.touches)
        touch(each);
    m_finger.hold(m_isDown ? kWhileDown : kSettling).picture();
    m_log.check(
        m_screen.currentPage() == page,
        QStringLiteral("%1, %2: the page is %3").arg(page, step.name, m_screen.currentPage()));
    if (std::exchange(m_isDown, false))
        m_finger.release().hold(kAfterTouch);
}

void Tour::playNight()
{
    m_screen.setLook(Theme::Night);
    const QStringList pages = m_screen.pageNames();
    for (const QString &page : pages) {
        openPage(page);
        const QVector<TourStep> steps = nightTourOf(page);
        for (const TourStep &step : steps)
            playStep(page, step);
        goHome();
    }
}

void Tour::openPage(const QString &name)
{
    if (name == m_screen.currentPage())
        return;
    m_log.step(name + QStringLiteral(" is opened"));
    touch({tileOf(name), {0.5, 0.4}, {0.5, 0.4}, kAfterTouch, false});
    m_log.check(m_screen.currentPage() == name, QStringLiteral("%1 does not open").arg(name));
}

void Tour::goHome()
{
    m_log.endStep();
    if (!visibleWidget(QStringLiteral("homeKey")))
        return;
    touch({QStringLiteral("homeKey"), {0.5, 0.5}, {0.5, 0.5}, kAfterTouch, false});
    m_finger.hold(kSettling - kAfterTouch);
}

void Tour::touch(const TourTouch &touch)
{
    if (touch.widget.isEmpty()) {
        m_finger.hold(touch.duration);
        return;
    }
    if (m_by == By::Name) {
        touchNamed(touch);
        return;
    }
    QWidget *widget = visibleWidget(touch.widget);
    m_log.check(widget, QStringLiteral("There is no %1 to be touched.").arg(touch.widget));
    if (!widget)
        return;
    const auto inWidget = [widget](const QPointF &part) {
        return QPoint(qRound(part.x() * widget->width()), qRound(part.y() * widget->height()));
    };
    m_finger.on(widget).press(inWidget(touch.from));
    if (touch.to == touch.from)
        m_finger.hold(touch.duration);
    else
        m_finger.moveTo(inWidget(touch.to), touch.duration);
    m_isDown = touch.isLeftDown;
    if (!m_isDown)
        m_finger.release().hold(kAfterTouch);
}

// The actions of accessibility stand for the taps, at the moment of the release; that of a row,
// which takes its time, and a long press begin with the press. Any other touch is one between
// places.
void Tour::touchNamed(const TourTouch &touch)
{
    QAccessibleInterface *found = findNamed(m_screen, m_screen.currentPage(), touch);
    m_log.check(found,
                QStringLiteral("Nothing is named %1.")
                    .arg(accessibleNames(m_screen.currentPage(), touch).join(QLatin1Char('/'))));
    if (!found)
        return;
    const QPoint from = placeIn(m_screen, *found, touch.from);
    const QPoint to = placeIn(m_screen, *found, touch.to);
    const bool isList = found->role() == QAccessible::List;
    if (isList && touch.duration <= kLongestTap)
        found = found->childAt(m_screen.mapToGlobal(from).x(), m_screen.mapToGlobal(from).y());
    QAccessibleActionInterface *actions = found ? found->actionInterface() : nullptr;
    const QString press = QAccessibleActionInterface::pressAction();
    if (touch.to != touch.from || touch.isLeftDown || !actions
        || !actions->actionNames().contains(press)
        || (touch.duration > kLongestTap && touch.duration != kLongPress)) {
        m_finger.on(&m_screen).press(from);
        if (from == to)
            m_finger.hold(touch.duration);
        else
            m_finger.moveTo(to, touch.duration);
        m_isDown = touch.isLeftDown;
        if (!m_isDown)
            m_finger.release().hold(kAfterTouch);
    } else if (touch.duration == kLongPress) {
        actions->doAction(QStringLiteral("LongPress"));
        m_finger.hold(touch.duration + kAfterTouch);
    } else if (isList) {
        actions->doAction(press);
        m_finger.hold(touch.duration + kAfterTouch);
    } else {
        m_finger.hold(touch.duration);
        actions->doAction(press);
        m_finger.hold(kAfterTouch);
    }
}

QWidget *Tour::visibleWidget(const QString &name) const
{
    for (const QWidget *place :
         {m_screen.page(m_screen.currentPage()), static_cast<QWidget *>(&m_screen)}) {
        const auto widgets = place->findChildren<QWidget *>(name);
        for (QWidget *widget : widgets) {
            if (widget->isVisible())
                return widget;
        }
    }
    return nullptr;
}

void Tour::takePicture()
{
    waitForMusic();
    const QImage picture = steadyPicture(m_screen);
    m_log.check(!TourLog::isBlank(picture), QStringLiteral("There is nothing on the screen."));
    m_log.save(picture);
}

} // namespace headunit
