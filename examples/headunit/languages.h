// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_LANGUAGES_H
#define HEADUNIT_LANGUAGES_H

#include <QObject>
#include <QStringList>
#include <QTranslator>

namespace headunit
{

class Preferences;

/// Lets the program speak the language that is preferred: its texts, its numbers and times, and the
/// side at which lines begin. Another choice changes all of them at once.
class Languages : public QObject
{
    Q_OBJECT

public:
    explicit Languages(const Preferences *preferences, QObject *parent = nullptr);
    ~Languages() override;

    /// The codes of the languages that there are.
    static QStringList codes();
    /// The language itself where there is such a language; else that of the system, else English.
    static QString closest(const QString &code);

private:
    void use(const QString &code);

    QTranslator m_texts;
};

} // namespace headunit

#endif // HEADUNIT_LANGUAGES_H
