// ZELSYPEventArgs: what travels with one raised event: the event, where it started, whether someone consumed it.
// ZELSYPEventArgs args(Door::OpenedEvent()); pDoor->Dispatch(&args); if (args.IsConsumed()) ...
//
// Derive from it to carry more. The raiser owns it, on the stack or on the heap. One thread, that of the user interface.
#ifndef ZELSYPEventArgs_H
#define ZELSYPEventArgs_H

#include "OPXCoreToolsExport.h"
#include "ZELBaseUnknown_var.h"
#include "ZELSYPEvent.h"

#include <cstdint>

class ZELSYPRouteNode;

class OPXCORETOOLS_EXPORT ZELSYPEventArgs : public ZELBaseUnknown
{
  ZELDeclareClass;

public:
  // Holds a reference on the event. Null: "i_pEvent", and there is no event.
  explicit ZELSYPEventArgs(ZELSYPEvent* i_pEvent) : _pEvent(i_pEvent)
  {
    if (__builtin_expect(i_pEvent != nullptr, true))
      i_pEvent->AddRef();
    else
      ReportMissingEvent();
  }
  ~ZELSYPEventArgs() override
  {
    if (_pOrigin)
      _pOrigin->Release();
    if (_pEvent)
      _pEvent->Release();
  }

  // Without a reference.
  ZELSYPEvent* GetEvent() const noexcept { return _pEvent; }
  // The node at which the event starts, without a reference; null until it is set.
  ZELBaseUnknown* GetOrigin() const noexcept { return _pOrigin; }
  // Sets the origin and holds a reference on it, once: null reports "i_pOrigin", a second origin "_pOrigin == NULL" with
  // "Origin has already been set"; neither changes anything.
  void SetOrigin(ZELBaseUnknown* i_pOrigin);

  // From now on only the handlers run that handle consumed events, too. There is no way back.
  void Consume() noexcept { _consumed = 1; }
  int IsConsumed() const noexcept { return _consumed; }

private:
  friend class ZELSYPEventPathBuilder;
  friend class ZELSYPSupportsEventPathBuilder;

  static void ReportMissingEvent();

  ZELSYPEvent* const _pEvent;
  ZELBaseUnknown* _pOrigin = nullptr;
  std::int32_t _consumed = 0;
  // While a route is built.
  ZELSYPRouteNode* _pRouteNode = nullptr;
};

#endif
