#include "ChildProcess.h"
#include "ReportText.h"

#include <gmock/gmock.h>

#include <regex>

namespace
{
ChildResult CallAfterUnload(const std::string& i_entry)
{
  return ChildProcess(ChildProcess::Beside("late_checks"), {i_entry})
      .Set("ZELDevelopmentStage", "1")
      .SearchLibrariesIn(ChildProcess::GetProgramFolder())
      .SearchLibrariesIn(ChildProcess::GetProgramFolder() + "/LateChecks")
      .Run();
}

struct Entry
{
  const char* name;
  const char* file;
};
class UnloadedChecks : public testing::TestWithParam<Entry>
{
};
} // namespace

TEST_P(UnloadedChecks, PrintThatTheyWereCalledAndDoNothingElse)
{
  const ChildResult result = CallAfterUnload(GetParam().name);
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(ReportText::Of(result.err), "** INTERNAL ERROR in " + std::string(GetParam().file) +
                                            ".cpp LINE, called after this linked library has been unloaded\nreturned\n");
}

TEST(UnloadedChecksOfTheSetter, PrintTheirOwnLines)
{
  int before = 1;
  for (const char* const name :
       {"CallSetFailureHandler", "CallSetExpectFailures", "CallResetExpectFailuresAndCheck", "CallResetExpectFailuresAndCheckMsg"})
  {
    const std::string err = CallAfterUnload(name).err;
    std::smatch line;
    ASSERT_TRUE(std::regex_search(err, line, std::regex("ZELSYPCheckFailureHandlerSetter\\.cpp ([0-9]+),"))) << err;
    // They stand in this order.
    EXPECT_GT(std::stoi(line[1]), before) << name;
    before = std::stoi(line[1]);
  }
}

INSTANTIATE_TEST_SUITE_P(EveryEntryPoint, UnloadedChecks,
                         testing::Values(Entry{"CallCheckFailure", "ZELSYPCheck"}, Entry{"CallCheckTrue", "ZELSYPCheck"},
                                         Entry{"CallCheckPointer", "ZELSYPCheck"}, Entry{"CallCheckHandler", "ZELSYPCheck"},
                                         Entry{"CallSetFailureHandler", "ZELSYPCheckFailureHandlerSetter"},
                                         Entry{"CallSetExpectFailures", "ZELSYPCheckFailureHandlerSetter"},
                                         Entry{"CallResetExpectFailuresAndCheck", "ZELSYPCheckFailureHandlerSetter"},
                                         Entry{"CallResetExpectFailuresAndCheckMsg", "ZELSYPCheckFailureHandlerSetter"}),
                         [](const testing::TestParamInfo<Entry>& i_entry) { return std::string(i_entry.param.name); });
