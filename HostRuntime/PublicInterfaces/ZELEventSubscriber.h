// ZELEventSubscriber: an object that calls back whoever subscribed to it.
// auto id = pDocument->Subscribe([](ZELEventSubscriber&, ZELBaseUnknown*) { Redraw(); }); ... pDocument->Unsubscribe(id);
//
// Callbacks may do anything in the middle of a notification: subscribe, unsubscribe, notify, destroy the object. One pointer
// beyond its base while nobody subscribed. One thread at a time.
#ifndef ZELEventSubscriber_H
#define ZELEventSubscriber_H

#include "ZELBaseUnknown.h"

#include <cstdint>
#include <functional>

class OPXHOSTRUNTIME_EXPORT ZELEventSubscriber : public ZELBaseUnknown
{
  ZELDeclareClass;

  // Is given the object that notifies, and what it notifies of (null when it says nothing).
  using Callback = std::function<void(ZELEventSubscriber& io_source, ZELBaseUnknown* i_pArgument)>;
  // Names a subscription; 0 is none.
  using Subscription = std::uint64_t;

  ZELEventSubscriber() noexcept = default;
  ~ZELEventSubscriber() override;

  // The callback is called from the next notification on, after those that were there before. 0, and nothing is kept, for
  // an empty callback, and once the object is being destroyed.
  Subscription Subscribe(Callback i_callback);
  // 1: the callback is not called any more, in a notification that is under way neither. 0: there is no such subscription.
  // The callback itself is destroyed when no notification is under way.
  int Unsubscribe(Subscription i_subscription);

  // Calls the callbacks in the order of their subscription. What one of them throws comes out of here, and the later ones are
  // not called. When one destroys this object, the later ones are not called; those that are running then, and what they
  // captured, outlive it until they return, all others go first.
  void Notify(ZELBaseUnknown* i_pArgument = nullptr);

private:
  struct Subscriptions;
  Subscriptions* _pSubscriptions = nullptr;
};

#endif
