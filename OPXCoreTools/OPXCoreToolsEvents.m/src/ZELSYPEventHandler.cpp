#include "ZELSYPEventHandler.h"

#include "ZELMetaClass.h"

ZELImplementClass(ZELSYPEventHandler, ZELBaseUnknown, OPXCoreTools);

ZELSYPEventHandler::~ZELSYPEventHandler() = default;
