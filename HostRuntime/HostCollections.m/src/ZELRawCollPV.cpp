#include "ZELRawCollPV.h"

#include <algorithm>
#include <cstdio>

ZELRawCollPV::ZELRawCollPV(int i_capacity)
{
  if (i_capacity > 0)
    _pointers.reserve(static_cast<std::size_t>(i_capacity));
}

void* ZELRawCollPV::operator[](int i_position) const
{
  return HasPosition(i_position, "operator[]") ? _pointers[static_cast<std::size_t>(i_position - 1)] : nullptr;
}

void ZELRawCollPV::Set(int i_position, void* i_pointer)
{
  if (HasPosition(i_position, "Set"))
    _pointers[static_cast<std::size_t>(i_position - 1)] = i_pointer;
}

int ZELRawCollPV::Locate(const void* i_pointer) const noexcept
{
  const auto found = std::find(_pointers.begin(), _pointers.end(), i_pointer);
  return found == _pointers.end() ? 0 : static_cast<int>(found - _pointers.begin()) + 1;
}

void ZELRawCollPV::RemovePosition(int i_position)
{
  if (HasPosition(i_position, "RemovePosition"))
    _pointers.erase(_pointers.begin() + (i_position - 1));
}

void ZELRawCollPV::RemoveAll(MemoryHandling i_memory)
{
  _pointers.clear();
  if (i_memory == ReleaseMemory)
    _pointers.shrink_to_fit();
}

// A heap is walked by index alone, so that no answer of the function leads outside; std::sort trusts the function.
template <class GoesFirst>
static void SortHeap(std::vector<void*>& io_pointers, GoesFirst i_goesFirst)
{
  std::make_heap(io_pointers.begin(), io_pointers.end(), i_goesFirst);
  std::sort_heap(io_pointers.begin(), io_pointers.end(), i_goesFirst);
}

void ZELRawCollPV::QuickSort(CompareFunction i_compare)
{
  SortHeap(_pointers, [i_compare](void* i_left, void* i_right) { return i_compare(i_left, i_right) < 0; });
}

void ZELRawCollPV::QuickSort(CompareWithFunction i_compare, void* i_context)
{
  SortHeap(_pointers, [=](void* i_left, void* i_right) { return i_compare(i_left, i_right, i_context) < 0; });
}

bool ZELRawCollPV::HasPosition(int i_position, const char* i_operation) const
{
  const bool has = i_position >= 1 && i_position <= Size();
  if (!has)
    std::fprintf(stderr, "ZELRawCollPV::%s: position %d is outside 1 to %d\n", i_operation, i_position, Size());
  return has;
}
