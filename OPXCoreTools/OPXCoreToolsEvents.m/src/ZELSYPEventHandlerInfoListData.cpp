#include "ZELSYPEventHandlerInfoListData.h"

#include "ZELSYPCheck.h"
#include "ZELSYPEventHandlerInfo.h"

#include <new>

namespace
{
bool IsInfo(const ZELSYPEventHandlerInfo* i_pInfo)
{
  if (!i_pInfo)
    CheckFailure__("NULL handler info?", __FILE_NAME__, __LINE__, nullptr);
  return i_pInfo;
}
} // namespace

ZELSYPEventHandlerInfoListData::~ZELSYPEventHandlerInfoListData()
{
  for (ZELSYPEventHandlerInfo* const pInfo : _handlers)
    if (IsInfo(pInfo))
      pInfo->Release();
}

ZELSYPEventHandlerInfoListData* ZELSYPEventHandlerInfoListData::Clone()
{
  auto* const pClone = new (std::nothrow) ZELSYPEventHandlerInfoListData;
  if (!pClone)
    return nullptr;
  pClone->_handlers.SetCapacity(_handlers.GetCapacity());
  for (ZELSYPEventHandlerInfo* const pInfo : _handlers)
    if (IsInfo(pInfo) && !pClone->Append(pInfo))
    {
      pClone->Detach();
      return nullptr;
    }
  return pClone;
}

bool ZELSYPEventHandlerInfoListData::Append(ZELSYPEventHandlerInfo* i_pInfo)
{
  if (!_handlers.Append(i_pInfo))
    return false;
  i_pInfo->AddRef();
  return true;
}
