#include "ZELSYPCommandSimpleEventListener.h"

#include "EventListening.h"

ZELImplementClass(ZELSYPCommandSimpleEventListener, ZELCommand, OPXCoreTools);

std::unique_ptr<ZELSYPClassEventHandlersSupport> ZELSYPCommandSimpleEventListener::_pClassEventHandlersSupport;

ZELSYPCommandSimpleEventListener::ZELSYPCommandSimpleEventListener() = default;

ZELSYPCommandSimpleEventListener::ZELSYPCommandSimpleEventListener(ZELCommand* i_pFather, const ZELString& i_name)
    : ZELCommand(i_pFather, i_name)
{
}

ZELSYPCommandSimpleEventListener::~ZELSYPCommandSimpleEventListener() = default;

int ZELSYPCommandSimpleEventListener::AddHandler(ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents)
{
  return EventListening::Made(_pEventHandlersSupport).AddHandler(i_pEvent, i_pHandler, i_handleConsumedEvents);
}

int ZELSYPCommandSimpleEventListener::RemoveHandler(ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler)
{
  return EventListening::Made(_pEventHandlersSupport).RemoveHandler(i_pEvent, i_pHandler);
}

int ZELSYPCommandSimpleEventListener::AddClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler,
                                                      int i_handleConsumedEvents)
{
  return EventListening::Made(_pClassEventHandlersSupport).AddClassHandler(i_pClass, i_pEvent, i_pHandler, i_handleConsumedEvents);
}

int ZELSYPCommandSimpleEventListener::RemoveClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler)
{
  return EventListening::Made(_pClassEventHandlersSupport).RemoveClassHandler(i_pClass, i_pEvent, i_pHandler);
}

int ZELSYPCommandSimpleEventListener::Dispatch(ZELSYPEventArgs* i_pArgs)
{
  return EventListening::Dispatch(this, i_pArgs, _pEventHandlersSupport, _pClassEventHandlersSupport);
}

ZELSYPEventHandlersSupport* ZELSYPCommandSimpleEventListener::GetHandlersSupport() const noexcept
{
  return _pEventHandlersSupport.get();
}

ZELSYPClassEventHandlersSupport* ZELSYPCommandSimpleEventListener::GetClassHandlersSupport() noexcept
{
  return _pClassEventHandlersSupport.get();
}

ZELSYPEventFactory* ZELSYPCommandSimpleEventListener::GetEventFactory()
{
  static ZELSYPEventFactory s_factory;
  return &s_factory;
}
