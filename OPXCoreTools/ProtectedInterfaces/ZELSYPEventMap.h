// ZELSYPEventMap: the events of one owner class by their names.
// ZELSYPEventMap map; map.Put(pEvent); map.Get("Opened") == pEvent;
//
// It holds one reference on each event; a copy holds references of its own. One thread, that of the user interface.
#ifndef ZELSYPEventMap_H
#define ZELSYPEventMap_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPArray.h"
#include "ZELSYPHashMap.h"
#include "ZELUnicodeString.h"

class ZELSYPEvent;

class OPXCORETOOLS_EXPORT ZELSYPEventMap
{
public:
  ZELSYPEventMap() = default;
  // The same events. What cannot be read is reported as "pEntry", a null event as "pEvent".
  ZELSYPEventMap(const ZELSYPEventMap& i_other);
  // Gives up its events first, then takes those of i_other.
  ZELSYPEventMap& operator=(const ZELSYPEventMap& i_other);
  // Gives up its events. A null event among them: "NULL event in the map?".
  virtual ~ZELSYPEventMap();

  // The event of that name, without a reference, or null. A name that no event can have, null included: "nameError ==
  // NULL" with what is wrong with it.
  ZELSYPEvent* Get(const char* i_name) const;
  // Keeps the event under its own name, with a reference. Null: "i_pEvent".
  void Put(ZELSYPEvent* i_pEvent);

  // Additive: appends the events to io_events, without references, in the order in which their names came.
  void AppendEventsTo(ZELSYPArray<ZELSYPEvent*>& io_events) const;

protected:
  using Events = ZELSYPHashMap<ZELUnicodeString, ZELSYPEvent*>;
  Events _events;

private:
  void Clear();
  void PutEventsOf(const ZELSYPEventMap& i_other);
};

#endif
