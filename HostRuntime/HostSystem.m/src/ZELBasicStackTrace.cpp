#include "ZELBasicStackTrace.h"

#include <algorithm>

void ZELBasicStackTrace::Print(std::FILE* io_stream, int i_maximum, int i_skip) const
{
  const int first = std::max(i_skip, 0);
  const int available = GetFrameCount() - first;
  const int count = i_maximum > 0 ? std::min(i_maximum, available) : available;
  for (int index = 0; index < count; ++index)
    std::fprintf(io_stream, "%2d# %s\n", index, Describe(first + index).c_str());
}
