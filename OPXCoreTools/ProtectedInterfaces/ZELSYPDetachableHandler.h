// ZELSYPDetachableHandler: runs another handler until it is detached from it, also in the middle of a dispatch.
// ZELSYPDetachableHandler* pHandler = new ZELSYPDetachableHandler(spInner); auto slot = pHandler->GetSlot();
//
// What ZELSYPSubscription holds: the slot, which says whether any store or snapshot still holds the handler. UI thread.
#ifndef ZELSYPDetachableHandler_H
#define ZELSYPDetachableHandler_H

#include "ZELHandle.h"
#include "ZELSYPEventHandler.h"

#include <memory>
#include <utility>

class ZELSYPDetachableHandler final : public ZELSYPEventHandler
{
public:
  using Slot = ZELHandle<ZELSYPEventHandler>;

  // i_spHandler is not null.
  explicit ZELSYPDetachableHandler(Slot i_spHandler)
      : _pArgumentsClass(i_spHandler->GetArgumentsClass()), _pSlot(std::make_shared<Slot>(std::move(i_spHandler)))
  {
  }

  // Expires with this handler. Empty it, and this handler runs nothing more and answers MustBeRemoved.
  std::weak_ptr<Slot> GetSlot() const { return _pSlot; }

  // The inner handler is held while it runs: it may be detached by what it does.
  void Handle(ZELBaseUnknown* i_pNode, ZELSYPEventArgs* i_pArgs) override
  {
    if (const Slot spHandler = *_pSlot)
      spHandler->Handle(i_pNode, i_pArgs);
  }
  ZELMetaClass* GetArgumentsClass() override { return _pArgumentsClass; }
  int MustBeRemoved() override { return !*_pSlot || (*_pSlot)->MustBeRemoved(); }

private:
  ZELMetaClass* const _pArgumentsClass;
  const std::shared_ptr<Slot> _pSlot;
};

#endif
