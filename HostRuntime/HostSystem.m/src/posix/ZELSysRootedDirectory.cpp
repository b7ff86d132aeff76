#include "ZELSysRootedDirectory.h"

#include <cerrno>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace
{
constexpr std::intptr_t notOpen = -1;
constexpr int directoryFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK;
constexpr std::uint64_t ticksPerSecond = 10000000;
constexpr std::uint64_t secondsFrom1601To1970 = 11644473600;

bool IsEntryName(std::string_view i_name)
{
  return !i_name.empty() && i_name != "." && i_name != ".." && i_name.find_first_of(std::string_view("/\0", 2)) == i_name.npos;
}

std::uint64_t GetTicks(const timespec& i_time)
{
  const std::int64_t seconds = i_time.tv_sec + static_cast<std::int64_t>(secondsFrom1601To1970);
  return seconds < 0 ? 0 : static_cast<std::uint64_t>(seconds) * ticksPerSecond + static_cast<std::uint64_t>(i_time.tv_nsec) / 100;
}

// A file system counts its times in steps: of a few milliseconds, or of up to two seconds when it keeps no fraction.
bool IsSettled(const timespec& i_changed)
{
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  const std::uint64_t step = i_changed.tv_nsec == 0 ? 2 * ticksPerSecond : ticksPerSecond / 20;
  return GetTicks(i_changed) + step < GetTicks(now);
}

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

ZELSysRootedDirectory::ZELSysRootedDirectory(const ZELUnicodeString& i_path)
    : _handle(open(std::string(i_path.GetUTF8()).c_str(), directoryFlags))
{
}

ZELSysRootedDirectory::ZELSysRootedDirectory(std::intptr_t i_handle) noexcept : _handle(i_handle) {}

ZELSysRootedDirectory::ZELSysRootedDirectory(ZELSysRootedDirectory&& io_other) noexcept : _handle(std::exchange(io_other._handle, notOpen))
{
}

ZELSysRootedDirectory& ZELSysRootedDirectory::operator=(ZELSysRootedDirectory&& io_other) noexcept
{
  std::swap(_handle, io_other._handle);
  return *this;
}

ZELSysRootedDirectory::~ZELSysRootedDirectory()
{
  if (IsOpen())
    close(static_cast<int>(_handle));
}

bool ZELSysRootedDirectory::IsOpen() const noexcept
{
  return _handle != notOpen;
}

ZELSysRootedDirectory ZELSysRootedDirectory::OpenDirectory(std::string_view i_name) const
{
  if (!IsOpen() || !IsEntryName(i_name))
    return ZELSysRootedDirectory(notOpen);
  return ZELSysRootedDirectory(openat(static_cast<int>(_handle), std::string(i_name).c_str(), directoryFlags | O_NOFOLLOW));
}

ZELSysRootedDirectory ZELSysRootedDirectory::Duplicate() const
{
  return ZELSysRootedDirectory(IsOpen() ? fcntl(static_cast<int>(_handle), F_DUPFD_CLOEXEC, 0) : notOpen);
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
  stamp.lastWrite = GetTicks(status.st_mtim);
  stamp.lastChange = GetTicks(status.st_ctim);
  stamp.isSettled = IsSettled(status.st_ctim);
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
    if (name != "." && name != "..")
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
  if (!IsEntryName(i_name) || fstatat(directory, std::string(i_name).c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
    return false;
  o_details.size = S_ISREG(status.st_mode) ? static_cast<std::uint64_t>(status.st_size) : 0;
  o_details.lastWriteTime = GetTicks(status.st_mtim);
  return true;
}
