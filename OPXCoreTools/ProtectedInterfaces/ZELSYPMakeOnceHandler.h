// ZELSYPMakeOnceHandler<Args>(callable): a counted handler that runs once, then leaves the stores that hold it.
// listener.AddHandler(pEvent, ZELSYPMakeOnceHandler([](ZELSYPEventArgs*) { std::puts("the first change"); }), 0);
//
// Once over all stores and dispatches, nested ones included. UI thread.
#ifndef ZELSYPMakeOnceHandler_H
#define ZELSYPMakeOnceHandler_H

#include "ZELSYPMakeHandler.h"

// Runs another handler once.
class ZELSYPOnceHandler final : public ZELSYPEventHandler
{
public:
  // i_spHandler is not null.
  explicit ZELSYPOnceHandler(ZELHandle<ZELSYPEventHandler> i_spHandler)
      : _pArgumentsClass(i_spHandler->GetArgumentsClass()), _spHandler(std::move(i_spHandler))
  {
  }

  // Gives the handler up before it runs, so that it is done for all that happens meanwhile, and goes when it has run.
  // Arguments that are not of its class, or null, are the handler's to refuse, and leave it its turn.
  void Handle(ZELBaseUnknown* i_pNode, ZELSYPEventArgs* i_pArgs) override
  {
    const ZELHandle<ZELSYPEventHandler> spHandler = _spHandler;
    if (i_pArgs && i_pArgs->IsAKindOf(_pArgumentsClass))
      _spHandler = nullptr;
    if (spHandler)
      spHandler->Handle(i_pNode, i_pArgs);
  }
  ZELMetaClass* GetArgumentsClass() override { return _pArgumentsClass; }
  int MustBeRemoved() override { return !_spHandler || _spHandler->MustBeRemoved(); }

private:
  ZELMetaClass* const _pArgumentsClass;
  ZELHandle<ZELSYPEventHandler> _spHandler;
};

// Runs a handler or a callable (as ZELSYPMakeHandler takes it) once. A null handler: "spHandler", and a null handle.
template <class Args = ZELSYPEventArgs, class HandlerOrCallable>
ZELHandle<ZELSYPEventHandler> ZELSYPMakeOnceHandler(HandlerOrCallable&& i_handler)
{
  ZELHandle<ZELSYPEventHandler> spHandler = ZELSYPMakeHandler<Args>(std::forward<HandlerOrCallable>(i_handler));
  if (!ZELSYP_CHECK_POINTER(spHandler))
    return {};
  return ZELHandle<ZELSYPEventHandler>::Adopt(new ZELSYPOnceHandler(std::move(spHandler)));
}

#endif
