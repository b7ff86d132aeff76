#include "../EventWorld.h"
#include "ZELSYPTypedEvent.h"

auto Subscribe(const ZELSYPTypedEvent<ZELSYPEventArgs>& i_opened, Listener& io_listener)
{
#ifdef OPX_WRONG
  return i_opened.Subscribe(io_listener, [](NumberArgs*) {});
#else
  return i_opened.Subscribe(io_listener, [](ZELSYPEventArgs*) {});
#endif
}
