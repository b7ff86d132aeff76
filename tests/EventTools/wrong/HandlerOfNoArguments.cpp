#include "../EventWorld.h"

auto MakeNodeHandler()
{
#ifdef OPX_WRONG
  return ZELSYPMakeHandler<ZELBaseUnknown>([](ZELBaseUnknown*) {});
#else
  return ZELSYPMakeHandler<ZELSYPEventArgs>([](ZELBaseUnknown*, ZELSYPEventArgs*) {});
#endif
}
