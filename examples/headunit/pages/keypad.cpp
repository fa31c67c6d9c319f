// SPDX-License-Identifier: Apache-2.0
#include "pages/keypad.h"

#include "dress.h"
#include "listpanel.h"
#include "listrows.h"
#include "models/contacts.h"
#include "pages/recentnumbers.h"
#include "texts.h"
#include "ui_keypad.h"

#include <QFontMetrics>

#include <algorithm>

namespace headunit
{

namespace
{

constexpr int kHeldDelete = 500; // ms until a held delete key repeats
constexpr int kDeleteRepeat = 120; // ms from then on

} // namespace

Keypad::Keypad(Context &context, const RecentNumbers *recent, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::Keypad>()), m_recent(recent),
      m_recentRows(new RowList(this))
{
    m_ui->setupUi(this);
    const auto keys = m_ui->pad->findChildren<SpIconButton *>();
    for (SpIconButton *key : keys)
        connect(key, &SpIconButton::btnClicked, this,
                [this](const QString &digit) { setNumber(m_number + digit); });
    m_ui->deleteKey->setTimerInterval(kHeldDelete);
    m_ui->deleteKey->setTimerInt2(kDeleteRepeat);
    for (const auto deletes : {&SpIconButton::btnClicked, &SpIconButton::btnLongPress})
        connect(m_ui->deleteKey, deletes, this,
                [this] { setNumber(m_number.chopped(std::min(1, m_number.size()))); });
    connect(m_ui->callKey, &SpIconButton::btnClicked, this, &Keypad::callOrHangUp);
    m_ui->number->setIsBeep(false);
    m_ui->recents->setModel(m_recentRows);
    connect(m_ui->recents, QOverload<int>::of(&SpTableList::itemClicked), this,
            [this](int row) { emit numberChosen(m_recent->numbers().value(row)); });
    connect(recent, &RecentNumbers::changed, this, &Keypad::readRecent);
    connect(&context.contacts, &Contacts::modelReset, this, &Keypad::readRecent);
    Keypad::retranslate();
}

Keypad::~Keypad() = default;

void Keypad::setInCall(bool inCall)
{
    if (inCall == m_isInCall)
        return;
    m_isInCall = inCall;
    setNumber({});
    dressAgain();
}

void Keypad::dress()
{
    const int side = (height() - 3 * theme().gap()) / 4;
    m_ui->digits->setContentsMargins(0, 0, 0, 0);
    m_ui->digits->setSpacing(theme().gap());
    m_ui->pad->setFixedWidth(3 * side + 2 * theme().gap());
    m_ui->numberPanel->setFixedHeight(theme().touch());
    for (SpIconButton *key : {m_ui->deleteKey, m_ui->callKey}) {
        key->setFixedHeight(theme().touch());
        key->setMinimumWidth(0); // its face was wider during a call
    }
    dressLabel(*m_ui->recentHeading, theme(), Theme::Small, true);
    m_ui->recentHeading->setAlignment(leadingAlignment());
    layout()->activate();
    m_ui->digits->activate();
    dressPad();

    m_ui->numberPanel->setPixmap(
        theme().panel(m_ui->numberPanel->size(), theme().face, theme().line, theme().radius()));
    showNumber();

    dressListPanel(*m_ui->panel, *m_ui->recents, theme());
}

void Keypad::retranslate()
{
    m_ui->retranslateUi(this);
    showNumber();
    readRecent();
}

void Keypad::setNumber(const QString &number)
{
    m_number = number.left(kMostDigits);
    showNumber();
}

void Keypad::callOrHangUp()
{
    if (m_isInCall)
        emit hangUpWanted();
    else
        emit numberChosen(m_number);
}

void Keypad::dressPad()
{
    const auto keys = m_ui->pad->findChildren<SpIconButton *>();
    for (SpIconButton *key : keys) {
        dressKey(*key, theme(), Theme::Key);
        key->setFontSize(theme().textPx(Theme::Title));
    }
    dressKey(*m_ui->deleteKey, theme(), Theme::Key, QStringLiteral("delete"));
    dressCallKey();
}

void Keypad::dressCallKey()
{
    if (m_isInCall)
        dressKey(*m_ui->callKey, theme(), Theme::Danger, QStringLiteral("hang-up"));
    else
        dressKey(*m_ui->callKey, theme(), Theme::Positive, QStringLiteral("call"));
}

// Of a number that is too long the end is seen, where the next digit goes.
void Keypad::showNumber()
{
    SpDisLabel &label = *m_ui->number;
    const bool isHint = m_number.isEmpty() && !m_isInCall;
    const QColor color = isHint ? theme().quietText : theme().text;
    label.setFontSize(theme().textPx(isHint ? Theme::Body : Theme::Title));
    label.setFontColor(color);
    label.setPressFontColor(color);
    const QString shown = QFontMetrics(label.font())
                              .elidedText(m_number, Qt::ElideLeft, label.width() - theme().gap());
    label.setNormalText(isHint ? tr("Enter a number") : numberText(shown));
    m_ui->deleteKey->setDisableState(m_number.isEmpty());
    m_ui->callKey->setDisableState(isHint);
}

void Keypad::readRecent()
{
    QVector<ListRow> rows;
    const auto numbers = m_recent->numbers();
    for (const QString &number : numbers) {
        const Contact contact = context().contacts.contactByNumber(number);
        ListRow row;
        row.title = contact.name.isEmpty() ? numberText(number) : contact.name;
        row.detail = contact.name.isEmpty() ? QString() : numberText(number);
        if (contact.name.isEmpty())
            row.icon = QStringLiteral("phone");
        else
            row.initials = Contacts::initialsOf(contact.name);
        rows.append(row);
    }
    m_recentRows->setRows(rows);
    m_ui->recentHeading->setText(rows.isEmpty() ? tr("No recent numbers") : tr("Recent"));
}

} // namespace headunit
