// ZELSYPCommandSimpleEventListener: a ZELSYPSimpleEventListener that is a command of the host's command tree.
// class Save : public ZELSYPCommandSimpleEventListener { ... }; pSave->AddHandler(Save::Done(), pHandler, 0);
//
// All else is as ZELSYPSimpleEventListener.h says; class handlers and events are this class's own. UI thread only.
#ifndef ZELSYPCommandSimpleEventListener_H
#define ZELSYPCommandSimpleEventListener_H

#include "OPXCoreToolsExport.h"
#include "ZELCommand.h"

#include <memory>

class ZELSYPClassEventHandlersSupport;
class ZELSYPEvent;
class ZELSYPEventArgs;
class ZELSYPEventFactory;
class ZELSYPEventHandler;
class ZELSYPEventHandlersSupport;
class ZELString;

class OPXCORETOOLS_EXPORT ZELSYPCommandSimpleEventListener : public ZELCommand
{
  ZELDeclareClass;

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
  ZELSYPEventHandlersSupport* GetHandlersSupport() const noexcept;
  static ZELSYPClassEventHandlersSupport* GetClassHandlersSupport() noexcept;

protected:
  // A command without father and name, or with those.
  ZELSYPCommandSimpleEventListener();
  ZELSYPCommandSimpleEventListener(ZELCommand* i_pFather, const ZELString& i_name);
  ~ZELSYPCommandSimpleEventListener() override;

  // Where derived classes declare their events; it lives until the library is unloaded. Any thread.
  static ZELSYPEventFactory* GetEventFactory();

private:
  std::unique_ptr<ZELSYPEventHandlersSupport> _pEventHandlersSupport;
  // Deleted when the library is unloaded.
  static std::unique_ptr<ZELSYPClassEventHandlersSupport> _pClassEventHandlersSupport;
};

#endif
