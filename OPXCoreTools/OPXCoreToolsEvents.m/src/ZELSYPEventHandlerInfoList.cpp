#include "ZELSYPEventHandlerInfoList.h"

#include "ZELSYPCheck.h"
#include "ZELSYPEventHandler.h"
#include "ZELSYPEventHandlerInfo.h"

#include <new>

namespace
{
bool Stays(const ZELSYPEventHandlerInfo* i_pInfo)
{
  return i_pInfo && i_pInfo->GetHandler() && i_pInfo->GetHandler()->MustBeRemoved() == 0;
}
} // namespace

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
  AddHandler(i_pHandler, i_handleConsumedEvents, nullptr);
}

void ZELSYPEventHandlerInfoList::AddHandler(ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents,
                                            const ZELMetaClass* i_pRegisteredClass)
{
  if (!ZELSYP_CHECK_POINTER(i_pHandler))
    return;
  auto* const pInfo = new ZELSYPEventHandlerInfo(i_pHandler, i_handleConsumedEvents, i_pRegisteredClass);
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
  ZELSYPEventHandlerInfoList removed;
  AutoRemove(GetSize(), removed);
}

ZELSYPEventHandlerInfoList ZELSYPEventHandlerInfoList::Prune(ZELSYPEventHandlerInfoList& io_removed)
{
  ZELSYPEventHandlerInfoList asked(*this);
  const int count = asked.CountToAsk(*this);
  if (__builtin_expect(count == 0, true))
    return asked;
  AutoRemove(count, io_removed);
  return *this;
}

int ZELSYPEventHandlerInfoList::CountToAsk(const ZELSYPEventHandlerInfoList& i_list) const
{
  const ZELSYPEventHandlerInfoListData* const pAsked = _pSharedData;
  ZELSYPEventHandlerInfo* const* const pBegin = begin();
  for (ZELSYPEventHandlerInfo* const* pEach = end(); pEach != pBegin; --pEach)
    if (__builtin_expect(!Stays(pEach[-1]) || i_list._pSharedData != pAsked, false))
      return static_cast<int>(pEach - pBegin);
  return 0;
}

void ZELSYPEventHandlerInfoList::AutoRemove(int i_count, ZELSYPEventHandlerInfoList& io_removed)
{
  for (int index = i_count - 1; index >= 0 && _pSharedData; --index)
  {
    ZELSYPEventHandlerInfo* const pInfo = _pSharedData->_handlers[index];
    if (!ZELSYP_CHECK_POINTER(pInfo))
      return;
    ZELSYPEventHandler* const pHandler = pInfo->GetHandler();
    if (!ZELSYP_CHECK_POINTER(pHandler))
      return;
    if (pHandler->MustBeRemoved() != 0)
      RemoveInto(io_removed, index, pInfo);
  }
}

// Without memory to hold it there, the registration stays.
void ZELSYPEventHandlerInfoList::RemoveInto(ZELSYPEventHandlerInfoList& io_removed, int i_index, ZELSYPEventHandlerInfo* i_pInfo)
{
  if (i_index >= GetSize() || begin()[i_index] != i_pInfo)
    return;
  const int held = io_removed.GetSize();
  io_removed.Add(i_pInfo);
  if (io_removed.GetSize() > held)
    Remove(i_index);
}

bool ZELSYPEventHandlerInfoList::HasInfoAt(int i_index) const
{
  return ZELSYP_CHECK_POINTER_DETAILS(_pSharedData, "List is empty!") &&
         ZELSYP_CHECK_TRUE_DETAILS(i_index >= 0 && i_index < _pSharedData->_handlers.GetLength(), "i_index is out of range");
}

// A clone that finds no memory has given up the reference on what is shared: the list keeps one more until there is a clone.
bool ZELSYPEventHandlerInfoList::UpdateDataForModification()
{
  ZELSYPEventHandlerInfoList before;
  if (_pSharedData && _pSharedData->_refcount > 1)
    before = *this;
  _pSharedData = _pSharedData ? static_cast<ZELSYPEventHandlerInfoListData*>(_pSharedData->CloneIfShared())
                              : new (std::nothrow) ZELSYPEventHandlerInfoListData;
  const bool isUpdated = _pSharedData;
  if (!isUpdated)
    std::swap(_pSharedData, before._pSharedData);
  return ZELSYP_CHECK_REPORT(isUpdated, Check_Pointer_Failed__, "_pSharedData", __LINE__, nullptr);
}
