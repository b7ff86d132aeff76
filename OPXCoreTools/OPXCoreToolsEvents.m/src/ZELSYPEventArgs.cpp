#include "ZELSYPEventArgs.h"

#include "ZELMetaClass.h"
#include "ZELSYPCheck.h"

ZELImplementClass(ZELSYPEventArgs, ZELBaseUnknown, OPXCoreTools);

void ZELSYPEventArgs::ReportMissingEvent()
{
  Check_Pointer_Failed__("i_pEvent", __FILE_NAME__, __LINE__, nullptr);
}

void ZELSYPEventArgs::SetOrigin(ZELBaseUnknown* i_pOrigin)
{
  if (!ZELSYP_CHECK_POINTER(i_pOrigin) || !ZELSYP_CHECK_TRUE_DETAILS(_pOrigin == NULL, "Origin has already been set"))
    return;
  _pOrigin = i_pOrigin;
  _pOrigin->AddRef();
}
