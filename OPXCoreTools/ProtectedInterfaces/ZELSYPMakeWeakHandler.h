// ZELSYPMakeWeakHandler(...): a counted handler whose target may die at any time; it runs nothing from then on.
// listener.AddHandler(pEvent, ZELSYPMakeWeakHandler(_weakTarget, this, &Panel::OnChanged), 0);
//
// The target is watched through a std::weak_ptr: that of a shared object, or that of a ZELSYPWeakTarget, the member of any
// other. Once it has expired the handler answers MustBeRemoved, and a dispatch whose snapshot still holds the handler
// passes it by. What the callable holds is given up when the stores and the snapshots let the handler go. UI thread.
#ifndef ZELSYPMakeWeakHandler_H
#define ZELSYPMakeWeakHandler_H

#include "ZELSYPMakeMemberHandler.h"
#include "ZELSYPWeakTarget.h"

#include <memory>

// Runs another handler while a target lives.
class ZELSYPWeakHandler final : public ZELSYPEventHandler
{
public:
  // i_spHandler is not null.
  ZELSYPWeakHandler(std::weak_ptr<const void> i_target, ZELHandle<ZELSYPEventHandler> i_spHandler)
      : _target(std::move(i_target)), _spHandler(std::move(i_spHandler))
  {
  }

  // The target is not kept alive meanwhile: a handler may destroy its own target.
  void Handle(ZELBaseUnknown* i_pNode, ZELSYPEventArgs* i_pArgs) override
  {
    if (!_target.expired())
      _spHandler->Handle(i_pNode, i_pArgs);
  }
  ZELMetaClass* GetArgumentsClass() override { return _spHandler->GetArgumentsClass(); }
  int MustBeRemoved() override { return _target.expired() || _spHandler->MustBeRemoved(); }

private:
  const std::weak_ptr<const void> _target;
  const ZELHandle<ZELSYPEventHandler> _spHandler;
};

// Runs a handler or a callable (as ZELSYPMakeHandler takes it) while i_target lives: a ZELSYPWeakTarget, a shared or a weak
// pointer. A null handler: "spHandler", and a null handle.
template <class Args = ZELSYPEventArgs, class HandlerOrCallable,
          class = std::enable_if_t<!std::is_member_function_pointer_v<HandlerOrCallable>>>
ZELHandle<ZELSYPEventHandler> ZELSYPMakeWeakHandler(std::weak_ptr<const void> i_target, HandlerOrCallable&& i_handler)
{
  ZELHandle<ZELSYPEventHandler> spHandler = ZELSYPMakeHandler<Args>(std::forward<HandlerOrCallable>(i_handler));
  if (!ZELSYP_CHECK_POINTER(spHandler))
    return {};
  return ZELHandle<ZELSYPEventHandler>::Adopt(new ZELSYPWeakHandler(std::move(i_target), std::move(spHandler)));
}

// Calls a method of i_pObject while i_target lives, which is a member of the object or of what owns it. A null object:
// "i_pObject"; a null method: "i_method"; a null handle then.
template <class Object, class Method>
ZELHandle<ZELSYPEventHandler> ZELSYPMakeWeakHandler(const ZELSYPWeakTarget& i_target, Object* i_pObject, Method i_method)
{
  const ZELHandle<ZELSYPEventHandler> spHandler = ZELSYPMakeMemberHandler(i_pObject, i_method);
  return spHandler ? ZELSYPMakeWeakHandler(i_target, spHandler) : spHandler;
}

// Calls a method of a shared object, which is kept alive while the method runs. A null method: "i_method", and a null
// handle.
template <class Object, class Method, class = std::enable_if_t<std::is_member_function_pointer_v<Method>>>
ZELHandle<ZELSYPEventHandler> ZELSYPMakeWeakHandler(const std::weak_ptr<Object>& i_pObject, Method i_method)
{
  if (!ZELSYP_CHECK_POINTER(i_method))
    return {};
  return ZELSYPMakeWeakHandler<typename ZELSYPMethodArguments<Method>::Type>(
      i_pObject,
      [i_pObject, i_method](auto... i_arguments) -> decltype(static_cast<void>((i_pObject.lock().get()->*i_method)(i_arguments...)))
      {
        if (const std::shared_ptr<Object> pLocked = i_pObject.lock())
          (pLocked.get()->*i_method)(i_arguments...);
      });
}
template <class Object, class Method, class = std::enable_if_t<std::is_member_function_pointer_v<Method>>>
ZELHandle<ZELSYPEventHandler> ZELSYPMakeWeakHandler(const std::shared_ptr<Object>& i_pObject, Method i_method)
{
  return ZELSYPMakeWeakHandler(std::weak_ptr<Object>(i_pObject), i_method);
}

#endif
