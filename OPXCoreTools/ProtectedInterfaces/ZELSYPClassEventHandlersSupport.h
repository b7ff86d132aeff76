// ZELSYPClassEventHandlersSupport: handlers that run for every instance of a class: for each class, a store of its own.
// ZELSYPClassEventHandlersSupport support; support.AddClassHandler(Button::MetaObject(), pEvent, pHandler, 0);
//
// Entries are for exact classes; whoever builds a route walks up the base classes. UI thread only.
#ifndef ZELSYPClassEventHandlersSupport_H
#define ZELSYPClassEventHandlersSupport_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPArray.h"
#include "ZELSYPHashMap.h"

class ZELMetaClass;
class ZELSYPEvent;
class ZELSYPEventHandler;
class ZELSYPEventHandlersSupport;

class OPXCORETOOLS_EXPORT ZELSYPClassEventHandlersSupport
{
public:
  ZELSYPClassEventHandlersSupport();
  ZELSYPClassEventHandlersSupport(const ZELSYPClassEventHandlersSupport&) = delete;
  ZELSYPClassEventHandlersSupport& operator=(const ZELSYPClassEventHandlersSupport&) = delete;
  // Destroys the stores of all classes.
  virtual ~ZELSYPClassEventHandlersSupport();

  // What ZELSYPEventHandlersSupport::AddHandler and RemoveHandler answer and report, on the class's store; the first
  // addition makes the store. Before that: no class ("i_pClass"), no event ("i_pEvent"), no handler ("i_pHandler"), an
  // entry without a store, or a class without one while all of them are being destroyed ("pSupport"): 0.
  int AddClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents);
  int RemoveClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler);
  // The store of this very class, borrowed, or null. No class: "i_pClass". An entry without a store: "pSupport".
  ZELSYPEventHandlersSupport* GetClassHandlersSupport(ZELMetaClass* i_pClass);

protected:
  typedef ZELSYPHashMap<ZELMetaClass*, ZELSYPEventHandlersSupport*> SupportsByClass;
  SupportsByClass _supports;

private:
  friend class ZELSYPSupportsEventPathBuilder;
  typedef ZELSYPArray<ZELSYPEventHandlersSupport*> Chain;

  // The stores of a class and its base classes, most derived class first: the one behind i_pBefore, which is null for the
  // first, or null behind the last. By store, not by position: a derived class may get its store in mid-walk.
  ZELSYPEventHandlersSupport* GetNextInChain(ZELMetaClass* i_pClass, const ZELSYPEventHandlersSupport* i_pBefore)
  {
    if ((i_pClass != _pLastClass || !_pLastChain) && !FindChain(i_pClass))
      return GetNextWithoutChain(i_pClass, i_pBefore);
    ZELSYPEventHandlersSupport* const* pEach = _pLastChain->begin();
    while (i_pBefore && pEach != _pLastChain->end() && *pEach++ != i_pBefore)
    {
    }
    return pEach != _pLastChain->end() ? *pEach : nullptr;
  }
  bool FindChain(ZELMetaClass* i_pClass);
  const Chain* MakeChain(ZELMetaClass* i_pClass);
  ZELSYPEventHandlersSupport* GetNextWithoutChain(ZELMetaClass* i_pClass, const ZELSYPEventHandlersSupport* i_pBefore);
  void ForgetChains();
  ZELSYPEventHandlersSupport* FindOrAddSupport(ZELMetaClass* i_pClass);
  void Clear();

  // What was found out about the chains of classes; forgotten when a class gets its store.
  ZELSYPHashMap<ZELMetaClass*, Chain> _chains;
  ZELMetaClass* _pLastClass = nullptr;
  const Chain* _pLastChain = nullptr;
  // A handler that dies with the stores can add none any more.
  bool _isGoing = false;
};

#endif
