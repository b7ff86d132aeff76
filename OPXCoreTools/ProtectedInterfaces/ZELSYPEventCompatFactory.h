// ZELSYPEventCompatFactory: declares an event that stays at its origin and takes plain ZELSYPEventArgs.
// static ZELSYPEvent* const pClosed = ZELSYPEventCompatFactory("Closed", Door::MetaObject());
#ifndef ZELSYPEventCompatFactory_H
#define ZELSYPEventCompatFactory_H

#include "OPXCoreToolsExport.h"

class ZELMetaClass;
class ZELSYPEvent;
class ZELUnicodeString;

// The new event; it lives to the end of the process and is not to be released. Null after a report: "i_pOwnerClass" for a
// null class, else what ZELSYPEventFactory::NewEvent reports. All events made here share one factory. One thread, that of
// the user interface.
OPXCORETOOLS_EXPORT ZELSYPEvent* ZELSYPEventCompatFactory(const ZELUnicodeString& i_name, ZELMetaClass* i_pOwnerClass);

#endif
