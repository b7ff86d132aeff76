#include "ZELSYPEventArgs.h"

#include "ZELMetaClass.h"
#include "ZELSYPCheck.h"

ZELImplementClass(ZELSYPEventArgs, ZELBaseUnknown, OPXCoreTools)

ZELSYPEventArgs::ZELSYPEventArgs(ZELSYPEvent* i_pEvent) : _pEvent(i_pEvent)
{
  if (ZELSYP_CHECK_POINTER(i_pEvent))
    i_pEvent->AddRef();
}

ZELSYPEventArgs::~ZELSYPEventArgs()
{
  if (_pOrigin)
    _pOrigin->Release();
  if (_pEvent)
    _pEvent->Release();
}

void ZELSYPEventArgs::SetOrigin(ZELBaseUnknown* i_pOrigin)
{
  if (!ZELSYP_CHECK_POINTER(i_pOrigin) || !ZELSYP_CHECK_TRUE_DETAILS(_pOrigin == NULL, "Origin has already been set"))
    return;
  _pOrigin = i_pOrigin;
  _pOrigin->AddRef();
}
