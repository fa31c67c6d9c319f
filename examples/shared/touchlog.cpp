// SPDX-License-Identifier: Apache-2.0
#include "touchlog.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWindow>

#include <algorithm>

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
        for (const Finger &finger : std::exchange(m_fingers, {}))
            add(TouchRecord::TouchRelease, finger.number, finger.screenPos);
        return;
    }
    for (const QTouchEvent::TouchPoint &point : event.touchPoints())
        recordPoint(point);
}

void TouchLog::recordPoint(const QTouchEvent::TouchPoint &point)
{
    const QPointF pos = point.screenPos();
    const auto found = std::find_if(m_fingers.begin(), m_fingers.end(),
                                    [&point](const Finger &f) { return f.id == point.id(); });
    if (found == m_fingers.end()) {
        if (point.state() != Qt::TouchPointPressed)
            return;
        m_fingers.append({point.id(), freeNumber(), pos});
        add(TouchRecord::TouchPress, m_fingers.constLast().number, pos);
        return;
    }
    const int number = found->number;
    if (point.state() == Qt::TouchPointMoved) {
        found->screenPos = pos;
        add(TouchRecord::TouchMove, number, pos);
    } else if (point.state() == Qt::TouchPointReleased) {
        m_fingers.erase(found);
        add(TouchRecord::TouchRelease, number, pos);
    }
}

int TouchLog::freeNumber() const
{
    int number = 1;
    const auto isTaken = [&number](const Finger &finger) { return finger.number == number; };
    while (std::any_of(m_fingers.begin(), m_fingers.end(), isTaken))
        ++number;
    return number;
}

// A release that another program's window got is made up for when the button is pressed anew.
void TouchLog::recordMouse(const QMouseEvent &event)
{
    if (event.source() != Qt::MouseEventNotSynthesized)
        return;
    const int number = int(event.button());
    const bool wasDown = m_buttons.testFlag(event.button());
    if (event.type() == QEvent::MouseMove) {
        add(TouchRecord::MouseMove, 0, event.screenPos());
    } else if (event.type() == QEvent::MouseButtonPress) {
        if (wasDown)
            add(TouchRecord::MouseRelease, number, event.screenPos());
        m_buttons.setFlag(event.button());
        add(TouchRecord::MousePress, number, event.screenPos());
    } else if (event.type() == QEvent::MouseButtonRelease && wasDown) {
        m_buttons.setFlag(event.button(), false);
        add(TouchRecord::MouseRelease, number, event.screenPos());
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
    // What is left of a full disk takes half a line without an error.
    const bool isHalf = m_file.error() == QFile::NoError;
    const QString sentence = isHalf ? tr("the disk is full") : m_file.errorString();
    m_file.resize(end);
    fail(sentence);
}

void TouchLog::fail(const QString &sentence)
{
    m_file.close();
    QCoreApplication::instance()->removeEventFilter(this);
    emit failed(tr("Touches are not recorded in %1: %2.").arg(m_file.fileName(), sentence));
}
