#include "ZELSysDirectory.h"

#include "EntryNames.h"
#include "SystemPath.h"

#include <dirent.h>

struct ZELSysDirectory::Stream
{
  // The system takes no empty name for the root.
  explicit Stream(const ZELUnicodeString& i_directory) : entries(opendir(i_directory.IsEmpty() ? "/" : SystemPath(i_directory).Get())) {}
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;
  ~Stream()
  {
    if (entries)
      closedir(entries);
  }

  DIR* entries;
};

ZELSysDirectory::ZELSysDirectory(const ZELUnicodeString& i_directory) : _pStream(std::make_unique<Stream>(i_directory)) {}

ZELSysDirectory::~ZELSysDirectory() = default;

bool ZELSysDirectory::Next(std::string_view& o_utf8Name)
{
  while (const dirent* pEntry = _pStream->entries ? readdir(_pStream->entries) : nullptr)
  {
    o_utf8Name = pEntry->d_name;
    if (!IsDots(o_utf8Name))
      return true;
  }
  return false;
}
