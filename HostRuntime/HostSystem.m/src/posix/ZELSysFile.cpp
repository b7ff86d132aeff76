#include "ZELSysFile.h"

#include "SystemPath.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr std::int64_t TicksPerSecond = 10000000;
constexpr std::int64_t NanosecondsPerTick = 100;
// From 1601-01-01 to 1970-01-01.
constexpr std::int64_t SecondsBeforeEpoch = 11644473600;

// The lock belongs to this open, so that another open of the same process fails as well as another process's. A file
// system without such locks has nothing to refuse.
bool IsHeldByAnother(int i_file)
{
  return flock(i_file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

bool IsDirectory(int i_file)
{
  struct stat status;
  return fstat(i_file, &status) == 0 && S_ISDIR(status.st_mode);
}

int OpenAlone(const char* i_path, int i_flags)
{
  // Not blocking: the answer about a pipe that nobody writes must not be waited for.
  const int file = open(i_path, i_flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (file < 0 || (!IsDirectory(file) && !IsHeldByAnother(file)))
    return file;
  close(file);
  return -1;
}
} // namespace

ZELSysFile::ZELSysFile(const char* i_path, Mode i_mode)
    : _handle(OpenAlone(SystemPath(i_path).Get(), i_mode == Write ? O_WRONLY : O_RDONLY))
{
}

ZELSysFile::~ZELSysFile()
{
  if (IsOpen())
    close(static_cast<int>(_handle));
}

bool ZELSysFile::IsOpen() const noexcept
{
  return _handle >= 0;
}

std::uint32_t ZELSysFile::GetSizeLow() const
{
  struct stat status;
  return fstat(static_cast<int>(_handle), &status) == 0 ? static_cast<std::uint32_t>(status.st_size) : 0xFFFFFFFF;
}

std::uint64_t ZELSysFile::GetLastWriteTime() const
{
  struct stat status;
  if (fstat(static_cast<int>(_handle), &status) != 0)
    return 0;
  const std::int64_t seconds = status.st_mtim.tv_sec + SecondsBeforeEpoch;
  // What lies before 1601 has no count: it is the beginning.
  return seconds < 0 ? 0 : static_cast<std::uint64_t>(seconds * TicksPerSecond + status.st_mtim.tv_nsec / NanosecondsPerTick);
}

bool ZELSysFile::SetLastWriteTime(std::uint64_t i_time)
{
  timespec times[2] = {};
  times[0].tv_nsec = UTIME_OMIT;
  times[1].tv_sec = static_cast<std::int64_t>(i_time / TicksPerSecond) - SecondsBeforeEpoch;
  times[1].tv_nsec = static_cast<long>(i_time % TicksPerSecond) * NanosecondsPerTick;
  return futimens(static_cast<int>(_handle), times) == 0;
}
