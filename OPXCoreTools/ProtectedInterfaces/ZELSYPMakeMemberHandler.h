// ZELSYPMakeMemberHandler(object, &Class::Method): a counted handler that calls a method; its argument class is the method's.
// listener.AddHandler(pEvent, ZELSYPMakeMemberHandler(this, &Panel::OnChanged), 0);
//
// The method takes (Args*) or (ZELBaseUnknown* node, Args*), const or not. The object is not owned and must outlive every
// dispatch that may reach the handler; ZELSYPMakeWeakHandler is for objects that may go earlier. UI thread.
#ifndef ZELSYPMakeMemberHandler_H
#define ZELSYPMakeMemberHandler_H

#include "ZELSYPMakeHandler.h"

#include <tuple>

// The class that a method's last parameter points to.
template <class Method>
struct ZELSYPMethodArguments;
template <class Class, class Result, class... Parameters>
struct ZELSYPMethodArguments<Result (Class::*)(Parameters...)>
{
  static_assert(sizeof...(Parameters) > 0, "a handling method takes (Args*) or (ZELBaseUnknown*, Args*)");
  using Type = std::remove_pointer_t<std::tuple_element_t<sizeof...(Parameters) - 1, std::tuple<Parameters...>>>;
};
template <class Class, class Result, class... Parameters>
struct ZELSYPMethodArguments<Result (Class::*)(Parameters...) const> : ZELSYPMethodArguments<Result (Class::*)(Parameters...)>
{
};
template <class Class, class Result, class... Parameters>
struct ZELSYPMethodArguments<Result (Class::*)(Parameters...) noexcept> : ZELSYPMethodArguments<Result (Class::*)(Parameters...)>
{
};
template <class Class, class Result, class... Parameters>
struct ZELSYPMethodArguments<Result (Class::*)(Parameters...) const noexcept> : ZELSYPMethodArguments<Result (Class::*)(Parameters...)>
{
};

// The handle holds the only reference. A null object: "i_pObject"; a null method: "i_method"; a null handle then.
template <class Object, class Method>
ZELHandle<ZELSYPEventHandler> ZELSYPMakeMemberHandler(Object* i_pObject, Method i_method)
{
  if (!ZELSYP_CHECK_POINTER(i_pObject) || !ZELSYP_CHECK_POINTER(i_method))
    return {};
  return ZELSYPMakeHandler<typename ZELSYPMethodArguments<Method>::Type>(
      [i_pObject, i_method](auto... i_arguments) -> decltype((i_pObject->*i_method)(i_arguments...))
      { return (i_pObject->*i_method)(i_arguments...); });
}

#endif
