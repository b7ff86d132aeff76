// ZELSYPEventHandlerInfo: one registration: a handler, and whether it runs for consumed events, too.
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
  ~ZELSYPEventHandlerInfo() override;

  // Without a reference.
  ZELSYPEventHandler* GetHandler() const noexcept { return _pHandler; }
  // Not 0: the handler runs for arguments already consumed, too.
  int GetHandleConsumedEvents() const noexcept { return _handleConsumedEvents; }

private:
  ZELSYPEventHandler* const _pHandler;
  const std::int32_t _handleConsumedEvents;
};

#endif
