// ZELSYPDispatchIfHeard: raises an event, and makes its arguments only when somebody listens.
// ZELSYPDispatchIfHeard(listener, pEvent, [&] { return ZELHandle<NodeArgs>::Adopt(new NodeArgs(pEvent, Describe(node))); });
//
// The callable answers a handle to the arguments. To find out whether somebody listens costs about as much as the route:
// it pays when the arguments cost more. UI thread.
#ifndef ZELSYPDispatchIfHeard_H
#define ZELSYPDispatchIfHeard_H

#include "ZELSYPEventPathBuilder.h"
#include "ZELSYPSingleEventPathBuilder.h"

#include <utility>

// From i_pOrigin, along the route of a builder. What Dispatch answers, or 0 when nobody listens. Null arguments, origin or
// event report as in Dispatch and IsHeard.
template <class MakeArgs>
int ZELSYPDispatchIfHeard(ZELSYPEventPathBuilder& io_builder, ZELBaseUnknown* i_pOrigin, ZELSYPEvent* i_pEvent, MakeArgs&& i_makeArgs)
{
  return io_builder.IsHeard(i_pOrigin, i_pEvent) ? io_builder.Dispatch(i_pOrigin, std::forward<MakeArgs>(i_makeArgs)()) : 0;
}

// From a listener. A listener that has no handlers of its own yet dispatches nothing, and hears nothing.
template <class Listener, class MakeArgs>
int ZELSYPDispatchIfHeard(Listener& io_listener, ZELSYPEvent* i_pEvent, MakeArgs&& i_makeArgs)
{
  if (!io_listener.GetHandlersSupport())
    return 0;
  ZELSYPSingleEventPathBuilder builder(io_listener.GetHandlersSupport(), Listener::GetClassHandlersSupport());
  return ZELSYPDispatchIfHeard(builder, &io_listener, i_pEvent, std::forward<MakeArgs>(i_makeArgs));
}

#endif
