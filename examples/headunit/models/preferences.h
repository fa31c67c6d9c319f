// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_PREFERENCES_H
#define HEADUNIT_PREFERENCES_H

#include <QObject>
#include <QString>

class QSettings;

namespace headunit
{

/// What somebody has chosen in the settings: kept, and told to all who go by it.
class Preferences : public QObject
{
    Q_OBJECT

public:
    /// What is either on or off.
    enum class Option {
        Clock24, ///< the clock counts to 24
        DateShown, ///< beside the clock
        KeyClicks,
        CallsPauseMusic,
        SpeedWarning,
        LockDoors,
        RainWipers,
        FoldMirrors,
        LightsHome,
        EasyEntry,
        DriverAlert
    };
    Q_ENUM(Option)
    /// When the screen has the look of the night.
    enum class Look { Automatic, Day, Night };
    Q_ENUM(Look)

    static constexpr int kLeastBrightness = 10; // percent
    static constexpr int kFullBrightness = 100; // percent

    explicit Preferences(QSettings *settings, QObject *parent = nullptr);

    bool isOn(Option option) const;
    Look look() const { return m_look; }
    int brightness() const { return m_brightness; } ///< percent
    /// The code of the chosen language; empty: none has been chosen.
    QString language() const { return m_language; }

    /// For as long as the program runs.
    void useLook(Look look);
    void useLanguage(const QString &code);

public slots:
    void setOn(headunit::Preferences::Option option, bool isOn);
    void setLook(headunit::Preferences::Look look);
    void setBrightness(int percent); ///< what is out of range is ignored
    void setLanguage(const QString &code);

signals:
    void optionChanged(headunit::Preferences::Option option, bool isOn);
    void lookChosen(); ///< also if it is the one that was chosen before
    void brightnessChanged(int percent);
    void languageChosen(const QString &code);

private:
    QSettings *const m_settings;
    Look m_look;
    int m_brightness;
    QString m_language;
};

} // namespace headunit

#endif // HEADUNIT_PREFERENCES_H
