#include "ZELSysDynamicCast.h"

class Shape : public ZELBaseUnknown
{
#ifndef OPX_WRONG
  ZELDeclareClass;
#endif
};

bool IsShape(ZELBaseUnknown* i_pObject)
{
  return ZELSysDynamicCast<Shape>(i_pObject) != nullptr;
}
