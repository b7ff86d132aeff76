// ZELSYPEventDescriptor: names an event of a class together with the function that answers it.
// ZELSYPEventDescriptor opened("Opened", &Door::OpenedEvent, "Door"); ZELSYPEvent* pEvent = opened.GetEventFunc()();
//
// A value. One thread at a time.
#ifndef ZELSYPEventDescriptor_H
#define ZELSYPEventDescriptor_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPDescriptorBase.h"
#include "ZELUnicodeString.h"

class ZELSYPEvent;

class OPXCORETOOLS_EXPORT ZELSYPEventDescriptor : public ZELSYPDescriptorBase
{
public:
  using EventFunc = ZELSYPEvent* (*)();

  // No name, no function.
  ZELSYPEventDescriptor();
  // A null function: "_pEventFunc != NULL", and the descriptor has none. The class name is ignored, as in the base.
  ZELSYPEventDescriptor(const ZELUnicodeString& i_name, EventFunc i_pEventFunc, const ZELUnicodeString& i_className);
  ZELSYPEventDescriptor(const ZELSYPEventDescriptor& i_other);
  ~ZELSYPEventDescriptor() override;
  ZELSYPEventDescriptor& operator=(const ZELSYPEventDescriptor& i_other);
  // Through the base: the same from another event's descriptor; an entry that is none changes nothing.
  ZELSYPEventDescriptor& operator=(const ZELSYPDescriptorBase& i_other) override;

  const ZELUnicodeString& GetName() const noexcept { return _name; }
  EventFunc GetEventFunc() const noexcept { return _pEventFunc; }

private:
  ZELUnicodeString _name;
  EventFunc _pEventFunc = nullptr;
};

#endif
