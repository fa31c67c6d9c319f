// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_RECENTNUMBERS_H
#define HEADUNIT_RECENTNUMBERS_H

#include <QObject>
#include <QStringList>

class QSettings;

namespace headunit
{

/// The numbers that were called, the last one first. They persist in the settings.
class RecentNumbers : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMost = 20;

    /// The settings have to live longer.
    explicit RecentNumbers(QSettings *settings, QObject *parent = nullptr);

    QStringList numbers() const { return m_numbers; }

public slots:
    void add(const QString &number);

signals:
    void changed();

private:
    QSettings *const m_settings;
    QStringList m_numbers;
};

} // namespace headunit

#endif // HEADUNIT_RECENTNUMBERS_H
