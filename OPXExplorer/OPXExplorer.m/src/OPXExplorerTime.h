// OPXExplorerTime: a moment of the file system as a text.
// OPXExplorerTime::MakeISO8601(132539328000000000) == "2021-01-01T00:00:00Z"
#ifndef OPXExplorerTime_H
#define OPXExplorerTime_H

#include <cstdint>
#include <string>

class OPXExplorerTime
{
public:
  // i_ticks: 100-nanosecond intervals since 1601-01-01 UTC. Whole seconds, in UTC.
  static std::string MakeISO8601(std::uint64_t i_ticks);
};

#endif
