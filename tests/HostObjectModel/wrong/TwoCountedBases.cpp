#include "ZELBaseUnknown.h"

class First : public ZELBaseUnknown
{
  ZELDeclareClass;
};
class Second : public ZELBaseUnknown
{
  ZELDeclareClass;
};
#ifdef OPX_WRONG
class Both : public First, public Second
#else
class Both : public First
#endif
{
  ZELDeclareClass;
};

ZELImplementClass(Both, First, Tests);
