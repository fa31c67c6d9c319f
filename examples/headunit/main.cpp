// SPDX-License-Identifier: Apache-2.0
// A car's screen made of PanelKit.
#include "clicksound.h"
#include "grabs.h"
#include "headunit.h"
#include "languages.h"
#include "launch.h"
#include "loopback.h"
#include "models/contacts.h"
#include "models/musiclibrary.h"
#include "models/player.h"
#include "models/preferences.h"
#include "models/samples.h"
#include "models/stations.h"
#include "models/trackmodel.h"
#include "models/tuner.h"
#include "options.h"
#include "tour.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QSettings>
#include <QTemporaryDir>

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

// On a tour nothing sounds, and what is shuffled is shuffled alike each time.
std::unique_ptr<Player> makePlayer(bool isOnTour)
{
    if (!isOnTour)
        return std::make_unique<Player>();
    auto player = std::make_unique<Player>(std::make_unique<SilentBackend>());
    player->seedShuffle(1);
    return player;
}

int showScreen(HeadUnit &screen, const Options &options)
{
    screen.show();
    if (!options.grabFile.isEmpty())
        new Grabs(screen, options.grabFile, &screen);
    return options.touches.start(screen) ? QApplication::exec() : 1;
}

int run(const Options &options)
{
    const bool isOnTour = !options.tourFolder.isEmpty();
    const QTemporaryDir noSettings; // a tour begins with none
    QSettings settings(isOnTour ? noSettings.filePath(QStringLiteral("headunit.ini"))
                                : options.settingsFile,
                       QSettings::IniFormat);
    Preferences preferences(&settings);
    if (!options.language.isEmpty())
        preferences.useLanguage(options.language);
    if (options.isNight)
        preferences.useLook(Preferences::Look::Night);
    const Languages languages(&preferences);
    const auto click = isOnTour ? nullptr : std::make_unique<ClickSound>(&preferences);
    MusicLibrary music;
    const std::unique_ptr<Player> player = makePlayer(isOnTour);
    Stations stations;
    Tuner tuner(&stations, &settings);
    Contacts contacts;
    Context context{settings, music, *player, tuner, contacts, preferences};
    HeadUnit screen(context, options.size, HeadUnit::wantedLook(preferences));

    hear(screen, music, QT_TRANSLATE_NOOP("headunit::HeadUnit", "Music"));
    hear(screen, *player, QT_TRANSLATE_NOOP("headunit::HeadUnit", "Player"));
    hear(screen, stations, QT_TRANSLATE_NOOP("headunit::HeadUnit", "Radio"));
    hear(screen, contacts, QT_TRANSLATE_NOOP("headunit::HeadUnit", "Contacts"));
    stations.load(options.stationsFile);
    contacts.load(options.contactsFile);
    player->setModel(music.tracks());
    music.open(options.musicFolder);
    const Tour::By by = options.isTourByNames ? Tour::By::Name : Tour::By::Object;
    return isOnTour ? Tour(screen, context, options.tourFolder, by).play()
                    : showScreen(screen, options);
}

} // namespace

int main(int argc, char **argv)
{
    if (launch::isGiven(argc, argv, {"--tour"}))
        Tour::prepare(argv);
    else if (launch::isGiven(argc, argv, {"--help", "-h"}))
        launch::preferNoScreen();
    if (launch::isGiven(argc, argv, {"--loopback"}))
        loopback::stayThere();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("PanelKit head unit"));
    QApplication::setOrganizationName(QStringLiteral("PanelKit"));
    // The tuners write down each move of a finger.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const Options options(app.arguments());
    if (!options.logFile.isEmpty() && !launch::writeLogTo(options.logFile))
        return 1;
    return run(options);
}
