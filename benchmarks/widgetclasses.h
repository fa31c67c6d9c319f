// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_BENCHMARKS_WIDGETCLASSES_H
#define PANELKIT_BENCHMARKS_WIDGETCLASSES_H

#include <QSize>

#include <vector>

class QWidget;

using Maker = QWidget *(*)(QWidget *parent);

/// One of our widgets: what it is called, how large it begins, and how one is made.
struct WidgetClass {
    const char *name;
    const char *family;
    QSize size;
    Maker make;
};

/// All of them.
const std::vector<WidgetClass> &widgetClasses();

/// Makes one of Qt's.
template <class Widget> QWidget *make(QWidget *parent) { return new Widget(parent); }

#endif // PANELKIT_BENCHMARKS_WIDGETCLASSES_H
