#include "ZELSYPEventSubscriberEventListener.h"

#include "EventListening.h"

ZELImplementClass(ZELSYPEventSubscriberEventListener, ZELEventSubscriber, OPXCoreTools);

std::unique_ptr<ZELSYPClassEventHandlersSupport> ZELSYPEventSubscriberEventListener::_pClassEventHandlersSupport;

ZELSYPEventSubscriberEventListener::ZELSYPEventSubscriberEventListener() = default;

ZELSYPEventSubscriberEventListener::~ZELSYPEventSubscriberEventListener() = default;

int ZELSYPEventSubscriberEventListener::AddHandler(ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents)
{
  return EventListening::Made(_pEventHandlersSupport).AddHandler(i_pEvent, i_pHandler, i_handleConsumedEvents);
}

int ZELSYPEventSubscriberEventListener::RemoveHandler(ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler)
{
  return EventListening::Made(_pEventHandlersSupport).RemoveHandler(i_pEvent, i_pHandler);
}

int ZELSYPEventSubscriberEventListener::AddClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler,
                                                        int i_handleConsumedEvents)
{
  return EventListening::Made(_pClassEventHandlersSupport).AddClassHandler(i_pClass, i_pEvent, i_pHandler, i_handleConsumedEvents);
}

int ZELSYPEventSubscriberEventListener::RemoveClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler)
{
  return EventListening::Made(_pClassEventHandlersSupport).RemoveClassHandler(i_pClass, i_pEvent, i_pHandler);
}

int ZELSYPEventSubscriberEventListener::Dispatch(ZELSYPEventArgs* i_pArgs)
{
  return EventListening::Dispatch(this, i_pArgs, _pEventHandlersSupport, _pClassEventHandlersSupport);
}

ZELSYPEventHandlersSupport* ZELSYPEventSubscriberEventListener::GetHandlersSupport() const noexcept
{
  return _pEventHandlersSupport.get();
}

ZELSYPClassEventHandlersSupport* ZELSYPEventSubscriberEventListener::GetClassHandlersSupport() noexcept
{
  return _pClassEventHandlersSupport.get();
}

ZELSYPEventFactory* ZELSYPEventSubscriberEventListener::GetEventFactory()
{
  static ZELSYPEventFactory s_factory;
  return &s_factory;
}
