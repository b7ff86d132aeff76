#include "ZELSYPSimpleEventListener.h"

#include "EventListening.h"

ZELImplementClass(ZELSYPSimpleEventListener, ZELBaseUnknown, OPXCoreTools);

std::unique_ptr<ZELSYPClassEventHandlersSupport> ZELSYPSimpleEventListener::_pClassEventHandlersSupport;

ZELSYPSimpleEventListener::ZELSYPSimpleEventListener() = default;

ZELSYPSimpleEventListener::~ZELSYPSimpleEventListener() = default;

int ZELSYPSimpleEventListener::AddHandler(ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents)
{
  return EventListening::Made(_pEventHandlersSupport).AddHandler(i_pEvent, i_pHandler, i_handleConsumedEvents);
}

int ZELSYPSimpleEventListener::RemoveHandler(ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler)
{
  return EventListening::Made(_pEventHandlersSupport).RemoveHandler(i_pEvent, i_pHandler);
}

int ZELSYPSimpleEventListener::AddClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler,
                                               int i_handleConsumedEvents)
{
  return EventListening::Made(_pClassEventHandlersSupport).AddClassHandler(i_pClass, i_pEvent, i_pHandler, i_handleConsumedEvents);
}

int ZELSYPSimpleEventListener::RemoveClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler)
{
  return EventListening::Made(_pClassEventHandlersSupport).RemoveClassHandler(i_pClass, i_pEvent, i_pHandler);
}

int ZELSYPSimpleEventListener::Dispatch(ZELSYPEventArgs* i_pArgs)
{
  return EventListening::Dispatch(this, i_pArgs, _pEventHandlersSupport, _pClassEventHandlersSupport);
}

ZELSYPEventHandlersSupport* ZELSYPSimpleEventListener::GetHandlersSupport() const noexcept
{
  return _pEventHandlersSupport.get();
}

ZELSYPClassEventHandlersSupport* ZELSYPSimpleEventListener::GetClassHandlersSupport() noexcept
{
  return _pClassEventHandlersSupport.get();
}

ZELSYPEventFactory* ZELSYPSimpleEventListener::GetEventFactory()
{
  static ZELSYPEventFactory s_factory;
  return &s_factory;
}
