#include "ZELMutex.h"

#include <pthread.h>

namespace
{
pthread_mutex_t* LockIn(void** io_state)
{
  return reinterpret_cast<pthread_mutex_t*>(io_state);
}
} // namespace

void ZELMutex::Lock()
{
  static_assert(sizeof(pthread_mutex_t) <= sizeof(_state) && alignof(pthread_mutex_t) <= alignof(void*));
  pthread_mutex_lock(LockIn(_state));
}

void ZELMutex::Unlock()
{
  pthread_mutex_unlock(LockIn(_state));
}

int ZELMutex::TryLock()
{
  return pthread_mutex_trylock(LockIn(_state)) == 0 ? 1 : 0;
}
