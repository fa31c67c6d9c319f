// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_SOFTWAREUPDATE_H
#define HEADUNIT_SOFTWAREUPDATE_H

#include <QObject>
#include <QTimer>

namespace headunit
{

/// An update of the head unit, simulated: it is looked for, then installed. Its timer runs only
/// meanwhile.
class SoftwareUpdate : public QObject
{
    Q_OBJECT

public:
    enum class State { None, Checking, Installing, Installed, Cancelled };

    explicit SoftwareUpdate(QObject *parent = nullptr);

    State state() const { return m_state; }
    int percent() const { return m_percent; }
    bool isRunning() const { return m_state == State::Checking || m_state == State::Installing; }

public slots:
    void start();
    void cancel();

signals:
    void stateChanged();
    void percentChanged(int percent);

private:
    void tick();
    void setState(State state);
    void setPercent(int percent);

    QTimer m_timer;
    State m_state = State::None;
    int m_percent = 0;
};

} // namespace headunit

#endif // HEADUNIT_SOFTWAREUPDATE_H
