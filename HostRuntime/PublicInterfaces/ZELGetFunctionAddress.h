// ZELGetFunctionAddress: an entry of a library that may or may not be there.
// auto entry = reinterpret_cast<Entry>(ZELGetFunctionAddress("ShowPanel", "VisuDialog", nullptr, -1, 1, 0));
#ifndef ZELGetFunctionAddress_H
#define ZELGetFunctionAddress_H

#include "OPXHostRuntimeExport.h"

typedef void (*ZELFunctionAddress)();

// Loads the library with the bare name i_library (libNAME.so, NAME.dll) by the system's own search and answers its
// entry i_function, or null when either is missing or a name is null. i_alias, when not null, is the entry asked for if
// i_function is not there. The library stays loaded for the life of the process. i_version, i_load and i_report are the
// host's: -1 any version; i_load 0 asks only libraries that are loaded already; i_report 1 prints why it failed.
OPXHOSTRUNTIME_EXPORT ZELFunctionAddress ZELGetFunctionAddress(const char* i_function, const char* i_library, const char* i_alias,
                                                               int i_version, int i_load, int i_report);

#endif
