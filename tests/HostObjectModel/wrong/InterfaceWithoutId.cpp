#include "ZELBaseUnknown.h"

#ifdef OPX_WRONG
constexpr ZELIID IID_Shape = ZELClassId::FromText("A1FD0DB1-8269-4BEE-AF4C-9D67326E869");
#else
constexpr ZELIID IID_Shape = ZELClassId::FromText("A1FD0DB1-8269-4BEE-AF4C-9D67326E869D");
#endif
class Shape : public ZELBaseUnknown
{
  ZELDeclareInterface;
};
using Shape_var = ZELHandle<Shape>;

ZELImplementInterface(Shape, ZELBaseUnknown, Tests, IID_Shape);
