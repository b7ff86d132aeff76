#include "ZELStackTrace.h"

#include "ChildProcess.h"
#include "ChildProgram.h"

#include <gmock/gmock.h>
#include <sstream>
#include <thread>
#include <vector>

// Not static: its name must be known to the symbols of every platform.
__attribute__((noinline)) int PrintMyTrace(int i_maximum, int i_skip);
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

// How much is known of a frame depends on what its program carries; where it is, is always told.
TEST(ZELStackTraceTest, EveryFrameIsNumberedAndPlaced)
{
  const std::vector<std::string> lines = TraceLines("0", "0");
  ASSERT_FALSE(lines.empty());
  for (std::size_t i = 0; i < lines.size(); ++i)
    EXPECT_THAT(lines[i], testing::AllOf(testing::HasSubstr(std::to_string(i) + "# "),
                                         testing::AnyOf(testing::HasSubstr(" at "), testing::HasSubstr(" in "))));
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
