// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_ACCESSIBLEWATCHER_H
#define PANELKIT_DETAIL_ACCESSIBLEWATCHER_H

#include "accessiblekind.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QWidget>

#ifndef QT_NO_ACCESSIBILITY

namespace panelkit
{

/**
 * Tells the clients of accessibility what has changed of a widget that they have asked for: it
 * looks at the widget whenever that says something or is painted, which is when a change shows.
 * A widget that no client has asked for has no watcher. What Qt reports by itself is left to it: of
 * every widget its focus, whether it is enabled and visible, and what the application calls it; the
 * text of a label, whether a button is checked, the value of a scroll bar.
 */
class AccessibleWatcher : public QObject
{
    Q_OBJECT

public:
    AccessibleWatcher(QWidget *widget, const AccessibleKind &kind);

    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void look();

private:
    struct Sight {
        QString caption;
        QString toolTip;
        QVariant value;
        bool isPressed = false;
        bool isChecked = false;
        bool isDisabled = false;
        bool hasFocusLook = false;
        int letters = 0;
        int letter = -1; // the current one
    };

    Sight seen() const;
    void hearSignals();
    void reportTexts(const Sight &before);
    void reportStates(const Sight &before);

    const QPointer<QWidget> m_widget;
    const AccessibleKind &m_kind;
    Sight m_sight;
};

} // namespace panelkit

#endif // QT_NO_ACCESSIBILITY

#endif // PANELKIT_DETAIL_ACCESSIBLEWATCHER_H
