#include "ChildProcess.h"
#include "ChildProgram.h"
#include "FailureHandlerInstaller.h"
#include "ReportText.h"
#include "ZELSYPCheck.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <cstdlib>

namespace
{
const std::string StackHeading = "\n   Trying to obtain the call stack:\n";
const std::string Terminating = "   calling ZELTerminate to end the process.\n";

// A child whose application has a panel that always answers i_answer.
ChildProcess WithPanel(const std::string& i_entry, int i_answer)
{
  return ChildProcess::Self(i_entry)
      .Set("ZELDevelopmentStage", "1")
      .SearchLibrariesIn(ChildProcess::GetProgramFolder() + "/FailurePanel")
      .Set("FailurePanelAnswer", std::to_string(i_answer));
}

ChildProcess WithoutPanel(const std::string& i_entry)
{
  return ChildProcess::Self(i_entry).Set("ZELDevelopmentStage", "1");
}

// The failure ended the process, and i_before is what it printed before the call stack.
void ExpectEndAfter(const std::string& i_before, const ChildResult& i_result)
{
  EXPECT_FALSE(i_result.ended) << i_result;
  EXPECT_EQ(ReportText::Of(i_result.err), i_before + StackHeading + "FRAMES\n" + Terminating);
}
} // namespace

OPX_CHILD_ENTRY(FailOneCheck)
{
  CheckFailure__("pointer i_p is NULL", "Some.cpp", 12, nullptr);
  std::puts("went on");
  return 0;
}

OPX_CHILD_ENTRY(FailOneCheckWithDetails)
{
  CheckFailure__("pointer i_p is NULL", "Some.cpp", 12, "some details");
  std::puts("went on");
  return 0;
}

OPX_CHILD_ENTRY(FailChecksAtSeveralPlaces)
{
  CheckFailure__("first", "Some.cpp", 12, nullptr);
  CheckFailure__("same place, other message", "Some.cpp", 12, nullptr);
  CheckFailure__("other file", "Other.cpp", 12, nullptr);
  CheckFailure__("other line", "Some.cpp", 13, nullptr);
  CheckFailure__("first", "Some.cpp", 12, nullptr);
  return 0;
}

OPX_CHILD_ENTRY(FailAgainAfterTheHandlerWasReplaced)
{
  CheckFailure__("first", "Some.cpp", 12, nullptr);
  FailureHandlerInstaller::SetFailureHandler(nullptr);
  CheckFailure__("again", "Some.cpp", 12, nullptr);
  return 0;
}

OPX_CHILD_ENTRY(FailWithoutTexts)
{
  CheckFailure__(nullptr, nullptr, 12, nullptr);
  return 0;
}

OPX_CHILD_ENTRY(PrintAndFail)
{
  std::printf("before");
  CheckFailure__("message", "Some.cpp", 12, nullptr);
  return 0;
}

OPX_CHILD_ENTRY(EndAnExpectationThatNobodyTakes)
{
  FailureHandlerInstaller::SetExpectFailures();
  FailureHandlerInstaller::ResetExpectFailuresAndCheck("Some.cpp", 12);
  FailureHandlerInstaller::ResetExpectFailuresAndCheckMsg("Some.cpp", 13, 1, "", "");
  return 0;
}

TEST(ZELSYPDefaultCheckFailureHandler, IsSilentOutsideTheDevelopmentStage)
{
  for (const char* stage : {"0", "", "2", "11"})
  {
    const ChildResult result = WithPanel("FailOneCheckWithDetails", 0).Set("ZELDevelopmentStage", stage).Run();
    EXPECT_TRUE(result.Succeeded()) << result;
    EXPECT_EQ(result.out, "went on\n");
    EXPECT_EQ(result.err, "");
  }
  EXPECT_EQ(WithPanel("FailOneCheck", 0).Unset("ZELDevelopmentStage").Run().out, "went on\n");
}

TEST(ZELSYPDefaultCheckFailureHandler, SaysNothingOfANullFileOutsideTheDevelopmentStage)
{
  const ChildResult result = WithPanel("FailWithoutTexts", 0).Set("ZELDevelopmentStage", "0").Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.err, "");
}

TEST(ZELSYPDefaultCheckFailureHandler, PrintsTheFailureAndTheStackAndEndsTheProcessWithoutAPanel)
{
  const ChildResult result = WithoutPanel("FailOneCheck").Run();
  EXPECT_EQ(result.out, "");
  ExpectEndAfter("\n** FAILURE Some.cpp:12: pointer i_p is NULL\n", result);
}

TEST(ZELSYPDefaultCheckFailureHandler, PrintsDetailsOnALineOfTheirOwn)
{
  ExpectEndAfter("\n** FAILURE Some.cpp:12: pointer i_p is NULL\n           some details\n", WithoutPanel("FailOneCheckWithDetails").Run());
}

TEST(ZELSYPDefaultCheckFailureHandler, FlushesTheOutputBeforeItsReport)
{
  EXPECT_EQ(WithoutPanel("PrintAndFail").Run().out, "before");
}

TEST(ZELSYPDefaultCheckFailureHandler, AsksThePanelWithAllItKnows)
{
  EXPECT_EQ(WithPanel("FailOneCheck", 1).Run().out, "panel: pointer i_p is NULL, Some.cpp, 12, no details\nwent on\n");
  EXPECT_EQ(WithPanel("FailOneCheckWithDetails", 1).Run().out, "panel: pointer i_p is NULL, Some.cpp, 12, some details\nwent on\n");
}

TEST(ZELSYPDefaultCheckFailureHandler, GoesOnWithoutAStackWhenTheUserContinues)
{
  const ChildResult result = WithPanel("FailOneCheck", 1).Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.err, "\n** FAILURE Some.cpp:12: pointer i_p is NULL\n");
}

TEST(ZELSYPDefaultCheckFailureHandler, EndsTheProcessWhenTheUserStops)
{
  ExpectEndAfter("\n** FAILURE Some.cpp:12: pointer i_p is NULL\n", WithPanel("FailOneCheck", 0).Run());
}

TEST(ZELSYPDefaultCheckFailureHandler, PrintsAnUnknownAnswerAndEndsTheProcess)
{
  ExpectEndAfter("\n** FAILURE Some.cpp:12: pointer i_p is NULL\n"
                 "Internal error in ZELSYPDefaultCheckFailureHandler.cpp LINE, invalid value 7!\n",
                 WithPanel("FailOneCheck", 7).Run());
}

TEST(ZELSYPDefaultCheckFailureHandler, HidesOneFileAndLineWhateverTheMessage)
{
  const ChildResult result = WithPanel("FailChecksAtSeveralPlaces", 2).Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.out, "panel: first, Some.cpp, 12, no details\n"
                        "panel: other file, Other.cpp, 12, no details\n"
                        "panel: other line, Some.cpp, 13, no details\n");
  EXPECT_EQ(result.err, "\n** FAILURE Some.cpp:12: first\n"
                        "\n   The user has decided to hide all other occurences of the check:\n   Some.cpp:12\n"
                        "\n** FAILURE Other.cpp:12: other file\n"
                        "\n   The user has decided to hide all other occurences of the check:\n   Other.cpp:12\n"
                        "\n** FAILURE Some.cpp:13: other line\n"
                        "\n   The user has decided to hide all other occurences of the check:\n   Some.cpp:13\n");
}

TEST(ZELSYPDefaultCheckFailureHandler, ForgetsHiddenChecksWhenItIsUninstalled)
{
  const ChildResult result = WithPanel("FailAgainAfterTheHandlerWasReplaced", 2).Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.out, "panel: first, Some.cpp, 12, no details\npanel: again, Some.cpp, 12, no details\n");
}

TEST(ZELSYPDefaultCheckFailureHandler, TakesANullFileAsAnEmptyOneAndPrintsThatTwice)
{
  ExpectEndAfter("Internal error in ZELSYPCheckKey.cpp LINE, NULL value!\n"
                 "Internal error in ZELSYPCheckKey.cpp LINE, NULL value!\n"
                 "\n** FAILURE :12: \n",
                 WithoutPanel("FailWithoutTexts").Run());
}

TEST(ZELSYPDefaultCheckFailureHandler, ReportsAFailureOfThePanelsLibraryWithoutThePanel)
{
  ExpectEndAfter("\n** FAILURE Some.cpp:12: pointer i_p is NULL\n"
                 "\n** FAILURE FailurePanel.cpp:5: boolean !std::getenv(\"FailurePanelFailsAtLoad\") is FALSE\n",
                 WithPanel("FailOneCheck", 1).Set("FailurePanelFailsAtLoad", "1").Run());
}

TEST(ZELSYPDefaultCheckFailureHandler, IsMadeByTheEndOfAnExpectationThatNobodyTakes)
{
  const ChildResult result = WithPanel("EndAnExpectationThatNobodyTakes", 1).Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.err, "\n** FAILURE Some.cpp:12: This handler does not support ExpectFailures flag\n"
                        "\n** FAILURE Some.cpp:13: This handler does not support ExpectFailures flag\n"
                        "\n** FAILURE Some.cpp:13: This handler does not support advance functionalities of ExpectFailures\n");
}

TEST(ZELSYPDefaultCheckFailureHandler, EndsACoverageRunToo)
{
  ExpectEndAfter("\n** FAILURE Some.cpp:12: pointer i_p is NULL\n", WithoutPanel("FailOneCheck").Set("debuggerMode", "QMCov").Run());
}
