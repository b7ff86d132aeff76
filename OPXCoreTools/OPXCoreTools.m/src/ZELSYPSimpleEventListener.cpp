#include "ZELSYPSimpleEventListener.h"

#include "EventListening.h"

ZELImplementClass(ZELSYPSimpleEventListener, ZELBaseUnknown, OPXCoreTools);

template class ZELSYPEventListening<ZELBaseUnknown>;

ZELSYPSimpleEventListener::ZELSYPSimpleEventListener() = default;

ZELSYPSimpleEventListener::~ZELSYPSimpleEventListener() = default;
