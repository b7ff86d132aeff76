// ZELSYPEventHandlersSupport: the handlers of one object (or of one class): for each event, its list of registrations.
// ZELSYPEventHandlersSupport support; support.AddHandler(pEvent, pHandler, 0); support.RemoveHandler(pEvent, pHandler);
//
// It holds one reference on every event that ever had a handler here, until it is cleared. UI thread only.
#ifndef ZELSYPEventHandlersSupport_H
#define ZELSYPEventHandlersSupport_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPArray.h"
#include "ZELSYPEventHandlerInfoList.h"
#include "ZELSYPHashMap.h"

class ZELMetaClass;
class ZELSYPEvent;
class ZELSYPEventHandler;

class OPXCORETOOLS_EXPORT ZELSYPEventHandlersSupport
{
public:
  ZELSYPEventHandlersSupport();
  ZELSYPEventHandlersSupport(const ZELSYPEventHandlersSupport&) = delete;
  ZELSYPEventHandlersSupport& operator=(const ZELSYPEventHandlersSupport&) = delete;
  // Releases the events and, through the lists, the handlers.
  virtual ~ZELSYPEventHandlersSupport();

  // 1: the handler stands last in the event's list, and is held. Registered twice, it runs twice.
  // 0, and nothing is stored: no event ("i_pEvent"), no handler ("i_pHandler"), a handler without an arguments class
  // ("pHandlerArgumentsClass"), an event without an argument type ("pEventArgumentsClass"), or a handler whose arguments
  // class the event's argument type is not a kind of ("The handler expects argument of type ..."); no memory for the
  // event's first list, or a store that is being destroyed ("pList").
  // 1, and nothing is stored: the event's list finds no memory ("_pSharedData" or "plNewArray").
  // i_handleConsumedEvents other than 0: the handler also runs once the arguments are consumed.
  int AddHandler(ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents);
  // 1: the first registration of this very handler is taken out. 0: there is none; no event ("i_pEvent"); no handler
  // ("i_pHandler"); an entry without content on the way ("pInfo").
  int RemoveHandler(ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler);
  // The registrations for the event as they are now; what is registered or removed later does not reach the answer.
  // Handlers that say MustBeRemoved are dropped for good first. No event: "i_pEvent", and an empty list.
  ZELSYPEventHandlerInfoList GetHandlersList(ZELSYPEvent* i_pEvent);
  // How many registrations stand for the event, those of handlers that must be removed included. No event: "i_pEvent", and 0.
  int GetHandlersCount(ZELSYPEvent* i_pEvent) const;
  // Forgets all registrations and takes over those of i_support, which both then share until one of them changes.
  // Replacing with itself does nothing. In a store that is being destroyed: "!_isGoing", and nothing happens.
  void ReplaceHandlers(const ZELSYPEventHandlersSupport& i_support);

protected:
  typedef ZELSYPHashMap<ZELSYPEvent*, ZELSYPEventHandlerInfoList> ListsByEvent;
  ListsByEvent _eventHandlers;

private:
  friend class ZELSYPSupportsEventPathBuilder;
  friend class ZELSYPClassEventHandlersSupport;
  typedef ZELSYPArray<ZELSYPEventHandlerInfoList> Lists;

  // The store of a class.
  explicit ZELSYPEventHandlersSupport(const ZELMetaClass* i_pClass);
  ZELSYPEventHandlerInfoList* FindOrAddList(ZELSYPEvent* i_pEvent);
  void StoreList(ZELSYPEvent* i_pEvent, const ZELSYPEventHandlerInfoList& i_list);
  static void ReleaseEvent(ZELSYPEvent& io_event);
  // GetHandlersList; what is pruned lives as long as io_removed.
  ZELSYPEventHandlerInfoList TakeList(ZELSYPEvent* i_pEvent, ZELSYPEventHandlerInfoList& io_removed)
  {
    ZELSYPEventHandlerInfoList* const pList = FindList(i_pEvent);
    return pList ? pList->Prune(io_removed) : ZELSYPEventHandlerInfoList();
  }
  // Most often the event is the one that was asked for last.
  ZELSYPEventHandlerInfoList* FindList(ZELSYPEvent* i_pEvent)
  {
    if (__builtin_expect(i_pEvent != _pLastEvent, false))
    {
      _pLastList = _eventHandlers.Locate(i_pEvent);
      _pLastEvent = i_pEvent;
    }
    return _pLastList;
  }
  void CopyFrom(const ZELSYPEventHandlersSupport& i_support);
  void Clear(Lists& o_lists);

  ZELSYPEvent* _pLastEvent = nullptr;
  ZELSYPEventHandlerInfoList* _pLastList = nullptr;
  // What the registrations made here are for; null: no class.
  const ZELMetaClass* const _pClass = nullptr;
  // A handler that dies with the store can add none any more.
  bool _isGoing = false;
};

#endif
