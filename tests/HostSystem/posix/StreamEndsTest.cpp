// The ends of ZELSysStandardStreamsTest that are nobody, a full disk and a terminal: each system makes them in its own way.
#include "ChildProcess.h"
#include "ChildProgram.h"
#include "ZELSysStandardStreams.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

OPX_CHILD_ENTRY(WriteToNobody)
{
  int ends[2];
  if (pipe(ends) != 0 || close(ends[0]) != 0 || dup2(ends[1], STDOUT_FILENO) < 0)
    return 2;
  ZELSysPrepareStandardStreams();
  return ZELSysWriteStandardOutput("text") == std::errc::broken_pipe ? 0 : 1;
}

OPX_CHILD_ENTRY(WriteToWhatTakesNothing)
{
  if (dup2(open("/dev/full", O_WRONLY | O_CLOEXEC), STDOUT_FILENO) < 0)
    return 2;
  const std::error_code error = ZELSysWriteStandardOutput("text");
  return error == std::errc::no_space_on_device && error.message() == "No space left on device" ? 0 : 1;
}

TEST(StreamEndsTest, ATerminalIsWhereAPersonLooks)
{
  const std::string command = "'" + ChildProcess::GetProgram() + "' " + ChildProgram::Option + " TellWhetherAPersonLooks";
  EXPECT_EQ(ChildProcess("/usr/bin/script", {"-qec", command, "/dev/null"}).Run().code, 1);
  EXPECT_EQ(ChildProcess("/usr/bin/script", {"-qec", command + " 2>/dev/null", "/dev/null"}).Run().code, 0);
}
