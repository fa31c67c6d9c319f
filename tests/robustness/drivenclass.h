// SPDX-License-Identifier: Apache-2.0
#ifndef DRIVENCLASS_H
#define DRIVENCLASS_H

#include <QByteArrayList>

#include <functional>
#include <type_traits>
#include <vector>

class QObject;
class Values;

/// What a drive does with a class: each of its constructors and public functions, with values made
/// on the spot, and what holds at any time. Made from the written interface and the list of
/// classes.
struct DrivenClass {
    struct Promise {
        QByteArray text;
        std::function<bool(QObject *)> isKept;
    };

    QByteArray name;
    std::vector<std::function<QObject *(Values &)>> constructors;
    std::vector<std::function<void(QObject *, Values &)>> calls;
    std::vector<Promise> promises;
    QByteArrayList signalsInsideQt; ///< Qt goes on with the widget after them
    int timers = 1; ///< the most that run at once

    /// A function that is not public is none.
    template <typename Class, typename Call> void addCall(Call call)
    {
        if constexpr (std::is_invocable_v<Call, Class &, Values &>)
            calls.push_back([call](QObject *object, Values &values) {
                call(static_cast<Class &>(*object), values);
            });
    }
};

const std::vector<DrivenClass> &drivenClasses();

#endif // DRIVENCLASS_H
