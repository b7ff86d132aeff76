#include "ZELSYPCheckFailureHandler.h"

#include "ZELEvent.h"

#include <cstdio>
#include <mutex>

namespace
{
bool HasEvent(const ZELEvent* i_pEvent, int i_line)
{
  if (!i_pEvent)
    std::fprintf(stderr, "** INTERNAL ERROR in %s %d, NULL event?\n", __FILE_NAME__, i_line);
  return i_pEvent != nullptr;
}
} // namespace

ZELSYPCheckFailureHandler::ZELSYPCheckFailureHandler() : _pFreeEvent(CreateZELEvent(1))
{
  if (!_pFreeEvent)
    std::fprintf(stderr, "** INTERNAL ERROR in %s %d, Failed to create the event\n", __FILE_NAME__, __LINE__);
}

ZELSYPCheckFailureHandler::~ZELSYPCheckFailureHandler()
{
  delete _pFreeEvent;
}

void ZELSYPCheckFailureHandler::SetExpectFailures() {}

void ZELSYPCheckFailureHandler::ResetExpectFailuresAndCheck(const char* i_file, int i_line)
{
  HandleFailure("This handler does not support ExpectFailures flag", i_file, i_line, nullptr);
}

void ZELSYPCheckFailureHandler::ResetExpectFailuresAndCheckMsg(const char* i_file, int i_line, int i_expectedCount,
                                                               const char* i_expectedText1, const char* i_expectedText2)
{
  ResetExpectFailuresAndCheck(i_file, i_line);
  if (i_expectedCount != 0 || *i_expectedText1 || *i_expectedText2)
    HandleFailure("This handler does not support advance functionalities of ExpectFailures", i_file, i_line, nullptr);
}

void ZELSYPCheckFailureHandler::AddRef()
{
  std::lock_guard<ZELMutex> hold(_refLock);
  ++_refcount;
}

void ZELSYPCheckFailureHandler::Release()
{
  if (DropReference())
    Destroy();
}

void ZELSYPCheckFailureHandler::AddRefAndMark()
{
  AddRef();
  std::lock_guard<ZELMutex> hold(_markLock);
  ++_markCount;
  if (HasEvent(_pFreeEvent, __LINE__))
    _pFreeEvent->Reset();
}

void ZELSYPCheckFailureHandler::ReleaseAndUnmark()
{
  bool last = false;
  {
    std::lock_guard<ZELMutex> hold(_markLock);
    if (HasEvent(_pFreeEvent, __LINE__) && _markCount == 1)
      _pFreeEvent->Signal();
    --_markCount;
    last = DropReference();
  }
  if (last)
    Destroy();
}

void ZELSYPCheckFailureHandler::WaitForFreeEvent()
{
  if (HasEvent(_pFreeEvent, __LINE__))
    WaitForSingleEvent(_pFreeEvent, -1);
}

bool ZELSYPCheckFailureHandler::DropReference()
{
  std::lock_guard<ZELMutex> hold(_refLock);
  return --_refcount == 0;
}

void ZELSYPCheckFailureHandler::Destroy()
{
  // A thread that dropped its reference just before this one may be about to leave its lock: the memory waits for it.
  _markLock.Lock();
  _markLock.Unlock();
  delete this;
}
