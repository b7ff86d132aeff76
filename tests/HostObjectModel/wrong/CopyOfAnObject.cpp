#include "ZELBaseUnknown.h"

void Copy(const ZELBaseUnknown& i_object)
{
#ifdef OPX_WRONG
  ZELBaseUnknown copy(i_object);
#else
  const ZELBaseUnknown& copy(i_object);
#endif
  (void)copy.IsA();
}
