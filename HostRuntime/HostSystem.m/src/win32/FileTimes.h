// FileTimes: the system's times as counts of 100-nanosecond intervals since 1601-01-01 UTC, and back.
// std::uint64_t written = FileTimes::FromSystem(information.ftLastWriteTime);
#ifndef FileTimes_H
#define FileTimes_H

#include <cstdint>
#include <windows.h>

namespace FileTimes
{
constexpr std::uint64_t TicksPerSecond = 10000000;

inline std::uint64_t FromSystem(const FILETIME& i_time)
{
  return static_cast<std::uint64_t>(i_time.dwHighDateTime) << 32 | i_time.dwLowDateTime;
}

inline FILETIME ToSystem(std::uint64_t i_time)
{
  return {static_cast<DWORD>(i_time), static_cast<DWORD>(i_time >> 32)};
}

inline std::uint64_t GetNow()
{
  FILETIME now;
  GetSystemTimeAsFileTime(&now);
  return FromSystem(now);
}
} // namespace FileTimes

#endif
