// What is settled once: when the library is loaded, at the first failure, when the library goes.
#include "ChildProcess.h"
#include "ChildProgram.h"
#include "DebuggedProgram.h"
#include "FailureHandlerInstaller.h"
#include "OPXCoreServices.h"
#include "TemporaryTree.h"
#include "ZELGetFunctionAddress.h"
#include "ZELSYPCheck.h"
#include "ZELSYPCheckFailureHandler.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace fs = std::filesystem;

namespace
{
// Tells of its end and nothing else.
class PartingHandler : public ZELSYPCheckFailureHandler
{
public:
  ~PartingHandler() override { std::fputs("the handler went\n", stderr); }
  void HandleFailure(const char*, const char*, int, const char*) override {}
};

void TellWhetherDebugged()
{
  std::puts(OPXCoreServices::IsDebuggerPresent() ? "debugged" : "not debugged");
}
} // namespace

OPX_CHILD_ENTRY(ChangeTheDebuggerMode)
{
  TellWhetherDebugged();
  static std::string variable;
  variable = "debuggerMode=" + i_arguments.at(0);
  putenv(variable.data());
  TellWhetherDebugged();
  CheckFailure__("message", "Some.cpp", 1, nullptr);
  return 0;
}

OPX_CHILD_ENTRY(FailBeforeAndAfterThePanelCame)
{
  CheckFailure__("first", "Some.cpp", 1, nullptr);
  fs::copy(fs::u8path(i_arguments.at(0)), fs::u8path(i_arguments.at(1)));
  CheckFailure__("second", "Some.cpp", 2, nullptr);
  const bool isThere = ZELGetFunctionAddress("ZELSYPShowFailurePanelIfNeeded", "VisuDialog", nullptr, -1, 1, 0) != nullptr;
  std::puts(isThere ? "the panel came" : "no panel came");
  return 0;
}

OPX_CHILD_ENTRY(EndWithAHandlerInstalled)
{
  PartingHandler* const pHandler = new PartingHandler;
  FailureHandlerInstaller::SetFailureHandler(pHandler);
  pHandler->Release();
  std::fputs("ending\n", stderr);
  return 0;
}

TEST(LoadTime, SettlesThatADebuggedProgramIsDebugged)
{
  const auto result = DebuggedProgram::Run("ChangeTheDebuggerMode", {"QMCov"}, {{"ZELDevelopmentStage", "1"}, {"debuggerMode", "qmcov"}});
  EXPECT_EQ(result.breaks, 1) << result.text;
  EXPECT_TRUE(result.succeeded) << result.text;
  EXPECT_THAT(result.text, AllOf(HasSubstr("debugged\n"), Not(HasSubstr("not debugged")),
                                 HasSubstr("   there is a debugger, so calling DebugBreak to wake it.\n")));
}

TEST(LoadTime, SettlesThatACoverageRunIsNotDebugged)
{
  const auto result = DebuggedProgram::Run("ChangeTheDebuggerMode", {"other"}, {{"ZELDevelopmentStage", "1"}, {"debuggerMode", "QMCov"}});
  EXPECT_EQ(result.breaks, 0) << result.text;
  EXPECT_FALSE(result.succeeded) << result.text;
  EXPECT_THAT(result.text, AllOf(HasSubstr("   calling ZELTerminate to end the process.\n"), Not(HasSubstr("there is a debugger"))));
}

// The debugger keeps the process alive after the first failure.
TEST(FirstFailure, SettlesThatThereIsNoPanel)
{
  TemporaryTree tree;
  tree.AddDirectory("libraries");
  const std::string folder = tree.SystemPath("libraries").u8string();
  const auto result = DebuggedProgram::Run("FailBeforeAndAfterThePanelCame", {ChildProcess::GetProgramFolder() + "/FailurePanel", folder},
                                           {{"ZELDevelopmentStage", "1"}, {"FailurePanelAnswer", "1"}}, folder);
  EXPECT_EQ(result.breaks, 2) << result.text;
  EXPECT_TRUE(result.succeeded) << result.text;
  EXPECT_THAT(result.text, AllOf(HasSubstr("the panel came\n"), Not(HasSubstr("panel: "))));
}

TEST(UnloadTime, LetsGoOfTheInstalledHandler)
{
  const ChildResult result = ChildProcess::Self("EndWithAHandlerInstalled").Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.err, "ending\nthe handler went\n");
}
