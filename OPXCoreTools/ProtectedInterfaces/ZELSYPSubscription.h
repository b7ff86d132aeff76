// ZELSYPSubscription: one registration of a handler, which ends with it.
// ZELSYPSubscription subscription = ZELSYPSubscribe(listener, pEvent, [](ZELSYPEventArgs*) { ... });
//
// It knows its handler, never the listener or the store: either may go first, also in the middle of a dispatch. Once it
// has ended nothing of it runs any more, in a dispatch that has begun neither, and the callable is gone (when it is
// running, as soon as it returns). Its entry leaves the store when the store is next looked at for this event.
// Movable. UI thread.
#ifndef ZELSYPSubscription_H
#define ZELSYPSubscription_H

#include "ZELSYPDetachableHandler.h"

class [[nodiscard]] ZELSYPSubscription
{
public:
  // Of nothing.
  ZELSYPSubscription() = default;
  // Made by ZELSYPSubscribe and ZELSYPSubscribeClass.
  explicit ZELSYPSubscription(const ZELSYPDetachableHandler& i_handler) : _slot(i_handler.GetSlot()) {}
  ZELSYPSubscription(ZELSYPSubscription&&) noexcept = default;
  // Ends what it stood for.
  ZELSYPSubscription& operator=(ZELSYPSubscription&& io_other) noexcept
  {
    ZELSYPSubscription ended(std::move(io_other));
    std::swap(_slot, ended._slot);
    return *this;
  }
  ~ZELSYPSubscription() { End(); }

  // Nothing runs from here on. A second time does nothing.
  void End()
  {
    if (const std::shared_ptr<ZELSYPDetachableHandler::Slot> pSlot = std::exchange(_slot, {}).lock())
      *pSlot = nullptr;
  }
  // Whether the handler would run: not ended, and still held by its store (or by the snapshot of a dispatch).
  bool IsActive() const
  {
    const std::shared_ptr<ZELSYPDetachableHandler::Slot> pSlot = _slot.lock();
    return pSlot && *pSlot && !(*pSlot)->MustBeRemoved();
  }

private:
  std::weak_ptr<ZELSYPDetachableHandler::Slot> _slot;
};

#endif
