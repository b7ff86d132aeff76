#include "ZELSYPEventHandlerInfo.h"

#include "ZELMetaClass.h"
#include "ZELSYPCheck.h"
#include "ZELSYPEventHandler.h"

ZELImplementClass(ZELSYPEventHandlerInfo, ZELBaseUnknown, OPXCoreTools);

ZELSYPEventHandlerInfo::ZELSYPEventHandlerInfo(ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents)
    : ZELSYPEventHandlerInfo(i_pHandler, i_handleConsumedEvents, nullptr)
{
}

ZELSYPEventHandlerInfo::ZELSYPEventHandlerInfo(ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents,
                                               const ZELMetaClass* i_pRegisteredClass)
    : _pHandler(i_pHandler), _handleConsumedEvents(i_handleConsumedEvents), _pRegisteredClass(i_pRegisteredClass)
{
  if (ZELSYP_CHECK_POINTER(i_pHandler))
    i_pHandler->AddRef();
}

ZELSYPEventHandlerInfo::~ZELSYPEventHandlerInfo()
{
  if (_pHandler)
    _pHandler->Release();
}
