// SPDX-License-Identifier: Apache-2.0
#include "signalrelay.h"

#include "valuetext.h"

#include <QStringList>
#include <QWidget>

namespace
{

bool isBasic(const QMetaMethod &signal)
{
    const QMetaObject *owner = signal.enclosingMetaObject();
    return owner == &QObject::staticMetaObject || owner == &QWidget::staticMetaObject;
}

QString callText(const QMetaMethod &signal, void **arguments)
{
    QStringList texts;
    for (int i = 0; i < signal.parameterCount(); ++i) {
        const int type = signal.parameterType(i);
        if (type == QMetaType::UnknownType)
            texts.append(QLatin1Char('<') + QString::fromLatin1(signal.parameterTypes().at(i))
                         + QLatin1Char('>'));
        else
            texts.append(valueText(QVariant(type, arguments[i + 1])));
    }
    return QStringLiteral("%1(%2)").arg(QString::fromLatin1(signal.name()),
                                        texts.join(QStringLiteral(", ")));
}

} // namespace

SignalRelay::SignalRelay(Report report, QObject *parent)
    : QObject(parent), m_report(std::move(report))
{
}

void SignalRelay::watch(QObject *subject)
{
    const int firstSlot = QObject::staticMetaObject.methodCount();
    const QMetaObject *type = subject->metaObject();
    for (int i = 0; i < type->methodCount(); ++i) {
        const QMetaMethod signal = type->method(i);
        if (signal.methodType() != QMetaMethod::Signal || isBasic(signal)
            || signal.attributes() & QMetaMethod::Cloned)
            continue;
        QMetaObject::connect(subject, i, this, firstSlot + m_connections.size(),
                             Qt::DirectConnection);
        m_connections.append({subject, signal});
    }
}

int SignalRelay::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod)
        return id;
    const Connection &connection = m_connections.at(id);
    m_report(connection.sender, callText(connection.signal, arguments));
    return -1;
}
