// FileTimes: the system's times as counts of 100-nanosecond intervals since 1601-01-01 UTC, and back.
// std::uint64_t written = FileTimes::FromSystem(status.st_mtim);
#ifndef FileTimes_H
#define FileTimes_H

#include <cstdint>
#include <ctime>

namespace FileTimes
{
constexpr std::uint64_t TicksPerSecond = 10000000;
constexpr std::int64_t NanosecondsPerTick = 100;
constexpr std::int64_t SecondsFrom1601To1970 = 11644473600;

// What lies before 1601, or beyond the year 60000, has no count: it is the nearest that there is.
inline std::uint64_t FromSystem(const timespec& i_time)
{
  constexpr auto maxSeconds = static_cast<std::int64_t>(UINT64_MAX / TicksPerSecond) - SecondsFrom1601To1970;
  if (i_time.tv_sec < -SecondsFrom1601To1970)
    return 0;
  if (i_time.tv_sec >= maxSeconds)
    return UINT64_MAX;
  return static_cast<std::uint64_t>(i_time.tv_sec + SecondsFrom1601To1970) * TicksPerSecond +
         static_cast<std::uint64_t>(i_time.tv_nsec / NanosecondsPerTick);
}

inline timespec ToSystem(std::uint64_t i_time)
{
  timespec time{};
  time.tv_sec = static_cast<std::int64_t>(i_time / TicksPerSecond) - SecondsFrom1601To1970;
  time.tv_nsec = static_cast<std::int64_t>(i_time % TicksPerSecond) * NanosecondsPerTick;
  return time;
}

inline std::uint64_t GetNow()
{
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  return FromSystem(now);
}
} // namespace FileTimes

#endif
