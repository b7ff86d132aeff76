#include "AllocationFailures.h"

#include <cstddef>

bool AllocationFailures::s_refusing = false;
int AllocationFailures::s_granted = 0;

// Whatever is linked into this program calls __wrap_<function> when it names a function of the heap, and the heap's own
// is called __real_<function> (CMakeLists.txt, which knows the names of the operators).
extern "C"
{
  void* HeapMalloc(std::size_t i_bytes) noexcept __asm__("__real_malloc");
  void* HeapRealloc(void* i_block, std::size_t i_bytes) noexcept __asm__("__real_realloc");
  void* HeapNew(std::size_t i_bytes, const std::nothrow_t& i_tag) noexcept __asm__("__real_" OPX_NEW);
  void* HeapAlignedNew(std::size_t i_bytes, std::align_val_t i_alignment, const std::nothrow_t& i_tag) noexcept
      __asm__("__real_" OPX_ALIGNED_NEW);

  void* ReplacedMalloc(std::size_t i_bytes) noexcept __asm__("__wrap_malloc");
  void* ReplacedRealloc(void* i_block, std::size_t i_bytes) noexcept __asm__("__wrap_realloc");
  void* ReplacedNew(std::size_t i_bytes, const std::nothrow_t& i_tag) noexcept __asm__("__wrap_" OPX_NEW);
  void* ReplacedAlignedNew(std::size_t i_bytes, std::align_val_t i_alignment, const std::nothrow_t& i_tag) noexcept
      __asm__("__wrap_" OPX_ALIGNED_NEW);
}

void* ReplacedMalloc(std::size_t i_bytes) noexcept
{
  return AllocationFailures::IsRefusing() ? nullptr : HeapMalloc(i_bytes);
}

void* ReplacedRealloc(void* i_block, std::size_t i_bytes) noexcept
{
  return AllocationFailures::IsRefusing() ? nullptr : HeapRealloc(i_block, i_bytes);
}

void* ReplacedNew(std::size_t i_bytes, const std::nothrow_t& i_tag) noexcept
{
  return AllocationFailures::IsRefusing() ? nullptr : HeapNew(i_bytes, i_tag);
}

void* ReplacedAlignedNew(std::size_t i_bytes, std::align_val_t i_alignment, const std::nothrow_t& i_tag) noexcept
{
  return AllocationFailures::IsRefusing() ? nullptr : HeapAlignedNew(i_bytes, i_alignment, i_tag);
}
