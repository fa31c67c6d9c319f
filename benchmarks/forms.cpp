// SPDX-License-Identifier: Apache-2.0
#include "everyclass.h"

#include "rows.h"
#include "widgetclasses.h"

#include <QBuffer>
#include <QUiLoader>
#include <QWidget>

#include <memory>

namespace
{

constexpr double kFormLimit = 1.1;

QByteArray page(const QByteArray &children)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><ui version=\"4.0\"><class>Page</class>"
           "<widget class=\"QWidget\" name=\"Page\">"
        + children + "</widget></ui>";
}

// A form of twenty buttons with a text each.
QByteArray form(const QByteArray &className, const QByteArray &property)
{
    QByteArray children;
    for (int i = 0; i < 20; ++i) {
        const QByteArray number = QByteArray::number(i);
        children += "<widget class=\"" + className + "\" name=\"button" + number
            + "\"><property name=\"geometry\"><rect><x>" + QByteArray::number(i % 5 * 200)
            + "</x><y>" + QByteArray::number(i / 5 * 120)
            + "</y><width>190</width><height>110</height></rect></property>"
              "<property name=\""
            + property + "\"><string>Button " + number + "</string></property></widget>";
    }
    return page(children);
}

// A form with one widget of each class, or with as many of another class.
QByteArray formOfEveryClass(const QByteArray &className = {})
{
    QByteArray children;
    for (const WidgetClass &known : widgetClasses())
        children += "<widget class=\"" + (className.isEmpty() ? QByteArray(known.name) : className)
            + "\" name=\"" + known.name + "\"/>";
    return page(children);
}

// Knows the classes without their plugin.
class Loader : public QUiLoader
{
public:
    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        for (const WidgetClass &known : widgetClasses()) {
            if (className == QLatin1String(known.name)) {
                QWidget *widget = known.make(parent);
                widget->setObjectName(name);
                return widget;
            }
        }
        return QUiLoader::createWidget(className, parent, name);
    }
};

StepMaker loading(const QByteArray &form)
{
    return [=]() -> Step {
        return [loader = std::make_shared<Loader>(), text = form]() mutable {
            QBuffer device(&text);
            device.open(QIODevice::ReadOnly);
            delete loader->load(&device);
        };
    };
}

// Loads as many bare widgets from a form, and makes one widget of each class without it.
StepMaker loadingAndMaking()
{
    return [load = loading(formOfEveryClass("QWidget"))]() -> Step {
        return [loadOne = load()] {
            loadOne();
            QWidget page;
            for (const WidgetClass &known : widgetClasses())
                known.make(&page);
        };
    };
}

} // namespace

void defineRowsOfForms(Rows &rows)
{
    rows.work("SpIconButton", "form of twenty", loading(form("SpIconButton", "displayText")),
              {loading(form("QWidget", "toolTip"))},
              {{"QPushButton", loading(form("QPushButton", "text")), 1.0}});
    rows.work("every class", "form", loading(formOfEveryClass()), {loadingAndMaking(), kFormLimit},
              {});
}
