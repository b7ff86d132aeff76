// ZELSysDirectory: the entries of one directory, one after the other, in the system's own order.
// ZELSysDirectory entries(ZELUnicodeString("C:\\data")); for (ZELUnicodeString name; entries.Next(name);) ...
#ifndef ZELSysDirectory_H
#define ZELSysDirectory_H

#include "OPXHostRuntimeExport.h"
#include "ZELUnicodeString.h"

#include <memory>
#include <string_view>

class OPXHOSTRUNTIME_EXPORT ZELSysDirectory
{
public:
  // Opens the directory by its wide name, which ends without a separator: "" and "C:" name a root, as they do in the
  // names below it. One that cannot be listed has no entries.
  explicit ZELSysDirectory(const ZELUnicodeString& i_directory);
  ZELSysDirectory(const ZELSysDirectory&) = delete;
  ZELSysDirectory& operator=(const ZELSysDirectory&) = delete;
  ~ZELSysDirectory();

  // The next entry's bare name; false when there is none left. "." and ".." are left out.
  bool Next(ZELUnicodeString& o_name);
  // The same as a view of its UTF-8, which stays valid until the next call: nothing is allocated for it.
  bool Next(std::string_view& o_utf8Name);

private:
  struct Stream;
  std::unique_ptr<Stream> _pStream;
};

#endif
