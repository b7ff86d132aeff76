// Classes that are not there before this library is loaded. One has the name, one the id of a class of the test program.
#include "ZELCommand.h"

namespace
{
class LateCommand : public ZELCommand
{
  ZELDeclareClass;
};
class Twin : public ZELCommand
{
  ZELDeclareClass;
};
class Usurper : public ZELBaseUnknown
{
  ZELDeclareInterface;
};
using Usurper_var = ZELHandle<Usurper>;
ZELImplementCreatableClass(LateCommand, ZELCommand, LateClasses);
ZELImplementCreatableClass(Twin, ZELCommand, LateClasses);
ZELImplementInterface(Usurper, ZELBaseUnknown, LateClasses, ZELClassId::FromText("24DD46D8-3B23-411E-8D07-05B93DD9E437"));
} // namespace

extern "C" __attribute__((visibility("default"))) void TouchLateClasses() {}
