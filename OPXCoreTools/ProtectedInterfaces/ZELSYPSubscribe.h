// ZELSYPSubscribe and ZELSYPSubscribeClass: registrations that end with the ZELSYPSubscription they give.
// _subscriptions += ZELSYPSubscribe<NodeArgs>(listener, pEvent, [this](NodeArgs* i_pArgs) { Show(i_pArgs); });
//
// Where a handler is taken, a callable (as ZELSYPMakeHandler takes it) is taken as well. Each subscription ends its own
// registration only, also when one handler is subscribed several times. Listener and subscription may go in either order,
// also in the middle of a dispatch.
// What cannot be registered reports as AddHandler does, a null handler "spHandler", and gives a subscription of nothing.
// UI thread.
#ifndef ZELSYPSubscribe_H
#define ZELSYPSubscribe_H

#include "ZELSYPClassEventHandlersSupport.h"
#include "ZELSYPEventHandlersSupport.h"
#include "ZELSYPMakeHandler.h"
#include "ZELSYPSubscription.h"

namespace ZELSYPSubscribing
{
inline ZELSYPEventHandlersSupport* SupportOf(ZELSYPEventHandlersSupport& io_support)
{
  return &io_support;
}
template <class Listener>
auto SupportOf(Listener& io_listener) -> decltype(io_listener.GetHandlersSupport())
{
  return io_listener.GetHandlersSupport();
}

// Ended subscriptions whose event is never raised are swept out when the registrations may have doubled: a store holds at
// most about as many of them as of others.
inline void SweepWhenDoubled(ZELSYPEventHandlersSupport* io_pSupport, ZELSYPEvent* i_pEvent)
{
  const int count = io_pSupport && i_pEvent ? io_pSupport->GetHandlersCount(i_pEvent) : 0;
  if (count >= 4 && (count & (count - 1)) == 0)
    io_pSupport->GetHandlersList(i_pEvent);
}

// Registers by i_addHandler(handler) and answers what ends the registration.
template <class Args, class HandlerOrCallable, class AddHandler>
ZELSYPSubscription Subscribe(ZELSYPEventHandlersSupport* io_pSupport, ZELSYPEvent* i_pEvent, HandlerOrCallable&& i_handler,
                             const AddHandler& i_addHandler)
{
  ZELHandle<ZELSYPEventHandler> spHandler = ZELSYPMakeHandler<Args>(std::forward<HandlerOrCallable>(i_handler));
  if (!ZELSYP_CHECK_POINTER(spHandler))
    return {};
  SweepWhenDoubled(io_pSupport, i_pEvent);
  const auto spDetachable = ZELHandle<ZELSYPDetachableHandler>::Adopt(new ZELSYPDetachableHandler(std::move(spHandler)));
  return i_addHandler(spDetachable.Get()) ? ZELSYPSubscription(*spDetachable) : ZELSYPSubscription();
}
} // namespace ZELSYPSubscribing

// Adds the handler to a listener, or to a ZELSYPEventHandlersSupport.
template <class Args = ZELSYPEventArgs, class Store, class HandlerOrCallable>
ZELSYPSubscription ZELSYPSubscribe(Store& io_store, ZELSYPEvent* i_pEvent, HandlerOrCallable&& i_handler, int i_handleConsumedEvents = 0)
{
  return ZELSYPSubscribing::Subscribe<Args>(ZELSYPSubscribing::SupportOf(io_store), i_pEvent, std::forward<HandlerOrCallable>(i_handler),
                                            [&](ZELSYPEventHandler* i_pHandler)
                                            { return io_store.AddHandler(i_pEvent, i_pHandler, i_handleConsumedEvents); });
}

// Adds the handler for all listeners of the class Listener, and of those derived from it:
// ZELSYPSubscribeClass<Panel>(Panel::OpenedEvent(), [](ZELSYPEventArgs*) { ... })
template <class Listener, class Args = ZELSYPEventArgs, class HandlerOrCallable>
ZELSYPSubscription ZELSYPSubscribeClass(ZELSYPEvent* i_pEvent, HandlerOrCallable&& i_handler, int i_handleConsumedEvents = 0)
{
  ZELSYPClassEventHandlersSupport* const pClassSupport = Listener::GetClassHandlersSupport();
  return ZELSYPSubscribing::Subscribe<Args>(
      pClassSupport ? pClassSupport->GetClassHandlersSupport(Listener::MetaObject()) : nullptr, i_pEvent,
      std::forward<HandlerOrCallable>(i_handler),
      [&](ZELSYPEventHandler* i_pHandler)
      { return Listener::AddClassHandler(Listener::MetaObject(), i_pEvent, i_pHandler, i_handleConsumedEvents); });
}
// Adds the handler for i_pClass to a class store of one's own.
template <class Args = ZELSYPEventArgs, class HandlerOrCallable>
ZELSYPSubscription ZELSYPSubscribeClass(ZELSYPClassEventHandlersSupport& io_support, ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent,
                                        HandlerOrCallable&& i_handler, int i_handleConsumedEvents = 0)
{
  return ZELSYPSubscribing::Subscribe<Args>(
      i_pClass ? io_support.GetClassHandlersSupport(i_pClass) : nullptr, i_pEvent, std::forward<HandlerOrCallable>(i_handler),
      [&](ZELSYPEventHandler* i_pHandler) { return io_support.AddClassHandler(i_pClass, i_pEvent, i_pHandler, i_handleConsumedEvents); });
}

#endif
