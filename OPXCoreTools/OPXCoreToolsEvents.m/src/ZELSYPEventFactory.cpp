#include "ZELSYPEventFactory.h"

#include "ZELMetaClass.h"
#include "ZELSYPCheck.h"
#include "ZELSYPEventArgs.h"
#include "ZELString.h"

namespace
{
bool IsValidName(const char* i_name)
{
  const char* const nameError = ZELSYPEvent::CheckEventName(i_name);
  return ZELSYP_CHECK_TRUE_DETAILS(nameError == NULL, nameError);
}

bool IsValidPropagation(ZELSYPEvent::Propagation i_propagation)
{
  if (i_propagation >= ZELSYPEvent::RootToOrigin && i_propagation <= ZELSYPEvent::NoPropagation)
    return true;
  CheckFailure__("Invalid propagation mode", __FILE_NAME__, __LINE__, ZELSYPEvent::PropagationToString(i_propagation));
  return false;
}

bool IsValidArgumentType(const ZELMetaClass* i_pArgumentType)
{
  return ZELSYP_CHECK_TRUE_DETAILS(i_pArgumentType->IsAKindOf(ZELSYPEventArgs::MetaObject()), i_pArgumentType->GetName());
}

bool IsFree(const ZELSYPEventMap* pEventMap, const char* i_name, const ZELMetaClass* i_pOwnerClass)
{
  return ZELSYP_CHECK_TRUE_DETAILS(pEventMap->Get(i_name) == NULL,
                                   (ZELString("Event ") + i_pOwnerClass->GetName() + "." + i_name + " already registered").GetText());
}

// The map's reference is the only one then.
ZELSYPEvent* Register(ZELSYPEvent* pEvent, ZELSYPEventMap* io_pEventMap)
{
  io_pEventMap->Put(pEvent);
  return ZELSYP_CHECK_TRUE(pEvent->Release() >= 1) ? pEvent : nullptr;
}
} // namespace

ZELSYPEventFactory::~ZELSYPEventFactory() = default;

ZELSYPEvent* ZELSYPEventFactory::NewEvent(const char* i_name, ZELSYPEvent::Propagation i_propagation, ZELMetaClass* i_pArgumentType,
                                          ZELMetaClass* i_pOwnerClass)
{
  if (!ZELSYP_CHECK_POINTER(i_pArgumentType) || !ZELSYP_CHECK_POINTER(i_pOwnerClass) || !IsValidName(i_name) ||
      !IsValidPropagation(i_propagation) || !IsValidArgumentType(i_pArgumentType))
    return nullptr;
  ZELSYPEventMap* const pEventMap = GetOrAddMap(i_pOwnerClass);
  if (!ZELSYP_CHECK_POINTER(pEventMap) || !IsFree(pEventMap, i_name, i_pOwnerClass))
    return nullptr;
  return Register(MakeEvent(i_name, i_propagation, i_pArgumentType, i_pOwnerClass), pEventMap);
}

ZELSYPArray<ZELSYPEvent*> ZELSYPEventFactory::GetEventsOf(ZELMetaClass* i_pOwnerClass) const
{
  ZELSYPArray<ZELSYPEvent*> events;
  const ZELSYPEventMap* const pEventMap = ZELSYP_CHECK_POINTER(i_pOwnerClass) ? _eventMaps.Locate(i_pOwnerClass) : nullptr;
  if (pEventMap)
    pEventMap->AppendEventsTo(events);
  return events;
}

ZELSYPArray<ZELSYPEvent*> ZELSYPEventFactory::GetEvents() const
{
  ZELSYPArray<ZELSYPEvent*> events;
  for (EventMaps::Iterator it(_eventMaps); !it.IsDone(); it.Next())
    it.GetValue()->AppendEventsTo(events);
  return events;
}

ZELSYPEvent* ZELSYPEventFactory::MakeEvent(const char* i_name, ZELSYPEvent::Propagation i_propagation, ZELMetaClass* i_pArgumentType,
                                           ZELMetaClass* i_pOwnerClass)
{
  return new ZELSYPEvent(i_name, i_propagation, i_pArgumentType, i_pOwnerClass);
}

// Kept: the map of a class stays, empty, when the event it was made for is refused.
ZELSYPEventMap* ZELSYPEventFactory::GetOrAddMap(ZELMetaClass* i_pOwnerClass)
{
  if (!_eventMaps.Locate(i_pOwnerClass))
    _eventMaps.Set(i_pOwnerClass, ZELSYPEventMap());
  return _eventMaps.Locate(i_pOwnerClass);
}
