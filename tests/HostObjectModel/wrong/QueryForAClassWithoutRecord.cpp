#include "ZELHandle.h"

class Shape : public ZELBaseUnknown
{
#ifndef OPX_WRONG
  ZELDeclareClass;
#endif
};

bool IsShape(ZELBaseUnknown* i_pObject)
{
  return ZELHandle<Shape>(i_pObject).Get() != nullptr;
}
