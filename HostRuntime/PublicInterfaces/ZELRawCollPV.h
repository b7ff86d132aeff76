// ZELRawCollPV: an ordered collection of pointers with positions from 1. It never owns what they point to.
// ZELRawCollPV list(10); list.Append(p); p == list[1];
//
// One thread at a time.
#ifndef ZELRawCollPV_H
#define ZELRawCollPV_H

#include "OPXHostRuntimeExport.h"

#include <vector>

class OPXHOSTRUNTIME_EXPORT ZELRawCollPV
{
public:
  // What happens to the block when the collection is emptied.
  enum MemoryHandling
  {
    KeepMemory,
    ReleaseMemory
  };
  // Negative: the left element goes first. 0: either. Positive: the right one.
  typedef int (*CompareFunction)(void* i_left, void* i_right);
  // The same, told what it needs to know.
  typedef int (*CompareWithFunction)(void* i_left, void* i_right, void* i_context);

  ZELRawCollPV() = default;
  // Room for i_capacity pointers; negative counts as 0.
  explicit ZELRawCollPV(int i_capacity);

  int Size() const noexcept { return static_cast<int>(_pointers.size()); }
  void Append(void* i_pointer) { _pointers.push_back(i_pointer); }
  // The pointer at i_position (1 to Size()); null and one line on the standard error stream for any other position.
  void* operator[](int i_position) const;
  // Sets the pointer at i_position; a position outside 1 to Size() changes nothing and is reported in the same way.
  void Set(int i_position, void* i_pointer);
  // The first position of the pointer, or 0.
  int Locate(const void* i_pointer) const noexcept;
  // Removes one slot; later ones move down. Reported in the same way when there is none.
  void RemovePosition(int i_position);
  void RemoveAll(MemoryHandling i_memory = ReleaseMemory);
  // In place; the order of elements that compare equal is not defined. A function that is not a strict order gives some
  // order and never reads outside the collection.
  void QuickSort(CompareFunction i_compare);
  void QuickSort(CompareWithFunction i_compare, void* i_context);

private:
  bool HasPosition(int i_position, const char* i_operation) const;

  std::vector<void*> _pointers;
};

#endif
