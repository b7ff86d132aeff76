// ZELSYPCheckFailureHandlerSetter: how code replaces the failure handler of the process.
// class Installer : ZELSYPCheckFailureHandlerSetter { public: using ZELSYPCheckFailureHandlerSetter::SetFailureHandler; };
//
// It is derived from, and has nothing but static operations. Any thread. Once the library is unloaded each of them
// prints "** INTERNAL ERROR in %s %d, called after this linked library has been unloaded" on the standard error stream
// and does nothing else.
#ifndef ZELSYPCheckFailureHandlerSetter_H
#define ZELSYPCheckFailureHandlerSetter_H

#include "OPXCoreToolsExport.h"

class ZELSYPCheckFailureHandler;

class OPXCORETOOLS_EXPORT ZELSYPCheckFailureHandlerSetter
{
protected:
  // Installs i_pHandler, on which the library then holds a reference, and drops the reference on the one installed
  // before. Null uninstalls: the next failure makes a new default handler.
  static void SetFailureHandler(ZELSYPCheckFailureHandler* i_pHandler);
  // Tells the installed handler that failures are expected. With none installed nothing happens.
  static void SetExpectFailures();
  // Hands the end of the stretch to the installed handler. With none installed it is a failure of its own: "This handler
  // does not support ExpectFailures flag" at i_file and i_line.
  static void ResetExpectFailuresAndCheck(const char* i_file, int i_line);
  static void ResetExpectFailuresAndCheckMsg(const char* i_file, int i_line, int i_expectedCount, const char* i_expectedText1,
                                             const char* i_expectedText2);
};

#endif
