#include "AllocationFailures.h"

#include <new>

bool AllocationFailures::s_refusing = false;
int AllocationFailures::s_requests = 0;

namespace
{
template <class... Alignment>
void* Allocate(std::size_t i_bytes, Alignment... i_alignment) noexcept
{
  AllocationFailures::CountRequest();
  if (AllocationFailures::IsRefusing())
    return nullptr;
  try
  {
    return ::operator new(i_bytes, i_alignment...);
  }
  catch (const std::bad_alloc&)
  {
    return nullptr;
  }
}
} // namespace

void* operator new(std::size_t i_bytes, const std::nothrow_t&) noexcept
{
  return Allocate(i_bytes);
}

void* operator new(std::size_t i_bytes, std::align_val_t i_alignment, const std::nothrow_t&) noexcept
{
  return Allocate(i_bytes, i_alignment);
}
