// ZELSysRootedDirectory: a directory held open, below which nothing but its own content can be reached.
// ZELSysRootedDirectory root(ZELUnicodeString("/data")); ZELSysRootedDirectory child = root.OpenDirectory("reports");
//
// A step down takes the bare name of one entry and follows no link, whatever happens to the tree meanwhile: it starts
// from the open directory and not from a path. Names are UTF-8 as ZELUnicodeString keeps them (broken bytes and lone
// surrogates included); a name that is empty, "." or "..", or that holds a zero byte or what the system takes for a
// separator, names nothing. One value belongs to one thread at a time. Nothing throws but for want of memory.
#ifndef ZELSysRootedDirectory_H
#define ZELSysRootedDirectory_H

#include "OPXHostRuntimeExport.h"
#include "ZELUnicodeString.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

class OPXHOSTRUNTIME_EXPORT ZELSysRootedDirectory
{
public:
  enum Kind
  {
    Directory,
    File,
    // A symbolic link or any other reparse point, to a directory or not.
    Link,
    Other
  };

  // The name is valid during the visit.
  using Visitor = std::function<void(std::string_view i_name, Kind i_kind)>;

  // Which directory it is, and what its content was when it was asked: equal stamps of settled content mean equal
  // entries.
  struct Stamp
  {
    std::uint64_t volume = 0;
    std::uint64_t object = 0;
    std::uint64_t lastWrite = 0;
    std::uint64_t lastChange = 0;
    // False when the last change is so recent that another one may leave the same times, and where the file system does
    // not note the times of changes.
    bool isSettled = false;

    bool IsSameDirectory(const Stamp& i_other) const noexcept { return volume == i_other.volume && object == i_other.object; }
    bool IsSameContent(const Stamp& i_other) const noexcept
    {
      return IsSameDirectory(i_other) && lastWrite == i_other.lastWrite && lastChange == i_other.lastChange;
    }
  };

  struct Details
  {
    // In bytes; 0 for what has no content of its own.
    std::uint64_t size = 0;
    // 100-nanosecond intervals since 1601-01-01 UTC.
    std::uint64_t lastWriteTime = 0;
  };

  // Opens a directory by a path as the system itself writes it; a link there is followed. o_pError: why it could not be
  // opened, left alone when it could; may be null.
  explicit ZELSysRootedDirectory(const ZELUnicodeString& i_path, std::error_code* o_pError = nullptr);
  ZELSysRootedDirectory(ZELSysRootedDirectory&& io_other) noexcept;
  ZELSysRootedDirectory& operator=(ZELSysRootedDirectory&& io_other) noexcept;
  ~ZELSysRootedDirectory();

  // False when there is no such directory or it may not be read. Whatever is asked of it then is empty.
  bool IsOpen() const noexcept;
  // One step down. Not open when the entry is no directory, is a link, or may not be read.
  ZELSysRootedDirectory OpenDirectory(std::string_view i_name) const;
  // One step after the other; no step at all opens this directory once more.
  ZELSysRootedDirectory OpenDescendant(const std::vector<std::string>& i_names) const;

  Stamp GetStamp() const;
  // Visits every entry but "." and "..", in the system's own order. False when the listing broke off.
  bool ForEachEntry(const Visitor& i_visitor) const;
  // Of the entry itself, never of what a link leads to. False when there is no such entry.
  bool GetDetails(std::string_view i_name, Details& o_details) const;

private:
  enum : std::intptr_t
  {
    NotOpen = -1
  };

  explicit ZELSysRootedDirectory(std::intptr_t i_handle) noexcept;
  ZELSysRootedDirectory Duplicate() const;

  std::intptr_t _handle;
};

#endif
