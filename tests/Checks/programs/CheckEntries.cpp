// Every entry point of the checks, each as a function without arguments that can be found by name.
#include "ZELSYPCheck.h"
#include "ZELSYPCheckFailureHandlerSetter.h"

#include <cstdio>

namespace
{
class Setter : public ZELSYPCheckFailureHandlerSetter
{
public:
  using ZELSYPCheckFailureHandlerSetter::ResetExpectFailuresAndCheck;
  using ZELSYPCheckFailureHandlerSetter::ResetExpectFailuresAndCheckMsg;
  using ZELSYPCheckFailureHandlerSetter::SetExpectFailures;
  using ZELSYPCheckFailureHandlerSetter::SetFailureHandler;
};

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
    Setter::SetFailureHandler(nullptr);
    TellReturn();
  }
  void CallSetExpectFailures()
  {
    Setter::SetExpectFailures();
    TellReturn();
  }
  void CallResetExpectFailuresAndCheck()
  {
    Setter::ResetExpectFailuresAndCheck("Some.cpp", 1);
    TellReturn();
  }
  void CallResetExpectFailuresAndCheckMsg()
  {
    Setter::ResetExpectFailuresAndCheckMsg("Some.cpp", 1, 0, "", "");
    TellReturn();
  }
}
