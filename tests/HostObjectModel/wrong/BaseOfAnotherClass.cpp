#include "ZELBaseUnknown.h"

class Other : public ZELBaseUnknown
{
  ZELDeclareClass;
};
class Derived : public ZELBaseUnknown
{
  ZELDeclareClass;
};

ZELImplementClass(Other, ZELBaseUnknown, Tests);
#ifdef OPX_WRONG
ZELImplementClass(Derived, Other, Tests);
#else
ZELImplementClass(Derived, ZELBaseUnknown, Tests);
#endif
