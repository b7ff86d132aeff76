#include "ZELSysDirectory.h"

bool ZELSysDirectory::Next(ZELUnicodeString& o_name)
{
  std::string_view name;
  const bool isThere = Next(name);
  if (isThere)
    o_name = ZELUnicodeString::FromUTF8(name);
  return isThere;
}
