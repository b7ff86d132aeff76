#include "ZELSYPEventHandlersSupport.h"

#include "ZELMetaClass.h"
#include "ZELSYPCheck.h"
#include "ZELSYPEvent.h"
#include "ZELSYPEventHandler.h"
#include "ZELSYPEventHandlerInfo.h"

#include <string>

namespace
{
void ReportOtherArguments(const ZELMetaClass& i_handlerArguments, const ZELMetaClass& i_eventArguments)
{
  const std::string message = std::string("The handler expects argument of type ") + i_handlerArguments.GetName() +
                              " but the event uses arguments of type " + i_eventArguments.GetName();
  CheckFailure__(message.c_str(), __FILE_NAME__, __LINE__, nullptr);
}

bool AcceptsArguments(ZELSYPEventHandler& i_handler, const ZELSYPEvent& i_event)
{
  ZELMetaClass* const pHandlerArgumentsClass = i_handler.GetArgumentsClass();
  if (!ZELSYP_CHECK_POINTER(pHandlerArgumentsClass))
    return false;
  ZELMetaClass* const pEventArgumentsClass = i_event.GetArgumentType();
  if (!ZELSYP_CHECK_POINTER(pEventArgumentsClass))
    return false;
  if (pEventArgumentsClass->IsAKindOf(pHandlerArgumentsClass))
    return true;
  ReportOtherArguments(*pHandlerArgumentsClass, *pEventArgumentsClass);
  return false;
}
} // namespace

ZELSYPEventHandlersSupport::ZELSYPEventHandlersSupport() = default;

ZELSYPEventHandlersSupport::ZELSYPEventHandlersSupport(const ZELMetaClass* i_pClass) : _pClass(i_pClass) {}

ZELSYPEventHandlersSupport::~ZELSYPEventHandlersSupport()
{
  _isGoing = true;
  Lists lists;
  Clear(lists);
}

int ZELSYPEventHandlersSupport::AddHandler(ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents)
{
  if (!ZELSYP_CHECK_POINTER(i_pEvent) || !ZELSYP_CHECK_POINTER(i_pHandler) || !AcceptsArguments(*i_pHandler, *i_pEvent))
    return 0;
  ZELSYPEventHandlerInfoList* const pList = FindOrAddList(i_pEvent);
  if (!ZELSYP_CHECK_POINTER(pList))
    return 0;
  pList->AddHandler(i_pHandler, i_handleConsumedEvents, _pClass);
  // Kept: a list that found no memory has reported it and stored nothing, and the answer is 1.
  return 1;
}

int ZELSYPEventHandlersSupport::RemoveHandler(ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler)
{
  if (!ZELSYP_CHECK_POINTER(i_pEvent) || !ZELSYP_CHECK_POINTER(i_pHandler))
    return 0;
  ZELSYPEventHandlerInfoList* const pList = _eventHandlers.Locate(i_pEvent);
  for (int index = 0; pList && index < pList->GetSize(); ++index)
  {
    ZELSYPEventHandlerInfo* const pInfo = pList->Get(index);
    if (!ZELSYP_CHECK_POINTER(pInfo))
      return 0;
    if (pInfo->GetHandler() == i_pHandler)
    {
      pList->Remove(index);
      return 1;
    }
  }
  return 0;
}

ZELSYPEventHandlerInfoList ZELSYPEventHandlersSupport::GetHandlersList(ZELSYPEvent* i_pEvent)
{
  ZELSYPEventHandlerInfoList removed;
  return ZELSYP_CHECK_POINTER(i_pEvent) ? TakeList(i_pEvent, removed) : ZELSYPEventHandlerInfoList();
}

int ZELSYPEventHandlersSupport::GetHandlersCount(ZELSYPEvent* i_pEvent) const
{
  const ZELSYPEventHandlerInfoList* const pList = ZELSYP_CHECK_POINTER(i_pEvent) ? _eventHandlers.Locate(i_pEvent) : nullptr;
  return pList ? pList->GetSize() : 0;
}

// What is forgotten goes last: a handler that dies may change or destroy either store.
void ZELSYPEventHandlersSupport::ReplaceHandlers(const ZELSYPEventHandlersSupport& i_support)
{
  if (this == &i_support || !ZELSYP_CHECK_TRUE(!_isGoing))
    return;
  Lists forgotten;
  Clear(forgotten);
  // Cannot fail: no handler dies before the lists that were cleared.
  ZELSYP_CHECK_TRUE(_eventHandlers.GetSize() == 0);
  CopyFrom(i_support);
  ZELSYP_CHECK_TRUE(_eventHandlers.GetSize() == i_support._eventHandlers.GetSize());
}

void ZELSYPEventHandlersSupport::CopyFrom(const ZELSYPEventHandlersSupport& i_support)
{
  for (ListsByEvent::Iterator it(i_support._eventHandlers); !it.IsDone(); it.Next())
  {
    ListsByEvent::Pair* const pEntry = it.CurrentItem();
    if (!ZELSYP_CHECK_POINTER(pEntry) || !ZELSYP_CHECK_REPORT(pEntry->_key, Check_Pointer_Failed__, "pEntry->key", __LINE__, nullptr))
      return;
    StoreList(pEntry->_key, pEntry->_value);
  }
}

ZELSYPEventHandlerInfoList* ZELSYPEventHandlersSupport::FindOrAddList(ZELSYPEvent* i_pEvent)
{
  if (ZELSYPEventHandlerInfoList* const pList = _eventHandlers.Locate(i_pEvent))
    return pList;
  if (_isGoing)
    return nullptr;
  StoreList(i_pEvent, ZELSYPEventHandlerInfoList());
  return _eventHandlers.Locate(i_pEvent);
}

void ZELSYPEventHandlersSupport::StoreList(ZELSYPEvent* i_pEvent, const ZELSYPEventHandlerInfoList& i_list)
{
  _pLastEvent = nullptr;
  if (_eventHandlers.Set(i_pEvent, i_list) != 1)
    return;
  i_pEvent->AddRef();
  ++i_pEvent->_storeCount;
}

void ZELSYPEventHandlersSupport::ReleaseEvent(ZELSYPEvent& io_event)
{
  --io_event._storeCount;
  io_event.Release();
}

// The lists are the caller's: a handler that dies with its list may call back, and finds nothing here any more.
void ZELSYPEventHandlersSupport::Clear(Lists& o_lists)
{
  for (ListsByEvent::Iterator it(_eventHandlers); !it.IsDone(); it.Next())
  {
    ListsByEvent::Pair* const pEntry = it.CurrentItem();
    // A walk whose map changed gets no further.
    if (!ZELSYP_CHECK_POINTER(pEntry))
      break;
    o_lists.Append(pEntry->_value);
    if (ZELSYP_CHECK_REPORT(pEntry->_key, Check_Pointer_Failed__, "pEntry->key", __LINE__, nullptr))
      ReleaseEvent(*pEntry->_key);
  }
  _eventHandlers.RemoveAll();
  _pLastEvent = nullptr;
  // Cannot fail: what a handler that dies with a list adds goes along.
  ZELSYP_CHECK_TRUE(_eventHandlers.GetSize() == 0);
}
