#include "EventArguments.h"

#include "ZELSYPEventFactory.h"

ZELImplementClass(NumberArgs, ZELSYPEventArgs, EventTools_tests);

namespace
{
ZELSYPEvent* New(const char* i_name, ZELSYPEvent::Propagation i_propagation, ZELMetaClass* i_pArgumentType)
{
  static ZELSYPEventFactory s_factory;
  return s_factory.NewEvent(i_name, i_propagation, i_pArgumentType, ZELBaseUnknown::MetaObject());
}
} // namespace

ZELSYPEvent* Opened()
{
  static ZELSYPEvent* const s_pEvent = New("Opened", ZELSYPEvent::OriginToRoot, ZELSYPEventArgs::MetaObject());
  return s_pEvent;
}

ZELSYPEvent* Counted()
{
  static ZELSYPEvent* const s_pEvent = New("Counted", ZELSYPEvent::RootToOrigin, NumberArgs::MetaObject());
  return s_pEvent;
}
