// SPDX-License-Identifier: Apache-2.0
#include "preferences.h"

#include <QSettings>

#include <array>

namespace headunit
{

namespace
{

const QString kLookKey = QStringLiteral("display/look");
const QString kBrightnessKey = QStringLiteral("display/brightness");
const QString kLanguageKey = QStringLiteral("general/language");

struct Kept {
    const char *key;
    bool isOnAtFirst;
};

// In the order of the options.
constexpr std::array<Kept, 11> kOptions{{{"general/clock24", true},
                                         {"general/date", false},
                                         {"sound/keyClicks", true},
                                         {"phone/pausesMusic", true},
                                         {"car/speedWarning", false},
                                         {"car/lockDoors", true},
                                         {"car/rainWipers", true},
                                         {"car/foldMirrors", false},
                                         {"car/lightsHome", true},
                                         {"car/easyEntry", false},
                                         {"car/driverAlert", true}}};

const Kept &keptOf(Preferences::Option option) { return kOptions[std::size_t(option)]; }

bool isInRange(int percent)
{
    return percent >= Preferences::kLeastBrightness && percent <= Preferences::kFullBrightness;
}

Preferences::Look lookOf(const QString &name)
{
    if (name == QLatin1String("automatic"))
        return Preferences::Look::Automatic;
    return name == QLatin1String("night") ? Preferences::Look::Night : Preferences::Look::Day;
}

QString nameOf(Preferences::Look look)
{
    if (look == Preferences::Look::Automatic)
        return QStringLiteral("automatic");
    return look == Preferences::Look::Night ? QStringLiteral("night") : QStringLiteral("day");
}

} // namespace

Preferences::Preferences(QSettings *settings, QObject *parent)
    : QObject(parent), m_settings(settings), m_look(lookOf(settings->value(kLookKey).toString())),
      m_brightness(settings->value(kBrightnessKey, kFullBrightness).toInt()),
      m_language(settings->value(kLanguageKey).toString())
{
    if (!isInRange(m_brightness))
        m_brightness = kFullBrightness;
}

bool Preferences::isOn(Option option) const
{
    const Kept &kept = keptOf(option);
    return m_settings->value(QLatin1String(kept.key), kept.isOnAtFirst).toBool();
}

void Preferences::useLook(Look look)
{
    m_look = look;
    emit lookChosen();
}

void Preferences::useLanguage(const QString &code)
{
    m_language = code;
    emit languageChosen(code);
}

void Preferences::setOn(Option option, bool isOn)
{
    if (isOn == this->isOn(option))
        return;
    m_settings->setValue(QLatin1String(keptOf(option).key), isOn);
    emit optionChanged(option, isOn);
}

void Preferences::setLook(Look look)
{
    m_settings->setValue(kLookKey, nameOf(look));
    useLook(look);
}

void Preferences::setBrightness(int percent)
{
    if (percent == m_brightness || !isInRange(percent))
        return;
    m_brightness = percent;
    m_settings->setValue(kBrightnessKey, percent);
    emit brightnessChanged(percent);
}

void Preferences::setLanguage(const QString &code)
{
    m_settings->setValue(kLanguageKey, code);
    useLanguage(code);
}

} // namespace headunit
