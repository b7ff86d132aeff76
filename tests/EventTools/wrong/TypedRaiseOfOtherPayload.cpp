#include "../EventWorld.h"
#include "ZELSYPTypedEvent.h"

int Raise(const ZELSYPTypedEvent<NumberArgs>& i_scored, Listener& io_listener)
{
#ifdef OPX_WRONG
  return i_scored.Raise(io_listener, "twelve");
#else
  return i_scored.Raise(io_listener, 12);
#endif
}
