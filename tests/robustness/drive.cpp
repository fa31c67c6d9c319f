// SPDX-License-Identifier: Apache-2.0
#include "drive.h"

#include "virtualtime.h"
#include "wildmodel.h"

#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QApplication>
#include <QMetaProperty>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTest>
#include <QWheelEvent>

#include <climits>

namespace
{

// After these QAbstractSlider, QAbstractButton, QCheckBox and the item views go on to their
// members, in any class derived from them.
bool isSurvivedByQt(const QMetaMethod &signal)
{
    static const QByteArrayList fatal{"actionTriggered", "released", "toggled", "stateChanged"};
    const QMetaObject *type = signal.enclosingMetaObject();
    const bool isOfQt = *type->className() == 'Q';
    return !isOfQt
        || (type != &QAbstractItemView::staticMetaObject && !fatal.contains(signal.name()));
}

QWidget *newParent()
{
    auto *parent = new QWidget;
    parent->resize(400, 300);
    return parent;
}

auto *touchPanel()
{
    static auto *const panel = QTest::createTouchDevice();
    return panel;
}

QStringList warnings; // since the last action

// Debug lines are not meant for anybody here; a screen that is none says what it cannot do with
// windows; and Qt says which fingers still touch what a slot has deleted.
void keepWarning(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg && type != QtInfoMsg
        && !text.startsWith(QLatin1String("This plugin does not support "))
        && !text.startsWith(QLatin1String("QGestureManager::deliverEvent: could not find")))
        warnings += text;
}

} // namespace

Drive::Drive(const DrivenClass &driven, QByteArray bytes)
    : m_driven(driven), m_values(std::move(bytes)), m_otherParent(newParent())
{
    qApp->installEventFilter(this);
}

Drive::~Drive() { delete m_object; }

QStringList Drive::play(int actions)
{
    const QtMessageHandler handler = qInstallMessageHandler(keepWarning);
    for (int i = 0; i < actions && !m_values.isEmpty() && m_problems.isEmpty(); ++i) {
        if (!m_object)
            revive();
        m_track += QString();
        act();
        check();
    }
    qInstallMessageHandler(handler);
    return m_problems;
}

void Drive::report(const QString &problem)
{
    constexpr int kShown = 8;
    m_problems +=
        QStringLiteral("%1 after ... %2: %3")
            .arg(QString::fromLatin1(m_driven.name),
                 m_track.mid(qMax(0, m_track.size() - kShown)).join(QLatin1String(", ")), problem);
}

void Drive::revive()
{
    if (!m_parent)
        m_parent.reset(newParent());
    if (!m_model)
        m_model = std::make_unique<WildModel>(m_values);
    m_values.parent = m_parent.get();
    m_values.model = m_model.get();
    m_object =
        m_driven.constructors[size_t(m_values.below(int(m_driven.constructors.size())))](m_values);
    m_last = m_object;
    listen();
    if (auto *widget = qobject_cast<QWidget *>(m_object)) {
        widget->resize(120, 80);
        widget->show();
        m_parent->show();
    }
}

// Every signal comes to qt_metacall(), as if to a slot of its own. What stands inside Qt's own work
// with the widget comes from the event loop.
void Drive::listen()
{
    const QMetaObject *type = m_object->metaObject();
    const int slot = QObject::staticMetaObject.methodCount();
    for (int i = slot; i < type->methodCount(); ++i) {
        const QMetaMethod method = type->method(i);
        if (method.methodType() != QMetaMethod::Signal || !isSurvivedByQt(method))
            continue;
        const bool isInsideQt = m_driven.signalsInsideQt.contains(method.name());
        QMetaObject::connect(m_object, i, this, slot,
                             isInsideQt ? Qt::QueuedConnection : Qt::DirectConnection);
    }
}

int Drive::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod)
        return id;
    interfere();
    return -1;
}

// What an application may do in a slot.
void Drive::interfere()
{
    if (m_isInsideQt) {
        if (m_object && m_values.once(32))
            m_object->deleteLater();
        return;
    }
    switch (m_values.below(64)) {
    case 1:
        delete m_object;
        break;
    case 2:
        m_parent.reset();
        break;
    case 3:
        m_model.reset();
        m_values.model = nullptr;
        break;
    case 4:
        if (m_model)
            m_model->change();
        break;
    case 5:
        if (m_loops < 2)
            wait(17);
        break;
    case 6:
        if (m_object)
            writeProperty();
        break;
    default:
        break;
    }
}

void Drive::act()
{
    const int kind = m_values.below(12);
    if (kind < 4)
        writeProperty();
    else if (kind < 6)
        callFunction();
    else if (kind == 6 && m_model)
        m_model->change();
    else if (auto *widget = qobject_cast<QWidget *>(m_object.data()))
        actOnWidget(*widget);
    if (m_values.once(4))
        wait(m_values.oneOf({0, 1, 16, 99, 1000, 61000}));
}

void Drive::actOnWidget(QWidget &widget)
{
    static constexpr struct {
        const char *name;
        void (Drive::*act)(QWidget &);
    } kActions[] = {{"resize", &Drive::resize},   {"mouse", &Drive::playMouse},
                    {"mouse", &Drive::playMouse}, {"fingers", &Drive::playFingers},
                    {"keys", &Drive::playKeys},   {"event", &Drive::sendEvent},
                    {"change", &Drive::change},   {"move", &Drive::move},
                    {"paint", &Drive::paint},     {"paint", &Drive::paint}};
    const auto &action = kActions[m_values.below(int(std::size(kActions)))];
    m_track.last() = QString::fromLatin1(action.name);
    (this->*action.act)(widget);
}

void Drive::writeProperty()
{
    const QMetaObject *type = m_object->metaObject();
    const int first = type->propertyOffset();
    if (type->propertyCount() == first)
        return;
    const QMetaProperty property =
        type->property(first + m_values.below(type->propertyCount() - first));
    m_track.last() += QString::fromLatin1(property.name());
    property.write(m_object, m_values.valueFor(property));
    if (m_object)
        property.read(m_object);
}

void Drive::callFunction()
{
    if (m_driven.calls.empty())
        return;
    const auto &call = m_driven.calls[size_t(m_values.below(int(m_driven.calls.size())))];
    m_track.last() = QString::fromLatin1(call.name);
    call.function(m_object, m_values);
}

void Drive::wait(int ms)
{
    ++m_loops;
    virtualtime::advance(qMin(ms, longestWait()));
    --m_loops;
}

// Some ticks of the fastest timer are enough of it, and fewer where each repaints a large area.
int Drive::longestWait() const
{
    constexpr int kTicks = 40;
    // A shadow is blurred anew for each.
    const auto *widget = qobject_cast<const QWidget *>(m_object.data());
    const qint64 pixels = widget && widget->graphicsEffect() ? 1 << 17 : 4 << 20;
    const int ticks = qBound(1, int(pixels / qMax(area(), pixels / kTicks)), kTicks);
    int interval = INT_MAX / kTicks;
    if (m_object) {
        for (const auto &timer : QAbstractEventDispatcher::instance()->registeredTimers(m_object))
            interval = qMin(timer.interval, interval);
    }
    return interval > 0 ? ticks * interval : qMax(1, ticks / virtualtime::kTurnsPerMs);
}

QPoint Drive::somewhere(const QWidget &widget)
{
    const auto along = [this](int length) {
        return m_values.once(4) ? m_values.oneOf({-500, -1, 0, 500, 5000})
                                : m_values.below(256) * qMax(1, length) / 256;
    };
    const int x = along(widget.width());
    return {x, along(widget.height())};
}

void Drive::resize(QWidget &widget)
{
    widget.setMinimumSize(0, 0);
    widget.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    widget.resize(m_values.once(64) ? QSize(4096, 4096)
                                    : m_values.oneOf({QSize(120, 80), QSize(0, 0), QSize(1, 1),
                                                      QSize(3, 900), QSize(800, 480)}));
}

// Mouse events as they come from a touch screen, to the widget or to one inside it.
void Drive::playMouse(QWidget &widget)
{
    QPointer<QWidget> target = &widget;
    const auto inside = widget.findChildren<QWidget *>();
    if (!inside.isEmpty() && m_values.once(2))
        target = inside[m_values.below(inside.size())];
    Qt::MouseButtons down;
    const auto send = [&](QEvent::Type type, Qt::MouseButton button) {
        if (!target)
            return;
        const QPoint at = somewhere(*target);
        QMouseEvent event(type, at, target->mapTo(target->window(), at), target->mapToGlobal(at),
                          button, down, Qt::NoModifier);
        event.setTimestamp(ulong(virtualtime::now()));
        QCoreApplication::sendEvent(target, &event);
    };
    down = Qt::LeftButton;
    send(m_values.once(8) ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, Qt::LeftButton);
    for (int moves = m_values.below(4); moves > 0; --moves) {
        send(QEvent::MouseMove, Qt::NoButton);
        if (m_values.once(3))
            wait(m_values.oneOf({1, 4, 20, 200, 3000}));
    }
    down = Qt::NoButton;
    if (m_values.below(5) > 0)
        send(QEvent::MouseButtonRelease, Qt::LeftButton);
}

// One or two fingers on the window, as the panel's driver reports them.
void Drive::playFingers(QWidget &widget)
{
    QPointer<QWidget> window = widget.window();
    const int fingers = 1 + m_values.below(2);
    const auto touch = [&](auto put) {
        if (!window || !window->windowHandle())
            return;
        auto sequence = QTest::touchEvent(window, touchPanel(), false);
        for (int finger = 0; finger < fingers; ++finger)
            put(sequence, finger);
        sequence.commit();
    };
    const auto at = [&] { return somewhere(*window); };
    touch([&](auto &sequence, int finger) { sequence.press(finger, at(), window); });
    for (int moves = m_values.below(4); moves > 0; --moves) {
        touch([&](auto &sequence, int finger) { sequence.move(finger, at(), window); });
        wait(m_values.oneOf({1, 16, 700}));
    }
    touch([&](auto &sequence, int finger) { sequence.release(finger, at(), window); });
}

void Drive::playKeys(QWidget &widget)
{
    const int key = m_values.oneOf({int(Qt::Key_Meta), int(Qt::Key_Space), int(Qt::Key_Left),
                                    int(Qt::Key_Down), int(Qt::Key_PageUp), int(Qt::Key_End)});
    const QString text = m_values.oneOf({QStringLiteral("beep"), QStringLiteral("pressicon"),
                                         QStringLiteral("grayicon"), QString()});
    const QPointer<QWidget> target = &widget;
    // An item view goes on to its members after the row has changed.
    const QScopedValueRollback<bool> inside(m_isInsideQt,
                                            qobject_cast<QAbstractItemView *>(&widget));
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        if (target)
            QCoreApplication::sendEvent(target, &event);
    }
}

void Drive::sendEvent(QWidget &widget)
{
    const QPoint at = somewhere(widget);
    switch (m_values.below(4)) {
    case 0: {
        QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, m_values.oneOf({120, -120, 7})},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&widget, &event);
        break;
    }
    case 1: {
        QEnterEvent event(at, at, widget.mapToGlobal(at));
        QCoreApplication::sendEvent(&widget, &event);
        break;
    }
    case 2: {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(&widget, &event);
        break;
    }
    default:
        if (m_values.once(2))
            widget.setFocus();
        else
            widget.clearFocus();
    }
}

void Drive::change(QWidget &widget)
{
    switch (m_values.below(7)) {
    case 0:
        widget.setEnabled(m_values.value<bool>());
        break;
    case 1:
        widget.setVisible(m_values.below(4) > 0);
        break;
    case 2:
        widget.setStyleSheet(m_values.oneOf(
            {QString(), QStringLiteral("color: red; border: 3px solid blue; padding: 4px")}));
        break;
    case 3:
        widget.setFont(m_values.value<QFont>());
        break;
    case 4:
        widget.setPalette(QPalette(m_values.color()));
        break;
    case 5:
        widget.setLocale(m_values.oneOf({QLocale(QLocale::C), QLocale(QLocale::Arabic)}));
        break;
    default:
        widget.setLayoutDirection(m_values.oneOf({Qt::LeftToRight, Qt::RightToLeft}));
    }
}

// To another parent, to none, or to another place; or away.
void Drive::move(QWidget &widget)
{
    switch (m_values.below(5)) {
    case 0:
        widget.setParent(m_otherParent.get());
        widget.show();
        m_otherParent->show();
        break;
    case 1:
        widget.setParent(nullptr);
        widget.show();
        break;
    case 2:
        widget.move(somewhere(widget));
        break;
    case 3:
        delete m_object;
        break;
    default:
        widget.deleteLater();
    }
}

void Drive::paint(QWidget &widget)
{
    QImage image(64, 64,
                 m_values.oneOf({QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB16,
                                 QImage::Format_RGB32}));
    image.setDevicePixelRatio(m_values.oneOf({1, 2}));
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
}

// In pixels; none without a widget.
qint64 Drive::area() const
{
    const auto *widget = qobject_cast<const QWidget *>(m_object.data());
    return widget ? qint64(widget->width()) * widget->height() : 0;
}

void Drive::check()
{
    // Of a window that is empty or immense Qt makes no picture to paint on, and says so. What takes
    // long to paint goes on as a small widget.
    constexpr qint64 kMostPixels = 1920 * 1080;
    auto *widget = qobject_cast<QWidget *>(m_object.data());
    const bool isPainted = !widget || (area() > 0 && area() <= kMostPixels);
    for (const QString &warning : std::exchange(warnings, QStringList())) {
        if (isPainted)
            report(warning);
    }
    if (area() > kMostPixels)
        widget->setFixedSize(120, 80);
    if (!m_object) {
        if (!QAbstractEventDispatcher::instance()->registeredTimers(m_last).isEmpty())
            report(QStringLiteral("a timer goes on without its object"));
        return;
    }
    const int timers = QAbstractEventDispatcher::instance()->registeredTimers(m_object).size();
    if (timers > m_driven.timers)
        report(QStringLiteral("%1 timers run at once").arg(timers));
    for (const auto &promise : m_driven.promises) {
        if (!promise.function(m_object, m_values))
            report(QStringLiteral("not true: ") + QString::fromLatin1(promise.name));
    }
}

bool Drive::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Paint && object == m_object
        && static_cast<QPaintEvent *>(event)->rect().isEmpty())
        report(QStringLiteral("an empty rectangle is painted"));
    return false;
}
