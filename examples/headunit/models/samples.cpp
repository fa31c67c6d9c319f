// SPDX-License-Identifier: Apache-2.0
#include "samples.h"

#include <QDir>

// The linker leaves resources of a static library out unless they are asked for, which works
// outside of namespaces only.
static void initialiseSamples() { Q_INIT_RESOURCE(headunit_models_data); }

namespace headunit::samples
{

QString musicFolder() { return QStringLiteral(HEADUNIT_SOUNDS "/Music"); }

QString clickSound() { return QStringLiteral(HEADUNIT_SOUNDS "/click.wav"); }

QString stationsFile()
{
    initialiseSamples();
    return QStringLiteral(":/panelkit/data/stations.csv");
}

QString contactsFile()
{
    initialiseSamples();
    return QStringLiteral(":/panelkit/data/contacts.vcf");
}

} // namespace headunit::samples
