// The members of ZELSYPEventListening, for the three files that instantiate it.
// template class ZELSYPEventListening<ZELBaseUnknown>;
#ifndef EventListening_H
#define EventListening_H

#include "ZELSYPClassEventHandlersSupport.h"
#include "ZELSYPEventFactory.h"
#include "ZELSYPEventListening.h"
#include "ZELSYPSingleEventPathBuilder.h"

template <class Base>
std::unique_ptr<ZELSYPClassEventHandlersSupport> ZELSYPEventListening<Base>::_pClassEventHandlersSupport;

namespace EventListening
{
// The store, made now if it was not there.
template <class Store>
Store& Made(std::unique_ptr<Store>& io_pStore)
{
  if (!io_pStore)
    io_pStore = std::make_unique<Store>();
  return *io_pStore;
}
} // namespace EventListening

template <class Base>
ZELSYPEventListening<Base>::~ZELSYPEventListening() = default;

template <class Base>
int ZELSYPEventListening<Base>::AddHandler(ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents)
{
  return EventListening::Made(_pEventHandlersSupport).AddHandler(i_pEvent, i_pHandler, i_handleConsumedEvents);
}

template <class Base>
int ZELSYPEventListening<Base>::RemoveHandler(ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler)
{
  return EventListening::Made(_pEventHandlersSupport).RemoveHandler(i_pEvent, i_pHandler);
}

template <class Base>
int ZELSYPEventListening<Base>::AddClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler,
                                                int i_handleConsumedEvents)
{
  return EventListening::Made(_pClassEventHandlersSupport).AddClassHandler(i_pClass, i_pEvent, i_pHandler, i_handleConsumedEvents);
}

template <class Base>
int ZELSYPEventListening<Base>::RemoveClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler)
{
  return EventListening::Made(_pClassEventHandlersSupport).RemoveClassHandler(i_pClass, i_pEvent, i_pHandler);
}

// Kept: a listener that never had a handler of its own dispatches nothing, to its class's handlers neither.
template <class Base>
int ZELSYPEventListening<Base>::Dispatch(ZELSYPEventArgs* i_pArgs)
{
  if (!_pEventHandlersSupport)
    return 0;
  return ZELSYPSingleEventPathBuilder(_pEventHandlersSupport.get(), _pClassEventHandlersSupport.get()).Dispatch(this, i_pArgs);
}

template <class Base>
ZELSYPClassEventHandlersSupport* ZELSYPEventListening<Base>::GetClassHandlersSupport() noexcept
{
  return _pClassEventHandlersSupport.get();
}

template <class Base>
ZELSYPEventFactory* ZELSYPEventListening<Base>::GetEventFactory()
{
  static ZELSYPEventFactory s_factory;
  return &s_factory;
}

#endif
