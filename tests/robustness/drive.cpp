// SPDX-License-Identifier: Apache-2.0
#include "drive.h"

#include "virtualtime.h"
#include "wildmodel.h"

#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QApplication>
#include <QGraphicsEffect>
#include <QMetaProperty>
#include <QScopedValueRollback>

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
    virtualtime::startMinute();
    qApp->installEventFilter(this);
}

Drive::~Drive() { delete m_object; }

QStringList Drive::play(int actions)
{
    const QtMessageHandler handler = qInstallMessageHandler(keepWarning);
    for (int i = 0; i < actions && !m_values.isEmpty() && m_problems.isEmpty(); ++i) {
        if (!m_object)
            revive();
        ++m_actions;
        act();
        deleteLate();
        check();
    }
    qInstallMessageHandler(handler);
    return m_problems;
}

void Drive::report(const QString &problem)
{
    constexpr int kShown = 8;
    const QStringList &lines = track();
    m_problems +=
        QStringLiteral("%1, action %2, after ... %3: %4")
            .arg(QString::fromLatin1(m_driven.name))
            .arg(m_actions)
            .arg(lines.mid(qMax(0, lines.size() - kShown)).join(QLatin1String(", ")), problem);
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
    const int kind = m_values.below(64);
    if (kind > 0 && kind < 7)
        m_values.track.add("in a slot", kind);
    switch (kind) {
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

void Drive::writeProperty()
{
    const QMetaObject *type = m_object->metaObject();
    const int first = type->propertyOffset();
    if (type->propertyCount() == first)
        return;
    const QMetaProperty property =
        type->property(first + m_values.below(type->propertyCount() - first));
    const QVariant value = m_values.valueFor(property);
    m_values.track.add(property.name(), value);
    property.write(m_object, value);
    if (m_object)
        property.read(m_object);
}

void Drive::callFunction()
{
    if (m_driven.calls.empty())
        return;
    m_driven.calls[size_t(m_values.below(int(m_driven.calls.size())))](m_object, m_values);
}

// What deleteLater() was called for goes before the next event in a program with an event loop
// around everything, which there is none here.
void Drive::deleteLate() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

// Some ticks are enough of a timer, and fewer where each is followed by much work: the wait goes
// from one to the next.
void Drive::wait(int ms)
{
    constexpr qint64 kTicks = 40;
    constexpr qint64 kMostWork = 4 << 20;
    constexpr int kNone = 2000; // ms, after which to look again for a timer that has come
    m_values.track.add("wait", ms);
    deleteLate();
    ++m_loops;
    virtualtime::advance(0);
    qint64 ticks = qBound(qint64(1), kMostWork / qMax(qint64(1), paintWork()), kTicks);
    while (ms > 0 && ticks > 0) {
        const int next = untilNextTick();
        const int part = qMin(ms, qBound(1, next, kNone));
        virtualtime::advance(part);
        ms -= part;
        if (next <= part)
            ticks -= next == 0 ? virtualtime::kTurnsPerMs : 1;
    }
    --m_loops;
}

int Drive::untilNextTick() const
{
    auto *const dispatcher = QAbstractEventDispatcher::instance();
    int next = INT_MAX;
    QObjectList owners;
    if (m_object)
        owners = m_object->children() + QObjectList{m_object};
    for (QObject *owner : qAsConst(owners)) {
        for (const auto &timer : dispatcher->registeredTimers(owner))
            next = qMin(next, dispatcher->remainingTime(timer.timerId));
    }
    return next;
}

// Of a window that is empty or immense Qt makes no picture to paint on, and says so. What takes
// long to paint goes on as a small widget.
void Drive::check()
{
    constexpr qint64 kMostPixels = 1920 * 1080;
    auto *widget = qobject_cast<QWidget *>(m_object.data());
    const bool isPainted = !widget || (area() > 0 && area() <= kMostPixels);
    for (const QString &warning : std::exchange(warnings, QStringList())) {
        if (isPainted)
            report(warning);
    }
    if (widget && paintWork() > kMostPixels) {
        widget->setGraphicsEffect(nullptr);
        widget->setFixedSize(120, 80);
    }
    if (m_object)
        checkObject();
    else if (!QAbstractEventDispatcher::instance()->registeredTimers(m_last).isEmpty())
        report(QStringLiteral("a timer goes on without its object"));
}

void Drive::checkObject()
{
    const int timers = QAbstractEventDispatcher::instance()->registeredTimers(m_object).size();
    if (timers > m_driven.timers)
        report(QStringLiteral("%1 timers run at once").arg(timers));
    for (const auto &promise : m_driven.promises) {
        if (!promise.isKept(m_object))
            report(QStringLiteral("not true: ") + QString::fromLatin1(promise.text));
    }
}

bool Drive::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Paint && object == m_object
        && static_cast<QPaintEvent *>(event)->rect().isEmpty())
        report(QStringLiteral("an empty rectangle is painted"));
    return false;
}
