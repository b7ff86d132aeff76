#include "ZELSYPDefaultCheckFailureHandler.h"

#include "OPXCoreServices.h"
#include "ZELProcess.h"
#include "ZELSYPFailurePanel.h"
#include "ZELStackTrace.h"

#include <cstdio>
#include <memory>
#include <mutex>
#include <new>

namespace
{
const char* EmptyIfNull(const char* i_text)
{
  return i_text ? i_text : "";
}

void PrintFailure(const char* i_message, const char* i_file, int i_line, const char* i_details)
{
  std::fflush(stdout);
  if (i_details)
    std::fprintf(stderr, "\n** FAILURE %s:%d: %s\n           %s\n", EmptyIfNull(i_file), i_line, EmptyIfNull(i_message), i_details);
  else
    std::fprintf(stderr, "\n** FAILURE %s:%d: %s\n", EmptyIfNull(i_file), i_line, EmptyIfNull(i_message));
  std::fflush(stderr);
}

// A report goes on without the frames that it finds no memory for.
void PrintFrames()
{
  try
  {
    ZELStackTrace trace;
    trace.GetTrace();
    trace.Print(stderr, 0, 0);
  }
  catch (const std::bad_alloc&)
  {
  }
}

void PrintStack()
{
  std::fprintf(stderr, "\n   Trying to obtain the call stack:\n");
  std::fflush(stderr);
  PrintFrames();
  std::fflush(stderr);
}

void BreakOrTerminate()
{
  const bool debugged = OPXCoreServices::IsDebuggerPresent();
  std::fputs(debugged ? "   there is a debugger, so calling DebugBreak to wake it.\n" : "   calling ZELTerminate to end the process.\n",
             stderr);
  std::fflush(stderr);
  if (!debugged)
    ZELTerminate();
  OPXCoreServices::DebugBreak();
}
} // namespace

ZELSYPDefaultCheckFailureHandler::~ZELSYPDefaultCheckFailureHandler()
{
  for (int position = 0; position < _hiddenChecks.Size(); ++position)
    delete static_cast<ZELSYPCheckKey*>(_hiddenChecks.Get(position));
}

void ZELSYPDefaultCheckFailureHandler::HandleFailure(const char* i_message, const char* i_file, int i_line, const char* i_details)
{
  if (!ZELDevelopmentStage(0) || IsHidden(i_file, i_line))
    return;
  PrintFailure(i_message, i_file, i_line, i_details);
  if (HasUserDecided(i_message, i_file, i_line, i_details))
    return;
  PrintStack();
  BreakOrTerminate();
}

bool ZELSYPDefaultCheckFailureHandler::IsHidden(const char* i_file, int i_line)
{
  const ZELSYPCheckKey key(i_file, i_line);
  std::lock_guard<ZELMutex> hold(_hiddenChecksLock);
  return key.IsWhole() && _hiddenChecks.Locate(&key);
}

// False when there is no panel, and when its answer is to stop.
bool ZELSYPDefaultCheckFailureHandler::HasUserDecided(const char* i_message, const char* i_file, int i_line, const char* i_details)
{
  const ZELSYPFailurePanel::Entry ask = ZELSYPFailurePanel::GetEntry();
  const int answer = ask ? ask(i_message, i_file, i_line, i_details) : ZELSYPFailurePanel::Stop;
  if (answer == ZELSYPFailurePanel::Hide)
    Hide(i_file, i_line);
  else if (answer != ZELSYPFailurePanel::Continue && answer != ZELSYPFailurePanel::Stop)
    std::fprintf(stderr, "Internal error in %s %d, invalid value %d!\n", __FILE_NAME__, __LINE__, answer);
  return answer == ZELSYPFailurePanel::Continue || answer == ZELSYPFailurePanel::Hide;
}

void ZELSYPDefaultCheckFailureHandler::Hide(const char* i_file, int i_line)
{
  std::fprintf(stderr, "\n   The user has decided to hide all other occurences of the check:\n   %s:%d\n", EmptyIfNull(i_file), i_line);
  std::unique_ptr<ZELSYPCheckKey> pKey(new (std::nothrow) ZELSYPCheckKey(i_file, i_line));
  const int inserted = Insert(pKey && pKey->IsWhole() ? pKey.get() : nullptr);
  if (inserted == 1)
    (void)pKey.release();
  else if (inserted != 0)
    std::fprintf(stderr, "Internal error in %s %d, Failed to insert element, rc is %d!\n", __FILE_NAME__, __LINE__, inserted);
}

int ZELSYPDefaultCheckFailureHandler::Insert(ZELSYPCheckKey* i_pKey)
{
  std::lock_guard<ZELMutex> hold(_hiddenChecksLock);
  return _hiddenChecks.Insert(i_pKey);
}
