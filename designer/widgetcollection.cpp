// SPDX-License-Identifier: Apache-2.0
#include "widgetcollection.h"

#include "designerwidget.h"

#include <panelkitclasses.h>

#include <QVector>

#include <type_traits>

namespace
{

QStringList assignments(const QString &lines)
{
    return lines.isEmpty() ? QStringList() : lines.split(QLatin1Char('\n'));
}

QVector<WidgetRow> widgetTable()
{
#define WIDGET_ROW(Class, create, header, family, toolTip, width, height, initial) \
    {QStringLiteral(#Class),                                                       \
     &Class::staticMetaObject,                                                     \
     [](QWidget *parent) -> QWidget * { return create; },                          \
     std::is_constructible<Class, QWidget *>::value,                               \
     QStringLiteral(header),                                                       \
     QStringLiteral(family),                                                       \
     QStringLiteral(toolTip),                                                      \
     {width, height},                                                              \
     assignments(QStringLiteral(initial))},
    return {PANELKIT_FOR_EACH_WIDGET(WIDGET_ROW)};
#undef WIDGET_ROW
}

} // namespace

WidgetCollection::WidgetCollection(QObject *parent) : QObject(parent)
{
    const QVector<WidgetRow> table = widgetTable();
    for (const WidgetRow &row : table)
        m_widgets.append(new DesignerWidget(row, this));
}

QList<QDesignerCustomWidgetInterface *> WidgetCollection::customWidgets() const
{
    return m_widgets;
}
