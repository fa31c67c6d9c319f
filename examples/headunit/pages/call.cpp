// SPDX-License-Identifier: Apache-2.0
#include "pages/call.h"

namespace headunit
{

namespace
{

constexpr int kUntilAnswered = 2000; // ms
constexpr int kSecond = 1000; // ms

} // namespace

Call::Call(QObject *parent) : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &Call::tick);
}

void Call::dial(const QString &number)
{
    if (m_state != State::None || number.isEmpty())
        return;
    m_number = number;
    m_seconds = 0;
    m_isMuted = false;
    m_isHeld = false;
    m_timer.start(kUntilAnswered);
    setState(State::Dialling);
}

void Call::hangUp()
{
    if (m_state == State::None)
        return;
    m_timer.stop();
    setState(State::None);
}

void Call::toggleMuted()
{
    m_isMuted = !m_isMuted;
    emit stateChanged();
}

void Call::toggleHeld()
{
    if (m_state != State::Connected)
        return;
    m_isHeld = !m_isHeld;
    emit stateChanged();
}

void Call::tick()
{
    if (m_state == State::Dialling) {
        m_timer.start(kSecond);
        setState(State::Connected);
        return;
    }
    ++m_seconds;
    emit secondPassed();
}

void Call::setState(State state)
{
    m_state = state;
    emit stateChanged();
}

} // namespace headunit
