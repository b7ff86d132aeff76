// The ends of ZELSysStandardStreamsTest that are nobody, and what cannot be written: each system makes them in its own way.
#include "ChildProgram.h"
#include "ZELSysStandardStreams.h"

#include <windows.h>

OPX_CHILD_ENTRY(WriteToNobody)
{
  HANDLE read = nullptr, write = nullptr;
  if (!CreatePipe(&read, &write, nullptr, 0) || !CloseHandle(read) || !SetStdHandle(STD_OUTPUT_HANDLE, write))
    return 2;
  ZELSysPrepareStandardStreams();
  return ZELSysWriteStandardOutput("text") == std::errc::broken_pipe ? 0 : 1;
}

OPX_CHILD_ENTRY(WriteToWhatTakesNothing)
{
  HANDLE read = nullptr, write = nullptr;
  if (!CreatePipe(&read, &write, nullptr, 0) || !SetStdHandle(STD_OUTPUT_HANDLE, read))
    return 2;
  const std::error_code error = ZELSysWriteStandardOutput("text");
  return error == std::errc::permission_denied && !error.message().empty() ? 0 : 1;
}
