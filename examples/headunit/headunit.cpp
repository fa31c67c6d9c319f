// SPDX-License-Identifier: Apache-2.0
#include "headunit.h"

#include "dimmer.h"
#include "models/preferences.h"
#include "page.h"
#include "pages/home.h"
#include "pages/media.h"
#include "pages/phone.h"
#include "pages/radio.h"
#include "pages/settings.h"
#include "pages/sound.h"
#include "popup.h"
#include "statusbar.h"

#include <spbackgroundimage.h>

#include <QEvent>
#include <QStackedWidget>
#include <QTextStream>
#include <QTime>
#include <QVBoxLayout>

#include <utility>

namespace headunit
{

namespace
{

constexpr int kMorning = 7; // o'clock, when the automatic look becomes that of the day
constexpr int kEvening = 19; // o'clock, when it becomes that of the night

} // namespace

HeadUnit::HeadUnit(Context &context, const QSize &screen, Theme::Look look, QWidget *parent)
    : QWidget(parent), m_context(context), m_theme(screen, look),
      m_backdrop(new SpBackgroundImage(this)), m_statusBar(new StatusBar(context, this)),
      m_stack(new QStackedWidget(this)), m_popup(new Popup(this)), m_dimmer(new Dimmer(this)),
      m_wantedLook(wantedLook(context.preferences))
{
    setFixedSize(screen);
    setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_statusBar);
    layout->addWidget(m_stack, 1);
    m_backdrop->lower();
    connect(m_statusBar, &StatusBar::homeWanted, this,
            [this] { openPage(QStringLiteral("home")); });
    connect(m_statusBar, &StatusBar::backWanted, this, &HeadUnit::goBack);
    connect(m_statusBar, &StatusBar::callWanted, this,
            [this] { openPage(QStringLiteral("phone")); });

    // Children lie over those that were made before them: the popup over the pages, the dimmer over
    // all.
    addPage(QStringLiteral("home"), new HomePage(context));
    addPage(QStringLiteral("radio"), new RadioPage(context));
    addPage(QStringLiteral("media"), new MediaPage(context));
    auto *phone = new PhonePage(context);
    addPage(QStringLiteral("phone"), phone);
    addPage(QStringLiteral("sound"), new SoundPage(context));
    addPage(QStringLiteral("settings"), new SettingsPage(context));
    connect(phone, &PhonePage::callTimeChanged, m_statusBar, &StatusBar::setCall);
    followPreferences();
    setLook(look);
    openPage(QStringLiteral("home"));
}

QString HeadUnit::currentPage() const { return m_names.value(m_stack->currentIndex()); }

QWidget *HeadUnit::page(const QString &name) const { return m_pages.value(name); }

Theme::Look HeadUnit::wantedLook(const Preferences &preferences)
{
    const int hour = QTime::currentTime().hour();
    const bool isLight = hour >= kMorning && hour < kEvening;
    switch (preferences.look()) {
    case Preferences::Look::Day:
        return Theme::Day;
    case Preferences::Look::Night:
        return Theme::Night;
    case Preferences::Look::Automatic:
        break;
    }
    return isLight ? Theme::Day : Theme::Night;
}

void HeadUnit::openPage(const QString &name)
{
    Page *page = m_pages.value(name);
    if (!page)
        return;
    m_stack->setCurrentWidget(page);
    showTitle();
    emit pageOpened(name);
}

void HeadUnit::setLook(Theme::Look look)
{
    m_theme.dropPictures(); // what is out of sight still has a copy
    m_theme = Theme(size(), look);
    QPalette colors = palette();
    colors.setColor(QPalette::Window, m_theme.ground);
    colors.setColor(QPalette::WindowText, m_theme.text);
    setPalette(colors);
    setFont(m_theme.font(Theme::Body));
    m_backdrop->setPixmap(m_theme.drawing(look == Theme::Day ? QStringLiteral("backdrop-day")
                                                             : QStringLiteral("backdrop-night"),
                                          size()));
    m_statusBar->setTheme(m_theme);
    m_popup->setTheme(m_theme);
    for (Page *page : qAsConst(m_pages))
        page->setTheme(m_theme);
}

void HeadUnit::say(const QString &title, const QString &sentence)
{
    QTextStream(stderr) << sentence << '\n';
    m_popup->say(title, sentence);
}

// In another language texts take other room, and may begin at the other side.
bool HeadUnit::event(QEvent *e)
{
    const bool isDone = QWidget::event(e);
    if (e->type() == QEvent::LanguageChange)
        setLook(m_theme.look());
    return isDone;
}

void HeadUnit::resizeEvent(QResizeEvent *e)
{
    QWidget::resizeEvent(e);
    m_backdrop->setGeometry(rect());
    m_popup->setGeometry(rect());
    m_dimmer->setGeometry(rect());
}

void HeadUnit::addPage(const QString &name, Page *page)
{
    page->setObjectName(name);
    m_names.append(name);
    m_pages.insert(name, page);
    m_stack->addWidget(page);
    connect(page, &Page::pageWanted, this, &HeadUnit::openPage);
    connect(page, &Page::popupWanted, this, &HeadUnit::say);
    connect(page, &Page::titleChanged, this, &HeadUnit::showTitle);
}

void HeadUnit::followPreferences()
{
    const Preferences &preferences = m_context.preferences;
    m_dimmer->setBrightness(preferences.brightness());
    connect(&preferences, &Preferences::brightnessChanged, m_dimmer, &Dimmer::setBrightness);
    connect(&preferences, &Preferences::lookChosen, this, [this, &preferences] {
        m_wantedLook = wantedLook(preferences);
        setLook(m_wantedLook);
    });
    connect(m_statusBar, &StatusBar::minutePassed, this, &HeadUnit::followTheSun);
}

void HeadUnit::followTheSun()
{
    const Theme::Look look = wantedLook(m_context.preferences);
    if (std::exchange(m_wantedLook, look) != look)
        setLook(look);
}

void HeadUnit::goBack()
{
    Page *page = m_pages.value(currentPage());
    if (page && !page->goBack())
        openPage(QStringLiteral("home"));
}

void HeadUnit::showTitle()
{
    const Page *page = m_pages.value(currentPage());
    m_statusBar->setTitle(page ? page->title() : QString());
    m_statusBar->setKeysShown(currentPage() != QLatin1String("home"));
}

} // namespace headunit
