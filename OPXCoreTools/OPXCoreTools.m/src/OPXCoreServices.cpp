#include "OPXCoreServices.h"

#include "ZELProcess.h"
#include "ZELUnicodeString.h"

#include <cstring>

namespace
{
bool IsCoverageRun()
{
  const char* mode = ZELGetEnv("debuggerMode");
  return mode && std::strcmp(mode, "QMCov") == 0;
}

const bool coverageRun = IsCoverageRun();
} // namespace

void OPXCoreServices::DebugBreak()
{
  ZELSysDebugBreak();
}

bool OPXCoreServices::IsDebuggerPresent()
{
  return !coverageRun && ZELSysIsDebuggerPresent();
}

std::string OPXCoreServices::StdStringFromZELUnicodeString(const ZELUnicodeString& i_text)
{
  return i_text.GetNarrow();
}
