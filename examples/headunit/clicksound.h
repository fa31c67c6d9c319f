// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_CLICKSOUND_H
#define HEADUNIT_CLICKSOUND_H

#include <QObject>

class QSoundEffect;

namespace headunit
{

class Preferences;

/**
 * Clicks when a widget is pressed, unless the settings say otherwise. Widgets ask for it by a key
 * event that they post to themselves; this takes it on its way there, as it would travel up through
 * the parents and be heard again.
 */
class ClickSound : public QObject
{
    Q_OBJECT

public:
    explicit ClickSound(const Preferences *preferences, QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

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
