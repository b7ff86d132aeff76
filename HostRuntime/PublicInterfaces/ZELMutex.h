// ZELMutex: a lock that one thread holds at a time.
// std::lock_guard<ZELMutex> hold(lock);
//
// It needs no clean-up: a lock in static storage serves from before the first constructor until after the last
// destructor of the process.
#ifndef ZELMutex_H
#define ZELMutex_H

#include <mutex>

class ZELMutex
{
public:
  // The three flags are the host's own; the locks of this host are all alike, and none may be taken twice by one thread.
  constexpr explicit ZELMutex(int = 0, int = 0, int = 0) noexcept {}
  ZELMutex(const ZELMutex&) = delete;
  ZELMutex& operator=(const ZELMutex&) = delete;

  void Lock() { _mutex.lock(); }
  void Unlock() { _mutex.unlock(); }
  // 1 when the lock was taken, 0 when another thread holds it.
  int TryLock() { return _mutex.try_lock() ? 1 : 0; }

  // The names that std::lock_guard and its kin call.
  void lock() { Lock(); }
  void unlock() { Unlock(); }
  bool try_lock() { return TryLock() != 0; }

private:
  std::mutex _mutex;
};

#endif
