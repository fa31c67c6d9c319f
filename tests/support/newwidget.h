// SPDX-License-Identifier: Apache-2.0
#ifndef NEWWIDGET_H
#define NEWWIDGET_H

#include <QPointer>
#include <QTest>
#include <QWidget>

/// A new widget of this class has a plain one's flags, policy, font, limits and attributes.
template <typename Widget> void checkIsAPlainWidget()
{
    QWidget parent;
    const Widget widget(&parent);
    const QWidget plain(&parent);
    QCOMPARE(widget.parentWidget(), &parent);
    QCOMPARE(widget.windowFlags(), plain.windowFlags());
    QCOMPARE(widget.sizePolicy(), plain.sizePolicy());
    QCOMPARE(widget.font(), plain.font());
    QCOMPARE(widget.minimumSize(), plain.minimumSize());
    QCOMPARE(widget.maximumSize(), plain.maximumSize());
    for (int i = 0; i < Qt::WA_AttributeCount; ++i) {
        const auto attribute = Qt::WidgetAttribute(i);
        QCOMPARE(widget.testAttribute(attribute), plain.testAttribute(attribute));
    }
}

/// GetInstance() makes a widget without a parent, which ReleaseInstance() deletes.
template <typename Widget> void checkInstancesComeAndGo()
{
    Widget *widget = Widget::GetInstance();
    QPointer<Widget> guard(widget);
    QVERIFY(guard);
    QVERIFY(!widget->parent());
    Widget::ReleaseInstance(widget);
    QVERIFY(!guard);
    Widget::ReleaseInstance(nullptr);
}

#endif // NEWWIDGET_H
