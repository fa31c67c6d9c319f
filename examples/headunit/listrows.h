// SPDX-License-Identifier: Apache-2.0
#ifndef HEADUNIT_LISTROWS_H
#define HEADUNIT_LISTROWS_H

#include "theme.h"

#include <QAbstractListModel>
#include <QIdentityProxyModel>
#include <QStyledItemDelegate>

class SpTableList;
class styleDelegate;

// Rows of a list: an icon or initials, a title, a line of detail below it, and something short at
// the other end.

namespace headunit
{

/// What a row shows. What is empty is left out.
struct ListRow {
    QString icon; ///< of art/
    QString initials; ///< in a disc, in place of the icon
    QString title;
    QString detail;
    QString tail;
    int room = 0; ///< px at the other end that stay free, for a widget that lies there
    bool isMarked = false; ///< in the colour of what is going on
};

/// The role in which a model of rows answers a ListRow.
constexpr int kRowRole = Qt::UserRole + 200;

/// Shows another model's rows.
class RowsOfModel : public QIdentityProxyModel
{
    Q_OBJECT

public:
    using QIdentityProxyModel::QIdentityProxyModel;

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// The row has to be read again; -1: there is none.
    void refresh(int row);

protected:
    virtual ListRow row(int row) const = 0;
};

/// A short list of rows of its own.
class RowList : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// As many rows as there were change in place, and keep the widgets that lie on them.
    void setRows(const QVector<ListRow> &rows);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    QVector<ListRow> m_rows;
};

/// Paints the rows: their faces as the list's own delegate does, and over them what they show, from
/// the right to the left in languages that are read so.
class RowPainter : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Takes the place of the list's delegate, which goes on to paint the faces.
    explicit RowPainter(SpTableList *list);

    void setTheme(const Theme &theme) { m_theme = theme; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    void drawDivider(QPainter &painter, const QRect &whole) const;
    int drawPicture(QPainter &painter, const QRect &whole, const ListRow &row) const;
    void drawTexts(QPainter &painter, const QRect &whole, int left, const ListRow &row) const;

    styleDelegate *const m_faces;
    Theme m_theme;
};

/// How many rows of a list there are in so many px of height.
int rowsIn(const Theme &theme, int height);

/// Gives a list the faces of its rows and their size; the first time, its painter too. Rows are as
/// wide as the list is at the moment, and as high as makes all of them whole.
void dressList(SpTableList &list, const Theme &theme);

/// A disc with initials.
QPixmap initialsDisc(const Theme &theme, int side, const QString &initials);

} // namespace headunit

Q_DECLARE_METATYPE(headunit::ListRow)

#endif // HEADUNIT_LISTROWS_H
