// ZELSYPEventFactory: makes the events of owner classes, each once, and owns them.
// static ZELSYPEventFactory factory; ZELSYPEvent* pOpened = factory.NewEvent("Opened", ZELSYPEvent::NoPropagation,
// ZELSYPEventArgs::MetaObject(), Door::MetaObject());
//
// A class that declares events keeps one as a static object; its events live as long as it. One thread, that of the user
// interface.
#ifndef ZELSYPEventFactory_H
#define ZELSYPEventFactory_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPArray.h"
#include "ZELSYPEvent.h"
#include "ZELSYPEventMap.h"
#include "ZELSYPHashMap.h"

class ZELMetaClass;

class OPXCORETOOLS_EXPORT ZELSYPEventFactory
{
public:
  ZELSYPEventFactory() = default;
  // Releases its events.
  virtual ~ZELSYPEventFactory();
  ZELSYPEventFactory(const ZELSYPEventFactory&) = delete;
  ZELSYPEventFactory& operator=(const ZELSYPEventFactory&) = delete;

  // A new event, owned by this factory: do not release it. Null, and the first of these reports, when
  // 1. the argument type or the owner class is null: "i_pArgumentType", "i_pOwnerClass";
  // 2. the name is not valid: "nameError == NULL" with the text of ZELSYPEvent::CheckEventName;
  // 3. the propagation is none of the three: "Invalid propagation mode" with "<invalid>";
  // 4. the argument type is not a kind of ZELSYPEventArgs: "i_pArgumentType->IsAKindOf(ZELSYPEventArgs::MetaObject())"
  //    with its class name;
  // 5. the owner class has an event of that name from this factory: "pEventMap->Get(i_name) == NULL" with "Event
  //    <class>.<name> already registered"; that event stays.
  ZELSYPEvent* NewEvent(const char* i_name, ZELSYPEvent::Propagation i_propagation, ZELMetaClass* i_pArgumentType,
                        ZELMetaClass* i_pOwnerClass);

  // Additive: the events that the class declares here, in the order of their declaration, without references. Null:
  // "i_pOwnerClass", and none.
  ZELSYPArray<ZELSYPEvent*> GetEventsOf(ZELMetaClass* i_pOwnerClass) const;
  // Additive: every event of this factory, class by class in the order of their first declarations.
  ZELSYPArray<ZELSYPEvent*> GetEvents() const;

protected:
  // An event that no map holds yet; the caller owns its one reference.
  static ZELSYPEvent* MakeEvent(const char* i_name, ZELSYPEvent::Propagation i_propagation, ZELMetaClass* i_pArgumentType,
                                ZELMetaClass* i_pOwnerClass);

private:
  using EventMaps = ZELSYPHashMap<ZELMetaClass*, ZELSYPEventMap>;

  ZELSYPEventMap* GetOrAddMap(ZELMetaClass* i_pOwnerClass);

  EventMaps _eventMaps;
};

#endif
