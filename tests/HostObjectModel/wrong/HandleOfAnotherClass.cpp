#include "ZELHandle.h"

class Shape : public ZELBaseUnknown
{
  ZELDeclareClass;
};

ZELHandle<Shape> AsShape(ZELBaseUnknown* i_pObject)
{
#ifdef OPX_WRONG
  ZELHandle<Shape> shape = i_pObject;
#else
  ZELHandle<Shape> shape(i_pObject);
#endif
  return shape;
}
