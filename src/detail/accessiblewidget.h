// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_ACCESSIBLEWIDGET_H
#define PANELKIT_DETAIL_ACCESSIBLEWIDGET_H

#include "accessiblewatcher.h"

#include <QAccessibleWidget>

#include <memory>
#include <optional>

#ifndef QT_NO_ACCESSIBILITY

namespace panelkit
{

/// The name of the action that holds a finger on a widget.
inline QString longPressAction() { return QStringLiteral("LongPress"); }

/**
 * A widget as a client of accessibility sees it. Its actions are touches. Once the widget is gone,
 * and while it goes, all functions answer with nothing; Qt then deletes the interface. Qt makes one
 * of each widget that is shown, with or without a client: nothing is watched before there is one.
 */
class AccessibleWidget : public QAccessibleWidget
{
public:
    AccessibleWidget(QWidget *widget, const AccessibleKind &kind);

    QWindow *window() const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *focusChild() const override;
    QRect rect() const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int index) const override;
    QString text(QAccessible::Text which) const override;
    QAccessible::State state() const override;
    QColor foregroundColor() const override;
    QColor backgroundColor() const override;
    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;

protected:
    const AccessibleKind &kind() const { return m_kind; }
    AccessibleFacts facts() const { return {object(), m_kind}; }
    /// As one of its own class; null while it is destroyed.
    QWidget *livingWidget() const;

private:
    bool canBePressed() const;
    void watch() const;

    const AccessibleKind &m_kind;
    mutable std::unique_ptr<AccessibleWatcher> m_watcher; // once a client has looked
};

/**
 * A widget with a value. A client sets it by a touch: at the place where that value is, or, where
 * the pixels are too few for every value, at the nearest.
 */
class AccessibleSlider : public AccessibleWidget, public QAccessibleValueInterface
{
public:
    using AccessibleWidget::AccessibleWidget;

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text which) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    double valueAt(const QPoint &pos) const;
    void touchNear(double wanted, int direction);
    std::optional<QPoint> placeNear(double wanted, int direction) const;
    void dragTapeTo(double wanted);
};

} // namespace panelkit

#endif // QT_NO_ACCESSIBILITY

#endif // PANELKIT_DETAIL_ACCESSIBLEWIDGET_H
