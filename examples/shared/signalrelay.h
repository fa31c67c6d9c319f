// SPDX-License-Identifier: Apache-2.0
#ifndef SHARED_SIGNALRELAY_H
#define SHARED_SIGNALRELAY_H

#include <QMetaMethod>
#include <QObject>
#include <QVector>

#include <functional>

/**
 * Listens to every signal of any object and reports it in words. Only what QObject and QWidget
 * themselves emit is left out.
 *
 * It has no slots that moc knows: each connection leads to a slot number of its own, which is the
 * place of its signal in a list.
 */
class SignalRelay : public QObject
{
public:
    using Report = std::function<void(QObject *sender, const QString &signal)>;

    explicit SignalRelay(Report report, QObject *parent = nullptr);

    void watch(QObject *subject);

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    struct Connection {
        QObject *sender;
        QMetaMethod signal;
    };

    Report m_report;
    QVector<Connection> m_connections;
};

#endif // SHARED_SIGNALRELAY_H
