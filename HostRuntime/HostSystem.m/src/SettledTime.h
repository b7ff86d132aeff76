// IsSettled: whether a time of change tells of every change to come.
// stamp.isSettled = IsSettled(FileTimes::FromSystem(status.st_ctim));
#ifndef SettledTime_H
#define SettledTime_H

#include "FileTimes.h"

// File systems count their times in steps: of a few milliseconds, or of up to two seconds when they keep no fraction.
// Within the step of the last change another one leaves the same time.
inline bool IsSettled(std::uint64_t i_changed)
{
  const std::uint64_t step = i_changed % FileTimes::TicksPerSecond == 0 ? 2 * FileTimes::TicksPerSecond : FileTimes::TicksPerSecond / 20;
  return i_changed < FileTimes::GetNow() - step;
}

#endif
