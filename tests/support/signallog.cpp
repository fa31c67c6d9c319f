// SPDX-License-Identifier: Apache-2.0
#include "signallog.h"

#include "detail/qtversion.h"

#include <QCoreApplication>
#include <QDebug>
#include <QKeyEvent>
#include <QMetaObject>
#include <QWidget>

namespace
{

// The number of meta-methods that come from Qt's own classes: those are not the subject's words.
int firstOwnMethod(const QMetaObject *type)
{
    const QMetaObject *own = type;
    int first = 0;
    for (; own; own = own->superClass()) {
        if (QByteArray(own->className()).startsWith('Q')) {
            first = own->methodCount();
            break;
        }
    }
    return first;
}

QString described(const QVariant &value)
{
    QString text;
    QDebug(&text).nospace() << value;
    const int open = text.indexOf(QStringLiteral(", "));
    return text.mid(open + 2).chopped(1); // of "QVariant(type, value)"
}

} // namespace

QString allDigits(const QVariant &number)
{
    constexpr int kFloatDigits = 9;
    constexpr int kDoubleDigits = 17;
    if (number.userType() == QMetaType::Float)
        return QString::number(double(number.toFloat()), 'g', kFloatDigits);
    if (number.userType() == QMetaType::Double)
        return QString::number(number.toDouble(), 'g', kDoubleDigits);
    return described(number);
}

SignalLog::SignalLog(QObject *subject) : m_subject(subject)
{
    const QMetaObject *type = subject->metaObject();
    for (int i = firstOwnMethod(type); i < type->methodCount(); ++i) {
        const QMetaMethod method = type->method(i);
        if (method.methodType() != QMetaMethod::Signal)
            continue;
        QMetaObject::connect(subject, i, this,
                             QObject::staticMetaObject.methodCount() + int(m_signals.size()));
        m_signals.append(method);
    }
    QCoreApplication::instance()->installEventFilter(this);
}

SignalLog::~SignalLog() = default;

QStringList SignalLog::take() { return std::exchange(m_lines, QStringList()); }

void SignalLog::onLine(std::function<void(const QString &)> reaction)
{
    m_reaction = std::move(reaction);
}

bool SignalLog::eventFilter(QObject *receiver, QEvent *event)
{
    if (receiver == m_subject && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Meta && key->QInputEvent::modifiers() == Qt::NoModifier
            && key->count() == 1 && !key->isAutoRepeat())
            add(key->text());
    }
    return false;
}

int SignalLog::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod)
        return id;
    const QMetaMethod &method = m_signals[id];
    QStringList values;
    for (int i = 0; i < method.parameterCount(); ++i) {
        const QVariant value = panelkit::variantOf(method.parameterType(i), arguments[i + 1]);
        values += m_hasAllDigits ? allDigits(value) : described(value);
    }
    add(QStringLiteral("%1(%2)").arg(QString::fromLatin1(method.name()),
                                     values.join(QStringLiteral(", "))));
    return -1;
}

void SignalLog::add(const QString &line)
{
    m_lines += line;
    if (m_reaction)
        m_reaction(line);
}
