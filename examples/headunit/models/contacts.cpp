// SPDX-License-Identifier: Apache-2.0
#include "contacts.h"

#include "textfile.h"
#include "vcard.h"

#include <QStringList>

#include <algorithm>
#include <numeric>
#include <vector>

namespace headunit
{

namespace
{

constexpr ushort kNonJoiner = 0x200c; // without width
constexpr int kEnding = 7; // digits by which two ways to write a number are the same

// The digits alone, with a '+' for a country's code; '*' and '#' belong to a number, too.
QString dialled(const QString &number)
{
    QString digits;
    for (const QChar c : number) {
        const int value = c.digitValue();
        if (value >= 0)
            digits += QChar('0' + value);
        else if (c == QLatin1Char('*') || c == QLatin1Char('#')
                 || (c == QLatin1Char('+') && digits.isEmpty()))
            digits += c;
    }
    return digits;
}

// Without what stands before the country's code ("+", "00") or in its place ("0").
QString significant(const QString &dialled)
{
    int start = 0;
    while (start < dialled.size()
           && (dialled.at(start) == QLatin1Char('+') || dialled.at(start) == QLatin1Char('0')))
        ++start;
    return dialled.mid(start);
}

// The first letter or digit of a word, which may take two QChars; empty if there is none.
QString initialOf(const QString &word)
{
    for (int i = 0; i < word.size(); ++i) {
        if (word.at(i).isHighSurrogate() && i + 1 < word.size())
            return word.mid(i, 2);
        if (word.at(i).isLetterOrNumber())
            return word.mid(i, 1).toUpper();
    }
    return {};
}

template <typename Text> QStringList listOf(const Contact &contact, Text text)
{
    QStringList list;
    for (const PhoneNumber &number : contact.numbers)
        list.append(text(number));
    return list;
}

} // namespace

Contacts::Contacts(QObject *parent) : QAbstractListModel(parent) { }

bool Contacts::load(const QString &path)
{
    FileContents contents = readFile(path, kMostBytes);
    if (contents.isCut) // up to the end of a card
        contents.bytes.truncate(qMax(0, contents.bytes.lastIndexOf("\nBEGIN:VCARD") + 1));
    const vcard::Reading reading = vcard::read(contents.bytes, kMost);
    setContacts(reading.contacts);

    QStringList sentences;
    if (!contents.problem.isEmpty())
        sentences += contents.problem;
    else if (m_contacts.isEmpty())
        sentences += tr("%1 has no contacts.").arg(path);
    else if (reading.broken > 0)
        sentences +=
            tr("Cards of %1 that make no sense and are left out: %2. The first is in line %3.")
                .arg(fileName(path))
                .arg(reading.broken)
                .arg(reading.firstBroken);
    if (reading.isFull || (contents.isCut && !m_contacts.isEmpty()))
        sentences += tr("%1 is too long: only the first %2 contacts are taken.")
                         .arg(fileName(path))
                         .arg(m_contacts.size());
    if (!sentences.isEmpty())
        emit problem(sentences.join(QLatin1Char(' ')));
    return !m_contacts.isEmpty();
}

Contact Contacts::contact(int row) const { return m_contacts.value(row); }

int Contacts::rowOfNumber(const QString &number) const
{
    const QString wanted = dialled(number);
    const auto exact = m_exact.constFind(wanted);
    if (wanted.isEmpty() || exact != m_exact.cend())
        return wanted.isEmpty() ? -1 : *exact;
    const QString digits = significant(wanted);
    if (digits.size() < kEnding)
        return -1;
    const QList<Ending> candidates = m_endings.values(digits.right(kEnding));
    int row = -1;
    for (const Ending &candidate : candidates) {
        const bool isSame = digits.endsWith(candidate.digits) || candidate.digits.endsWith(digits);
        if (isSame && (row < 0 || candidate.row < row))
            row = candidate.row;
    }
    return row;
}

Contact Contacts::contactByNumber(const QString &number) const
{
    return contact(rowOfNumber(number));
}

QVector<int> Contacts::favourites() const
{
    QVector<int> rows;
    for (int row = 0; row < m_contacts.size(); ++row) {
        if (m_contacts.at(row).isFavourite)
            rows.append(row);
    }
    return rows;
}

QString Contacts::kindText(PhoneNumber::Kind kind)
{
    switch (kind) {
    case PhoneNumber::Kind::Mobile:
        return tr("Mobile");
    case PhoneNumber::Kind::Home:
        return tr("Home");
    case PhoneNumber::Kind::Work:
        return tr("Work");
    case PhoneNumber::Kind::Other:
        break;
    }
    return tr("Phone");
}

// Of the first and of the last word.
QString Contacts::initialsOf(const QString &name)
{
    QStringList initials;
    for (const QString &word : name.split(QLatin1Char(' '))) {
        const QString initial = initialOf(word);
        if (!initial.isEmpty())
            initials.append(initial);
    }
    if (initials.isEmpty())
        return {};
    if (initials.size() == 1)
        return initials.first();
    // Two letters are no word, and do not join to one.
    const auto joining = initials.first().at(0).joiningType();
    const bool joins = joining == QChar::Joining_Dual || joining == QChar::Joining_Left;
    const QString between = joins ? QString(QChar(kNonJoiner)) : QString();
    return initials.first() + between + initials.last();
}

int Contacts::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_contacts.size();
}

QVariant Contacts::data(const QModelIndex &index, int role) const
{
    if (index.model() != this || index.row() >= m_contacts.size())
        return {};
    const Contact &contact = m_contacts.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return contact.name;
    case NumberRole:
        return contact.numbers.value(0).number;
    case NumbersRole:
        return listOf(contact, [](const PhoneNumber &number) { return number.number; });
    case KindRole:
        return contact.numbers.isEmpty() ? QString() : kindText(contact.numbers.first().kind);
    case KindsRole:
        return listOf(contact, [](const PhoneNumber &number) { return kindText(number.kind); });
    case FavouriteRole:
        return contact.isFavourite;
    case InitialsRole:
        return initialsOf(contact.name);
    case OrganisationRole:
        return contact.organisation;
    default:
        return {};
    }
}

QHash<int, QByteArray> Contacts::roleNames() const
{
    return {{Qt::DisplayRole, "display"},
            {NameRole, "name"},
            {NumberRole, "number"},
            {NumbersRole, "numbers"},
            {KindRole, "kind"},
            {KindsRole, "kinds"},
            {FavouriteRole, "favourite"},
            {InitialsRole, "initials"},
            {OrganisationRole, "organisation"}};
}

// By name, and the same names in the order of the file.
void Contacts::setContacts(const QVector<Contact> &contacts)
{
    const QCollator collator = readersCollator();
    std::vector<QCollatorSortKey> keys;
    keys.reserve(std::size_t(contacts.size()));
    for (const Contact &contact : contacts)
        keys.push_back(collator.sortKey(sortText(contact.name)));
    QVector<int> order(contacts.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&keys](int one, int other) {
        return keys[std::size_t(one)].compare(keys[std::size_t(other)]) < 0;
    });

    beginResetModel();
    m_contacts.clear();
    m_letters.clear();
    for (const int place : qAsConst(order)) {
        m_contacts.append(contacts.at(place));
        m_letters.append(contacts.at(place).name);
    }
    indexNumbers();
    endResetModel();
}

void Contacts::indexNumbers()
{
    m_exact.clear();
    m_endings.clear();
    for (int row = 0; row < m_contacts.size(); ++row) {
        for (const PhoneNumber &number : m_contacts.at(row).numbers) {
            const QString digits = dialled(number.number);
            if (!m_exact.contains(digits))
                m_exact.insert(digits, row);
            const QString ending = significant(digits);
            if (ending.size() >= kEnding)
                m_endings.insert(ending.right(kEnding), {ending, row});
        }
    }
}

} // namespace headunit
