#include "ZELSysFile.h"

#include "FileTimes.h"
#include "SystemPath.h"

#include <windows.h>

namespace
{
constexpr DWORD NoSharing = 0;

HANDLE AsHandle(std::intptr_t i_handle)
{
  return reinterpret_cast<HANDLE>(i_handle);
}
} // namespace

ZELSysFile::ZELSysFile(const char* i_path, Mode i_mode)
    : _handle(reinterpret_cast<std::intptr_t>(CreateFileA(SystemPath(i_path).Get(), i_mode == Write ? GENERIC_WRITE : GENERIC_READ,
                                                          NoSharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)))
{
}

ZELSysFile::~ZELSysFile()
{
  if (IsOpen())
    CloseHandle(AsHandle(_handle));
}

bool ZELSysFile::IsOpen() const noexcept
{
  return AsHandle(_handle) != INVALID_HANDLE_VALUE;
}

std::uint32_t ZELSysFile::GetSizeLow() const
{
  return GetFileSize(AsHandle(_handle), nullptr);
}

std::uint64_t ZELSysFile::GetLastWriteTime() const
{
  FILETIME time;
  return GetFileTime(AsHandle(_handle), nullptr, nullptr, &time) ? FileTimes::FromSystem(time) : 0;
}

bool ZELSysFile::SetLastWriteTime(std::uint64_t i_time)
{
  const FILETIME time = FileTimes::ToSystem(i_time);
  return SetFileTime(AsHandle(_handle), nullptr, nullptr, &time) != 0;
}
