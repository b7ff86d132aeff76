#include "../EventWorld.h"
#include "ZELSYPTypedEvent.h"

auto Subscribe(const ZELSYPTypedEvent<NumberArgs>& i_scored, Listener& io_listener, const ZELHandle<ZELSYPEventHandler>& i_spHandler)
{
#ifdef OPX_WRONG
  return i_scored.Subscribe(io_listener, i_spHandler);
#else
  return ZELSYPSubscribe(io_listener, i_scored, i_spHandler);
#endif
}
