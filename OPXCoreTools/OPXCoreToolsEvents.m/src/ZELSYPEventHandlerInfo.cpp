#include "ZELSYPEventHandlerInfo.h"

#include "ZELMetaClass.h"
#include "ZELSYPCheck.h"
#include "ZELSYPEventHandler.h"

ZELImplementClass(ZELSYPEventHandlerInfo, ZELBaseUnknown, OPXCoreTools);

ZELSYPEventHandlerInfo::ZELSYPEventHandlerInfo(ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents)
    : _pHandler(i_pHandler), _handleConsumedEvents(i_handleConsumedEvents)
{
  if (ZELSYP_CHECK_POINTER(i_pHandler))
    i_pHandler->AddRef();
}

ZELSYPEventHandlerInfo::~ZELSYPEventHandlerInfo()
{
  if (_pHandler)
    _pHandler->Release();
}
