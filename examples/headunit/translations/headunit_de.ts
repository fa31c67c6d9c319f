<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>headunit::CallView</name>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Auflegen</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Ruft an …</translation>
    </message>
    <message>
        <source>On hold, %1</source>
        <translation>Gehalten, %1</translation>
    </message>
    <message>
        <source>Connected, %1</source>
        <translation>Verbunden, %1</translation>
    </message>
</context>
<context>
    <name>headunit::ClickSound</name>
    <message>
        <source>There is nothing to play sound with here: keys are pressed without a click.</source>
        <translation>Hier gibt es keine Tonausgabe: Tasten klicken nicht.</translation>
    </message>
</context>
<context>
    <name>headunit::Contacts</name>
    <message>
        <source>%1 has no contacts.</source>
        <translation>%1 enthält keine Kontakte.</translation>
    </message>
    <message>
        <source>Cards of %1 that make no sense and are left out: %2. The first is in line %3.</source>
        <translation>Unverständliche Karten in %1, die fehlen: %2. Die erste steht in Zeile %3.</translation>
    </message>
    <message>
        <source>%1 is too long: only the first %2 contacts are taken.</source>
        <translation>%1 ist zu lang: Nur die ersten %2 Kontakte werden genommen.</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Mobil</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Privat</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
</context>
<context>
    <name>headunit::Favourites</name>
    <message>
        <source>Nobody is a favourite yet. Mark people in the telephone book.</source>
        <translation>Noch keine Favoriten. Markieren Sie Personen im Telefonbuch.</translation>
    </message>
</context>
<context>
    <name>headunit::Files</name>
    <message>
        <source>There is no file %1.</source>
        <translation>Es gibt keine Datei %1.</translation>
    </message>
    <message>
        <source>%1 is a folder and not a file.</source>
        <translation>%1 ist ein Ordner und keine Datei.</translation>
    </message>
    <message>
        <source>%1 is no ordinary file.</source>
        <translation>%1 ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 ist nicht lesbar.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 ist leer.</translation>
    </message>
</context>
<context>
    <name>headunit::HeadUnit</name>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
</context>
<context>
    <name>headunit::HomePage</name>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Klang</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>Not available in this car.</source>
        <translation>In diesem Auto nicht vorhanden.</translation>
    </message>
    <message>
        <source>Nothing is playing</source>
        <translation>Es spielt nichts</translation>
    </message>
    <message>
        <source>Choose a track in Media</source>
        <translation>Titel unter Medien wählen</translation>
    </message>
</context>
<context>
    <name>headunit::Keypad</name>
    <message>
        <source>Enter a number</source>
        <translation>Nummer eingeben</translation>
    </message>
    <message>
        <source>No recent numbers</source>
        <translation>Keine letzten Anrufe</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
</context>
<context>
    <name>headunit::Library</name>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>All tracks</source>
        <translation>Alle Titel</translation>
    </message>
    <message>
        <source>Tracks: %L1</source>
        <translation>Titel: %L1</translation>
    </message>
    <message>
        <source>Reading tags: %L1 of %L2</source>
        <translation>Tags lesen: %L1 von %L2</translation>
    </message>
</context>
<context>
    <name>headunit::LibraryScan</name>
    <message>
        <source>There is no folder %1.</source>
        <translation>Es gibt keinen Ordner %1.</translation>
    </message>
    <message>
        <source>%1 is a file and not a folder with music.</source>
        <translation>%1 ist eine Datei und kein Ordner mit Musik.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read.</source>
        <translation>Der Ordner %1 ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Files that cannot be read as music: %1. The first is %2.</source>
        <translation>Dateien, die nicht als Musik lesbar sind: %1. Die erste ist %2.</translation>
    </message>
    <message>
        <source>There is too much music in %1: only the first %2 files are shown.</source>
        <translation>In %1 ist zu viel Musik: Nur die ersten %2 Dateien werden gezeigt.</translation>
    </message>
    <message>
        <source>Folders that cannot be read: %1. The first is %2.</source>
        <translation>Nicht lesbare Ordner: %1. Der erste ist %2.</translation>
    </message>
    <message>
        <source>There is no music in %1.</source>
        <translation>In %1 ist keine Musik.</translation>
    </message>
</context>
<context>
    <name>headunit::MediaPage</name>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>headunit::NowPlaying</name>
    <message>
        <source>Nothing is playing</source>
        <translation>Es spielt nichts</translation>
    </message>
    <message>
        <source>Choose a track or a folder</source>
        <translation>Titel oder Ordner wählen</translation>
    </message>
</context>
<context>
    <name>headunit::PhonePage</name>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>Tasten</translation>
    </message>
</context>
<context>
    <name>headunit::Player</name>
    <message>
        <source>There is no music to play.</source>
        <translation>Es gibt keine Musik zum Spielen.</translation>
    </message>
    <message>
        <source>No audio output was found: the music plays on without sound.</source>
        <translation>Keine Tonausgabe gefunden: Die Musik läuft ohne Ton weiter.</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>%1 kann nicht abgespielt werden.</translation>
    </message>
</context>
<context>
    <name>headunit::Popup</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>headunit::RadioPage</name>
    <message>
        <source>Radio</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scan</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>No station</source>
        <translation>Kein Sender</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Gespeichert</translation>
    </message>
</context>
<context>
    <name>headunit::SettingsAbout</name>
    <message>
        <source>Version %1, with Qt %2</source>
        <translation>Version %1, mit Qt %2</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>headunit::SettingsDisplay</name>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatik</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nacht</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>headunit::SettingsGeneral</name>
    <message>
        <source>24-hour clock</source>
        <translation>24-Stunden-Uhr</translation>
    </message>
    <message>
        <source>In the bar above every page</source>
        <translation>In der Leiste über jeder Seite</translation>
    </message>
    <message>
        <source>Date beside the clock</source>
        <translation>Datum neben der Uhr</translation>
    </message>
    <message>
        <source>Day and month</source>
        <translation>Tag und Monat</translation>
    </message>
    <message>
        <source>Key clicks</source>
        <translation>Tastenklick</translation>
    </message>
    <message>
        <source>A click for each touch</source>
        <translation>Ein Klick bei jeder Berührung</translation>
    </message>
    <message>
        <source>Calls pause the music</source>
        <translation>Anrufe halten die Musik an</translation>
    </message>
    <message>
        <source>It goes on when you hang up</source>
        <translation>Nach dem Auflegen geht sie weiter</translation>
    </message>
    <message>
        <source>Speed warning</source>
        <translation>Tempowarnung</translation>
    </message>
    <message>
        <source>When the car is faster than the limit</source>
        <translation>Wenn das Tempolimit überschritten ist</translation>
    </message>
    <message>
        <source>Lock doors while driving</source>
        <translation>Türen während der Fahrt verriegeln</translation>
    </message>
    <message>
        <source>They open again when the car is parked</source>
        <translation>Beim Parken öffnen sie wieder</translation>
    </message>
    <message>
        <source>Wipers start in the rain</source>
        <translation>Wischer starten bei Regen</translation>
    </message>
    <message>
        <source>As fast as it rains</source>
        <translation>So schnell, wie es regnet</translation>
    </message>
    <message>
        <source>Fold mirrors</source>
        <translation>Spiegel anklappen</translation>
    </message>
    <message>
        <source>When the car is locked</source>
        <translation>Wenn das Auto verriegelt wird</translation>
    </message>
    <message>
        <source>Lights to the door</source>
        <translation>Licht bis zur Haustür</translation>
    </message>
    <message>
        <source>Half a minute of light after parking</source>
        <translation>Eine halbe Minute Licht nach dem Parken</translation>
    </message>
    <message>
        <source>Easy entry</source>
        <translation>Einstiegshilfe</translation>
    </message>
    <message>
        <source>The seat makes room when a door opens</source>
        <translation>Der Sitz macht Platz, wenn eine Tür aufgeht</translation>
    </message>
    <message>
        <source>Drowsiness alert</source>
        <translation>Müdigkeitswarnung</translation>
    </message>
    <message>
        <source>Suggests a break on long drives</source>
        <translation>Rät auf langen Fahrten zu Pausen</translation>
    </message>
</context>
<context>
    <name>headunit::SettingsLanguage</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Changes texts, numbers and times</source>
        <translation>Ändert Texte, Zahlen und Zeiten</translation>
    </message>
</context>
<context>
    <name>headunit::SettingsPage</name>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
</context>
<context>
    <name>headunit::SettingsUpdate</name>
    <message>
        <source>Software update</source>
        <translation>Software-Update</translation>
    </message>
    <message>
        <source>Installed: version %1</source>
        <translation>Installiert: Version %1</translation>
    </message>
    <message>
        <source>installing</source>
        <translation>wird installiert</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Look for an update</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Looking for an update…</source>
        <translation>Suche nach einem Update …</translation>
    </message>
    <message>
        <source>The update is being installed. You can go on driving.</source>
        <translation>Das Update wird installiert. Sie können weiterfahren.</translation>
    </message>
    <message>
        <source>The head unit is up to date.</source>
        <translation>Das System ist auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>The update was cancelled. Nothing has changed.</source>
        <translation>Das Update wurde abgebrochen. Nichts hat sich geändert.</translation>
    </message>
    <message>
        <source>An update takes less than a minute.</source>
        <translation>Ein Update dauert keine Minute.</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fertig</translation>
    </message>
</context>
<context>
    <name>headunit::SoundBalance</name>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>Fader</translation>
    </message>
    <message>
        <source>Rear</source>
        <translation>Hinten</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Centre sound</source>
        <translation>Klang zentrieren</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>Links %1</translation>
    </message>
    <message>
        <source>Right %1</source>
        <translation>Rechts %1</translation>
    </message>
    <message>
        <source>Rear %1</source>
        <translation>Hinten %1</translation>
    </message>
    <message>
        <source>Front %1</source>
        <translation>Vorn %1</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
</context>
<context>
    <name>headunit::SoundEffects</name>
    <message>
        <source>Loudness</source>
        <translation>Loudness</translation>
    </message>
    <message>
        <source>Fuller sound when it is quiet</source>
        <translation>Vollerer Klang bei geringer Lautstärke</translation>
    </message>
    <message>
        <source>Surround</source>
        <translation>Surround</translation>
    </message>
    <message>
        <source>A wider stage for all seats</source>
        <translation>Mehr Raum für alle Plätze</translation>
    </message>
    <message>
        <source>Speed-dependent volume</source>
        <translation>Lautstärke nach Tempo</translation>
    </message>
    <message>
        <source>Louder as the car goes faster</source>
        <translation>Lauter bei schneller Fahrt</translation>
    </message>
</context>
<context>
    <name>headunit::SoundEqualiser</name>
    <message>
        <source>Bass</source>
        <translation>Bass</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>Mitten</translation>
    </message>
    <message>
        <source>Treble</source>
        <translation>Höhen</translation>
    </message>
    <message>
        <source>Subwoofer</source>
        <translation>Subwoofer</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Rear</source>
        <translation>Hinten</translation>
    </message>
</context>
<context>
    <name>headunit::SoundPage</name>
    <message>
        <source>Sound</source>
        <translation>Klang</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Equalizer</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
</context>
<context>
    <name>headunit::SoundVolume</name>
    <message>
        <source>Muted</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
</context>
<context>
    <name>headunit::Stations</name>
    <message>
        <source>%1 has no stations.</source>
        <translation>%1 enthält keine Sender.</translation>
    </message>
    <message>
        <source>Lines of %1 that make no sense and are left out: %2. The first is line %3.</source>
        <translation>Unverständliche Zeilen in %1, die fehlen: %2. Die erste ist Zeile %3.</translation>
    </message>
    <message>
        <source>%1 is too long: only the first %2 stations are taken.</source>
        <translation>%1 ist zu lang: Nur die ersten %2 Sender werden genommen.</translation>
    </message>
</context>
<context>
    <name>headunit::StatusBar</name>
    <message>
        <source>ddd d MMM</source>
        <extracomment>the date in the status bar, in the letters of Qt&apos;s date formats</extracomment>
        <translation>ddd, d. MMM</translation>
    </message>
</context>
<context>
    <name>headunit::TrackRows</name>
    <message>
        <source>Cannot be played</source>
        <translation>Nicht abspielbar</translation>
    </message>
</context>
<context>
    <name>headunit::Tuner</name>
    <message>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <source>There is no station to be found on this band.</source>
        <translation>Auf diesem Band ist kein Sender zu finden.</translation>
    </message>
</context>
</TS>
