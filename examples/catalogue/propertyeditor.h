// SPDX-License-Identifier: Apache-2.0
#ifndef CATALOGUE_PROPERTYEDITOR_H
#define CATALOGUE_PROPERTYEDITOR_H

#include <QMetaProperty>
#include <QPointer>
#include <QTreeWidget>
#include <QVector>

class ValueEditor;

/**
 * The properties of one object, in the order in which its class declares them, as often as it does;
 * in a second, folded group a few that every widget has. An edit is written at once. Setters may
 * ignore or change what they are given, so all values are read anew after each.
 */
class PropertyEditor : public QTreeWidget
{
    Q_OBJECT

public:
    explicit PropertyEditor(QWidget *parent = nullptr);

    void setSubject(QObject *subject);
    void readAll();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void edited();

private:
    struct Row {
        QMetaProperty property;
        ValueEditor *editor;
    };

    void addRows();
    void addRow(QTreeWidgetItem *group, const QMetaProperty &property);
    void write(const QMetaProperty &property, const QVariant &value);

    QPointer<QObject> m_subject;
    const QMetaObject *m_type = nullptr;
    QVector<Row> m_rows;
};

#endif // CATALOGUE_PROPERTYEDITOR_H
