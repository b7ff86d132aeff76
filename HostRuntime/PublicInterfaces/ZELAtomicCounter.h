// ZELAtomicCounter: a count of references that any thread changes, without locked instructions while there is one thread.
// ZELAtomicCounter count(1); count.Increment(); if (count.Decrement() == 0) delete this;
//
// 4 bytes. Nothing throws.
#ifndef ZELAtomicCounter_H
#define ZELAtomicCounter_H

#include <atomic>
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

  std::int32_t Get() const noexcept { return _count.load(std::memory_order_relaxed); }
  void Set(std::int32_t i_count) noexcept { _count.store(i_count, std::memory_order_relaxed); }

  // Both answer the count that stands then. Whoever brings it to 0 sees all that was done under the other references.
  std::int32_t Increment() noexcept { return ProcessHasOneThread() ? Add(1) : _count.fetch_add(1, std::memory_order_relaxed) + 1; }
  std::int32_t Decrement() noexcept { return ProcessHasOneThread() ? Add(-1) : _count.fetch_sub(1, std::memory_order_acq_rel) - 1; }
  // Decrement() == 0, for which the processor keeps no count.
  bool DecrementToZero() noexcept { return ProcessHasOneThread() ? Add(-1) == 0 : _count.fetch_sub(1, std::memory_order_acq_rel) == 1; }

private:
  std::int32_t Add(std::int32_t i_difference) noexcept
  {
    const std::int32_t count = Get() + i_difference;
    Set(count);
    return count;
  }

  std::atomic<std::int32_t> _count;
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
