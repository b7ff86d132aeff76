// HeapRequests: how often what is linked into this program asked the heap for memory, and how much it holds.
// const long before = HeapRequests::GetCount(); Raise(); EXPECT_EQ(before, HeapRequests::GetCount());
//
// Counted on all threads together, in a program with opx_wrap_heap. A growing or shrinking block is a request.
#ifndef HeapRequests_H
#define HeapRequests_H

#include <atomic>

class HeapRequests
{
public:
  static long GetCount() noexcept { return s_count; }
  // Blocks that were taken and not given back.
  static long GetHeld() noexcept { return s_held; }

  static void Took(const void* i_pBlock) noexcept
  {
    ++s_count;
    s_held += i_pBlock != nullptr;
  }
  static void GaveBack(const void* i_pBlock) noexcept { s_held -= i_pBlock != nullptr; }

private:
  static inline std::atomic<long> s_count{0};
  static inline std::atomic<long> s_held{0};
};

#endif
