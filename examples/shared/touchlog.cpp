// SPDX-License-Identifier: Apache-2.0
#include "touchlog.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTouchEvent>
#include <QWindow>

TouchLog::TouchLog(QWidget &window, QObject *parent) : QObject(parent), m_window(&window) { }

bool TouchLog::start(const QString &path)
{
    m_file.close();
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
        fail(m_file.errorString());
        return false;
    }
    m_hasRecords = false;
    m_fingers.clear();
    m_buttons = {};
    m_size = m_window->size();
    m_sinceStart.start();
    QCoreApplication::instance()->installEventFilter(this);
    write(TouchRecording::head(m_size));
    return isRecording();
}

bool TouchLog::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_window || !isRecording())
        return false;
    if (watched == m_window && event->type() == QEvent::Resize)
        takeNewSize();
    if (!event->spontaneous() || !watched->isWindowType()
        || !isAboveWindow(static_cast<QWindow *>(watched)))
        return false;
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        recordTouch(*static_cast<QTouchEvent *>(event));
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        recordMouse(*static_cast<QMouseEvent *>(event));
        break;
    default: // a double click is made by Qt of the second press
        break;
    }
    return false;
}

bool TouchLog::isAboveWindow(const QWindow *window) const
{
    return window == m_window->windowHandle() || window->type() == Qt::Popup
        || window->modality() != Qt::NonModal;
}

// Fingers that were down before the recording began are left out until they are down anew. Those of
// a touch that is called off are lifted where they were.
void TouchLog::recordTouch(const QTouchEvent &event)
{
    if (event.type() == QEvent::TouchCancel) {
        const QMap<int, QPointF> lifted = std::exchange(m_fingers, {});
        for (auto finger = lifted.begin(); finger != lifted.end(); ++finger)
            add(TouchRecord::TouchRelease, finger.key(), finger.value());
        return;
    }
    for (const QTouchEvent::TouchPoint &point : event.touchPoints()) {
        const bool isDown = m_fingers.contains(point.id());
        if (point.state() == Qt::TouchPointPressed && !isDown) {
            m_fingers.insert(point.id(), point.screenPos());
            add(TouchRecord::TouchPress, point.id(), point.screenPos());
        } else if (point.state() == Qt::TouchPointMoved && isDown) {
            m_fingers[point.id()] = point.screenPos();
            add(TouchRecord::TouchMove, point.id(), point.screenPos());
        } else if (point.state() == Qt::TouchPointReleased && isDown) {
            m_fingers.remove(point.id());
            add(TouchRecord::TouchRelease, point.id(), point.screenPos());
        }
    }
}

// A press that closes a menu comes in a second time, for what lies under the menu; nobody can press
// a button that is down.
void TouchLog::recordMouse(const QMouseEvent &event)
{
    if (event.source() != Qt::MouseEventNotSynthesized)
        return;
    const bool wasDown = m_buttons.testFlag(event.button());
    if (event.type() == QEvent::MouseMove) {
        add(TouchRecord::MouseMove, 0, event.screenPos());
    } else if (event.type() == QEvent::MouseButtonPress && !wasDown) {
        m_buttons.setFlag(event.button());
        add(TouchRecord::MousePress, event.button(), event.screenPos());
    } else if (event.type() == QEvent::MouseButtonRelease && wasDown) {
        m_buttons.setFlag(event.button(), false);
        add(TouchRecord::MouseRelease, event.button(), event.screenPos());
    }
}

void TouchLog::add(TouchRecord::Kind kind, int id, const QPointF &screenPos)
{
    m_hasRecords = true;
    const QPointF pos = screenPos - m_window->mapToGlobal(QPoint());
    write(TouchRecord{m_sinceStart.elapsed(), kind, id, pos}.line());
}

// A window may find its size after it is shown. Once something is recorded there is no other head.
void TouchLog::takeNewSize()
{
    if (m_window->size() == m_size)
        return;
    if (m_hasRecords) {
        fail(tr("the window has another size now"));
        return;
    }
    m_size = m_window->size();
    m_file.resize(0);
    m_file.seek(0);
    write(TouchRecording::head(m_size));
}

void TouchLog::write(const QByteArray &bytes)
{
    const qint64 end = m_file.pos();
    if (!isRecording() || m_file.write(bytes) == bytes.size())
        return;
    const QString sentence = m_file.errorString();
    m_file.resize(end); // what is left of a full disk may have taken half a line
    fail(sentence);
}

void TouchLog::fail(const QString &sentence)
{
    m_file.close();
    QCoreApplication::instance()->removeEventFilter(this);
    emit failed(tr("Touches are not recorded in %1: %2.").arg(m_file.fileName(), sentence));
}
