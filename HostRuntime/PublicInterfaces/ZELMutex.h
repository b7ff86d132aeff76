// ZELMutex: a lock that one thread holds at a time.
// std::lock_guard<ZELMutex> hold(lock);
//
// It needs no clean-up: a lock in static storage serves from before the first constructor until after the last
// destructor of the process.
#ifndef ZELMutex_H
#define ZELMutex_H

#include "OPXHostRuntimeExport.h"

class OPXHOSTRUNTIME_EXPORT ZELMutex
{
public:
  // The three flags are the host's own; the locks of this host are all alike, and none may be taken twice by one thread.
  constexpr explicit ZELMutex(int = 0, int = 0, int = 0) noexcept {}
  ZELMutex(const ZELMutex&) = delete;
  ZELMutex& operator=(const ZELMutex&) = delete;

  void Lock();
  void Unlock();
  // 1 when the lock was taken, 0 when another thread holds it.
  int TryLock();

  // The names that std::lock_guard and its kin call.
  void lock() { Lock(); }
  void unlock() { Unlock(); }
  bool try_lock() { return TryLock() != 0; }

private:
  // Room for the system's own lock, which is free when all of it is 0.
  void* _state[5] = {};
};

#endif
