// SPDX-License-Identifier: Apache-2.0
#include "pages/contactlist.h"

#include "dress.h"
#include "listpanel.h"
#include "listrows.h"
#include "models/contacts.h"
#include "texts.h"
#include "ui_contactlist.h"

namespace headunit
{

namespace
{

class ContactRows : public RowsOfModel
{
public:
    ContactRows(Contacts *contacts, QObject *parent) : RowsOfModel(parent), m_contacts(contacts)
    {
        setSourceModel(contacts);
    }

protected:
    ListRow row(int row) const override
    {
        const Contact contact = m_contacts->contact(row);
        ListRow result;
        result.initials = Contacts::initialsOf(contact.name);
        result.title = contact.name;
        result.detail = contact.organisation;
        if (!contact.numbers.isEmpty())
            result.tail = numberText(contact.numbers.first().number);
        return result;
    }

private:
    const Contacts *const m_contacts;
};

} // namespace

ContactList::ContactList(Context &context, QWidget *parent)
    : View(context, parent), m_ui(std::make_unique<Ui::ContactList>())
{
    m_ui->setupUi(this);
    const Contacts &contacts = context.contacts;
    m_ui->list->setModel(new ContactRows(&context.contacts, this));
    m_ui->index->setList(m_ui->list, ListLetters::of(&contacts));
    connect(m_ui->list, QOverload<int>::of(&SpTableList::itemClicked), this,
            [this, &contacts](int row) {
                const auto numbers = contacts.contact(row).numbers;
                if (!numbers.isEmpty())
                    emit numberChosen(numbers.first().number);
            });
}

ContactList::~ContactList() = default;

void ContactList::dress()
{
    m_ui->index->dress(theme(), listHeight(*m_ui->panel, theme()));
    dressListPanel(*m_ui->panel, *m_ui->list, theme());
}

QMargins ContactList::margins(const Theme &theme) const { return rowMargins(theme); }

void ContactList::retranslate() { m_ui->retranslateUi(this); }

} // namespace headunit
