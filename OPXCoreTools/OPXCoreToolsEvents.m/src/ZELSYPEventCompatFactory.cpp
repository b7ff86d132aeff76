#include "ZELSYPEventCompatFactory.h"

#include "ZELMetaClass.h"
#include "ZELSYPCheck.h"
#include "ZELSYPEventArgs.h"
#include "ZELSYPEventFactory.h"
#include "ZELUnicodeString.h"

ZELSYPEvent* ZELSYPEventCompatFactory(const ZELUnicodeString& i_name, ZELMetaClass* i_pOwnerClass)
{
  if (!ZELSYP_CHECK_POINTER(i_pOwnerClass))
    return nullptr;
  // Never destroyed: its events are asked for until the process ends.
  static ZELSYPEventFactory* const pFactory = new ZELSYPEventFactory;
  return pFactory->NewEvent(i_name.GetNarrow(), ZELSYPEvent::NoPropagation, ZELSYPEventArgs::MetaObject(), i_pOwnerClass);
}
