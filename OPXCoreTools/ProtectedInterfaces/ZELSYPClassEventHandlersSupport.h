// ZELSYPClassEventHandlersSupport: handlers that run for every instance of a class: for each class, a store of its own.
// ZELSYPClassEventHandlersSupport support; support.AddClassHandler(Button::MetaObject(), pEvent, pHandler, 0);
//
// Entries are for exact classes; whoever builds a route walks up the base classes. UI thread only.
#ifndef ZELSYPClassEventHandlersSupport_H
#define ZELSYPClassEventHandlersSupport_H

#include "OPXCoreToolsExport.h"
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
  // entry without a store ("pSupport"): 0.
  int AddClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents);
  int RemoveClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler);
  // The store of this very class, borrowed, or null. No class: "i_pClass". An entry without a store: "pSupport".
  ZELSYPEventHandlersSupport* GetClassHandlersSupport(ZELMetaClass* i_pClass);

private:
  typedef ZELSYPHashMap<ZELMetaClass*, ZELSYPEventHandlersSupport*> SupportsByClass;

  ZELSYPEventHandlersSupport* FindOrAddSupport(ZELMetaClass* i_pClass);
  void Clear();

  SupportsByClass _supports;
};

#endif
