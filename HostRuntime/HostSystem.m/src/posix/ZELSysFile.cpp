#include "ZELSysFile.h"

#include "FileTimes.h"
#include "SystemPath.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
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
  return fstat(static_cast<int>(_handle), &status) == 0 ? FileTimes::FromSystem(status.st_mtim) : 0;
}

bool ZELSysFile::SetLastWriteTime(std::uint64_t i_time)
{
  const timespec times[] = {{0, UTIME_OMIT}, FileTimes::ToSystem(i_time)};
  return futimens(static_cast<int>(_handle), times) == 0;
}
