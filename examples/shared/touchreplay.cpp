// SPDX-License-Identifier: Apache-2.0
#include "touchreplay.h"

#include <QFile>
#include <QGuiApplication>
#include <QWindow>

namespace
{

Qt::TouchPointState stateAfter(TouchRecord::Kind kind)
{
    return kind == TouchRecord::TouchPress ? Qt::TouchPointPressed
        : kind == TouchRecord::TouchMove   ? Qt::TouchPointMoved
                                           : Qt::TouchPointReleased;
}

QEvent::Type eventType(TouchRecord::Kind kind)
{
    return kind == TouchRecord::MousePress ? QEvent::MouseButtonPress
        : kind == TouchRecord::MouseMove   ? QEvent::MouseMove
                                           : QEvent::MouseButtonRelease;
}

QString sizeText(const QSize &size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

} // namespace

TouchReplay::TouchReplay(QWidget &window, QObject *parent) : QObject(parent), m_window(&window)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &TouchReplay::playNext);
}

bool TouchReplay::load(const QString &path)
{
    QFile file(path);
    QString sentence;
    if (!file.open(QIODevice::ReadOnly))
        sentence = file.errorString();
    else
        m_recording = TouchRecording::read(file, &sentence);
    if (sentence.isEmpty() && m_window && m_recording.window != m_window->size())
        sentence = tr("they were made on a window of %1, and this one has %2")
                       .arg(sizeText(m_recording.window), sizeText(m_window->size()));
    if (sentence.isEmpty())
        return true;
    m_recording = {};
    emit failed(tr("The touches in %1 are not played: %2.").arg(path, sentence));
    return false;
}

void TouchReplay::start()
{
    m_next = 0;
    m_sinceStart.start();
    schedule();
}

void TouchReplay::schedule()
{
    const bool isOver = m_next == m_recording.records.size();
    const qint64 due = isOver ? 0 : m_recording.records.at(m_next).time - m_sinceStart.elapsed();
    m_timer.start(int(qMax<qint64>(0, due)));
}

// The next event is waited for before this one is fed in: what it does may take long, like a dialog
// that is waited for, or delete this.
void TouchReplay::playNext()
{
    if (m_window && m_next < m_recording.records.size()) {
        if (m_recording.records.at(m_next).isTouch())
            playTouches();
        else
            playMouse();
        return;
    }
    emit finished();
}

// Fingers that do the same at the same time were reported together.
void TouchReplay::playTouches()
{
    const TouchRecord first = m_recording.records.at(m_next);
    QVector<feed::TouchPoint> points;
    QMap<int, QPointF> still = m_fingers;
    while (m_next < m_recording.records.size()) {
        const TouchRecord &record = m_recording.records.at(m_next);
        const bool isMovedAgain =
            record.kind == TouchRecord::TouchMove && !still.contains(record.id);
        if (record.time != first.time || record.kind != first.kind || isMovedAgain)
            break;
        points.append({record.id, stateAfter(record.kind), inTarget(record.pos)});
        still.remove(record.id);
        m_fingers[record.id] = record.pos;
        if (record.kind == TouchRecord::TouchRelease)
            m_fingers.remove(record.id);
        ++m_next;
    }
    for (auto finger = still.cbegin(); finger != still.cend(); ++finger)
        points.append({finger.key(), Qt::TouchPointStationary, inTarget(finger.value())});
    schedule();
    feed::touch(target(), points);
}

void TouchReplay::playMouse()
{
    const TouchRecord record = m_recording.records.at(m_next++);
    const auto button = Qt::MouseButton(record.id);
    if (record.kind != TouchRecord::MouseMove)
        m_buttons.setFlag(button, record.kind == TouchRecord::MousePress);
    const Qt::MouseButtons buttons = m_buttons;
    schedule();
    feed::mouse(target(), eventType(record.kind), inTarget(record.pos), button, buttons);
}

// A dialog blocks the windows below it; menus take what is done to any window.
QWindow &TouchReplay::target() const
{
    QWindow *dialog = QGuiApplication::modalWindow();
    return dialog ? *dialog : *m_window->windowHandle();
}

QPointF TouchReplay::inTarget(const QPointF &pos) const
{
    return pos + m_window->mapToGlobal(QPoint()) - target().mapToGlobal(QPoint());
}
