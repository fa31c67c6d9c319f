// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_ITEMLOOKS_H
#define PANELKIT_BENCHMARKS_ITEMLOOKS_H

#include "rows.h"

#include <QAbstractListModel>
#include <QHash>
#include <QVariant>

#include <functional>
#include <vector>

class QPainter;
class styleDelegate;

// The looks of a list's row, each of which takes another way through its delegate: with and without
// background picture, the parts that a row has, and the styles.

/// One row: what its model says, how its delegate is set, and the least that it can cost.
struct ItemLook {
    const char *name;
    int style; ///< an SpTableList::LIST_STYLE
    QHash<int, QVariant> roles; ///< also those of Qt's delegate
    std::function<void(QPainter &)> floor;
    bool isPressed = false;
};

const std::vector<ItemLook> &itemLooks();

/// The limits of the one whose text rolls.
OwnLimits rollingLimits();

/// Gives the delegate of a list or a delegate of its own what the look needs besides its model.
void setUp(styleDelegate &delegate, const ItemLook &look);

/// Rows that look alike.
class AlikeRows : public QAbstractListModel
{
public:
    AlikeRows(const ItemLook &look, int count) : m_roles(look.roles), m_count(count) { }

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : m_count;
    }
    QVariant data(const QModelIndex &, int role) const override { return m_roles.value(role); }

private:
    QHash<int, QVariant> m_roles;
    int m_count;
};

#endif // PANELKIT_BENCHMARKS_ITEMLOOKS_H
