// OPXCoreServices: the debugger as failure reports see it, and a string conversion.
// if (OPXCoreServices::IsDebuggerPresent()) OPXCoreServices::DebugBreak();
//
// Any thread.
#ifndef OPXCoreServices_H
#define OPXCoreServices_H

#include "OPXCoreToolsExport.h"

#include <string>

class ZELUnicodeString;

class OPXCORETOOLS_EXPORT OPXCoreServices
{
public:
  // Stops in the debugger. Without one the process is ended by the system's own trap.
  static void DebugBreak();
  // Whether a debugger is attached to this process. Always false where the environment variable "debuggerMode" was
  // exactly "QMCov" when the library was loaded: coverage runs never stop in a debugger.
  static bool IsDebuggerPresent();
  // The text in the system code page, up to its first zero.
  static std::string StdStringFromZELUnicodeString(const ZELUnicodeString& i_text);
};

#endif
