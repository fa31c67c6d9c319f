// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_CONTEXT_H
#define HEADUNIT_CONTEXT_H

class QSettings;

namespace headunit
{

class Contacts;
class MusicLibrary;
class Player;
class Preferences;
class Tuner;

/// What the pages show and work on.
struct Context {
    QSettings &settings;
    MusicLibrary &music;
    Player &player;
    Tuner &tuner;
    Contacts &contacts;
    Preferences &preferences;
};

} // namespace headunit

#endif // HEADUNIT_CONTEXT_H
