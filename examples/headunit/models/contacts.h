// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_CONTACTS_H
#define HEADUNIT_CONTACTS_H

#include "contact.h"
#include "letterindex.h"

#include <QAbstractListModel>
#include <QHash>
#include <QMultiHash>
#include <QString>
#include <QVector>

namespace headunit
{

/**
 * The telephone book: the cards of a vCard file (2.1, 3.0 or 4.0), sorted by name. Favourites have
 * X-FAVORITE:true or the category "Favourite".
 */
class Contacts : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Far from the numbers that lists have for their own parts, so that one model can answer both.
    enum Role : int {
        NameRole = Qt::UserRole + 100, ///< QString; Qt::DisplayRole gives it too
        NumberRole, ///< QString: the first number; empty without one
        NumbersRole, ///< QStringList: all of them
        KindRole, ///< QString: what the first number is, for the user
        KindsRole, ///< QStringList: the same of all of them
        FavouriteRole, ///< bool
        InitialsRole, ///< QString: one or two letters
        OrganisationRole ///< QString
    };

    static constexpr int kMost = 20000; ///< further cards are left out, with a problem()
    static constexpr int kMostBytes = 64 * 1024 * 1024; ///< no more is read, with a problem()

    explicit Contacts(QObject *parent = nullptr);

    /// Reads a file in place of what was known; false if it cannot be read or has no cards. A
    /// problem() tells why, or which cards were left out.
    bool load(const QString &path);

    /// A row's contact; an empty one if there is no such row.
    Contact contact(int row) const;

    /// The row with this number, however either is written: spaces do not count, nor does a
    /// country code that only one of them has. -1 if there is none.
    int rowOfNumber(const QString &number) const;
    /// Who has this number; a contact without a name if nobody does.
    Contact contactByNumber(const QString &number) const;

    /// The rows of the favourites.
    QVector<int> favourites() const;

    static QString kindText(PhoneNumber::Kind kind); ///< for the user: "Mobile" and the like
    static QString initialsOf(const QString &name);

    /// The letters that there are, in the order of the rows; '#' for what begins with none.
    QVector<QChar> letters() const { return m_letters.letters(); }
    /// The letter that a row stands under; null for none.
    QChar letterOf(int row) const { return m_letters.letterOf(row); }
    /// The first row of a letter, or of the next one that there is; -1 in an empty list.
    int rowOfLetter(QChar letter) const { return m_letters.rowOf(letter); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void problem(const QString &sentence);

private:
    struct Ending {
        QString digits; // without a country's "+" or "0"
        int row;
    };

    void setContacts(const QVector<Contact> &contacts);
    void indexNumbers();

    QVector<Contact> m_contacts;
    LetterIndex m_letters;
    QHash<QString, int> m_exact; // what is dialled: its row
    QMultiHash<QString, Ending> m_endings; // by the last digits
};

} // namespace headunit

#endif // HEADUNIT_CONTACTS_H
