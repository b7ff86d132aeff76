// Every entry point of the checks, each as a function without arguments that can be found by name.
#include "FailureHandlerInstaller.h"
#include "ZELSYPCheck.h"

#include <cstdio>

namespace
{
void TellReturn()
{
  std::fprintf(stderr, "returned\n");
}
} // namespace

extern "C"
{
  void CallCheckFailure()
  {
    CheckFailure__("message", "Some.cpp", 1, nullptr);
    TellReturn();
  }
  void CallCheckTrue()
  {
    Check_TRUE_Failed__("expression", "Some.cpp", 1, nullptr);
    TellReturn();
  }
  void CallCheckPointer()
  {
    Check_Pointer_Failed__("expression", "Some.cpp", 1, "details");
    TellReturn();
  }
  void CallCheckHandler()
  {
    Check_Handler_Failed__("expression", "Some.cpp", 1, nullptr);
    TellReturn();
  }
  void CallSetFailureHandler()
  {
    FailureHandlerInstaller::SetFailureHandler(nullptr);
    TellReturn();
  }
  void CallSetExpectFailures()
  {
    FailureHandlerInstaller::SetExpectFailures();
    TellReturn();
  }
  void CallResetExpectFailuresAndCheck()
  {
    FailureHandlerInstaller::ResetExpectFailuresAndCheck("Some.cpp", 1);
    TellReturn();
  }
  void CallResetExpectFailuresAndCheckMsg()
  {
    FailureHandlerInstaller::ResetExpectFailuresAndCheckMsg("Some.cpp", 1, 0, "", "");
    TellReturn();
  }
}
