#include "ZELSYPDynamicCast.h"

#include "ZELSysDynamicCast.h"

ZELBaseUnknown* SYPDynamicCast(const ZELMetaClass* i_pClass, ZELBaseUnknown* i_pObject)
{
  return ZELSysDynamicCast(i_pClass, i_pObject);
}

ZELBaseUnknown* SYPEventDynamicCast(const ZELMetaClass* i_pClass, ZELBaseUnknown* i_pObject)
{
  return SYPDynamicCast(i_pClass, i_pObject);
}
