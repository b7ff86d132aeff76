// A failing check under a debugger, seen from outside: what gdb is told, and that the program goes on.
#include "ChildProcess.h"
#include "ChildProgram.h"

#include <gmock/gmock.h>

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace
{
// Runs FailOneCheck under the debugger, which goes on twice: after the wake-up, and in vain after the end.
ChildResult FailUnderDebugger(const std::string& i_debuggerMode)
{
  return ChildProcess("/usr/bin/gdb", {"-nx", "-batch", "-ex", "set debuginfod enabled off", "-ex", "run", "-ex", "continue", "--args",
                                       ChildProcess::GetProgram(), ChildProgram::Option, "FailOneCheck"})
      .Set("ZELDevelopmentStage", "1")
      .Set("ASAN_OPTIONS", "detect_leaks=0")
      .Set("debuggerMode", i_debuggerMode)
      .Run();
}
} // namespace

TEST(DebuggedChecks, WakeTheDebuggerAndGoOnWhenItContinues)
{
  for (const char* mode : {"", "QMCov2", "qmcov"})
  {
    const ChildResult result = FailUnderDebugger(mode);
    EXPECT_THAT(result.err, HasSubstr("   there is a debugger, so calling DebugBreak to wake it.\n")) << result;
    EXPECT_THAT(result.out, AllOf(HasSubstr("SIGTRAP"), HasSubstr("went on\n"), HasSubstr("exited normally"))) << result;
  }
}

TEST(DebuggedChecks, NeverBreakInACoverageRun)
{
  const ChildResult result = FailUnderDebugger("QMCov");
  EXPECT_THAT(result.err, HasSubstr("   calling ZELTerminate to end the process.\n")) << result;
  EXPECT_THAT(result.out, AllOf(Not(HasSubstr("SIGTRAP")), HasSubstr("SIGABRT"))) << result;
}
