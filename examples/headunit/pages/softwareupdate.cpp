// SPDX-License-Identifier: Apache-2.0
#include "pages/softwareupdate.h"

namespace headunit
{

namespace
{

constexpr int kChecking = 3000; // ms
constexpr int kPerPercent = 150; // ms
constexpr int kAll = 100; // percent

} // namespace

SoftwareUpdate::SoftwareUpdate(QObject *parent) : QObject(parent)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &SoftwareUpdate::tick);
}

void SoftwareUpdate::start()
{
    if (isRunning())
        return;
    setPercent(0);
    m_timer.start(kChecking);
    setState(State::Checking);
}

void SoftwareUpdate::cancel()
{
    if (!isRunning())
        return;
    m_timer.stop();
    setPercent(0);
    setState(State::Cancelled);
}

void SoftwareUpdate::tick()
{
    if (m_state == State::Checking) {
        m_timer.start(kPerPercent);
        setState(State::Installing);
        return;
    }
    setPercent(m_percent + 1);
    if (m_percent < kAll)
        return;
    m_timer.stop();
    setState(State::Installed);
}

void SoftwareUpdate::setState(State state)
{
    m_state = state;
    emit stateChanged();
}

void SoftwareUpdate::setPercent(int percent)
{
    if (percent == m_percent)
        return;
    m_percent = percent;
    emit percentChanged(percent);
}

} // namespace headunit
