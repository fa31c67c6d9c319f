#include "rows.h"
#include <sprollingtext.h>
void defineRows(Rows &, Tag<SpRollingText>) { }
