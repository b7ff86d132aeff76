#include "EventWorld.h"

#include "ZELSYPEventFactory.h"

ZELImplementClass(NumberArgs, ZELSYPEventArgs, EventTools_tests);
ZELImplementClass(Listener, ZELSYPSimpleEventListener, EventTools_tests);

ZELSYPEvent* Opened()
{
  static ZELSYPEvent* const s_pEvent =
      Listener::GetEventFactory()->NewEvent("Opened", ZELSYPEvent::OriginToRoot, ZELSYPEventArgs::MetaObject(), Listener::MetaObject());
  return s_pEvent;
}

ZELSYPEvent* Counted()
{
  static ZELSYPEvent* const s_pEvent =
      Listener::GetEventFactory()->NewEvent("Counted", ZELSYPEvent::RootToOrigin, NumberArgs::MetaObject(), Listener::MetaObject());
  return s_pEvent;
}

int Raise(Listener& io_listener)
{
  ZELSYPEventArgs args(Opened());
  io_listener.Dispatch(&args);
  return args.IsConsumed();
}

int RaiseNumber(Listener& io_listener, int i_number)
{
  NumberArgs args(Counted(), i_number);
  return io_listener.Dispatch(&args);
}
