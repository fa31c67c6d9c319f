// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_CALL_H
#define HEADUNIT_CALL_H

#include <QObject>
#include <QTimer>

namespace headunit
{

/// A telephone call, simulated: somebody answers after two seconds. Its timers run only during a
/// call.
class Call : public QObject
{
    Q_OBJECT

public:
    enum class State { None, Dialling, Connected };

    explicit Call(QObject *parent = nullptr);

    State state() const { return m_state; }
    QString number() const { return m_number; }
    int seconds() const { return m_seconds; } ///< since somebody answered
    bool isMuted() const { return m_isMuted; }
    bool isHeld() const { return m_isHeld; }

public slots:
    void dial(const QString &number); ///< ignored during a call, or without a number
    void hangUp();
    void toggleMuted();
    void toggleHeld(); ///< once somebody has answered

signals:
    void stateChanged();
    void secondPassed();

private:
    void tick();
    void setState(State state);

    QTimer m_timer;
    QString m_number;
    State m_state = State::None;
    int m_seconds = 0;
    bool m_isMuted = false;
    bool m_isHeld = false;
};

} // namespace headunit

#endif // HEADUNIT_CALL_H
