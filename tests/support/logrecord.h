// SPDX-License-Identifier: Apache-2.0
#ifndef LOGRECORD_H
#define LOGRECORD_H

#include <QMessageLogContext>
#include <QString>
#include <QVector>

/// One message with where it says that it comes from.
struct LoggedLine {
    QString text;
    QString file;
    QString function;
    int line;
};

/// Takes every message of the program while it exists.
class LogRecord
{
public:
    LogRecord() : m_previous(qInstallMessageHandler(record)) { lines().clear(); }
    ~LogRecord() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY(LogRecord)

    QVector<LoggedLine> take() { return std::exchange(lines(), {}); }

    /// Only the texts.
    QStringList takeTexts()
    {
        QStringList texts;
        for (const LoggedLine &line : take())
            texts += line.text;
        return texts;
    }

private:
    static QVector<LoggedLine> &lines()
    {
        static QVector<LoggedLine> instance;
        return instance;
    }
    static void record(QtMsgType, const QMessageLogContext &context, const QString &text)
    {
        lines().append({text, QString::fromUtf8(context.file), QString::fromUtf8(context.function),
                        context.line});
    }

    QtMessageHandler m_previous;
};

#endif // LOGRECORD_H
