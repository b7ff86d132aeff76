// ZELSYPSubscriptionBag: subscriptions that end together, the newest first.
// class Panel { ... ZELSYPSubscriptionBag _subscriptions; }; _subscriptions += ZELSYPSubscribe(listener, pEvent, ...);
//
// As a member it stands best last: it ends before anything that its handlers could use. What ends may destroy the bag.
// Movable. UI thread.
#ifndef ZELSYPSubscriptionBag_H
#define ZELSYPSubscriptionBag_H

#include "ZELSYPSubscription.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <utility>
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
    std::swap(_pSubscriptions, ended._pSubscriptions);
    return *this;
  }
  ~ZELSYPSubscriptionBag() { EndAll(); }

  // Those that are no longer active are forgotten whenever the room is full: a bag that outlives its listeners does not
  // grow for ever. Without memory it keeps what it held.
  ZELSYPSubscriptionBag& operator+=(ZELSYPSubscription i_subscription)
  {
    if (!_pSubscriptions)
      _pSubscriptions = std::make_shared<List>();
    const List forgotten = MakeRoom(*_pSubscriptions);
    _pSubscriptions->push_back(std::move(i_subscription));
    return *this;
  }
  // The newest first. What is added meanwhile, by what ends here, ends too.
  void EndAll()
  {
    // Held, and the bag not looked at any more: what ends may own it.
    if (const std::shared_ptr<List> pSubscriptions = _pSubscriptions)
      while (!pSubscriptions->empty())
      {
        const ZELSYPSubscription ended = std::move(pSubscriptions->back());
        pSubscriptions->pop_back();
      }
  }
  // How many it holds.
  std::size_t GetSize() const noexcept { return _pSubscriptions ? _pSubscriptions->size() : 0; }

private:
  using List = std::vector<ZELSYPSubscription>;

  // Answers those that went out; they end when the list is whole again, for what ends may use it.
  static List MakeRoom(List& io_list)
  {
    if (io_list.size() < io_list.capacity())
      return {};
    auto end = io_list.begin();
    for (ZELSYPSubscription& each : io_list)
      if (each.IsActive())
        std::swap(*end++, each);
    List forgotten(std::make_move_iterator(end), std::make_move_iterator(io_list.end()));
    io_list.erase(end, io_list.end());
    io_list.reserve(2 * io_list.size() + 4);
    return forgotten;
  }

  std::shared_ptr<List> _pSubscriptions;
};

#endif
