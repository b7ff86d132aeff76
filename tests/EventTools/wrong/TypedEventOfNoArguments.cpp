#include "../EventWorld.h"
#include "ZELSYPTypedEvent.h"

#ifdef OPX_WRONG
using Arguments = ZELBaseUnknown;
#else
using Arguments = NumberArgs;
#endif

ZELSYPTypedEvent<Arguments> Typed(ZELSYPEvent* i_pEvent)
{
  return ZELSYPTypedEvent<Arguments>(i_pEvent);
}
