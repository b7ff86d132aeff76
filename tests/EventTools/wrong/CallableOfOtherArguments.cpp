#include "../EventWorld.h"

// A plain handler stands for plain arguments, which a callable for numbers does not take.
auto MakeNumberHandler()
{
#ifdef OPX_WRONG
  return ZELSYPMakeHandler([](NumberArgs*) {});
#else
  return ZELSYPMakeHandler<NumberArgs>([](NumberArgs*) {});
#endif
}
