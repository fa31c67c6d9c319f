// SPDX-License-Identifier: Apache-2.0
#ifndef PAGETEST_H
#define PAGETEST_H

#include "context.h"
#include "models/contacts.h"
#include "models/musiclibrary.h"
#include "models/player.h"
#include "models/preferences.h"
#include "models/stations.h"
#include "models/trackmodel.h"
#include "models/tuner.h"
#include "page.h"
#include "virtualtime.h"
#include "widgettest.h"

#include <QSettings>
#include <QTemporaryDir>

/// What a page works on: a player without sound, and models that a test fills.
struct PageWorld {
    QTemporaryDir folder;
    QSettings settings{folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat};
    headunit::MusicLibrary music;
    headunit::Player player{std::make_unique<headunit::SilentBackend>()};
    headunit::Stations stations;
    headunit::Tuner tuner{&stations, &settings};
    headunit::Contacts contacts;
    headunit::Preferences preferences{&settings};
    headunit::Context context{settings, music, player, tuner, contacts, preferences};
    QWidget screen; ///< what the page lies on
};

/// Shows a page as large as it is on a screen of 1024 x 600.
inline void showPage(QWidget &screen, headunit::Page &page)
{
    screen.resize(1024, 600);
    page.setParent(&screen);
    page.setTheme(headunit::Theme({1024, 600}, headunit::Theme::Night));
    page.setGeometry(0, 76, 1024, 524);
    WidgetTest::show(screen);
}

/// Notes what a program does by itself: "Timer" or "Paint" and the class of what it happens to.
class Activity : public QObject
{
public:
    Activity() { qApp->installEventFilter(this); }

    /// Without the timer that has ended the last wait.
    QString text()
    {
        const int end = m_happened.lastIndexOf(QStringLiteral("Timer QTimer"));
        if (end >= 0)
            m_happened.removeAt(end);
        return m_happened.join(QStringLiteral(", "));
    }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        const QObject *parent = object->parent();
        const QString name = QLatin1String(object->metaObject()->className())
            + (parent ? QLatin1String(" of ") + parent->metaObject()->className() : QString());
        if (event->type() == QEvent::Timer)
            m_happened += QStringLiteral("Timer ") + name;
        else if (event->type() == QEvent::Paint)
            m_happened += QStringLiteral("Paint ") + name;
        return false;
    }

private:
    QStringList m_happened;
};

/// What happens in a minute in which nobody does anything, after one in which everything has come
/// to rest.
inline QString happenedWhileIdle()
{
    constexpr int kMinute = 60'000; // ms
    virtualtime::advance(kMinute);
    Activity activity;
    virtualtime::advance(kMinute);
    return activity.text();
}

#endif // PAGETEST_H
