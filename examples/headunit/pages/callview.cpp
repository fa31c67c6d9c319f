// SPDX-License-Identifier: Apache-2.0
#include "pages/callview.h"

#include "dress.h"
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
    connect(call, &Call::secondPassed, this, &CallView::showTime);
    CallView::retranslate();
}

CallView::~CallView() = default;

void CallView::dress()
{
    const int side = theme().px(200);
    const int keyHeight = theme().touch() + theme().px(40);
    m_ui->caller->setContentsMargins(theme().px(120), 0, theme().px(120), 0);
    m_ui->caller->setSpacing(theme().px(48));
    m_ui->texts->setSpacing(theme().px(10));
    m_ui->picture->setFixedSize(side, side);
    m_ui->picture->setImage(theme().icon(QStringLiteral("person-large"), side, theme().quietText));
    dressLabel(*m_ui->name, theme(), Theme::Title);
    dressLabel(*m_ui->number, theme(), Theme::Body, true);
    dressLabel(*m_ui->state, theme(), Theme::Body);
    for (QLabel *label : {m_ui->name, m_ui->number, m_ui->state})
        label->setAlignment(leadingAlignment());
    for (SpIconButton *key : {m_ui->muteKey, m_ui->holdKey, m_ui->keypadKey, m_ui->hangUpKey})
        key->setFixedHeight(keyHeight);
    layout()->activate();
    showCall();
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

void CallView::showCall()
{
    const Contact contact = context().contacts.contactByNumber(m_call->number());
    m_ui->name->setText(contact.name.isEmpty() ? numberText(m_call->number()) : contact.name);
    m_ui->number->setText(numberText(m_call->number()));
    m_ui->number->setHidden(contact.name.isEmpty());
    if (isVisible()) {
        dressKey(*m_ui->muteKey, theme(), Theme::Key,
                 m_call->isMuted() ? QStringLiteral("microphone-off")
                                   : QStringLiteral("microphone"));
        dressKey(*m_ui->holdKey, theme(), Theme::Key, QStringLiteral("hold"));
        dressKey(*m_ui->keypadKey, theme(), Theme::Key, QStringLiteral("keypad"));
        dressKey(*m_ui->hangUpKey, theme(), Theme::Danger, QStringLiteral("hang-up"));
    }
    m_ui->muteKey->setFocus(m_call->isMuted());
    m_ui->holdKey->setFocus(m_call->isHeld());
    m_ui->holdKey->setDisableState(m_call->state() != Call::State::Connected);
    showTime();
}

void CallView::showTime()
{
    if (m_call->state() != Call::State::Connected)
        m_ui->state->setText(tr("Calling..."));
    else if (m_call->isHeld())
        m_ui->state->setText(tr("On hold, %1").arg(timeText(m_call->seconds())));
    else
        m_ui->state->setText(timeText(m_call->seconds()));
}

} // namespace headunit
