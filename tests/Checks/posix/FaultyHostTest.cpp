// The checks in a program whose host is out of order (see programs/FaultyHost.cpp). Only this platform's loader lets a
// program stand in for what a library calls; the code that is run is the same on every platform.
#include "../ReportText.h"
#include "ChildProcess.h"

#include <gmock/gmock.h>

#include <cstdint>

namespace
{
const std::string LookUp = "looked up ZELSYPShowFailurePanelIfNeeded, VisuDialog, null, -1, 1, 0\n";
const std::string Failure = "\n** FAILURE Some.cpp:12: message\n";
const std::string NullEvent = "** INTERNAL ERROR in ZELSYPCheckFailureHandler.cpp LINE, NULL event?\n";
const std::string NullValue = "Internal error in ZELSYPCheckKey.cpp LINE, NULL value!\n";
const std::string Hidden = "\n   The user has decided to hide all other occurences of the check:\n   Some.cpp:12\n";
const std::string NotInserted = "Internal error in ZELSYPDefaultCheckFailureHandler.cpp LINE, Failed to insert element, rc is -1!\n";
const std::string Woken = "\n   Trying to obtain the call stack:\nFRAMES\n   there is a debugger, so calling DebugBreak to wake it.\n";

ChildResult RunCase(const std::string& i_case, const std::string& i_argument = "")
{
  return ChildProcess(ChildProcess::Beside("faulty_host"), {i_case, i_argument}).Set("ZELDevelopmentStage", "1").Run();
}

class FaultyHostMemory : public testing::Test
{
protected:
  void SetUp() override
  {
    if (RunCase("AskForMemory").out == "granted\nwent on\n")
      GTEST_SKIP() << "this sanitizer's runtime keeps its own operators, which grant memory always";
  }
};

// What it wrote; the process went on to its own end.
void ExpectToGoOn(const ChildResult& i_result, const std::string& i_out, const std::string& i_err)
{
  EXPECT_TRUE(i_result.Succeeded()) << i_result;
  EXPECT_EQ(i_result.out, i_out + "went on\n");
  EXPECT_EQ(ReportText::Of(i_result.err), i_err);
}

int HashOf(const std::string& i_file, std::uint32_t i_line)
{
  std::uint32_t hash = 0;
  for (const char byte : i_file)
    hash = hash * 31 + static_cast<std::uint32_t>(static_cast<signed char>(byte));
  return static_cast<int>(hash * 31 + i_line);
}
} // namespace

TEST_F(FaultyHostMemory, IsRefusedToTheDefaultHandler)
{
  ExpectToGoOn(RunCase("FailWithoutMemoryForTheHandler"), "",
               "** INTERNAL ERROR in ZELSYPCheck.cpp LINE, failed to create the default handler");
}

TEST_F(FaultyHostMemory, IsRefusedToAMessageAndTheExpressionIsReported)
{
  ExpectToGoOn(RunCase("FailWithoutMemoryForTheMessage"), "i_pNode, Some.cpp, 12\n", "** INTERNAL ERROR in ZELSYPCheck.cpp LINE\n");
}

TEST_F(FaultyHostMemory, IsRefusedToAHiddenCheckWhichIsNotHiddenThen)
{
  ExpectToGoOn(RunCase("FailWithoutAnyMemory", "2"), LookUp, Failure + Failure + Hidden + NotInserted);
}

TEST_F(FaultyHostMemory, IsRefusedToTheCallStackWhichIsLeftOut)
{
  ExpectToGoOn(RunCase("FailWithoutAnyMemory", "0"), LookUp + "break\n",
               Failure + Failure + "\n   Trying to obtain the call stack:\n   there is a debugger, so calling DebugBreak to wake it.\n");
}

TEST(FaultyHost, FindsNoMemoryForThePanelOfWhichThereIsNoneThen)
{
  const std::string once = Failure + Woken;
  ExpectToGoOn(RunCase("FailToLookThePanelUp"), LookUp + "break\nbreak\n", once + once);
}

TEST(FaultyHost, FailsToFormatAndWhatTheBufferHoldsIsReported)
{
  ExpectToGoOn(RunCase("FailWithoutFormatting"), "pointer i_p, Some.cpp, 12\n", "** INTERNAL ERROR in ZELSYPCheck.cpp LINE\n");
}

TEST(FaultyHost, GivesNoEventAndTheHandlerServesWithoutOne)
{
  ExpectToGoOn(RunCase("FailWithoutAnEvent"), "message, Some.cpp, 12\n",
               "** INTERNAL ERROR in ZELSYPCheckFailureHandler.cpp LINE, Failed to create the event\n" + NullEvent + NullEvent);
}

TEST(FaultyHost, GivesNoEventAndNobodyWaitsForIt)
{
  ExpectToGoOn(RunCase("WaitWithoutAnEvent"), "",
               "** INTERNAL ERROR in ZELSYPCheckFailureHandler.cpp LINE, Failed to create the event\n" + NullEvent);
}

TEST(FaultyHost, TakesNoHiddenCheckWhichIsThenReportedAgain)
{
  const std::string once = Failure + Hidden + NotInserted;
  ExpectToGoOn(RunCase("HideTwice"), LookUp, once + once);
}

// As when another thread was asked about the same check at the same time.
TEST(FaultyHost, HasHiddenTheCheckMeanwhileAndNothingIsSaidOfThat)
{
  ExpectToGoOn(RunCase("HideWhatIsHiddenMeanwhile"), LookUp, Failure + Hidden);
}

TEST(FaultyHost, IsAskedForTheWholeStack)
{
  const std::string err = RunCase("FailOnce").err;
  EXPECT_NE(err.find("call stack:\n 0# at most 0 without the first 0\n"), std::string::npos) << err;
}

TEST(FaultyHost, PassesNullKeysWhichHashToNothingAndEqualNothing)
{
  ExpectToGoOn(RunCase("PassNullKeys"), "0, 0, 0, 0\n" + LookUp, NullValue + NullValue + NullValue + NullValue + NullValue + Failure);
}

TEST(FaultyHost, SeesTheHashOfACheckKey)
{
  EXPECT_EQ(HashOf("", 12), 12);
  EXPECT_EQ(HashOf("ab", 12), (97 * 31 + 98) * 31 + 12);
  for (const std::string file : {"", "ab", "\xC3\xA9.cpp", "AVeryLongNameOfASourceFileThatOverflows.cpp"})
    EXPECT_EQ(RunCase("HashTheKeyOfLineTwelve", file).out, std::to_string(HashOf(file, 12)) + "\n" + LookUp + "went on\n");
}

TEST(FaultyHost, IsAskedForThePanelOnce)
{
  ExpectToGoOn(RunCase("FailInThreeHandlers", "1"), LookUp, Failure + Failure + Failure);
}

TEST(FaultyHost, IsAskedOnceForAPanelThatItDoesNotHave)
{
  const std::string once = Failure + Woken;
  ExpectToGoOn(RunCase("FailInThreeHandlers", "-1"), LookUp + "break\nbreak\nbreak\n", once + once + once);
}
