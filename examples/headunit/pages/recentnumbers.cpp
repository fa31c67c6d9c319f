// SPDX-License-Identifier: Apache-2.0
#include "pages/recentnumbers.h"

#include <QSettings>

namespace headunit
{

namespace
{

QString key() { return QStringLiteral("phone/recent"); }

} // namespace

RecentNumbers::RecentNumbers(QSettings *settings, QObject *parent)
    : QObject(parent), m_settings(settings),
      m_numbers(settings->value(key()).toStringList().mid(0, kMost))
{
}

void RecentNumbers::add(const QString &number)
{
    m_numbers.removeAll(number);
    m_numbers.prepend(number);
    m_numbers = m_numbers.mid(0, kMost);
    m_settings->setValue(key(), m_numbers);
    emit changed();
}

} // namespace headunit
