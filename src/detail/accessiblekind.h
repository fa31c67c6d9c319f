// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_ACCESSIBLEKIND_H
#define PANELKIT_DETAIL_ACCESSIBLEKIND_H

#include "accessible.h"

#include <QAccessible>
#include <QString>
#include <QVariant>

#ifndef QT_NO_ACCESSIBILITY

namespace panelkit
{

/// What a client of accessibility gets to see of a class. Names are those of properties.
struct AccessibleKind {
    /// Where a touch finds each value.
    enum Track { NoTrack, Horizontal, Vertical, Circular, Tape };
    enum Action { Press = 1, Toggle = 2, LongPress = 4, Pages = 8 };

    constexpr AccessibleKind(const char *name, QAccessible::Role wanted)
        : className(name), role(wanted)
    {
    }

    constexpr AccessibleKind named(const char *property, const char *secondLine = nullptr) const
    {
        AccessibleKind kind = *this;
        kind.caption = property;
        kind.caption2 = secondLine;
        return kind;
    }
    constexpr AccessibleKind identifiedBy(const char *property) const
    {
        AccessibleKind kind = *this;
        kind.id = property;
        return kind;
    }
    constexpr AccessibleKind can(int wanted, int ms = 0) const
    {
        AccessibleKind kind = *this;
        kind.actions = wanted;
        kind.longPress = ms;
        return kind;
    }
    constexpr AccessibleKind pressedBy(const char *property) const
    {
        AccessibleKind kind = *this;
        kind.pressed = property;
        return kind;
    }
    constexpr AccessibleKind checkedBy(const char *property) const
    {
        AccessibleKind kind = *this;
        kind.checked = property;
        kind.isCheckable = true;
        return kind;
    }
    constexpr AccessibleKind disabledBy(const char *property) const
    {
        AccessibleKind kind = *this;
        kind.disabled = property;
        return kind;
    }
    constexpr AccessibleKind valued(const char *property, const char *lowest, const char *highest,
                                    Track where = NoTrack) const
    {
        AccessibleKind kind = *this;
        kind.hasValue = true;
        kind.value = property;
        kind.minimum = lowest;
        kind.maximum = highest;
        kind.track = where;
        return kind;
    }
    constexpr AccessibleKind tells(AccessibleTeller who) const
    {
        AccessibleKind kind = *this;
        kind.teller = who;
        return kind;
    }

    const char *className;
    const char *caption = nullptr;
    const char *caption2 = nullptr;
    const char *id = nullptr;
    const char *pressed = nullptr;
    const char *checked = nullptr;
    const char *disabled = nullptr;
    const char *value = nullptr;
    const char *minimum = nullptr;
    const char *maximum = nullptr;
    QAccessible::Role role;
    int actions = 0;
    int longPress = 0; // ms
    Track track = NoTrack;
    AccessibleTeller teller = AccessibleTeller::None;
    bool isCheckable = false;
    bool hasValue = false;
};

/// A widget and its kind. While the widget is being destroyed it is none of its class any more, and
/// all answers are empty.
class AccessibleFacts
{
public:
    AccessibleFacts(QObject *object, const AccessibleKind &kind)
        : m_object(object), m_kind(kind) { }

    /// What stands on it.
    QString caption() const;
    /// What the application has set, else the caption, else the identifier.
    QString name() const;
    /// What the application has set, else the tool tip, else the object's name.
    QString description() const;
    bool isPressed() const;
    bool isChecked() const;
    bool isDisabled() const; ///< by the class's own flag
    bool hasFocusLook() const;
    int longPress() const; ///< ms; 0: there is none
    QVariant value() const;
    QVariant minimum() const;
    QVariant maximum() const;
    QVariant step() const;
    double told(AccessibleFact fact, int x = 0, int y = 0) const;

    bool isAlive() const;

private:
    QVariant property(const char *name) const;
    QString text(const char *name) const;
    bool isTold(AccessibleFact fact) const;

    QObject *const m_object;
    const AccessibleKind &m_kind;
};

} // namespace panelkit

#endif // QT_NO_ACCESSIBILITY

#endif // PANELKIT_DETAIL_ACCESSIBLEKIND_H
