// ZELSYPEventHandlerInfo: one registration: a handler, whether it runs for consumed events, too, and for which class.
// ZELSYPEventHandlerInfo* pInfo = new ZELSYPEventHandlerInfo(pHandler, 0); list.Add(pInfo); pInfo->Release();
//
// Counted, and never changed. One thread, that of the user interface.
#ifndef ZELSYPEventHandlerInfo_H
#define ZELSYPEventHandlerInfo_H

#include "OPXCoreToolsExport.h"
#include "ZELBaseUnknown.h"

#include <cstdint>

class ZELSYPEventHandler;

class OPXCORETOOLS_EXPORT ZELSYPEventHandlerInfo : public ZELBaseUnknown
{
  ZELDeclareClass;

public:
  // Holds a reference on the handler. Null: "i_pHandler", and there is no handler.
  ZELSYPEventHandlerInfo(ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents);
  // The same for the handlers of a class; null: of none.
  ZELSYPEventHandlerInfo(ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents, const ZELMetaClass* i_pRegisteredClass);
  ~ZELSYPEventHandlerInfo() override;

  // Without a reference.
  ZELSYPEventHandler* GetHandler() const noexcept { return _pHandler; }
  // Not 0: the handler runs for arguments already consumed, too.
  int GetHandleConsumedEvents() const noexcept { return _handleConsumedEvents; }
  // The class that the handler was registered for, in whatever store the registration stands by now; null: none, which is
  // what a handler is registered for on an object.
  const ZELMetaClass* GetRegisteredClass() const noexcept { return _pRegisteredClass; }

private:
  ZELSYPEventHandler* const _pHandler;
  const std::int32_t _handleConsumedEvents;
  const ZELMetaClass* const _pRegisteredClass;
};

#endif
