#include "../EventWorld.h"
#include "ZELSYPTypedEvent.h"

int Dispatch(const ZELSYPTypedEvent<NumberArgs>& i_scored, Listener& io_listener)
{
#ifdef OPX_WRONG
  ZELSYPEventArgs args(i_scored);
#else
  NumberArgs args(i_scored);
#endif
  return i_scored.Dispatch(io_listener, &args);
}
