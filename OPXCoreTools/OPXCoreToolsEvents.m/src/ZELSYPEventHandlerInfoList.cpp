#include "ZELSYPEventHandlerInfoList.h"

#include "ZELSYPCheck.h"
#include "ZELSYPEventHandler.h"
#include "ZELSYPEventHandlerInfo.h"

#include <new>

ZELSYPEventHandlerInfo* ZELSYPEventHandlerInfoList::Get(int i_index) const
{
  return HasInfoAt(i_index) ? _pSharedData->_handlers[i_index] : nullptr;
}

void ZELSYPEventHandlerInfoList::Add(ZELSYPEventHandlerInfo* i_pHandlerInfo)
{
  if (ZELSYP_CHECK_POINTER(i_pHandlerInfo) && UpdateDataForModification())
    _pSharedData->Append(i_pHandlerInfo);
}

void ZELSYPEventHandlerInfoList::AddHandler(ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents)
{
  if (!ZELSYP_CHECK_POINTER(i_pHandler))
    return;
  auto* const pInfo = new ZELSYPEventHandlerInfo(i_pHandler, i_handleConsumedEvents);
  Add(pInfo);
  pInfo->Release();
}

void ZELSYPEventHandlerInfoList::Remove(int i_index)
{
  if (!HasInfoAt(i_index) || !UpdateDataForModification())
    return;
  ZELSYPEventHandlerInfo* const pInfo = _pSharedData->_handlers.RemoveAt(i_index);
  // Last: the end of a handler may run code that changes this list.
  if (ZELSYP_CHECK_POINTER(pInfo))
    pInfo->Release();
}

void ZELSYPEventHandlerInfoList::AutoRemove()
{
  for (int index = GetSize() - 1; index >= 0; --index)
  {
    const ZELSYPEventHandlerInfo* const pInfo = _pSharedData->_handlers[index];
    if (!ZELSYP_CHECK_POINTER(pInfo))
      return;
    ZELSYPEventHandler* const pHandler = pInfo->GetHandler();
    if (!ZELSYP_CHECK_POINTER(pHandler))
      return;
    if (__builtin_expect(pHandler->MustBeRemoved() != 0, false))
      Remove(index);
  }
}

bool ZELSYPEventHandlerInfoList::HasInfoAt(int i_index) const
{
  return ZELSYP_CHECK_POINTER_DETAILS(_pSharedData, "List is empty!") &&
         ZELSYP_CHECK_TRUE_DETAILS(i_index >= 0 && i_index < _pSharedData->_handlers.GetLength(), "i_index is out of range");
}

bool ZELSYPEventHandlerInfoList::UpdateDataForModification()
{
  _pSharedData = _pSharedData ? static_cast<ZELSYPEventHandlerInfoListData*>(_pSharedData->CloneIfShared())
                              : new (std::nothrow) ZELSYPEventHandlerInfoListData;
  return ZELSYP_CHECK_POINTER(_pSharedData);
}
