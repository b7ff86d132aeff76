// ZELSYPDescriptorBase: what every entry of a class that can be asked for by introspection has: its kind and its class.
// if (descriptor.GetType() == ZELSYPDescriptorBase::Event) ...
//
// A value. One thread at a time.
#ifndef ZELSYPDescriptorBase_H
#define ZELSYPDescriptorBase_H

#include "OPXCoreToolsExport.h"
#include "ZELUnicodeString.h"

#include <cstdint>

class OPXCORETOOLS_EXPORT ZELSYPDescriptorBase
{
public:
  enum IntrospectableEntryType : std::int32_t
  {
    Event = 3
  };

  explicit ZELSYPDescriptorBase(IntrospectableEntryType i_type);
  // Kept: the class name is ignored and stays empty.
  ZELSYPDescriptorBase(IntrospectableEntryType i_type, const ZELUnicodeString& i_className);
  ZELSYPDescriptorBase(const ZELSYPDescriptorBase& i_other);
  virtual ~ZELSYPDescriptorBase();
  virtual ZELSYPDescriptorBase& operator=(const ZELSYPDescriptorBase& i_other);

  IntrospectableEntryType GetType() const noexcept { return _type; }
  const ZELUnicodeString& GetClassNameW() const noexcept { return _className; }

private:
  IntrospectableEntryType _type;
  ZELUnicodeString _className;
};

#endif
