#include "../Door.h"
#include "ZELSYPTypedEvent.h"

class LeftArgs : public ZELSYPEventArgs
{
  ZELDeclareClass;
  explicit LeftArgs(ZELSYPEvent* i_pEvent) : ZELSYPEventArgs(i_pEvent) {}
};

class Gate : public ZELSYPSimpleEventListener
{
public:
  static const ZELSYPTypedEvent<OpenedArgs>& OpenedEvent();
};

void Listen(Gate& gate)
{
#ifdef OPX_WRONG
  auto greeting = Gate::OpenedEvent().Subscribe(gate, [](LeftArgs*) {}); // a handler is called with (Args*) or (ZELBaseUnknown*, Args*)
#else
  auto greeting = Gate::OpenedEvent().Subscribe(gate, [](OpenedArgs*) {});
#endif
}

void Raise(Gate& gate)
{
#ifdef OPX_WRONG
  LeftArgs args(Gate::OpenedEvent());
  Gate::OpenedEvent().Dispatch(gate, &args); // no conversion from LeftArgs*
#else
  OpenedArgs args(Gate::OpenedEvent(), "Ada");
  Gate::OpenedEvent().Dispatch(gate, &args);
#endif
}
