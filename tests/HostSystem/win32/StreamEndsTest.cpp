// The end of ZELSysStandardStreamsTest that is nobody: each system makes it in its own way.
#include "ChildProgram.h"
#include "ZELSysStandardStreams.h"

#include <windows.h>

OPX_CHILD_ENTRY(WriteToNobody)
{
  HANDLE read = nullptr, write = nullptr;
  if (!CreatePipe(&read, &write, nullptr, 0) || !CloseHandle(read) || !SetStdHandle(STD_OUTPUT_HANDLE, write))
    return 2;
  ZELSysPrepareStandardStreams();
  return ZELSysWriteStandardOutput("text") ? 1 : 0;
}
