// The end of ZELSysStandardStreamsTest that is nobody, and one that is a terminal: each system makes them in its own way.
#include "ChildProcess.h"
#include "ChildProgram.h"
#include "ZELSysStandardStreams.h"

#include <gtest/gtest.h>
#include <unistd.h>

OPX_CHILD_ENTRY(WriteToNobody)
{
  int ends[2];
  if (pipe(ends) != 0 || close(ends[0]) != 0 || dup2(ends[1], STDOUT_FILENO) < 0)
    return 2;
  ZELSysPrepareStandardStreams();
  return ZELSysWriteStandardOutput("text") ? 1 : 0;
}

TEST(StreamEndsTest, ATerminalIsWhereAPersonLooks)
{
  const std::string command = "'" + ChildProcess::GetProgram() + "' " + ChildProgram::Option + " TellWhetherAPersonLooks";
  EXPECT_EQ(ChildProcess("/usr/bin/script", {"-qec", command, "/dev/null"}).Run().code, 1);
  EXPECT_EQ(ChildProcess("/usr/bin/script", {"-qec", command + " 2>/dev/null", "/dev/null"}).Run().code, 0);
}
