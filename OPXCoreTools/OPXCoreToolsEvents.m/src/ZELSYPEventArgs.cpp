#include "ZELSYPEventArgs.h"

#include "ZELMetaClass.h"
#include "ZELSYPCheck.h"

ZELImplementClass(ZELSYPEventArgs, ZELBaseUnknown, OPXCoreTools)

void ZELSYPEventArgs::SetOrigin(ZELBaseUnknown* i_pOrigin)
{
  if (!ZELSYP_CHECK_POINTER(i_pOrigin) || !ZELSYP_CHECK_TRUE_DETAILS(_pOrigin == NULL, "Origin has already been set"))
    return;
  _pOrigin = i_pOrigin;
  _pOrigin->AddRef();
}
