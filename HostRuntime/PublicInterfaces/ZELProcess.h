// The process as the host sees it: environment, development stage, end of process, debugger.
// if (ZELDevelopmentStage(0)) ...
#ifndef ZELProcess_H
#define ZELProcess_H

#include "OPXHostRuntimeExport.h"

// The value of an environment variable as it stands now, or null when it is not set or the name is null. The answer
// stays valid until the variable is changed.
OPXHOSTRUNTIME_EXPORT const char* ZELGetEnv(const char* i_name);

// 1 while the development stage is active: the environment variable ZELDevelopmentStage is exactly "1". i_reserved is
// the host's own and must be 0.
OPXHOSTRUNTIME_EXPORT int ZELDevelopmentStage(int i_reserved);

// Ends the process abnormally, at once: no exit callback runs, and a core is dumped where cores are on.
[[noreturn]] OPXHOSTRUNTIME_EXPORT void ZELTerminate();

// Ends the process with i_code as after a return from main, which runs the exit callbacks and the static destructors.
[[noreturn]] OPXHOSTRUNTIME_EXPORT void ZELExit(int i_code);

// The system's number of this process.
OPXHOSTRUNTIME_EXPORT int ZELGetProcessId();

// Whether a debugger is attached to this process now, and a break into it: without one the process is ended by the
// system's own trap.
OPXHOSTRUNTIME_EXPORT bool ZELSysIsDebuggerPresent();
OPXHOSTRUNTIME_EXPORT void ZELSysDebugBreak();

#endif
