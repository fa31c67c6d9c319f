// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_CAR_H
#define PANELKIT_BENCHMARKS_CAR_H

#include "context.h"
#include "headunit.h"
#include "models/contacts.h"
#include "models/musiclibrary.h"
#include "models/player.h"
#include "models/preferences.h"
#include "models/stations.h"
#include "models/trackmodel.h"
#include "models/tuner.h"

#include <QSettings>
#include <QSize>
#include <QTemporaryDir>

#include <memory>

constexpr QSize kScreen(1024, 600);

/// What this thread has used of the processor, in ms.
double used();

/// Writes so many short pieces of music with titles from A to Z.
void writeMusic(const QTemporaryDir &folder, int count);

/// The head unit on a folder of music, as its program makes it.
struct Car {
    explicit Car(const QString &folder);
    void waitForMusic();

    QTemporaryDir scratch;
    QSettings settings{scratch.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat};
    headunit::MusicLibrary music;
    headunit::Player player{std::make_unique<headunit::SilentBackend>()};
    headunit::Stations stations;
    headunit::Tuner tuner{&stations, &settings};
    headunit::Contacts contacts;
    headunit::Preferences preferences{&settings};
    headunit::Context context{settings, music, player, tuner, contacts, preferences};
    headunit::HeadUnit screen{context, kScreen, headunit::Theme::Night};
};

#endif // PANELKIT_BENCHMARKS_CAR_H
