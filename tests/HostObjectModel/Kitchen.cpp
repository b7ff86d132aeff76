#include "Kitchen.h"

ZELImplementClass(Thing, ZELBaseUnknown, Kitchen);
ZELImplementCreatableClass(Cup, Thing, Kitchen);
ZELImplementClass(Mug, Cup, Kitchen);
ZELImplementInterface(Washable, ZELBaseUnknown, Kitchen, IID_Washable);
ZELImplementInterface(Breakable, ZELBaseUnknown, Kitchen, IID_Breakable);
ZELImplementClass(Plate, Washable, Kitchen);
