// The spinner on a terminal that the command script makes; Wine has no terminal to look at.
#include "OPXExplorerSpinner.h"

#include "ChildProcess.h"
#include "ChildProgram.h"

#include <chrono>
#include <gmock/gmock.h>
#include <thread>

using testing::MatchesRegex;

namespace
{
std::string WorkCommand(const std::string& i_milliseconds)
{
  return "'" + ChildProcess::GetProgram() + "' " + ChildProgram::Option + " WorkBeforeAPerson " + i_milliseconds;
}

// What a terminal is told.
std::string ShownBy(const std::string& i_command)
{
  const ChildResult result = ChildProcess("/usr/bin/script", {"-qec", i_command, "/dev/null"}).Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  return result.out;
}
} // namespace

OPX_CHILD_ENTRY(WorkBeforeAPerson)
{
  const OPXExplorerSpinner spinner("reading");
  std::this_thread::sleep_for(std::chrono::milliseconds(std::stoi(i_arguments.at(0))));
  return 0;
}

TEST(OPXExplorerSpinnerTest, TurnsWhileWorkTakesLongerThanHalfASecondAndLeavesNothing)
{
  const std::string shown = ShownBy(WorkCommand("1500"));
  EXPECT_THAT(shown, MatchesRegex("(\r[|/\\\\-] reading)+\r         \r"));
  EXPECT_EQ(shown.substr(0, 40), "\r| reading\r/ reading\r- reading\r\\ reading");
}

TEST(OPXExplorerSpinnerTest, ShortWorkShowsNothing)
{
  EXPECT_EQ(ShownBy(WorkCommand("0")), "");
}

TEST(OPXExplorerSpinnerTest, TurnsOnTheErrorStreamAlone)
{
  EXPECT_EQ(ShownBy(WorkCommand("700") + " 2>/dev/null"), "");
  EXPECT_NE(ShownBy(WorkCommand("700") + " >/dev/null"), "");
}

TEST(OPXExplorerSpinnerTest, NothingIsWrittenWhereNoPersonLooks)
{
  const ChildResult result = ChildProcess::Self("WorkBeforeAPerson", {"700"}).Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.out + result.err, "");
}
