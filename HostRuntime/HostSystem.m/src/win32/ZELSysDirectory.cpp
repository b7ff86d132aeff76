#include "ZELSysDirectory.h"

#include "EntryNames.h"

#include <windows.h>

struct ZELSysDirectory::Stream
{
  explicit Stream(const ZELUnicodeString& i_directory)
  {
    const std::u16string all = i_directory.ToUTF16() + u"\\*";
    search = FindFirstFileW(reinterpret_cast<const wchar_t*>(all.c_str()), &entry);
    isEntryFresh = search != INVALID_HANDLE_VALUE;
  }
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;
  ~Stream()
  {
    if (search != INVALID_HANDLE_VALUE)
      FindClose(search);
  }

  // Moves to the next entry; the search has found the first one already.
  bool Advance()
  {
    if (search == INVALID_HANDLE_VALUE)
      return false;
    const bool found = isEntryFresh || FindNextFileW(search, &entry);
    isEntryFresh = false;
    return found;
  }

  WIN32_FIND_DATAW entry = {};
  ZELUnicodeString name;
  HANDLE search;
  bool isEntryFresh;
};

ZELSysDirectory::ZELSysDirectory(const ZELUnicodeString& i_directory) : _pStream(std::make_unique<Stream>(i_directory)) {}

ZELSysDirectory::~ZELSysDirectory() = default;

bool ZELSysDirectory::Next(std::string_view& o_utf8Name)
{
  while (_pStream->Advance())
  {
    const std::u16string_view name = reinterpret_cast<const char16_t*>(_pStream->entry.cFileName);
    if (IsDots(name))
      continue;
    _pStream->name = ZELUnicodeString::FromUTF16(name);
    o_utf8Name = _pStream->name.GetUTF8();
    return true;
  }
  return false;
}
