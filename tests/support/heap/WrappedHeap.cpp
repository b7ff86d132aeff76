#include "AllocationFailures.h"
#include "HeapRequests.h"

#include <cstddef>
#include <new>

// Whatever is linked into this program calls __wrap_<function> when it names a function of the heap, and the heap's own
// is called __real_<function> (opx_wrap_heap, which knows the names of the operators).
extern "C"
{
  void* HeapMalloc(std::size_t i_bytes) noexcept __asm__("__real_malloc");
  void* HeapRealloc(void* i_block, std::size_t i_bytes) noexcept __asm__("__real_realloc");
  void HeapFree(void* i_block) noexcept __asm__("__real_free");
  void* HeapNew(std::size_t i_bytes) __asm__("__real_" OPX_NEW);
  void* HeapNothrowNew(std::size_t i_bytes, const std::nothrow_t& i_tag) noexcept __asm__("__real_" OPX_NOTHROW_NEW);
  void* HeapAlignedNew(std::size_t i_bytes, std::align_val_t i_alignment, const std::nothrow_t& i_tag) noexcept
      __asm__("__real_" OPX_ALIGNED_NEW);
  void HeapDelete(void* i_block) noexcept __asm__("__real_" OPX_DELETE);
  void HeapSizedDelete(void* i_block, std::size_t i_bytes) noexcept __asm__("__real_" OPX_SIZED_DELETE);
  void HeapAlignedDelete(void* i_block, std::align_val_t i_alignment) noexcept __asm__("__real_" OPX_ALIGNED_DELETE);

  void* WrappedMalloc(std::size_t i_bytes) noexcept __asm__("__wrap_malloc");
  void* WrappedRealloc(void* i_block, std::size_t i_bytes) noexcept __asm__("__wrap_realloc");
  void WrappedFree(void* i_block) noexcept __asm__("__wrap_free");
  void* WrappedNew(std::size_t i_bytes) __asm__("__wrap_" OPX_NEW);
  void* WrappedNothrowNew(std::size_t i_bytes, const std::nothrow_t& i_tag) noexcept __asm__("__wrap_" OPX_NOTHROW_NEW);
  void* WrappedAlignedNew(std::size_t i_bytes, std::align_val_t i_alignment, const std::nothrow_t& i_tag) noexcept
      __asm__("__wrap_" OPX_ALIGNED_NEW);
  void WrappedDelete(void* i_block) noexcept __asm__("__wrap_" OPX_DELETE);
  void WrappedSizedDelete(void* i_block, std::size_t i_bytes) noexcept __asm__("__wrap_" OPX_SIZED_DELETE);
  void WrappedAlignedDelete(void* i_block, std::align_val_t i_alignment) noexcept __asm__("__wrap_" OPX_ALIGNED_DELETE);
}

namespace
{
void* Took(void* i_pBlock) noexcept
{
  HeapRequests::Took(i_pBlock);
  return i_pBlock;
}

void* GaveBack(void* i_pBlock) noexcept
{
  HeapRequests::GaveBack(i_pBlock);
  return i_pBlock;
}
} // namespace

void* WrappedMalloc(std::size_t i_bytes) noexcept
{
  return AllocationFailures::IsRefusing() ? nullptr : Took(HeapMalloc(i_bytes));
}

void* WrappedRealloc(void* i_block, std::size_t i_bytes) noexcept
{
  return AllocationFailures::IsRefusing() ? nullptr : Took(HeapRealloc(GaveBack(i_block), i_bytes));
}

void WrappedFree(void* i_block) noexcept
{
  HeapFree(GaveBack(i_block));
}

void* WrappedNew(std::size_t i_bytes)
{
  return Took(HeapNew(i_bytes));
}

void* WrappedNothrowNew(std::size_t i_bytes, const std::nothrow_t& i_tag) noexcept
{
  return AllocationFailures::IsRefusing() ? nullptr : Took(HeapNothrowNew(i_bytes, i_tag));
}

void* WrappedAlignedNew(std::size_t i_bytes, std::align_val_t i_alignment, const std::nothrow_t& i_tag) noexcept
{
  return AllocationFailures::IsRefusing() ? nullptr : Took(HeapAlignedNew(i_bytes, i_alignment, i_tag));
}

void WrappedDelete(void* i_block) noexcept
{
  HeapDelete(GaveBack(i_block));
}

void WrappedSizedDelete(void* i_block, std::size_t i_bytes) noexcept
{
  HeapSizedDelete(GaveBack(i_block), i_bytes);
}

void WrappedAlignedDelete(void* i_block, std::align_val_t i_alignment) noexcept
{
  HeapAlignedDelete(GaveBack(i_block), i_alignment);
}
