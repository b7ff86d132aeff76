#include "ZELProcess.h"

#include "ChildProcess.h"
#include "ChildProgram.h"

#include <cstdio>
#include <cstdlib>
#include <gmock/gmock.h>

namespace
{
void PrintAtExit()
{
  std::puts("at exit");
}
} // namespace

OPX_CHILD_ENTRY(PrintVariable)
{
  const char* value = ZELGetEnv(i_arguments[0].c_str());
  std::printf("%s", value ? value : "(not set)");
  return 0;
}

OPX_CHILD_ENTRY(AnswerDevelopmentStage)
{
  return ZELDevelopmentStage(0);
}

OPX_CHILD_ENTRY(Terminate)
{
  std::atexit(&PrintAtExit);
  ZELTerminate();
}

OPX_CHILD_ENTRY(Exit)
{
  std::atexit(&PrintAtExit);
  ZELExit(std::atoi(i_arguments[0].c_str()));
}

OPX_CHILD_ENTRY(BreakIntoDebugger)
{
  ZELSysDebugBreak();
  return 0;
}

OPX_CHILD_ENTRY(PrintProcessId)
{
  std::printf("%d", ZELGetProcessId());
  return 0;
}

TEST(ZELProcessTest, EnvironmentIsReadAsItStands)
{
  EXPECT_EQ(ChildProcess::Self("PrintVariable", {"OPX_A"}).Set("OPX_A", "some text = here").Run().out, "some text = here");
  EXPECT_EQ(ChildProcess::Self("PrintVariable", {"OPX_A"}).Unset("OPX_A").Run().out, "(not set)");
}

TEST(ZELProcessTest, NullNameHasNoValue)
{
  EXPECT_EQ(ZELGetEnv(nullptr), nullptr);
}

TEST(ZELProcessTest, DevelopmentStageIsActiveForExactlyOne)
{
  const auto stage = [](const char* i_value)
  { return ChildProcess::Self("AnswerDevelopmentStage").Set("ZELDevelopmentStage", i_value).Run().code; };
  EXPECT_EQ(stage("1"), 1);
  EXPECT_EQ(stage("0"), 0);
  EXPECT_EQ(stage("11"), 0);
  EXPECT_EQ(stage("true"), 0);
  EXPECT_EQ(ChildProcess::Self("AnswerDevelopmentStage").Unset("ZELDevelopmentStage").Run().code, 0);
}

TEST(ZELProcessTest, TerminateEndsAbnormallyWithoutExitCallbacks)
{
  const ChildResult result = ChildProcess::Self("Terminate").Run();
  EXPECT_FALSE(result.ended) << result;
  EXPECT_FALSE(result.timedOut) << result;
  EXPECT_EQ(result.out, "");
}

TEST(ZELProcessTest, ExitRunsTheExitCallbacksAndGivesItsCode)
{
  const ChildResult result = ChildProcess::Self("Exit", {"7"}).Run();
  EXPECT_TRUE(result.ended) << result;
  EXPECT_EQ(result.code, 7);
  EXPECT_EQ(result.out, "at exit\n");
}

TEST(ZELProcessTest, BreakWithoutADebuggerEndsTheProcess)
{
  const ChildResult result = ChildProcess::Self("BreakIntoDebugger").Run();
  EXPECT_FALSE(result.ended) << result;
  EXPECT_FALSE(result.timedOut) << result;
}

TEST(ZELProcessTest, NoDebuggerIsPresentInATest)
{
  EXPECT_FALSE(ZELSysIsDebuggerPresent());
}

TEST(ZELProcessTest, EachProcessHasItsOwnNumber)
{
  const std::string child = ChildProcess::Self("PrintProcessId").Run().out;
  EXPECT_GT(std::atoi(child.c_str()), 0);
  EXPECT_NE(child, std::to_string(ZELGetProcessId()));
}
