// SPDX-License-Identifier: Apache-2.0
#include "contacts.h"

#include "art.h"
#include "playlistmodel.h"

#include <algorithm>

namespace
{

constexpr int kReceiver = 40; // px

// Every letter of the alphabet has someone, some have more.
QVector<Contact> everyone()
{
    const char *const names[] = {
        "Ada Brook",     "Adil Haddad",    "Agnes Frost",     "Anton Reyes",  "Bela Novak",
        "Bruno Castel",  "Carla Monti",    "Chen Rui",        "Clara Voss",   "Dario Pellegrini",
        "Dunya Aziz",    "Edith Marlow",   "Emil Sand",       "Fatima Noor",  "Felix Andersen",
        "Gala Petrova",  "Goran Ilic",     "Hana Suzuki",     "Henk de Boer", "Ida Lindqvist",
        "Ivan Orlov",    "Jana Kral",      "Jonas Weber",     "Kaito Mori",   "Klara Busch",
        "Lena Hoffmann", "Luis Ferrer",    "Mara Costa",      "Milan Dvorak", "Mina Park",
        "Nadia Rahman",  "Nils Berg",      "Olga Smirnova",   "Otto Brandt",  "Paula Rivas",
        "Piet Vermeer",  "Quentin Moreau", "Rosa Delgado",    "Rui Almeida",  "Sara Eklund",
        "Stefan Maier",  "Tariq Aziz",     "Tilda Holm",      "Ugo Bianchi",  "Uma Nair",
        "Vera Klein",    "Viktor Lund",    "Wanda Zielinska", "Wim Jansen",   "Xenia Pappas",
        "Yara Haddad",   "Yusuf Demir",    "Zoe Laurent",     "Zoran Babic"};
    QVector<Contact> contacts;
    for (const char *name : names) {
        const int i = contacts.size();
        contacts.append({QString::fromLatin1(name),
                         QStringLiteral("0%1 555 %2").arg(130 + i * 7 % 60).arg(1000 + i * 137)});
    }
    return contacts;
}

} // namespace

Contacts::Contacts(QObject *parent) : QAbstractListModel(parent), m_contacts(everyone()) { }

QChar Contacts::letterOf(int row) const
{
    return row >= 0 && row < m_contacts.size() ? m_contacts.at(row).name.at(0) : QChar();
}

int Contacts::firstRowOf(QChar letter) const
{
    const auto found =
        std::find_if(m_contacts.begin(), m_contacts.end(),
                     [letter](const Contact &contact) { return contact.name.startsWith(letter); });
    return found == m_contacts.end() ? -1 : int(found - m_contacts.begin());
}

int Contacts::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_contacts.size();
}

QVariant Contacts::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case PlaylistModel::ContentRole:
        return PlaylistModel::HeaderIcon | PlaylistModel::CentreText;
    case PlaylistModel::HeaderIconRole:
        return Art::pixmap(QStringLiteral("phone"), {kReceiver, kReceiver});
    case PlaylistModel::CentreTextRole: {
        const Contact &contact = m_contacts.at(index.row());
        return QString(contact.name + QLatin1Char('/') + contact.number);
    }
    default:
        return {};
    }
}
