// ZELAtomicCounter: a count of references that any thread changes, without locked instructions while there is one thread.
// ZELAtomicCounter count(1); count.Increment(); if (count.Decrement() == 0) delete this;
//
// 4 bytes. Nothing throws.
#ifndef ZELAtomicCounter_H
#define ZELAtomicCounter_H

#include <cstdint>
#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

class ZELAtomicCounter
{
public:
  constexpr explicit ZELAtomicCounter(std::int32_t i_first) noexcept : _count(i_first) {}
  ZELAtomicCounter(const ZELAtomicCounter&) = delete;
  ZELAtomicCounter& operator=(const ZELAtomicCounter&) = delete;

  // What the system vouches for; one that does not tell says false for ever.
  static bool ProcessHasOneThread() noexcept;

  std::int32_t Get() const noexcept { return __atomic_load_n(&_count, __ATOMIC_RELAXED); }
  void Set(std::int32_t i_count) noexcept { __atomic_store_n(&_count, i_count, __ATOMIC_RELAXED); }

  // Both answer the count that stands then. Whoever brings it to 0 sees all that was done under the other references.
  std::int32_t Increment() noexcept { return ProcessHasOneThread() ? ++_count : __atomic_add_fetch(&_count, 1, __ATOMIC_RELAXED); }
  std::int32_t Decrement() noexcept { return ProcessHasOneThread() ? --_count : __atomic_sub_fetch(&_count, 1, __ATOMIC_ACQ_REL); }
  // Decrement() == 0, for which the processor keeps no count.
  bool DecrementToZero() noexcept { return ProcessHasOneThread() ? --_count == 0 : __atomic_sub_fetch(&_count, 1, __ATOMIC_ACQ_REL) == 0; }

private:
  // No std::atomic: the one thread counts by one instruction in memory, which what is atomic is never compiled to.
  std::int32_t _count;
};

inline bool ZELAtomicCounter::ProcessHasOneThread() noexcept
{
#if __has_include(<sys/single_threaded.h>)
  return __libc_single_threaded;
#else
  return false;
#endif
}

#endif
