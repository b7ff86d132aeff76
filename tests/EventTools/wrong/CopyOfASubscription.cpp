#include "../EventWorld.h"
#include "ZELSYPSubscription.h"

ZELSYPSubscription PassOn(ZELSYPSubscription& io_subscription)
{
#ifdef OPX_WRONG
  return io_subscription;
#else
  return std::move(io_subscription);
#endif
}
