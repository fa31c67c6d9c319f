// SPDX-License-Identifier: Apache-2.0
// A car's screen made of PanelKit.
#include "clicksound.h"
#include "headunit.h"
#include "languages.h"
#include "models/contacts.h"
#include "models/musiclibrary.h"
#include "models/player.h"
#include "models/preferences.h"
#include "models/samples.h"
#include "models/stations.h"
#include "models/trackmodel.h"
#include "models/tuner.h"
#include "options.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QSettings>

using namespace headunit;

namespace
{

// Whatever a model cannot show it says in a sentence, which goes on the screen.
template <typename Model> void hear(HeadUnit &screen, const Model &model, const char *title)
{
    QObject::connect(&model, &Model::problem, &screen, [&screen, title](const QString &sentence) {
        screen.say(HeadUnit::tr(title), sentence);
    });
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("PanelKit head unit"));
    QApplication::setOrganizationName(QStringLiteral("PanelKit"));
    // The tuners write down each move of a finger.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const Options options(app.arguments());

    QSettings settings(options.settingsFile, QSettings::IniFormat);
    Preferences preferences(&settings);
    if (!options.language.isEmpty())
        preferences.useLanguage(options.language);
    if (options.isNight)
        preferences.useLook(Preferences::Look::Night);
    const Languages languages(&preferences);
    const ClickSound click(&preferences);
    MusicLibrary music;
    Player player;
    Stations stations;
    Tuner tuner(&stations, &settings);
    Contacts contacts;
    Context context{settings, music, player, tuner, contacts, preferences};
    HeadUnit screen(context, options.size, HeadUnit::wantedLook(preferences));

    hear(screen, music, QT_TRANSLATE_NOOP("headunit::HeadUnit", "Music"));
    hear(screen, player, QT_TRANSLATE_NOOP("headunit::HeadUnit", "Player"));
    hear(screen, stations, QT_TRANSLATE_NOOP("headunit::HeadUnit", "Radio"));
    hear(screen, contacts, QT_TRANSLATE_NOOP("headunit::HeadUnit", "Contacts"));
    stations.load(options.stationsFile);
    contacts.load(options.contactsFile);
    player.setModel(music.tracks());
    music.open(options.musicFolder);

    screen.show();
    return QApplication::exec();
}
