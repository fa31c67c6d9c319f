// SPDX-License-Identifier: Apache-2.0
#ifndef WILDMODEL_H
#define WILDMODEL_H

#include "values.h"

#include <QAbstractListModel>

/// Answers each role with something, which may be of the wrong type, and never the same twice.
class WildModel : public QAbstractListModel
{
public:
    explicit WildModel(Values &values) : m_values(values), m_count(values.below(200)) { }

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : m_count;
    }
    QVariant data(const QModelIndex &, int role) const override
    {
        constexpr int kKind = 258; // which looks a row has
        if (role == kKind && m_values.below(8) > 0)
            return m_values.oneOf({0x11111, 0x1001, 0x1010, 0x111000, -1});
        switch (m_values.below(6)) {
        case 0:
            return {};
        case 1:
            return m_values.number();
        case 2:
            return m_values.picture();
        case 3:
            return m_values.value<bool>();
        default:
            return m_values.text();
        }
    }
    void change()
    {
        const int rows = m_values.below(40);
        const int kind = m_values.below(4);
        m_values.track.add("model", kind, rows);
        switch (kind) {
        case 0:
            beginResetModel();
            m_count = m_values.below(200);
            endResetModel();
            break;
        case 1:
            beginInsertRows({}, 0, rows);
            m_count += rows + 1;
            endInsertRows();
            break;
        case 2:
            if (rows >= m_count)
                break;
            beginRemoveRows({}, 0, rows);
            m_count -= rows + 1;
            endRemoveRows();
            break;
        default:
            if (m_count > 0)
                emit dataChanged(index(0), index(m_count - 1));
        }
    }

private:
    Values &m_values;
    int m_count;
};

#endif // WILDMODEL_H
