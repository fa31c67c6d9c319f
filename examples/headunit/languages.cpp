// SPDX-License-Identifier: Apache-2.0
#include "languages.h"

#include "models/preferences.h"

#include <QGuiApplication>
#include <QLocale>

// The linker leaves resources of a static library out unless they are asked for, which works
// outside of namespaces only.
static void initialiseTranslations() { Q_INIT_RESOURCE(headunit_screen_translations); }

namespace headunit
{

namespace
{

// One country for each language. Tunisia writes Arabic with the digits that widgets paint.
QLocale localeOf(const QString &code)
{
    if (code == QLatin1String("de"))
        return {QLocale::German, QLocale::Germany};
    if (code == QLatin1String("ar"))
        return {QLocale::Arabic, QLocale::Tunisia};
    return {QLocale::English, QLocale::UnitedKingdom};
}

} // namespace

Languages::Languages(const Preferences *preferences, QObject *parent) : QObject(parent)
{
    initialiseTranslations();
    connect(preferences, &Preferences::languageChosen, this, &Languages::use);
    use(preferences->language());
}

Languages::~Languages() { QCoreApplication::removeTranslator(&m_texts); }

QStringList Languages::codes()
{
    return {QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("ar")};
}

QString Languages::closest(const QString &code)
{
    const QString ofSystem = QLocale::system().name().section(QLatin1Char('_'), 0, 0);
    for (const QString &wanted : {code, ofSystem}) {
        if (codes().contains(wanted))
            return wanted;
    }
    return codes().first();
}

// English is what the texts are written in: it has no file.
void Languages::use(const QString &code)
{
    const QString language = closest(code);
    const QLocale locale = localeOf(language);
    QLocale::setDefault(locale);
    QCoreApplication::removeTranslator(&m_texts);
    if (m_texts.load(QStringLiteral(":/panelkit/translations/headunit_") + language))
        QCoreApplication::installTranslator(&m_texts);
    QGuiApplication::setLayoutDirection(locale.textDirection()); // a translator changes it, too
}

} // namespace headunit
