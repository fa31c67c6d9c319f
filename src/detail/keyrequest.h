// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_KEYREQUEST_H
#define PANELKIT_DETAIL_KEYREQUEST_H

#include <QLatin1String>

class QKeyEvent;
class QWidget;

namespace panelkit
{

/// Asks the application to sound a click.
constexpr QLatin1String kBeepRequest("beep", 4);
/// Asks the widget itself to load the picture of its pressed look.
constexpr QLatin1String kPressIconRequest("pressicon", 9);
/// Asks the widget itself to load the picture for an application that is not ready.
constexpr QLatin1String kGrayIconRequest("grayicon", 8);

/// Posts a request to a widget: a press of the Meta key whose text names what is asked for. It
/// arrives after the current event, where an event filter of the application can see it.
void postKeyRequest(QWidget *receiver, QLatin1String request);

/// True if the event is this very request; false for a null event.
bool isKeyRequest(const QKeyEvent *event, QLatin1String request);

} // namespace panelkit

#endif // PANELKIT_DETAIL_KEYREQUEST_H
