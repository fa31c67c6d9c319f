// SPDX-License-Identifier: Apache-2.0
#include "minuteclock.h"

#include <QTime>

namespace panelkit
{

int minuteClock()
{
    const QTime now = QTime::currentTime();
    return now.second() * 1000 + now.msec();
}

} // namespace panelkit
