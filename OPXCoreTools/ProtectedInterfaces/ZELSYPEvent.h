// ZELSYPEvent: a named kind of notification, the one object through which who raises it and who listens to it meet.
// static ZELSYPEvent* const pOpened = GetEventFactory()->NewEvent("Opened", ZELSYPEvent::OriginToRoot, ZELSYPEventArgs::MetaObject(),
// MetaObject());
//
// Events are made by a ZELSYPEventFactory only, which owns them; keep a reference (AddRef, Release) for as long as you
// need one beyond its factory. An event does not change. One thread, that of the user interface.
#ifndef ZELSYPEvent_H
#define ZELSYPEvent_H

#include "OPXCoreToolsExport.h"
#include "ZELBaseUnknown.h"
#include "ZELString.h"

#include <cstdint>

class ZELMetaClass;

class OPXCORETOOLS_EXPORT ZELSYPEvent final : public ZELBaseUnknown
{
  ZELDeclareClass;

public:
  // How the event travels along the chain of nodes from its origin to the root. The values do not change.
  enum Propagation : std::int32_t
  {
    // Handlers run from the root down to the origin.
    RootToOrigin = 0,
    // Handlers run from the origin up to the root.
    OriginToRoot = 1,
    // Only the origin's handlers run.
    NoPropagation = 2
  };

  // Null when the name is an ASCII identifier of any length: a letter or an underscore, then letters, digits and
  // underscores. Else what is wrong, a text that lives for ever: "Name is NULL" (which also reports "i_name"), "The string
  // is empty", "The first character is a digit", "One of the character of the identifier is not valid". Any thread.
  static const char* CheckEventName(const char* i_name);
  // The name of the value, "<invalid>" for any other number; it lives for ever. Any thread.
  static const char* PropagationToString(Propagation i_propagation);

  // Never null, and valid while the event lives.
  const char* GetName() const noexcept { return _name.GetText(); }
  Propagation GetPropagation() const noexcept { return _propagation; }
  // The class that the arguments of the event are of, a kind of ZELSYPEventArgs; not owned.
  ZELMetaClass* GetArgumentType() const noexcept { return _pArgumentType; }
  // The class that declares the event; not owned.
  ZELMetaClass* GetOwnerClass() const noexcept { return _pOwnerClass; }

private:
  friend class ZELSYPEventFactory;
  friend class ZELSYPEventHandlersSupport;
  friend class ZELSYPSupportsEventPathBuilder;
  // Reports what is wrong ("nameError == NULL" with the text of CheckEventName, "i_pOwnerClass", "i_pArgumentType",
  // "i_pArgumentType->IsAKindOf(ZELSYPEventArgs::MetaObject())"), and is built all the same.
  ZELSYPEvent(const char* i_name, Propagation i_propagation, ZELMetaClass* i_pArgumentType, ZELMetaClass* i_pOwnerClass);
  ~ZELSYPEvent() override;

  const ZELString _name;
  const Propagation _propagation;
  ZELMetaClass* const _pArgumentType;
  ZELMetaClass* const _pOwnerClass;
  // How many stores of handlers have a list for this event. None: nobody listens, wherever it is raised.
  std::int32_t _storeCount = 0;
};

#endif
