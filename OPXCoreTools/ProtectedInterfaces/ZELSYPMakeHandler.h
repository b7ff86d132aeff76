// ZELSYPMakeHandler<Args>(callable): a counted handler from anything that can be called.
// listener.AddHandler(pEvent, ZELSYPMakeHandler<NodeArgs>([&](NodeArgs* i_pArgs) { Show(i_pArgs->GetNode()); }), 0);
//
// The callable takes (Args*) or (ZELBaseUnknown* node, Args*). What it answers is ignored, what it throws goes through the
// dispatch. UI thread.
#ifndef ZELSYPMakeHandler_H
#define ZELSYPMakeHandler_H

#include "ZELHandle.h"
#include "ZELSYPCheck.h"
#include "ZELSYPEventArgs.h"
#include "ZELSYPEventHandler.h"

#include <functional>
#include <type_traits>
#include <utility>

// The handler of one callable, which it owns: no other memory than its own, no call through a pointer but Handle's.
template <class Args, class Callable>
class ZELSYPCallableHandler final : public ZELSYPEventHandler
{
  static_assert(std::is_base_of_v<ZELSYPEventArgs, Args>, "a handler's arguments are a ZELSYPEventArgs or derived from it");
  static_assert(std::is_same_v<decltype(&Args::GetMetaObject), ZELMetaClass* (Args::*)() const>,
                "the class of a handler's arguments is declared with ZELDeclareClass");
  static constexpr bool TAKES_NODE = std::is_invocable_v<Callable&, ZELBaseUnknown*, Args*>;
  static_assert(TAKES_NODE || std::is_invocable_v<Callable&, Args*>, "a handler is called with (Args*) or (ZELBaseUnknown*, Args*)");

public:
  explicit ZELSYPCallableHandler(Callable&& i_callable) : _callable(std::move(i_callable)) {}
  explicit ZELSYPCallableHandler(const Callable& i_callable) : _callable(i_callable) {}

  // Calls the callable. Null arguments: "i_pArgs"; arguments of another class:
  // "i_pArgs->IsAKindOf(Args::MetaObject())"; nothing is called then. A dispatch never gives any of these.
  void Handle(ZELBaseUnknown* i_pNode, ZELSYPEventArgs* i_pArgs) override
  {
    if (!ZELSYP_CHECK_POINTER(i_pArgs) || !ZELSYP_CHECK_TRUE(i_pArgs->IsAKindOf(Args::MetaObject())))
      return;
    if constexpr (TAKES_NODE)
      _callable(i_pNode, static_cast<Args*>(i_pArgs));
    else
      _callable(static_cast<Args*>(i_pArgs));
  }
  ZELMetaClass* GetArgumentsClass() override { return Args::MetaObject(); }
  // Never: the callable is always there.
  int MustBeRemoved() override { return 0; }

private:
  Callable _callable;
};

template <class Callable>
inline constexpr bool ZELSYP_IS_STD_FUNCTION = false;
template <class Signature>
inline constexpr bool ZELSYP_IS_STD_FUNCTION<std::function<Signature>> = true;

// The handle holds the only reference; a store takes one of its own. The callable is moved (copied when it is an lvalue).
// A handler, or a handle to one, is answered as it is, so that whoever takes "a handler or a callable" needs no second
// form. A null function pointer or an empty std::function: "i_callable", and a null handle; a null handler: a null handle.
template <class Args = ZELSYPEventArgs, class Callable>
ZELHandle<ZELSYPEventHandler> ZELSYPMakeHandler(Callable&& i_callable)
{
  using Decayed = std::decay_t<Callable>;
  if constexpr (std::is_convertible_v<Decayed, ZELSYPEventHandler*>)
    return ZELHandle<ZELSYPEventHandler>(static_cast<ZELSYPEventHandler*>(i_callable));
  else
  {
    if constexpr (std::is_pointer_v<std::remove_reference_t<Callable>> || ZELSYP_IS_STD_FUNCTION<Decayed>)
      if (!ZELSYP_CHECK_POINTER(i_callable))
        return {};
    return ZELHandle<ZELSYPEventHandler>::Adopt(new ZELSYPCallableHandler<Args, Decayed>(std::forward<Callable>(i_callable)));
  }
}

#endif
