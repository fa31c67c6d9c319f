// SPDX-License-Identifier: Apache-2.0
#include "pages/callview.h"

#include "dress.h"
#include "listrows.h"
#include "models/contacts.h"
#include "pages/call.h"
#include "texts.h"
#include "ui_callview.h"

namespace headunit
{

CallView::CallView(Context &context, Call *call, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::CallView>()), m_call(call)
{
    m_ui->setupUi(this);
    m_ui->picture->setImageAlpha(0);
    connect(m_ui->muteKey, &SpIconButton::btnClicked, call, &Call::toggleMuted);
    connect(m_ui->holdKey, &SpIconButton::btnClicked, call, &Call::toggleHeld);
    connect(m_ui->keypadKey, &SpIconButton::btnClicked, this, &CallView::keypadWanted);
    connect(m_ui->hangUpKey, &SpIconButton::btnClicked, call, &Call::hangUp);
    connect(call, &Call::stateChanged, this, &CallView::showCall);
    connect(call, &Call::stateChanged, this, &CallView::dressAgain); // in the state of the call
    connect(call, &Call::secondPassed, this, &CallView::showTime);
    CallView::retranslate();
}

CallView::~CallView() = default;

void CallView::dress()
{
    const int keyHeight = theme().touch() + theme().px(40);
    for (SpIconButton *key : {m_ui->muteKey, m_ui->holdKey, m_ui->keypadKey, m_ui->hangUpKey})
        key->setFixedHeight(keyHeight);
    dressLabel(*m_ui->name, theme(), Theme::Title);
    dressLabel(*m_ui->number, theme(), Theme::Body, true);
    dressLabel(*m_ui->state, theme(), Theme::Body);
    QPalette colors = m_ui->state->palette();
    colors.setColor(QPalette::WindowText, theme().accent);
    m_ui->state->setPalette(colors);
    for (QLabel *label : {m_ui->name, m_ui->number, m_ui->state})
        label->setAlignment(leadingAlignment());
    layout()->activate();
    dressPanel(*m_ui->panel, theme());
    m_ui->caller->setSpacing(theme().px(40));
    m_ui->texts->setSpacing(theme().px(4));
    dressPicture();
    showCall();
    layout()->activate();
    dressKeys();
}

void CallView::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->muteKey->setDisplayText(tr("Mute"));
    m_ui->holdKey->setDisplayText(tr("Hold"));
    m_ui->keypadKey->setDisplayText(tr("Keypad"));
    m_ui->hangUpKey->setDisplayText(tr("Hang up"));
    showCall();
}

// Who is known has the disc that there is in the list of contacts.
void CallView::dressPicture()
{
    const int side = theme().px(200);
    const QString name = context().contacts.contactByNumber(m_call->number()).name;
    m_ui->picture->setFixedSize(side, side);
    m_ui->picture->setImage(
        name.isEmpty() ? theme().icon(QStringLiteral("person-large"), side, theme().quietText)
                       : initialsDisc(theme(), side, Contacts::initialsOf(name)));
}

void CallView::dressKeys()
{
    dressKey(*m_ui->muteKey, theme(), Theme::Key,
             m_call->isMuted() ? QStringLiteral("microphone-off") : QStringLiteral("microphone"));
    dressKey(*m_ui->holdKey, theme(), Theme::Key, QStringLiteral("hold"));
    dressKey(*m_ui->keypadKey, theme(), Theme::Key, QStringLiteral("keypad"));
    dressKey(*m_ui->hangUpKey, theme(), Theme::Danger, QStringLiteral("hang-up"));
}

void CallView::showCall()
{
    const Contact contact = context().contacts.contactByNumber(m_call->number());
    const QString name = contact.name.isEmpty() ? numberText(m_call->number()) : contact.name;
    const int room = m_ui->panel->width() - m_ui->picture->width() - theme().px(3 * 40);
    m_ui->name->setText(shortened(name, m_ui->name->fontMetrics(), room));
    m_ui->number->setText(numberText(m_call->number()));
    m_ui->number->setHidden(contact.name.isEmpty());
    m_ui->muteKey->setFocus(m_call->isMuted());
    m_ui->holdKey->setFocus(m_call->isHeld());
    m_ui->holdKey->setDisableState(m_call->state() != Call::State::Connected);
    showTime();
}

void CallView::showTime()
{
    const QString time = timeText(m_call->seconds());
    if (m_call->state() != Call::State::Connected)
        m_ui->state->setText(tr("Calling…"));
    else if (m_call->isHeld())
        m_ui->state->setText(tr("On hold, %1").arg(time));
    else
        m_ui->state->setText(tr("Connected, %1").arg(time));
}

} // namespace headunit
