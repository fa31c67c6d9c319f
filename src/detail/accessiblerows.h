// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_ACCESSIBLEROWS_H
#define PANELKIT_DETAIL_ACCESSIBLEROWS_H

#include "accessiblewidget.h"

#include <QHash>

class MArcList;
class SpTableList;

#ifndef QT_NO_ACCESSIBILITY

namespace panelkit
{

/**
 * A list whose rows are no widgets. Each row is an interface of its own, made when a client asks
 * for it, and known by its number: it always tells what stands in that row now.
 */
class AccessibleRows : public AccessibleWidget
{
public:
    using AccessibleWidget::AccessibleWidget;
    ~AccessibleRows() override;

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;

    virtual int rowCount() const = 0;
    virtual QString rowText(int row, QAccessible::Text which) const = 0;
    /// In the widget; empty for a row that is not in sight.
    virtual QRect rowRect(int row) const = 0;
    /// What is particular to the row.
    virtual QAccessible::State rowState(int row) const = 0;
    /// Touches the row; one that is out of sight is scrolled to before.
    virtual void pressRow(int row) = 0;

protected:
    /// The child with this index is a row, or, below 0, something that is never in sight.
    virtual int rowOfChild(int index) const { return index; }
    virtual int childOfRow(int row) const { return row; }
    virtual int rowAt(const QPoint &pos) const = 0;

private:
    mutable QHash<int, QAccessible::Id> m_children; // those that were asked for
};

class AccessibleRow : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleRow(AccessibleRows &list, int row) : m_list(list), m_row(row) { }

    int row() const { return m_row; }

    bool isValid() const override;
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_list.window(); }
    QAccessibleInterface *parent() const override { return &m_list; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text which) const override;
    void setText(QAccessible::Text, const QString &) override { }
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    AccessibleRows &m_list; // which owns this
    const int m_row; // below 0: a header, which a list does not show
};

/**
 * The rows of a table list with the texts that its delegate paints. Qt reports changes of selection
 * and model with the places that children have in its own tables: first the headers of the columns,
 * then for each row its header and its cells. They have the same places here; the list shows no
 * headers, and of the cells the first.
 */
class AccessibleTableList : public AccessibleRows
{
public:
    using AccessibleRows::AccessibleRows;

    int childCount() const override;
    int rowCount() const override;
    QString rowText(int row, QAccessible::Text which) const override;
    QRect rowRect(int row) const override;
    QAccessible::State rowState(int row) const override;
    void pressRow(int row) override;

protected:
    int rowOfChild(int index) const override;
    int childOfRow(int row) const override;
    int rowAt(const QPoint &pos) const override;

private:
    SpTableList *list() const;
    int columns() const;
    QVariant data(int row, int role) const;
    QString part(int row, int role, int flags) const;
};

/// The letters of an index.
class AccessibleArcList : public AccessibleRows
{
public:
    using AccessibleRows::AccessibleRows;

    int rowCount() const override;
    QString rowText(int row, QAccessible::Text which) const override;
    QRect rowRect(int row) const override;
    QAccessible::State rowState(int row) const override;
    void pressRow(int row) override;

protected:
    int rowAt(const QPoint &pos) const override;

private:
    MArcList *list() const;
    QPoint touchPoint(int row) const;
};

} // namespace panelkit

#endif // QT_NO_ACCESSIBILITY

#endif // PANELKIT_DETAIL_ACCESSIBLEROWS_H
