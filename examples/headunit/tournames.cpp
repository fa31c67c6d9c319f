// SPDX-License-Identifier: Apache-2.0
#include "tournames.h"

#include <QMap>
#include <QWidget>

namespace headunit
{

namespace
{

// What stands on the widgets of the script. Those with a picture alone go by their identifier.
// Behind a list stands the name of its row.
const QMap<QString, QStringList> &captions()
{
    static const QMap<QString, QStringList> all{
        {"radioTile", {"Radio"}},
        {"mediaTile", {"Media"}},
        {"phoneTile", {"Phone"}},
        {"soundTile", {"Sound"}},
        {"settingsTile", {"Settings"}},
        {"weatherTile", {"Weather"}},
        {"popupClose", {"Close"}},
        {"preset1", {"Harbour FM 87.9"}},
        {"preset9", {"City Wave 98.5"}},
        {"scaleKey", {"Scale"}},
        {"scanKey", {"Scan"}},
        {"amKey", {"AM"}},
        {"fmKey", {"FM"}},
        {"index", {"arc/S"}},
        {"favourite1", {"Élodie\nVasseur"}},
        {"muteKey", {"Mute"}},
        {"holdKey", {"Hold"}},
        {"hangUpKey", {"Hang up"}},
        {"key_0", {"0"}},
        {"key_3", {"3"}},
        {"key_7", {"7"}},
        {"key_star", {"*"}},
        {"key_hash", {"#"}},
        {"centreKey", {"Centre sound"}},
        {"nightChoice", {"Night"}},
        {"dayChoice", {"Day"}},
        {"german", {"Deutsch"}},
        {"arabic", {"العربية"}},
        {"english", {"English"}},
        {"key", {"Look for an update", "Cancel"}},
    };
    return all;
}

QStringList sideKeysOf(const QString &page)
{
    const QMap<QString, QStringList> all{
        {"media", {"Now playing", "Tracks", "Folders"}},
        {"phone", {"Contacts", "Favourites", "Keypad"}},
        {"sound", {"Equaliser", "Levels", "Balance", "Effects", "Volume"}},
        {"settings", {"General", "Display", "Language", "Update", "About"}}};
    return all.value(page);
}

bool isSeen(const QAccessibleInterface &found)
{
    return !found.state().invisible && !found.rect().isEmpty();
}

// A title may read like a key; it is nothing that a finger is for.
bool isToBeTouched(QAccessibleInterface &found)
{
    return found.role() == QAccessible::List || found.valueInterface()
        || (found.actionInterface()
            && found.actionInterface()->actionNames().contains(
                QAccessibleActionInterface::pressAction()));
}

QAccessibleInterface *findIn(QAccessibleInterface &place, const QString &path)
{
    const QString name = path.section(QLatin1Char('/'), 0, 0);
    const QString row = path.section(QLatin1Char('/'), 1);
    if (place.text(QAccessible::Name) == name && isToBeTouched(place)) {
        if (row.isEmpty())
            return &place;
        return findIn(place, row);
    }
    for (int i = 0; i < place.childCount(); ++i) {
        QAccessibleInterface *child = place.child(i);
        QAccessibleInterface *found = child && isSeen(*child) ? findIn(*child, path) : nullptr;
        if (found)
            return found;
    }
    return nullptr;
}

} // namespace

QStringList accessibleNames(const QString &page, const TourTouch &touch)
{
    if (touch.widget == QLatin1String("sideKeys")) {
        const QStringList keys = sideKeysOf(page);
        return {keys.value(int(touch.from.y() * keys.size()))};
    }
    return captions().value(touch.widget, {touch.widget});
}

QAccessibleInterface *findNamed(QWidget &screen, const QString &page, const TourTouch &touch)
{
    QAccessibleInterface *whole = QAccessible::queryAccessibleInterface(&screen);
    const QStringList names = accessibleNames(page, touch);
    for (const QString &name : names) {
        if (QAccessibleInterface *found = findIn(*whole, name))
            return found;
    }
    return nullptr;
}

QPoint placeIn(QWidget &screen, const QAccessibleInterface &found, const QPointF &part)
{
    const QRect all = found.rect();
    return screen.mapFromGlobal(all.topLeft())
        + QPoint(qRound(part.x() * all.width()), qRound(part.y() * all.height()));
}

} // namespace headunit
