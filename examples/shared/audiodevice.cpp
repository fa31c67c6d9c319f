// SPDX-License-Identifier: Apache-2.0
#include "audiodevice.h"

#include <QAudioDeviceInfo>
#include <QLoggingCategory>

#include <algorithm>

namespace
{

// Qt warns of a sound server that does not answer; whoever asks here says it in a sentence.
class WarningsOff
{
public:
    WarningsOff() { m_category.setEnabled(QtWarningMsg, false); }
    ~WarningsOff() { m_category.setEnabled(QtWarningMsg, m_wasEnabled); }
    Q_DISABLE_COPY(WarningsOff)

private:
    QLoggingCategory &m_category = *QLoggingCategory::defaultCategory();
    const bool m_wasEnabled = m_category.isWarningEnabled();
};

} // namespace

// Without its server, Qt's plugin for PulseAudio has one device without a name.
bool audiodevice::isThere()
{
    const WarningsOff off;
    const auto devices = QAudioDeviceInfo::availableDevices(QAudio::AudioOutput);
    return std::any_of(devices.begin(), devices.end(), [](const QAudioDeviceInfo &device) {
        return !device.deviceName().isEmpty();
    });
}
