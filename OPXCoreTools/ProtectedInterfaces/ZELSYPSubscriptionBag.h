// ZELSYPSubscriptionBag: subscriptions that end together, the newest first.
// class Panel { ... ZELSYPSubscriptionBag _subscriptions; }; _subscriptions += ZELSYPSubscribe(listener, pEvent, ...);
//
// As a member it stands best last: it ends before anything that its handlers could use. Movable. UI thread.
#ifndef ZELSYPSubscriptionBag_H
#define ZELSYPSubscriptionBag_H

#include "ZELSYPSubscription.h"

#include <cstddef>
#include <vector>

class ZELSYPSubscriptionBag
{
public:
  ZELSYPSubscriptionBag() = default;
  ZELSYPSubscriptionBag(ZELSYPSubscriptionBag&&) noexcept = default;
  // Ends what it held.
  ZELSYPSubscriptionBag& operator=(ZELSYPSubscriptionBag&& io_other) noexcept
  {
    ZELSYPSubscriptionBag ended(std::move(io_other));
    std::swap(_subscriptions, ended._subscriptions);
    return *this;
  }
  ~ZELSYPSubscriptionBag() { EndAll(); }

  // Those that are no longer active are forgotten whenever the room is full: a bag that outlives its listeners does not
  // grow for ever.
  ZELSYPSubscriptionBag& operator+=(ZELSYPSubscription i_subscription)
  {
    if (_subscriptions.size() == _subscriptions.capacity())
      ForgetInactive();
    _subscriptions.push_back(std::move(i_subscription));
    return *this;
  }
  // What is added meanwhile, by what ends here, ends too.
  void EndAll()
  {
    while (!_subscriptions.empty())
    {
      ZELSYPSubscription ended = std::move(_subscriptions.back());
      _subscriptions.pop_back();
    }
  }
  // How many it holds.
  std::size_t GetSize() const noexcept { return _subscriptions.size(); }

private:
  void ForgetInactive()
  {
    std::vector<ZELSYPSubscription> kept;
    for (ZELSYPSubscription& each : _subscriptions)
      if (each.IsActive())
        kept.push_back(std::move(each));
    kept.reserve(2 * kept.size() + 4);
    _subscriptions.swap(kept);
  }

  std::vector<ZELSYPSubscription> _subscriptions;
};

#endif
