// ZELSysSimpleHashTable: a hash table of pointers to elements, told apart by two functions. It never owns the elements.
// ZELSysSimpleHashTable table(16, &HashKey, &SameKey); table.Insert(pKey);
//
// Elements stand in a dense array, in the order they were inserted, beside the index that finds them: the element at a
// position is one load. Positions stay put while nothing is removed. One thread at a time.
#ifndef ZELSysSimpleHashTable_H
#define ZELSysSimpleHashTable_H

#include "OPXHostRuntimeExport.h"

class OPXHOSTRUNTIME_EXPORT ZELSysSimpleHashTable
{
public:
  typedef int (*HashFunction)(const void* i_element);
  // 1 when the two are equal, 0 otherwise.
  typedef int (*CompareFunction)(const void* i_left, const void* i_right);

  // Room for i_size elements before the first growth; not above 0: the default.
  ZELSysSimpleHashTable(int i_size, HashFunction i_hash, CompareFunction i_compare);
  ZELSysSimpleHashTable(const ZELSysSimpleHashTable&) = delete;
  ZELSysSimpleHashTable& operator=(const ZELSysSimpleHashTable&) = delete;
  ~ZELSysSimpleHashTable();

  // 1: the table took the element. 0: an equal one is there. -1: null element, or no memory.
  int Insert(void* i_element);
  // The element that now stands for its key: i_element, or the equal one that is there. Null: null element, no memory.
  void* InsertOrReturn(void* i_element);
  // The element equal to i_element, or null.
  void* Locate(const void* i_element) const;
  // The element at i_position (0 to Size() - 1), or null.
  void* Get(int i_position) const;
  // Takes the equal element out and answers it, or null. The last element takes its position.
  void* Remove(const void* i_element);
  void RemoveAll();
  int Size() const noexcept;
};

#endif
