#include "ZELSYPCheckFailureHandlerSetter.h"

#include "ZELSYPCheck.h"
#include "ZELSYPCheckFailureHandler.h"
#include "ZELSYPInstalledHandler.h"

namespace
{
enum class Reached
{
  Handler,
  NoHandler,
  UnloadedLibrary
};

// Runs i_call on the installed handler, with a reference on it and without the check lock.
template <typename Call>
Reached CallInstalledHandler(int i_line, Call i_call)
{
  ZELSYPCheckFailureHandler* pHandler = nullptr;
  {
    ZELSYPInstalledHandler installed(__FILE_NAME__, i_line);
    if (!installed.IsLoaded())
      return Reached::UnloadedLibrary;
    pHandler = installed.Get();
    if (!pHandler)
      return Reached::NoHandler;
    pHandler->AddRef();
  }
  i_call(*pHandler);
  pHandler->Release();
  return Reached::Handler;
}

template <typename Call>
void CallInstalledHandlerOrFail(const char* i_file, int i_line, int i_ownLine, Call i_call)
{
  if (CallInstalledHandler(i_ownLine, i_call) == Reached::NoHandler)
    CheckFailure__("This handler does not support ExpectFailures flag", i_file, i_line, nullptr);
}
} // namespace

void ZELSYPCheckFailureHandlerSetter::SetFailureHandler(ZELSYPCheckFailureHandler* i_pHandler)
{
  ZELSYPCheckFailureHandler* pReplaced = nullptr;
  {
    ZELSYPInstalledHandler installed(__FILE_NAME__, __LINE__);
    if (!installed.IsLoaded())
      return;
    if (i_pHandler)
      i_pHandler->AddRef();
    pReplaced = installed.Exchange(i_pHandler);
  }
  if (pReplaced)
    pReplaced->Release();
}

void ZELSYPCheckFailureHandlerSetter::SetExpectFailures()
{
  CallInstalledHandler(__LINE__, [](ZELSYPCheckFailureHandler& io_handler) { io_handler.SetExpectFailures(); });
}

void ZELSYPCheckFailureHandlerSetter::ResetExpectFailuresAndCheck(const char* i_file, int i_line)
{
  CallInstalledHandlerOrFail(i_file, i_line, __LINE__,
                             [=](ZELSYPCheckFailureHandler& io_handler) { io_handler.ResetExpectFailuresAndCheck(i_file, i_line); });
}

void ZELSYPCheckFailureHandlerSetter::ResetExpectFailuresAndCheckMsg(const char* i_file, int i_line, int i_expectedCount,
                                                                     const char* i_expectedText1, const char* i_expectedText2)
{
  CallInstalledHandlerOrFail(i_file, i_line, __LINE__,
                             [=](ZELSYPCheckFailureHandler& io_handler) {
                               io_handler.ResetExpectFailuresAndCheckMsg(i_file, i_line, i_expectedCount, i_expectedText1, i_expectedText2);
                             });
}
