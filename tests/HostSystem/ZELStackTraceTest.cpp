#include "ZELStackTrace.h"

#include "ChildProcess.h"
#include "ChildProgram.h"

#include <gmock/gmock.h>
#include <sstream>
#include <thread>
#include <vector>

// Not static: its name must be known to the symbols of every platform.
__attribute__((noinline)) int PrintMyTrace(int i_maximum, int i_skip);
static const int lineOfTrace = __LINE__ + 4;
int PrintMyTrace(int i_maximum, int i_skip)
{
  ZELStackTrace trace;
  trace.GetTrace();
  trace.Print(stdout, i_maximum, i_skip);
  return trace.GetFrameCount();
}

OPX_CHILD_ENTRY(PrintTrace)
{
  // What is added keeps the call from being the function's last act, which would leave no frame of it.
  return PrintMyTrace(std::stoi(i_arguments[0]), std::stoi(i_arguments[1])) * 0;
}

namespace
{
std::vector<std::string> TraceLines(const std::string& i_maximum, const std::string& i_skip)
{
  std::istringstream text(ChildProcess::Self("PrintTrace", {i_maximum, i_skip}).Run().out);
  std::vector<std::string> lines;
  for (std::string line; std::getline(text, line);)
    lines.push_back(line);
  return lines;
}
} // namespace

TEST(ZELStackTraceTest, FirstFrameIsTheCallersWithItsFunctionFileAndLine)
{
  const std::vector<std::string> lines = TraceLines("0", "0");
  ASSERT_FALSE(lines.empty());
  EXPECT_THAT(lines[0], testing::StartsWith(" 0# PrintMyTrace"));
  EXPECT_THAT(lines[0], testing::HasSubstr("ZELStackTraceTest.cpp:" + std::to_string(lineOfTrace)));
}

TEST(ZELStackTraceTest, OutermostFramesLeadToMain)
{
  std::string all;
  for (const std::string& line : TraceLines("0", "0"))
    all += line + "\n";
  EXPECT_THAT(all, testing::HasSubstr("main"));
}

TEST(ZELStackTraceTest, MaximumLimitsTheFramesPrinted)
{
  EXPECT_EQ(TraceLines("2", "0").size(), 2u);
}

TEST(ZELStackTraceTest, SkippedFramesAreLeftOutAndTheRestIsNumberedFromZero)
{
  const std::vector<std::string> all = TraceLines("0", "0"), rest = TraceLines("0", "1");
  ASSERT_EQ(rest.size() + 1, all.size());
  EXPECT_THAT(rest[0], testing::StartsWith(" 0# "));
  EXPECT_THAT(rest[0], testing::Not(testing::HasSubstr("PrintMyTrace")));
}

TEST(ZELStackTraceTest, MoreSkippedThanThereArePrintsNothing)
{
  EXPECT_TRUE(TraceLines("0", "1000").empty());
}

TEST(ZELStackTraceTest, FrameOutsideTheTraceIsEmpty)
{
  ZELStackTrace trace;
  EXPECT_EQ(trace.Describe(0), "");
  trace.GetTrace();
  EXPECT_GT(trace.GetFrameCount(), 0);
  EXPECT_NE(trace.Describe(0), "");
  EXPECT_EQ(trace.Describe(-1), "");
  EXPECT_EQ(trace.Describe(trace.GetFrameCount()), "");
}

TEST(ZELStackTraceTest, SeveralThreadsDescribeAtOnce)
{
  std::vector<std::thread> threads;
  std::vector<std::string> texts(4);
  for (std::string& text : texts)
    threads.emplace_back(
        [&text]
        {
          ZELStackTrace trace;
          trace.GetTrace();
          text = trace.Describe(0);
        });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_THAT(texts, testing::Each(testing::Not(testing::IsEmpty())));
}
