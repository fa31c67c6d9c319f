// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_FAVOURITES_H
#define HEADUNIT_FAVOURITES_H

#include "view.h"

#include <QStringList>

class QLabel;
class SpVerStrButton;

namespace headunit
{

/// The people who are called most: a key each, with the initials in a disc above the name. There
/// are as many keys as fit; the others are in the list of contacts.
class Favourites : public View
{
    Q_OBJECT

public:
    static constexpr int kColumns = 4;
    static constexpr int kMost = 2 * kColumns;

    explicit Favourites(Context &context, QWidget *parent = nullptr);

signals:
    void numberChosen(const QString &number);

protected:
    void dress() override;
    void retranslate() override;

private:
    void readContacts();
    void dressKey(SpVerStrButton &key, const QSize &size);

    QLabel *const m_hint; // where there are none
    QVector<SpVerStrButton *> m_keys;
    QStringList m_names; // a key each
    QStringList m_numbers;
};

} // namespace headunit

#endif // HEADUNIT_FAVOURITES_H
