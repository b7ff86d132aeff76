#include "ZELMutex.h"

#include <windows.h>

namespace
{
SRWLOCK* LockIn(void** io_state)
{
  return reinterpret_cast<SRWLOCK*>(io_state);
}
} // namespace

void ZELMutex::Lock()
{
  static_assert(sizeof(SRWLOCK) <= sizeof(_state) && alignof(SRWLOCK) <= alignof(void*));
  AcquireSRWLockExclusive(LockIn(_state));
}

void ZELMutex::Unlock()
{
  ReleaseSRWLockExclusive(LockIn(_state));
}

int ZELMutex::TryLock()
{
  return TryAcquireSRWLockExclusive(LockIn(_state)) ? 1 : 0;
}
