#include "ZELProcess.h"

#include <windows.h>

void ZELTerminate()
{
  // Not abort(): the runtime library may show a dialog first, and waits for an answer that nobody gives.
  TerminateProcess(GetCurrentProcess(), static_cast<UINT>(STATUS_FATAL_APP_EXIT));
  for (;;)
    Sleep(INFINITE);
}

int ZELGetProcessId()
{
  return static_cast<int>(GetCurrentProcessId());
}

bool ZELSysIsDebuggerPresent()
{
  return IsDebuggerPresent() != 0;
}

void ZELSysDebugBreak()
{
  DebugBreak();
}
