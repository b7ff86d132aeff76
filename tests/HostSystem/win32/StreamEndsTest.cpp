// A standard stream whose other end is nobody: each system makes it in its own way.
#include "ChildProcess.h"
#include "ChildProgram.h"
#include "ZELSysStandardStreams.h"

#include <gtest/gtest.h>
#include <windows.h>

OPX_CHILD_ENTRY(WriteToNobody)
{
  HANDLE read = nullptr, write = nullptr;
  if (!CreatePipe(&read, &write, nullptr, 0) || !CloseHandle(read) || !SetStdHandle(STD_OUTPUT_HANDLE, write))
    return 2;
  ZELSysPrepareStandardStreams();
  return ZELSysWriteStandardOutput("text") ? 1 : 0;
}

TEST(StreamEndsTest, AReaderThatHasGoneMakesAWriteFailAndEndsNothing)
{
  const ChildResult result = ChildProcess::Self("WriteToNobody").Run();
  EXPECT_TRUE(result.Succeeded()) << result;
}
