#include "HeapRequests.h"

#include <cstddef>
#include <new>

std::atomic<long> HeapRequests::s_count{0};
std::atomic<long> HeapRequests::s_held{0};

// Whatever is linked into this program calls __wrap_<function> when it names a function of the heap, and the heap's own
// is called __real_<function> (CMakeLists.txt, which knows the names of the operators).
extern "C"
{
  void* HeapMalloc(std::size_t i_bytes) noexcept __asm__("__real_malloc");
  void* HeapRealloc(void* i_block, std::size_t i_bytes) noexcept __asm__("__real_realloc");
  void HeapFree(void* i_block) noexcept __asm__("__real_free");
  void* HeapNew(std::size_t i_bytes) __asm__("__real_" OPX_NEW);
  void* HeapNothrowNew(std::size_t i_bytes, const std::nothrow_t& i_tag) noexcept __asm__("__real_" OPX_NOTHROW_NEW);
  void HeapDelete(void* i_block) noexcept __asm__("__real_" OPX_DELETE);
  void HeapSizedDelete(void* i_block, std::size_t i_bytes) noexcept __asm__("__real_" OPX_SIZED_DELETE);

  void* CountedMalloc(std::size_t i_bytes) noexcept __asm__("__wrap_malloc");
  void* CountedRealloc(void* i_block, std::size_t i_bytes) noexcept __asm__("__wrap_realloc");
  void CountedFree(void* i_block) noexcept __asm__("__wrap_free");
  void* CountedNew(std::size_t i_bytes) __asm__("__wrap_" OPX_NEW);
  void* CountedNothrowNew(std::size_t i_bytes, const std::nothrow_t& i_tag) noexcept __asm__("__wrap_" OPX_NOTHROW_NEW);
  void CountedDelete(void* i_block) noexcept __asm__("__wrap_" OPX_DELETE);
  void CountedSizedDelete(void* i_block, std::size_t i_bytes) noexcept __asm__("__wrap_" OPX_SIZED_DELETE);
}

namespace
{
void* Took(void* i_pBlock) noexcept
{
  HeapRequests::Took(i_pBlock);
  return i_pBlock;
}
} // namespace

void* CountedMalloc(std::size_t i_bytes) noexcept
{
  return Took(HeapMalloc(i_bytes));
}

void* CountedRealloc(void* i_block, std::size_t i_bytes) noexcept
{
  HeapRequests::GaveBack(i_block);
  return Took(HeapRealloc(i_block, i_bytes));
}

void CountedFree(void* i_block) noexcept
{
  HeapRequests::GaveBack(i_block);
  HeapFree(i_block);
}

void* CountedNew(std::size_t i_bytes)
{
  return Took(HeapNew(i_bytes));
}

void* CountedNothrowNew(std::size_t i_bytes, const std::nothrow_t& i_tag) noexcept
{
  return Took(HeapNothrowNew(i_bytes, i_tag));
}

void CountedDelete(void* i_block) noexcept
{
  HeapRequests::GaveBack(i_block);
  HeapDelete(i_block);
}

void CountedSizedDelete(void* i_block, std::size_t i_bytes) noexcept
{
  HeapRequests::GaveBack(i_block);
  HeapSizedDelete(i_block, i_bytes);
}
