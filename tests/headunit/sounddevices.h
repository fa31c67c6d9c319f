// SPDX-License-Identifier: Apache-2.0
#ifndef SOUNDDEVICES_H
#define SOUNDDEVICES_H

#include "files.h"

#include <QString>

/// What there is to play sound on, whatever the machine has: nothing is heard while tests run.
namespace sounddevices
{

inline void offerNone()
{
    qputenv("PULSE_SERVER", "unix:/dev/null");
    qputenv("ALSA_CONFIG_PATH", "/dev/null");
}

/// One, where everything is played in time and nothing is heard. The file says so to ALSA.
inline void offerOne(const QString &file)
{
    offerNone();
    // What is left for GStreamer is a sink of its own that keeps the time.
    qputenv("GST_PLUGIN_FEATURE_RANK",
            "alsasink:NONE,pulsesink:NONE,jackaudiosink:NONE,"
            "osssink:NONE,oss4sink:NONE,pipewiresink:NONE");
    const QByteArray silence = "</usr/share/alsa/alsa.conf>\n"
                               "pcm.!default { type null hint { show on description \"None\" } }\n";
    qputenv("ALSA_CONFIG_PATH", writtenFile(file, silence).toLocal8Bit());
}

} // namespace sounddevices

#endif // SOUNDDEVICES_H
