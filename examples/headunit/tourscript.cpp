// SPDX-License-Identifier: Apache-2.0
#include "tourscript.h"

#include <QGuiApplication>
#include <QMap>

#include <array>

namespace headunit
{

namespace
{

constexpr int kTap = 60; // ms
constexpr int kLongPress = 1500; // ms
constexpr QPointF kMiddle{0.5, 0.5};

TourTouch tap(const char *widget, const QPointF &at = kMiddle)
{
    return {QLatin1String(widget), at, at, kTap, false};
}

TourTouch hold(const char *widget, int duration = kLongPress, const QPointF &at = kMiddle)
{
    return {QLatin1String(widget), at, at, duration, false};
}

TourTouch press(const char *widget, const QPointF &at = kMiddle)
{
    return {QLatin1String(widget), at, at, kTap, true};
}

TourTouch drag(const char *widget, const QPointF &from, const QPointF &to, int duration)
{
    return {QLatin1String(widget), from, to, duration, false};
}

TourTouch wait(int duration) { return {{}, {}, {}, duration, false}; }

// One of the three keys at the side of a page.
TourTouch sideKey(int key) { return tap("sideKeys", {0.5, (key + 0.5) / 3}); }

QVector<TourStep> homeSteps()
{
    return {
        {"home", {}},
        {"finger slides off a tile", {drag("phoneTile", {0.5, 0.4}, {0.5, 1.2}, 300)}},
        {"tile that is not ready", {tap("weatherTile")}},
        {"music starts", {tap("popupClose"), tap("playKey")}},
        {"music goes on silently", {tap("popupClose"), wait(2000)}},
        {"next track", {tap("nextKey"), wait(2000)}},
        {"tile pressed", {press("soundTile", {0.5, 0.4})}},
    };
}

QVector<TourStep> radioSteps()
{
    return {
        {"radio", {}},
        {"seek up", {tap("seekUpKey")}},
        {"steps while held", {hold("stepUpKey", 1400)}},
        {"needle dragged", {drag("needleScale", {0.3, 0.5}, {0.62, 0.5}, 500)}},
        {"tape scale", {tap("scaleKey"), drag("tapeScale", {0.6, 0.5}, {0.4, 0.5}, 400)}},
        {"pointer scale", {tap("scaleKey"), drag("pointerScale", {0.5, 0.5}, {0.7, 0.5}, 400)}},
        {"preset stored", {hold("preset9")}},
        {"preset recalled", {tap("preset1"), wait(2000)}},
        {"text rolls", {wait(4000)}},
        {"scan", {tap("scaleKey"), tap("scanKey"), wait(3500)}},
        {"AM", {tap("amKey"), tap("seekDownKey")}},
        {"FM again", {tap("fmKey")}},
    };
}

QVector<TourStep> mediaSteps()
{
    return {
        {"now playing", {}},
        {"seek", {drag("progress", {0.2, 0.5}, {0.7, 0.5}, 500)}},
        {"pause", {tap("pauseKey")}},
        {"repeat one", {tap("repeatKey")}},
        {"shuffle", {tap("shuffleKey")}},
        {"tracks", {sideKey(1)}},
        {"row pressed", {press("list", {0.3, 0.1})}},
        {"folders", {sideKey(2)}},
        {"in a folder", {tap("list", {0.3, 0.1})}},
        {"another track plays", {tap("list", {0.3, 0.3}), wait(1500)}},
    };
}

// In the middle of the letters, which are next to the rows.
TourTouch tapLetter()
{
    return tap("index", {QGuiApplication::isRightToLeft() ? 0.75 : 0.35, 0.7});
}

QVector<TourStep> phoneSteps()
{
    return {
        {"contacts", {}},
        {"contacts flung", {drag("list", {0.4, 0.8}, {0.4, 0.2}, 130), wait(2500)}},
        {"letter", {tapLetter(), wait(600)}},
        {"arc scroll bar", {drag("bar", {0.85, 0.2}, {0.85, 0.9}, 500)}},
        {"favourites", {sideKey(1)}},
        {"favourite pressed", {press("favourite1")}},
        {"favourite called", {wait(200)}},
        {"connected", {wait(3000)}},
        {"muted and on hold", {tap("muteKey"), tap("holdKey")}},
        {"call over", {tap("hangUpKey")}},
        {"keypad", {sideKey(2)}},
        {"number", {tap("key_0"), tap("key_3"), tap("key_star"), tap("key_7"), tap("key_hash")}},
        {"deleted", {hold("deleteKey", 700)}},
        {"dialled", {tap("callKey"), wait(2500)}},
        {"hung up", {tap("hangUpKey")}},
    };
}

// One of the five keys at the side of the sound and of the settings.
TourTouch fifthKey(int key) { return tap("sideKeys", {0.5, (key + 0.5) / 5}); }

QVector<TourStep> soundSteps()
{
    return {
        {"equaliser", {}},
        {"bass", {drag("bass", {0.5, 0.5}, {0.5, 0.25}, 400)}},
        {"levels", {fifthKey(1)}},
        {"balance", {fifthKey(2), drag("balance", {0.5, 0.5}, {0.7, 0.5}, 400)}},
        {"fader", {drag("fader", {0.5, 0.5}, {0.3, 0.5}, 400)}},
        {"middle", {tap("centreKey")}},
        {"effects", {fifthKey(3)}},
        {"switches", {tap("loudness"), drag("surround", {0.2, 0.5}, {0.9, 0.5}, 300)}},
        {"volume", {fifthKey(4), hold("louderKey", 1000)}},
        {"dial turned", {drag("dial", {0.15, 0.25}, {0.3, 0.11}, 400)}},
        {"muted", {tap("muteLock")}},
        {"unmuted", {tap("muteLock")}},
    };
}

// Through all languages, and last to the one with this code.
QVector<TourStep> languageSteps(const QString &code)
{
    struct Language {
        const char *code;
        const char *name;
        const char *key;
    };
    constexpr std::array<Language, 3> kLanguages{
        {{"de", "German", "german"}, {"ar", "Arabic", "arabic"}, {"en", "English", "english"}}};
    QVector<TourStep> steps;
    QVector<TourStep> last;
    for (const Language &language : kLanguages) {
        QVector<TourStep> &part = code == QLatin1String(language.code) ? last : steps;
        part.append({QLatin1String(language.name), {tap(language.key)}});
    }
    return steps + last;
}

QVector<TourStep> settingsSteps(const QString &language)
{
    return QVector<TourStep>{
               {"general", {}},
               {"general scrolled", {drag("list", {0.4, 0.8}, {0.4, 0.2}, 130), wait(2500)}},
               {"display", {fifthKey(1)}},
               {"darker", {drag("brightness", {0.9, 0.5}, {0.4, 0.5}, 500)}},
               {"brighter", {drag("brightness", {0.4, 0.5}, {0.98, 0.5}, 500)}},
               {"night look", {tap("nightChoice")}},
               {"day look", {tap("dayChoice")}},
               {"languages", {fifthKey(2)}},
           }
    + languageSteps(language)
        + QVector<TourStep>{
            {"update", {fifthKey(3)}},
            {"looking for an update", {tap("key")}},
            {"update is installed", {wait(4000)}},
            {"update is called off", {tap("key")}},
            {"licence", {fifthKey(4)}},
            {"licence scrolls", {wait(4000)}},
        };
}

} // namespace

QVector<TourStep> tourOf(const QString &page, const QString &language)
{
    if (page == QLatin1String("settings"))
        return settingsSteps(language);
    const QMap<QString, QVector<TourStep> (*)()> pages{{"home", homeSteps},
                                                       {"radio", radioSteps},
                                                       {"media", mediaSteps},
                                                       {"phone", phoneSteps},
                                                       {"sound", soundSteps}};
    const auto steps = pages.value(page);
    return steps ? steps() : QVector<TourStep>{{page, {}}};
}

QVector<TourStep> nightTourOf(const QString &page)
{
    const QMap<QString, QVector<TourStep>> more{
        {"home",
         {{"popup at night", {tap("weatherTile")}},
          {"popup closed at night", {tap("popupClose")}}}},
        {"phone",
         {{"contacts at night", {sideKey(0)}},
          {"favourites at night", {sideKey(1)}},
          {"call at night", {tap("favourite1"), wait(2500)}},
          {"call over at night", {tap("hangUpKey")}}}},
        {"sound", {{"effects at night", {fifthKey(3)}}}}};
    return QVector<TourStep>{{QStringLiteral("at night"), {}}} + more.value(page);
}

} // namespace headunit
