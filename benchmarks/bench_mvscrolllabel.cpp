#include "rows.h"
#include <mvscrolllabel.h>
void defineRows(Rows &, Tag<MVScrollLabel>) { }
