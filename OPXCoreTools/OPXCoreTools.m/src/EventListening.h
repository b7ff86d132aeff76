// EventListening: what the three listener bases do; each of them only has the members.
// return EventListening::Made(_pEventHandlersSupport).AddHandler(i_pEvent, i_pHandler, i_handleConsumedEvents);
#ifndef EventListening_H
#define EventListening_H

#include "ZELSYPClassEventHandlersSupport.h"
#include "ZELSYPEventFactory.h"
#include "ZELSYPEventHandlersSupport.h"
#include "ZELSYPSingleEventPathBuilder.h"

#include <memory>

namespace EventListening
{
typedef std::unique_ptr<ZELSYPEventHandlersSupport> Support;
typedef std::unique_ptr<ZELSYPClassEventHandlersSupport> ClassSupport;

// The store, made now if it was not there.
template <class Store>
Store& Made(std::unique_ptr<Store>& io_pStore)
{
  if (!io_pStore)
    io_pStore = std::make_unique<Store>();
  return *io_pStore;
}

// Kept: a listener that never had a handler of its own dispatches nothing, to its class's handlers neither.
inline int Dispatch(ZELBaseUnknown* i_pListener, ZELSYPEventArgs* i_pArgs, const Support& i_pSupport, const ClassSupport& i_pClassSupport)
{
  return i_pSupport ? ZELSYPSingleEventPathBuilder(i_pSupport.get(), i_pClassSupport.get()).Dispatch(i_pListener, i_pArgs) : 0;
}
} // namespace EventListening

#endif
