// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_LISTROWS_H
#define PANELKIT_BENCHMARKS_LISTROWS_H

#include "floors.h"

#include <QAbstractListModel>
#include <QFont>
#include <QPixmap>
#include <QString>

#include <vector>

class QPainter;

// What the rows of lists show that are measured: two icons, and a text of two lines, "upper/lower".

constexpr int kRowWidth = 800; // px
constexpr int kRowHeight = 60; // px
constexpr int kCentreSize = 20; // px
constexpr int kLowerSize = 26; // px

const QPixmap &headerIcon();
const QPixmap &tailIcon();
QString upperText(int row);
QString lowerText(int row);

/// Rows in the roles of lists, and the same in those of Qt's views.
class ListRows : public QAbstractListModel
{
public:
    explicit ListRows(int count) : m_count(count) { }

    int rowCount(const QModelIndex &parent) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    int m_count;
};

/// The least that these rows can cost: pictures, and layouts that need no more work.
class ListFloor
{
public:
    explicit ListFloor(int count);

    void draw(QPainter &painter) const;

private:
    struct Row {
        LaidOutText upper;
        LaidOutText lower;
    };

    std::vector<Row> m_rows;
    QFont m_upperFont;
    QFont m_lowerFont;
};

#endif // PANELKIT_BENCHMARKS_LISTROWS_H
