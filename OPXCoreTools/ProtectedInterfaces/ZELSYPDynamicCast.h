// SYPDynamicCast: an object as a kind of a class that is known by its record.
// if (SYPDynamicCast(Door::MetaObject(), pObject)) static_cast<Door*>(pObject)->Open();
#ifndef ZELSYPDynamicCast_H
#define ZELSYPDynamicCast_H

#include "OPXCoreToolsExport.h"

class ZELBaseUnknown;
class ZELMetaClass;

// The object, without a reference, when it is a kind of the class; else null, also when either is null. Any thread.
OPXCORETOOLS_EXPORT ZELBaseUnknown* SYPDynamicCast(const ZELMetaClass* i_pClass, ZELBaseUnknown* i_pObject);
// The same under the name that event code uses.
OPXCORETOOLS_EXPORT ZELBaseUnknown* SYPEventDynamicCast(const ZELMetaClass* i_pClass, ZELBaseUnknown* i_pObject);

#endif
