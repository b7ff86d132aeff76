#include "ZELSYPEventDescriptor.h"

#include "ZELSYPCheck.h"

ZELSYPEventDescriptor::ZELSYPEventDescriptor() : ZELSYPDescriptorBase(Event) {}

ZELSYPEventDescriptor::ZELSYPEventDescriptor(const ZELUnicodeString& i_name, EventFunc i_pEventFunc, const ZELUnicodeString& i_className)
    : ZELSYPDescriptorBase(Event, i_className), _name(i_name), _pEventFunc(i_pEventFunc)
{
  ZELSYP_CHECK_TRUE(_pEventFunc != NULL);
}

ZELSYPEventDescriptor::ZELSYPEventDescriptor(const ZELSYPEventDescriptor& i_other) = default;

ZELSYPEventDescriptor::~ZELSYPEventDescriptor() = default;

ZELSYPEventDescriptor& ZELSYPEventDescriptor::operator=(const ZELSYPEventDescriptor& i_other) = default;

ZELSYPEventDescriptor& ZELSYPEventDescriptor::operator=(const ZELSYPDescriptorBase& i_other)
{
  const auto* const pOther = dynamic_cast<const ZELSYPEventDescriptor*>(&i_other);
  return pOther ? *this = *pOther : *this;
}
