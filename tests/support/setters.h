// SPDX-License-Identifier: Apache-2.0
#ifndef SETTERS_H
#define SETTERS_H

#include "tablerows.h"
#include "widgettest.h"

#include <QFont>
#include <QMetaProperty>
#include <QPixmap>
#include <QVariant>
#include <QWidget>

#include <climits>
#include <functional>
#include <initializer_list>
#include <utility>

/// A property's value, as a number if it has a name: Qt 6 takes the two for different.
inline QVariant plainValue(const QObject &object, const char *name)
{
    const QVariant value = object.property(name);
    const QMetaObject *type = object.metaObject();
    return type->property(type->indexOfProperty(name)).isEnumType() ? value.toInt() : value;
}

/// Once shown, a widget that the row's "action" is done to is painted as often as "expected".
template <typename Widget> void checkRepaints(Widget &widget)
{
    QFETCH(std::function<void(Widget &)>, action);
    WidgetTest::show(*widget.window());
    QTEST(WidgetTest::paints(widget, [&] { action(widget); }), "expected");
}

/// Once shown, a widget keeps the row's "value" as the property that the row is named after; it is
/// painted as often as "repaintsOnChange" then, and as "repaintsOtherwise" when it gets it again.
inline void checkRepaintsOfProperty(QWidget &widget)
{
    const char *name = QTest::currentDataTag();
    QFETCH(QVariant, value);
    WidgetTest::show(widget);
    const auto set = [&] { widget.setProperty(name, value); };
    QTEST(WidgetTest::paints(widget, set), "repaintsOnChange");
    QCOMPARE(plainValue(widget, name), value);
    QTEST(WidgetTest::paints(widget, set), "repaintsOtherwise");
}

/// An object keeps the row's "value" as the property that the row is named after; before, it has
/// another one.
inline void checkKeepsProperty(QObject &&object)
{
    const char *name = QTest::currentDataTag();
    QFETCH(QVariant, value);
    QVERIFY(plainValue(object, name) != value);
    QVERIFY(object.setProperty(name, value));
    QCOMPARE(plainValue(object, name), value);
}

/// Rows for checkKeepsProperty() of numbers that differ from each other, the first one above this.
inline void addNumbers(const TableRows<QVariant> &row, int number,
                       std::initializer_list<const char *> names)
{
    for (const char *name : names)
        row(name, ++number);
}

/// Properties by their names.
using Properties = std::initializer_list<std::pair<const char *, QVariant>>;

/// An object's properties have these values.
inline void checkProperties(const QObject &object, const Properties &properties)
{
    for (const auto &property : properties)
        QCOMPARE(plainValue(object, property.first), property.second);
}

/// An object keeps all these values beside each other.
inline void checkKeepsProperties(QObject &object, const Properties &properties)
{
    for (const auto &property : properties)
        QVERIFY2(object.setProperty(property.first, property.second), property.first);
    checkProperties(object, properties);
}

/// An object keeps the very pictures that these properties are given.
inline void checkKeepsPictures(QObject &object, std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        QPixmap image(3, 4);
        image.fill(Qt::red);
        QVERIFY2(object.setProperty(name, image), name);
        QCOMPARE(object.property(name).value<QPixmap>().cacheKey(), image.cacheKey());
    }
}

/// None of these properties has a picture.
inline void checkHasNoPictures(const QObject &object, std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        const QVariant value = object.property(name);
        QVERIFY2(value.userType() == QMetaType::QPixmap, name);
        QVERIFY2(value.value<QPixmap>().isNull(), name);
    }
}

/// setFontSize() changes the pixel size and nothing else of the font, and takes no size below 1.
template <typename Widget> void checkSetFontSize(Widget &&widget)
{
    QFont expected = widget.font();
    for (int px : {1, 29}) {
        expected.setPixelSize(px);
        widget.setFontSize(px);
        QCOMPARE(widget.font(), expected);
    }
    for (int px : {0, -1, INT_MIN}) {
        widget.setFontSize(px);
        QCOMPARE(widget.font(), expected);
    }
}

#endif // SETTERS_H
