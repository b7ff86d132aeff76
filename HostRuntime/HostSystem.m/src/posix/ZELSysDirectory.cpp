#include "ZELSysDirectory.h"

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

namespace
{
bool IsDots(const char* i_name)
{
  return i_name[0] == '.' && (i_name[1] == 0 || (i_name[1] == '.' && i_name[2] == 0));
}
} // namespace

ZELSysDirectory::ZELSysDirectory(const ZELUnicodeString& i_directory) : _pStream(std::make_unique<Stream>(i_directory)) {}

ZELSysDirectory::~ZELSysDirectory() = default;

bool ZELSysDirectory::Next(std::string_view& o_utf8Name)
{
  while (const dirent* pEntry = _pStream->entries ? readdir(_pStream->entries) : nullptr)
  {
    if (IsDots(pEntry->d_name))
      continue;
    o_utf8Name = pEntry->d_name;
    return true;
  }
  return false;
}
