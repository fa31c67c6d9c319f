// SPDX-License-Identifier: Apache-2.0
#include "clicksound.h"

#include "models/preferences.h"
#include "models/samples.h"

#include <audiodevice.h>

#include <QCoreApplication>
#include <QSoundEffect>
#include <QTextStream>
#include <QUrl>
#include <QWidget>

#include <utility>

namespace headunit
{

ClickSound::ClickSound(const Preferences *preferences, QObject *parent)
    : PressFeedback(parent), m_preferences(preferences)
{
    QCoreApplication::instance()->installEventFilter(this);
    connect(this, &PressFeedback::requested, this, [this] {
        if (m_preferences->isOn(Preferences::Option::KeyClicks))
            play();
    });
}

// The devices are asked for at the first click, which takes longer than a program should to start.
void ClickSound::play()
{
    if (!std::exchange(m_isPrepared, true)) {
        if (audiodevice::isThere()) {
            m_effect = new QSoundEffect(this);
            m_effect->setSource(QUrl::fromLocalFile(samples::clickSound()));
        } else {
            QTextStream(stderr) << tr("There is nothing to play sound with here: "
                                      "keys are pressed without a click.")
                                << '\n';
        }
    }
    if (m_effect)
        m_effect->play();
    emit clicked();
}

} // namespace headunit
