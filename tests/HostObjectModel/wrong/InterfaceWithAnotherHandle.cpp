#include "ZELBaseUnknown.h"

class Shape : public ZELBaseUnknown
{
  ZELDeclareInterface;
};
#ifdef OPX_WRONG
using Shape_var = ZELHandle<ZELBaseUnknown>;
#else
using Shape_var = ZELHandle<Shape>;
#endif

ZELImplementInterface(Shape, ZELBaseUnknown, Tests, ZELClassId::FromText("A1FD0DB1-8269-4BEE-AF4C-9D67326E869D"));
