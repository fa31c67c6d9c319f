// SPDX-License-Identifier: Apache-2.0
#include "accessible.h"

#include "accessiblerows.h"

#ifndef QT_NO_ACCESSIBILITY

#include "../marclist.h"
#include "../mradiomovepoint.h"
#include "../sptablelist.h"

namespace panelkit
{

namespace
{

TellAccessible tellers[int(AccessibleTeller::Count)];

// Qt asks for the name of each class that an object is of, first for that of its own.
QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    // moc takes the scale of a tuner for a label.
    const bool isScale =
        className == QLatin1String("QLabel") && dynamic_cast<ScaleBkg *>(object) != nullptr;
    const AccessibleKind *kind = accessibleKind(isScale ? QStringLiteral("ScaleBkg") : className);
    auto *widget = qobject_cast<QWidget *>(object);
    if (!kind || !widget)
        return nullptr;
    if (className == QLatin1String("SpTableList"))
        return new AccessibleTableList(widget, *kind);
    if (className == QLatin1String("MArcList"))
        return new AccessibleArcList(widget, *kind);
    if (kind->hasValue)
        return new AccessibleSlider(widget, *kind);
    return new AccessibleWidget(widget, *kind);
}

struct Installation {
    Installation() { QAccessible::installFactory(makeInterface); }
    ~Installation() { QAccessible::removeFactory(makeInterface); }
    Q_DISABLE_COPY(Installation)
};

} // namespace

void installAccessibility() { static const Installation installed; }

void installAccessibility(AccessibleTeller teller, TellAccessible tell)
{
    tellers[int(teller)] = tell;
    installAccessibility();
}

double toldAccessible(AccessibleTeller teller, const QWidget *widget, AccessibleFact fact,
                      const QPoint &at)
{
    return tellers[int(teller)](widget, fact, at);
}

} // namespace panelkit

#else

namespace panelkit
{

void installAccessibility() { }
void installAccessibility(AccessibleTeller, TellAccessible) { }

} // namespace panelkit

#endif // QT_NO_ACCESSIBILITY
