// The library VisuDialog of a test: writes what the panel is asked and answers the number in FailurePanelAnswer.
#include "ZELSYPCheck.h"

#include <cstdio>
#include <cstdlib>

extern "C" int ZELSYPShowFailurePanelIfNeeded(const char* i_message, const char* i_file, int i_line, const char* i_details)
{
  std::printf("panel: %s, %s, %d, %s\n", i_message, i_file, i_line, i_details ? i_details : "no details");
  return std::atoi(std::getenv("FailurePanelAnswer"));
}

namespace
{
const bool loaded = ZELSYP_CHECK_TRUE_AT(!std::getenv("FailurePanelFailsAtLoad"), 5);
}
