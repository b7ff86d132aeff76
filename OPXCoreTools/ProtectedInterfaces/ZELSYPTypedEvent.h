// ZELSYPTypedEvent<Args>: an event whose arguments' class the compiler knows: a wrong one does not compile.
// static const ZELSYPTypedEvent<NodeArgs> opened(GetEventFactory(), "Opened", ZELSYPEvent::NoPropagation, MetaObject());
// opened.Subscribe(listener, [](NodeArgs* i_pArgs) { ... });     opened.Raise(listener, theNode);
//
// A value: it holds one reference on the event. It is of nothing (null) when its event is refused. UI thread.
#ifndef ZELSYPTypedEvent_H
#define ZELSYPTypedEvent_H

#include "ZELSYPEventFactory.h"
#include "ZELSYPEventPathBuilder.h"
#include "ZELSYPMakeMemberHandler.h"
#include "ZELSYPSubscribe.h"

template <class Args>
class ZELSYPTypedEvent
{
  static_assert(std::is_base_of_v<ZELSYPEventArgs, Args>, "an event's arguments are a ZELSYPEventArgs or derived from it");
  template <class Callable>
  static constexpr bool IS_HANDLER = std::is_convertible_v<Callable&&, ZELSYPEventHandler*>;

public:
  // Declares the event; reports and refuses what a factory's NewEvent does. A null factory: "i_pFactory".
  ZELSYPTypedEvent(ZELSYPEventFactory* i_pFactory, const char* i_name, ZELSYPEvent::Propagation i_propagation, ZELMetaClass* i_pOwnerClass)
      : _spEvent(ZELSYP_CHECK_POINTER(i_pFactory) ? i_pFactory->NewEvent(i_name, i_propagation, Args::MetaObject(), i_pOwnerClass)
                                                  : nullptr)
  {
  }
  // Takes an event that is declared with just these arguments. Null: "i_pEvent"; other arguments:
  // "i_pEvent->GetArgumentType() == Args::MetaObject()".
  explicit ZELSYPTypedEvent(ZELSYPEvent* i_pEvent) : _spEvent(HasTheseArguments(i_pEvent) ? i_pEvent : nullptr) {}

  // Without a reference; null when this is of nothing.
  ZELSYPEvent* Get() const noexcept { return _spEvent.Get(); }
  operator ZELSYPEvent*() const noexcept { return Get(); }

  // As ZELSYPSubscribe, for what the compiler can check: a callable that takes pointers to Args or to a base of Args,
  template <class Store, class Callable>
  ZELSYPSubscription Subscribe(Store& io_store, Callable&& i_callable, int i_handleConsumedEvents = 0) const
  {
    static_assert(!IS_HANDLER<Callable>, "what a ready handler takes is known at run time: ZELSYPSubscribe");
    return ZELSYPSubscribe<Args>(io_store, Get(), std::forward<Callable>(i_callable), i_handleConsumedEvents);
  }
  // or a method that does. The object is not owned: it ends the subscription before it goes.
  template <class Store, class Object, class Method, class = std::enable_if_t<std::is_member_function_pointer_v<Method>>>
  ZELSYPSubscription Subscribe(Store& io_store, Object* i_pObject, Method i_method, int i_handleConsumedEvents = 0) const
  {
    static_assert(std::is_base_of_v<typename ZELSYPMethodArguments<Method>::Type, Args>, "the method takes other arguments");
    return ZELSYPSubscribe(io_store, Get(), ZELSYPMakeMemberHandler(i_pObject, i_method), i_handleConsumedEvents);
  }
  // As ZELSYPSubscribeClass, for all listeners of a class.
  template <class Listener, class Callable>
  ZELSYPSubscription SubscribeClass(Callable&& i_callable, int i_handleConsumedEvents = 0) const
  {
    static_assert(!IS_HANDLER<Callable>, "what a ready handler takes is known at run time: ZELSYPSubscribeClass");
    return ZELSYPSubscribeClass<Listener, Args>(Get(), std::forward<Callable>(i_callable), i_handleConsumedEvents);
  }

  // Arguments of this event, made with what their constructor takes after the event.
  template <class... Payload>
  ZELHandle<Args> MakeArguments(Payload&&... i_payload) const
  {
    return ZELHandle<Args>::Adopt(new Args(Get(), std::forward<Payload>(i_payload)...));
  }
  // Dispatches arguments of this event (others: "i_pArgs->GetEvent() == Get()", and 0) from a listener. Null: "i_pArgs", 0.
  template <class Listener>
  int Dispatch(Listener& io_listener, Args* i_pArgs) const
  {
    return IsOfThisEvent(i_pArgs) ? io_listener.Dispatch(i_pArgs) : 0;
  }
  // The same from any node, along the route of a builder.
  int Dispatch(ZELSYPEventPathBuilder& io_builder, ZELBaseUnknown* i_pOrigin, Args* i_pArgs) const
  {
    return IsOfThisEvent(i_pArgs) ? io_builder.Dispatch(i_pOrigin, i_pArgs) : 0;
  }
  // Makes the arguments and dispatches them from a listener; answers what Dispatch does.
  template <class Listener, class... Payload>
  int Raise(Listener& io_listener, Payload&&... i_payload) const
  {
    return Dispatch(io_listener, MakeArguments(std::forward<Payload>(i_payload)...));
  }

private:
  static bool HasTheseArguments(const ZELSYPEvent* i_pEvent)
  {
    return ZELSYP_CHECK_POINTER(i_pEvent) && ZELSYP_CHECK_TRUE(i_pEvent->GetArgumentType() == Args::MetaObject());
  }
  bool IsOfThisEvent(const ZELSYPEventArgs* i_pArgs) const
  {
    return ZELSYP_CHECK_POINTER(i_pArgs) && ZELSYP_CHECK_TRUE(i_pArgs->GetEvent() == Get());
  }

  ZELHandle<ZELSYPEvent> _spEvent;
};

#endif
