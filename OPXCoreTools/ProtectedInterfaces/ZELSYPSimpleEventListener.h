// ZELSYPSimpleEventListener: the base of an object that raises routed events and has handlers for them.
// class Door : public ZELSYPSimpleEventListener { ... }; pDoor->AddHandler(Door::Opened(), pHandler, 0); pDoor->Dispatch(&args);
//
// Its operations are those of ZELSYPEventListening. UI thread only.
#ifndef ZELSYPSimpleEventListener_H
#define ZELSYPSimpleEventListener_H

#include "OPXCoreToolsExport.h"
#include "ZELBaseUnknown.h"
#include "ZELSYPEventListening.h"

extern template class ZELSYPEventListening<ZELBaseUnknown>;

class OPXCORETOOLS_EXPORT ZELSYPSimpleEventListener : public ZELSYPEventListening<ZELBaseUnknown>
{
  ZELDeclareClass;

protected:
  ZELSYPSimpleEventListener();
  ~ZELSYPSimpleEventListener() override;
};

#endif
