// ZELSYPEventListening<Base>: what the listener bases add to the class that they derive from; they are its only three users.
// class OPXCORETOOLS_EXPORT ZELSYPSimpleEventListener : public ZELSYPEventListening<ZELBaseUnknown> { ... };
//
// A listener is the origin and the only node of what it dispatches. Beside handlers of its own there are those of its
// classes, which run first. It costs one pointer beyond its base until it gets a handler. UI thread only.
#ifndef ZELSYPEventListening_H
#define ZELSYPEventListening_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPEventHandlersSupport.h"

#include <memory>
#include <utility>

class ZELMetaClass;
class ZELSYPClassEventHandlersSupport;
class ZELSYPEvent;
class ZELSYPEventArgs;
class ZELSYPEventFactory;
class ZELSYPEventHandler;

template <class Base>
class OPXCORETOOLS_EXPORT ZELSYPEventListening : public Base
{
public:
  // Handlers of this listener alone: what ZELSYPEventHandlersSupport answers and reports, on a store that the first of
  // these calls makes, of either kind.
  int AddHandler(ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents);
  int RemoveHandler(ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler);
  // Handlers of all listeners of class i_pClass, this one or one that derives from it: what ZELSYPClassEventHandlersSupport
  // answers and reports.
  static int AddClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents);
  static int RemoveClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler);
  // Runs the class handlers and this listener's own, with this listener as origin: what ZELSYPEventPathBuilder::Dispatch
  // answers and reports. 0, and nothing runs, class handlers neither, while no handler was ever added to this listener or
  // removed from it.
  int Dispatch(ZELSYPEventArgs* i_pArgs);
  // The store of this listener's own handlers, null until the first one is added or removed, and the store of the class
  // handlers, null likewise; borrowed.
  ZELSYPEventHandlersSupport* GetHandlersSupport() const noexcept { return _pEventHandlersSupport.get(); }
  static ZELSYPClassEventHandlersSupport* GetClassHandlersSupport() noexcept;

protected:
  // Takes what a constructor of Base takes.
  template <class... Arguments>
  explicit ZELSYPEventListening(Arguments&&... i_arguments) : Base(std::forward<Arguments>(i_arguments)...)
  {
  }
  ~ZELSYPEventListening() override;

  // Where derived classes declare their events; it lives until the library is unloaded. Any thread.
  static ZELSYPEventFactory* GetEventFactory();

private:
  std::unique_ptr<ZELSYPEventHandlersSupport> _pEventHandlersSupport;
  // Deleted when the library is unloaded.
  static std::unique_ptr<ZELSYPClassEventHandlersSupport> _pClassEventHandlersSupport;
};

#endif
