// SPDX-License-Identifier: Apache-2.0
#ifndef DELETION_H
#define DELETION_H

#include "signallog.h"
#include "touch.h"

#include <QPointer>
#include <QTest>

#include <functional>
#include <initializer_list>

/// Rows for checkMayBeDeleted(): at each "signal" the button goes alone or, "inParent", with it.
inline void addDeletionsAt(std::initializer_list<const char *> signalNames)
{
    QTest::addColumn<QString>("signal");
    QTest::addColumn<bool>("inParent");
    for (const char *name : signalNames) {
        QTest::addRow("%s", name) << QString::fromLatin1(name) << false;
        QTest::addRow("%s with its parent", name) << QString::fromLatin1(name) << true;
    }
}

/// A button in a parent survives it that a slot deletes it, or its parent, at the row's "signal"
/// during a tap.
inline void checkMayBeDeleted(QPointer<QWidget> button)
{
    QFETCH(QString, signal);
    QFETCH(bool, inParent);
    QPointer<QWidget> parent(button->parentWidget());
    SignalLog log(button);
    log.onLine([&](const QString &line) {
        if (button && line.startsWith(signal))
            delete (inParent ? parent : button);
    });
    touch(button).tap(10, 10).hold(10);
    QVERIFY(!button);
    delete parent;
}

/// Widgets of this making survive it that a slot deletes them at any one of so many reports of a
/// touch.
template <typename Make>
void checkMayBeDeletedByAnyReport(const Make &make, int reports,
                                  const std::function<void(QWidget *)> &touching)
{
    for (int number = 0; number < reports; ++number) {
        QPointer<QWidget> widget(make().release());
        int count = 0;
        SignalLog log(widget);
        log.onLine([&](const QString &) {
            if (count++ == number)
                delete widget;
        });
        touching(widget);
        QVERIFY(!widget);
    }
}

#endif // DELETION_H
