#include "ZELBaseUnknown.h"

class Plain : public ZELBaseUnknown
{
};
class Derived : public Plain
{
  ZELDeclareClass;
};

#ifdef OPX_WRONG
ZELImplementClass(Derived, Plain, Tests);
#else
ZELImplementClass(Derived, ZELBaseUnknown, Tests);
#endif
