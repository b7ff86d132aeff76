// ZELStackTrace: the call stack of the thread that asks, with function, file and line where the program carries them.
// ZELStackTrace trace; trace.GetTrace(); trace.Print(stderr, 0, 0);
//
// On Windows file and line appear only where DbgHelp reads the program's debug information.
#ifndef ZELStackTrace_H
#define ZELStackTrace_H

#include "ZELBasicStackTrace.h"

class OPXHOSTRUNTIME_EXPORT ZELStackTrace : public ZELBasicStackTrace
{
public:
  // Captures the calling thread's stack, its caller's frame first. Replaces what was captured before.
  void GetTrace();
};

#endif
