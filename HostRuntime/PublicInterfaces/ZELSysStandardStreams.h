// The process's own streams and arguments, byte for byte, on every system.
// ZELSysPrepareStandardStreams(); while (int count = ZELSysReadStandardInput(buffer, sizeof buffer)) ...
//
// One thread a stream. Nothing throws but for want of memory.
#ifndef ZELSysStandardStreams_H
#define ZELSysStandardStreams_H

#include "OPXHostRuntimeExport.h"
#include "ZELUnicodeString.h"

#include <string_view>
#include <system_error>
#include <vector>

// Once, before the first use: no line ends are translated, a console shows UTF-8, and a reader that has gone away makes
// a write fail instead of ending the process.
OPXHOSTRUNTIME_EXPORT void ZELSysPrepareStandardStreams();

// What is there, as soon as there is anything: how many bytes, at most i_size; 0 at the end of the input or when it
// cannot be read.
OPXHOSTRUNTIME_EXPORT int ZELSysReadStandardInput(char* o_buffer, int i_size);

// Everything, or why not; std::errc::broken_pipe: nobody reads any more. Nothing is held back.
OPXHOSTRUNTIME_EXPORT std::error_code ZELSysWriteStandardOutput(std::string_view i_text);
OPXHOSTRUNTIME_EXPORT std::error_code ZELSysWriteStandardError(std::string_view i_text);

// Whether a person sees the standard error stream.
OPXHOSTRUNTIME_EXPORT bool ZELSysIsStandardErrorTerminal();

// The program's arguments without its name, as main was given them; on Windows the wide ones, of which main sees only
// the narrow view.
OPXHOSTRUNTIME_EXPORT std::vector<ZELUnicodeString> ZELSysGetArguments(int i_count, const char* const* i_pArguments);

#endif
