// SPDX-License-Identifier: Apache-2.0
#include "pages/phone.h"

#include "models/player.h"
#include "models/preferences.h"
#include "pages/call.h"
#include "pages/callview.h"
#include "pages/contactlist.h"
#include "pages/favourites.h"
#include "pages/keypad.h"
#include "pages/recentnumbers.h"
#include "texts.h"
#include "ui_phone.h"

#include <utility>

namespace headunit
{

PhonePage::PhonePage(Context &context, QWidget *parent)
    : Page(context, parent), m_ui(std::make_unique<Ui::Phone>()),
      m_recent(new RecentNumbers(&context.settings, this)), m_call(new Call(this)),
      m_contacts(new ContactList(context)), m_favourites(new Favourites(context)),
      m_keypad(new Keypad(context, m_recent)), m_callView(new CallView(context, m_call))
{
    m_ui->setupUi(this);
    m_ui->sideKeys->setIcons(
        {QStringLiteral("contacts"), QStringLiteral("star"), QStringLiteral("keypad")});
    for (View *view : std::initializer_list<View *>{m_contacts, m_favourites, m_keypad, m_callView})
        m_ui->views->addWidget(view);
    connect(m_ui->sideKeys, &SideKeys::chosen, this, &PhonePage::showView);
    connect(m_contacts, &ContactList::numberChosen, m_call, &Call::dial);
    connect(m_favourites, &Favourites::numberChosen, m_call, &Call::dial);
    connect(m_keypad, &Keypad::numberChosen, m_call, &Call::dial);
    connect(m_keypad, &Keypad::hangUpWanted, m_call, &Call::hangUp);
    connect(m_callView, &CallView::keypadWanted, this,
            [this] { m_ui->views->setCurrentWidget(m_keypad); });
    connect(m_call, &Call::stateChanged, this, &PhonePage::showCall);
    connect(m_call, &Call::stateChanged, this, &PhonePage::tellTime);
    connect(m_call, &Call::secondPassed, this, &PhonePage::tellTime);
    PhonePage::retranslate();
}

PhonePage::~PhonePage() = default;

QString PhonePage::title() const { return tr("Phone"); }

void PhonePage::setTheme(const Theme &theme)
{
    m_ui->sideKeys->setFixedWidth(SideKeys::columnWidth(theme));
    for (View *view : std::initializer_list<View *>{m_contacts, m_favourites, m_keypad, m_callView})
        view->setTheme(theme);
    Page::setTheme(theme);
}

// From the keypad of a call back to the call.
bool PhonePage::goBack()
{
    const bool isInside =
        m_call->state() != Call::State::None && m_ui->views->currentWidget() != m_callView;
    if (isInside)
        m_ui->views->setCurrentWidget(m_callView);
    return isInside;
}

void PhonePage::dress() { m_ui->sideKeys->dress(theme()); }

void PhonePage::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->sideKeys->setCaptions({tr("Contacts"), tr("Favourites"), tr("Keypad")});
}

void PhonePage::showView(int key)
{
    m_ui->sideKeys->setCurrent(key);
    m_ui->views->setCurrentIndex(key);
}

// The views of the page are those of the call from its first state to its end.
void PhonePage::showCall()
{
    const bool inCall = m_call->state() != Call::State::None;
    const bool wasInCall = m_ui->sideKeys->isHidden();
    if (inCall == wasInCall)
        return;
    m_keypad->setInCall(inCall);
    m_ui->sideKeys->setHidden(inCall);
    if (inCall) {
        m_recent->add(m_call->number());
        m_ui->views->setCurrentWidget(m_callView);
    } else {
        showView(m_ui->sideKeys->current());
    }
    pauseMusic(inCall);
}

void PhonePage::tellTime()
{
    const bool inCall = m_call->state() != Call::State::None;
    emit callTimeChanged(inCall ? timeText(m_call->seconds()) : QString());
}

// Music that a call has interrupted goes on after it.
void PhonePage::pauseMusic(bool inCall)
{
    Player &player = context().player;
    if (inCall) {
        m_hasPausedMusic =
            player.isPlaying() && context().preferences.isOn(Preferences::Option::CallsPauseMusic);
        if (m_hasPausedMusic)
            player.pause();
    } else if (std::exchange(m_hasPausedMusic, false)) {
        player.play();
    }
}

} // namespace headunit
