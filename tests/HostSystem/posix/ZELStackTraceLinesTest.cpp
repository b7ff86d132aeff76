// What a trace tells of a program that carries its lines; the Windows programs of this build carry none.
#include "ZELStackTrace.h"

#include <gmock/gmock.h>
#include <string>

TEST(ZELStackTraceLinesTest, FirstFrameIsTheCallersWithItsFunctionFileAndLine)
{
  ZELStackTrace trace;
  const int line = __LINE__ + 1;
  trace.GetTrace();
  EXPECT_THAT(trace.Describe(0), testing::HasSubstr("FirstFrameIsTheCallersWithItsFunctionFileAndLine"));
  EXPECT_THAT(trace.Describe(0), testing::HasSubstr("ZELStackTraceLinesTest.cpp:" + std::to_string(line)));
}

TEST(ZELStackTraceLinesTest, OuterFramesLeadToMain)
{
  ZELStackTrace trace;
  trace.GetTrace();
  std::string all;
  for (int i = 0; i < trace.GetFrameCount(); ++i)
    all += trace.Describe(i) + "\n";
  EXPECT_THAT(all, testing::HasSubstr("main at "));
}
