#include "ZELBaseUnknown.h"

class Derived : public ZELBaseUnknown
{
  ZELDeclareClass;
};

// clang-format off
ZELImplementClass(Derived, ZELBaseUnknown, Tests)
#ifndef OPX_WRONG
;
#endif
// clang-format on
