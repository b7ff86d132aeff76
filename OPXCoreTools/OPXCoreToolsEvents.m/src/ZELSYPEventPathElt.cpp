#include "ZELSYPEventPathElt.h"

#include "ZELSYPCheck.h"
#include "ZELSYPDispatchObserver.h"
#include "ZELSYPEventArgs.h"
#include "ZELSYPEventHandler.h"
#include "ZELSYPEventHandlerInfo.h"

namespace
{
bool MayRun(const ZELSYPEventHandlerInfo& i_info, const ZELSYPEventArgs& i_args)
{
  return __builtin_expect(i_args.IsConsumed() == 0, true) || i_info.GetHandleConsumedEvents() != 0;
}
} // namespace

void ZELSYPEventPathElt::Dispatch(ZELSYPEventArgs* i_pArgs) const
{
  if (!ZELSYP_CHECK_HANDLER(_spNode) || !ZELSYP_CHECK_POINTER(i_pArgs))
    return;
  // Looked up again for every list: a handler may add lists to this very stop.
  for (int list = 0; list < _lists.GetLength() && RunList(list, *i_pArgs); ++list)
  {
  }
}

// The registrations stay where they are while the handlers run: the list is a snapshot that nobody writes to.
inline bool ZELSYPEventPathElt::RunList(int i_list, ZELSYPEventArgs& io_args) const
{
  ZELSYPEventHandlerInfo* const* const pBegin = _lists.begin()[i_list].begin();
  ZELSYPEventHandlerInfo* const* const pEnd = _lists.begin()[i_list].end();
  for (ZELSYPEventHandlerInfo* const* pEach = pBegin; pEach != pEnd; ++pEach)
  {
    ZELSYPEventHandlerInfo* const pInfo = *pEach;
    if (!ZELSYP_CHECK_POINTER(pInfo))
      return false;
    ZELSYPEventHandler* const pHandler = pInfo->GetHandler();
    if (!ZELSYP_CHECK_POINTER(pHandler))
      return false;
    if (__builtin_expect(ZELSYPDispatchObserver::AnyLives(), false))
      RunObserved(i_list, static_cast<int>(pEach - pBegin), *pInfo, io_args);
    else if (MayRun(*pInfo, io_args))
      pHandler->Handle(_spNode.Get(), &io_args);
  }
  return true;
}

void ZELSYPEventPathElt::RunObserved(int i_list, int i_index, ZELSYPEventHandlerInfo& i_info, ZELSYPEventArgs& io_args) const
{
  const ZELSYPDispatchObserver::Step step{*this, i_list, i_index, i_info, io_args, io_args.IsConsumed() != 0};
  if (!MayRun(i_info, io_args))
    return ZELSYPDispatchObserver::Tell(&ZELSYPDispatchObserver::HandlerSkipped, step);
  ZELSYPDispatchObserver::Tell(&ZELSYPDispatchObserver::HandlerRuns, step);
  i_info.GetHandler()->Handle(_spNode.Get(), &io_args);
  ZELSYPDispatchObserver::Tell(&ZELSYPDispatchObserver::HandlerRan, step);
}
