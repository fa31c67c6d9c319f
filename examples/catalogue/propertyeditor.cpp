// SPDX-License-Identifier: Apache-2.0
#include "propertyeditor.h"

#include "theme.h"
#include "valueeditor.h"

#include <QEvent>
#include <QHeaderView>

namespace
{

constexpr int kNameWidth = 158; // px
constexpr int kRowHeight = 28; // px

QTreeWidgetItem *addGroup(QTreeWidget *tree, const QString &name)
{
    auto *group = new QTreeWidgetItem(tree, {name});
    group->setFirstColumnSpanned(true);
    group->setFlags(Qt::ItemIsEnabled);
    group->setForeground(0, Theme::kQuietText);
    group->setSizeHint(0, {1, kRowHeight});
    return group;
}

} // namespace

PropertyEditor::PropertyEditor(QWidget *parent) : QTreeWidget(parent)
{
    setHeaderLabels({tr("Property"), tr("Value")});
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setIndentation(14);
    Theme::darken(*this);
    header()->resizeSection(0, kNameWidth);
}

// A fresh object of the class that is shown already keeps the rows, and with them what is folded
// and where the list is scrolled to.
void PropertyEditor::setSubject(QObject *subject)
{
    m_subject = subject;
    if (subject && subject->metaObject() != m_type) {
        m_type = subject->metaObject();
        addRows();
    }
    readAll();
}

void PropertyEditor::readAll()
{
    if (!m_subject)
        return;
    for (const Row &row : qAsConst(m_rows))
        row.editor->showValue(row.property.read(m_subject));
}

// The wheel changes no value that happens to be under it: it goes on to the list and scrolls that.
bool PropertyEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return QTreeWidget::eventFilter(watched, event);
    event->ignore();
    return true;
}

void PropertyEditor::addRows()
{
    clear();
    m_rows.clear();
    QTreeWidgetItem *own = addGroup(this, QString::fromLatin1(m_type->className()));
    for (int i = m_type->propertyOffset(); i < m_type->propertyCount(); ++i)
        addRow(own, m_type->property(i));
    own->setExpanded(true);

    if (!m_type->inherits(&QWidget::staticMetaObject))
        return;
    const QMetaObject &widget = QWidget::staticMetaObject;
    QTreeWidgetItem *common = addGroup(this, QString::fromLatin1(widget.className()));
    for (const char *name : {"enabled", "size", "font"})
        addRow(common, widget.property(widget.indexOfProperty(name)));
}

void PropertyEditor::addRow(QTreeWidgetItem *group, const QMetaProperty &property)
{
    const QString name = QString::fromLatin1(property.name());
    auto *item = new QTreeWidgetItem(group, {name});
    item->setSizeHint(0, {1, kRowHeight});
    item->setToolTip(0,
                     QStringLiteral("%1 %2").arg(QString::fromLatin1(property.typeName()), name));
    ValueEditor *editor = createValueEditor(property);
    editor->setPalette(Theme::fieldPalette());
    connect(editor, &ValueEditor::edited, this,
            [this, property](const QVariant &value) { write(property, value); });
    setItemWidget(item, 1, editor);
    const auto parts = editor->findChildren<QWidget *>();
    for (QWidget *part : parts)
        part->installEventFilter(this);
    m_rows.append({property, editor});
}

void PropertyEditor::write(const QMetaProperty &property, const QVariant &value)
{
    if (!m_subject)
        return;
    property.write(m_subject, value);
    readAll();
    emit edited();
}
