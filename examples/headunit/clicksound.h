// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_CLICKSOUND_H
#define HEADUNIT_CLICKSOUND_H

#include <pressfeedback.h>

class QSoundEffect;

namespace headunit
{

class Preferences;

/// Clicks when a widget is pressed, unless the settings say otherwise.
class ClickSound : public PressFeedback
{
    Q_OBJECT

public:
    explicit ClickSound(const Preferences *preferences, QObject *parent = nullptr);

signals:
    void clicked();

private:
    void play();

    const Preferences *const m_preferences;
    QSoundEffect *m_effect = nullptr; // none without a device
    bool m_isPrepared = false;
};

} // namespace headunit

#endif // HEADUNIT_CLICKSOUND_H
