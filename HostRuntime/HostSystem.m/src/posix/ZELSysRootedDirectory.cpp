#include "ZELSysRootedDirectory.h"

#include "EntryNames.h"
#include "FileTimes.h"
#include "SettledTime.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr int directoryFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK;
constexpr std::string_view separators("/\0", 2);

ZELSysRootedDirectory::Kind GetKind(mode_t i_mode)
{
  if (S_ISDIR(i_mode))
    return ZELSysRootedDirectory::Directory;
  if (S_ISREG(i_mode))
    return ZELSysRootedDirectory::File;
  return S_ISLNK(i_mode) ? ZELSysRootedDirectory::Link : ZELSysRootedDirectory::Other;
}

// Not every file system tells the kind with the name.
ZELSysRootedDirectory::Kind GetKind(int i_directory, const dirent& i_entry)
{
  struct stat status
  {
  };
  if (i_entry.d_type != DT_UNKNOWN)
    return GetKind(static_cast<mode_t>(DTTOIF(i_entry.d_type)));
  const bool isKnown = fstatat(i_directory, i_entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0;
  return isKnown ? GetKind(status.st_mode) : ZELSysRootedDirectory::Other;
}

// A stream closes its descriptor, so that it is given one of its own.
DIR* OpenStream(int i_directory)
{
  const int copy = fcntl(i_directory, F_DUPFD_CLOEXEC, 0);
  DIR* const pStream = copy < 0 ? nullptr : fdopendir(copy);
  if (pStream)
    rewinddir(pStream);
  else if (copy >= 0)
    close(copy);
  return pStream;
}
} // namespace

ZELSysRootedDirectory::ZELSysRootedDirectory(const ZELUnicodeString& i_path, std::error_code* o_pError)
{
  const std::string path(i_path.GetUTF8());
  _handle = open(path.c_str(), directoryFlags);
  if (!IsOpen() && o_pError)
    *o_pError = {errno, std::system_category()};
}

ZELSysRootedDirectory::~ZELSysRootedDirectory()
{
  if (IsOpen())
    close(static_cast<int>(_handle));
}

ZELSysRootedDirectory ZELSysRootedDirectory::OpenDirectory(std::string_view i_name) const
{
  if (!IsOpen() || !IsEntryName(i_name, separators))
    return ZELSysRootedDirectory(NotOpen);
  return ZELSysRootedDirectory(openat(static_cast<int>(_handle), std::string(i_name).c_str(), directoryFlags | O_NOFOLLOW));
}

ZELSysRootedDirectory ZELSysRootedDirectory::Duplicate() const
{
  return ZELSysRootedDirectory(fcntl(static_cast<int>(_handle), F_DUPFD_CLOEXEC, 0));
}

ZELSysRootedDirectory::Stamp ZELSysRootedDirectory::GetStamp() const
{
  Stamp stamp;
  struct stat status
  {
  };
  if (fstat(static_cast<int>(_handle), &status) != 0)
    return stamp;
  stamp.volume = status.st_dev;
  stamp.object = status.st_ino;
  stamp.lastWrite = FileTimes::FromSystem(status.st_mtim);
  stamp.lastChange = FileTimes::FromSystem(status.st_ctim);
  stamp.isSettled = IsSettled(stamp.lastChange);
  return stamp;
}

bool ZELSysRootedDirectory::ForEachEntry(const Visitor& i_visitor) const
{
  DIR* const pStream = OpenStream(static_cast<int>(_handle));
  if (!pStream)
    return false;
  errno = 0;
  while (const dirent* const pEntry = readdir(pStream))
  {
    const std::string_view name = pEntry->d_name;
    if (!IsDots(name))
      i_visitor(name, GetKind(dirfd(pStream), *pEntry));
    errno = 0;
  }
  const bool isWhole = errno == 0;
  closedir(pStream);
  return isWhole;
}

bool ZELSysRootedDirectory::GetDetails(std::string_view i_name, Details& o_details) const
{
  struct stat status
  {
  };
  const int directory = static_cast<int>(_handle);
  if (!IsEntryName(i_name, separators) || fstatat(directory, std::string(i_name).c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
    return false;
  o_details.size = S_ISREG(status.st_mode) ? static_cast<std::uint64_t>(status.st_size) : 0;
  o_details.lastWriteTime = FileTimes::FromSystem(status.st_mtim);
  return true;
}
