#include "EventWorld.h"

ZELImplementClass(Door, ZELBaseUnknown, OPXCoreToolsTests);
ZELImplementClass(Gate, ZELBaseUnknown, OPXCoreToolsTests);
ZELImplementClass(DoorArgs, ZELSYPEventArgs, OPXCoreToolsTests);

int CountedHandler::s_living = 0;
