#include "ZELSYPEventHandlerInfoList.h"

#include "ZELSYPCheck.h"
#include "ZELSYPEventHandler.h"
#include "ZELSYPEventHandlerInfo.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace
{
bool Stays(const ZELSYPEventHandlerInfo* i_pInfo)
{
  return i_pInfo && i_pInfo->GetHandler() && __builtin_expect(i_pInfo->GetHandler()->MustBeRemoved() == 0, true);
}

bool HasHandler(const ZELSYPEventHandlerInfo* pInfo)
{
  if (!ZELSYP_CHECK_POINTER(pInfo))
    return false;
  const ZELSYPEventHandler* const pHandler = pInfo->GetHandler();
  return ZELSYP_CHECK_POINTER(pHandler);
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
  const int last = asked.FindEndOfSnapshot(*this);
  if (__builtin_expect(last == 0, true))
    return asked;
  io_removed = PruneFrom(last, asked.begin()[std::abs(last) - 1], std::move(io_removed));
  return *this;
}

int ZELSYPEventHandlerInfoList::FindEndOfSnapshot(const ZELSYPEventHandlerInfoList& i_list) const
{
  const ZELSYPEventHandlerInfoListData* const pAsked = _pSharedData;
  ZELSYPEventHandlerInfo* const* const pBegin = begin();
  for (ZELSYPEventHandlerInfo* const* pEach = end(); pEach != pBegin; --pEach)
  {
    if (__builtin_expect(!Stays(pEach[-1]), false))
      return static_cast<int>(pEach - pBegin);
    if (__builtin_expect(i_list._pSharedData != pAsked, false))
      return -static_cast<int>(pEach - pBegin);
  }
  return 0;
}

ZELSYPEventHandlerInfoList ZELSYPEventHandlerInfoList::PruneFrom(int i_last, ZELSYPEventHandlerInfo* i_pAsked,
                                                                 ZELSYPEventHandlerInfoList i_removed)
{
  const bool mustGo = i_last > 0;
  if (mustGo && !HasHandler(i_pAsked))
    return i_removed;
  const int index = std::abs(i_last) - 1;
  if (mustGo)
    RemoveInto(i_removed, index, i_pAsked);
  AutoRemove(index, i_removed);
  return i_removed;
}

void ZELSYPEventHandlerInfoList::AutoRemove(int i_count, ZELSYPEventHandlerInfoList& io_removed)
{
  for (int index = i_count - 1; index >= 0 && _pSharedData; --index)
  {
    ZELSYPEventHandlerInfo* const pInfo = _pSharedData->_handlers[index];
    if (!HasHandler(pInfo))
      return;
    if (pInfo->GetHandler()->MustBeRemoved() != 0)
      RemoveInto(io_removed, index, pInfo);
  }
}

// Another registration stands there when the handler has taken itself out; it stays, as one does that there is no memory for
// to hold it until the walk is over.
void ZELSYPEventHandlerInfoList::RemoveInto(ZELSYPEventHandlerInfoList& io_removed, int i_index, ZELSYPEventHandlerInfo* i_pInfo)
{
  if (!HasInfoAt(i_index) || begin()[i_index] != i_pInfo)
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
