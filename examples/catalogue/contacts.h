// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_CONTACTS_H
#define CATALOGUE_CONTACTS_H

#include <QAbstractListModel>
#include <QString>
#include <QVector>

/// Someone to call.
struct Contact {
    QString name;
    QString number;
};

/**
 * A telephone book as the model of an SpTableList in LIST_STYLE_5: a receiver, and the name over
 * the number. It is sorted by name and knows its letters.
 */
class Contacts : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit Contacts(QObject *parent = nullptr);

    /// The letter that a row stands under; null for none.
    QChar letterOf(int row) const;
    /// The first row under a letter; -1 if there is none.
    int firstRowOf(QChar letter) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    const QVector<Contact> m_contacts;
};

#endif // CATALOGUE_CONTACTS_H
