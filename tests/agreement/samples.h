// SPDX-License-Identifier: Apache-2.0
#ifndef SAMPLES_H
#define SAMPLES_H

#include <QColor>
#include <QMetaProperty>
#include <QSize>
#include <QString>
#include <QVector>

#include <functional>
#include <memory>

class QWidget;

/// How to make a widget of one class that shows something: with Designer's initial properties,
/// pictures wherever it takes one, and content where it has any.
struct Sample {
    const char *className;
    std::function<QWidget *(QWidget *parent)> create;
    QSize size; // px, in Designer
    const char *initial; // lines of "property=value"
};

/// One for each widget class, in the order of the class list.
QVector<Sample> samples();

/// A new widget as the sample says, of this size and laid out, but not shown.
std::unique_ptr<QWidget> made(const Sample &sample, const QSize &size);

/// The properties of the class itself that are numbers, by the order of the class.
QVector<QMetaProperty> numberProperties(const QWidget &widget);

/// Whether the widget has a picture of a knob, needle or pointer.
bool takesMark(const QWidget &widget);

/// Every picture of a knob, needle or pointer is filled with it, and nothing else has it.
constexpr QColor kMarkColor{255, 0, 255};

#endif // SAMPLES_H
