// SPDX-License-Identifier: Apache-2.0
#ifndef SIGNALLOG_H
#define SIGNALLOG_H

#include <QMetaMethod>
#include <QObject>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <functional>

/// What one object said, in order: every signal of its own class as `name(arguments)` and, once
/// they are delivered to it, its key requests as `beep` and the like. Strings stand in quotes.
class SignalLog : public QObject
{
public:
    explicit SignalLog(QObject *subject);
    ~SignalLog() override;

    /// The lines so far; the log starts anew.
    QStringList take();

    /// Called after each line, with it; for tests that act in the middle of a sequence.
    void onLine(std::function<void(const QString &)> reaction);

    /// From now on floating-point numbers have all their digits, instead of the first six.
    void writeAllDigits() { m_hasAllDigits = true; }

    bool eventFilter(QObject *receiver, QEvent *event) override;
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    void add(const QString &line);

    QObject *const m_subject;
    QVector<QMetaMethod> m_signals;
    QStringList m_lines;
    bool m_hasAllDigits = false;
    std::function<void(const QString &)> m_reaction;
};

/// The line of a signal with a point.
inline QString at(const char *signal, int x, int y)
{
    return QStringLiteral("%1(QPoint(%2,%3))").arg(QLatin1String(signal)).arg(x).arg(y);
}

/// A number so that another one reads otherwise.
QString allDigits(const QVariant &number);

#endif // SIGNALLOG_H
