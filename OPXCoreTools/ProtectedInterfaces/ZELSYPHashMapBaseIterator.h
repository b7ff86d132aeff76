// ZELSYPHashMapBaseIterator: walks the elements of a host table by position and notices when the table changes.
// for (ZELSYPHashMapBaseIterator it(pTable); !it.IsDone(); it.Next()) Use(it.InternalCurrentItem());
//
// It is the base of every map's own iterator. The table must outlive it. One thread at a time.
#ifndef ZELSYPHashMapBaseIterator_H
#define ZELSYPHashMapBaseIterator_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPCheck.h"
#include "ZELSysSimpleHashTable.h"

#include <cstdint>

class OPXCORETOOLS_EXPORT ZELSYPHashMapBaseIterator
{
public:
  // Stands at the first element. A null table: "i_pHashTable", and there is nothing to walk.
  explicit ZELSYPHashMapBaseIterator(const ZELSysSimpleHashTable* i_pHashTable);
  // Forgets the table.
  ~ZELSYPHashMapBaseIterator() { _pHashTable = nullptr; }
  ZELSYPHashMapBaseIterator(const ZELSYPHashMapBaseIterator&) = default;
  ZELSYPHashMapBaseIterator& operator=(const ZELSYPHashMapBaseIterator&) = default;

  // True once every element that was there at the start was walked, or without a table. A position below 0:
  // "_currentItem >= 0", and true.
  bool IsDone() const { return !_pHashTable || !ZELSYP_CHECK_TRUE(_currentItem >= 0) || _currentItem >= _size; }

  // The element at the current position, and the step to the next one. Each checks, in this order, that there is a
  // table ("_pHashTable"), that it has as many elements as at the start ("_pHashTable->Size() == _size", with "Hash table
  // size has changed!") and that an element is left ("_currentItem >= 0 && _currentItem <= _size - 1"). If not, the first
  // answers null and the second does nothing.
  const void* InternalCurrentItem() const { return HasCurrentItem() ? _pHashTable->Get(_currentItem) : nullptr; }
  void Next()
  {
    if (HasCurrentItem())
      ++_currentItem;
  }

protected:
  // The same for a table that is there. Inline, so that a loop keeps the iterator in registers.
  explicit ZELSYPHashMapBaseIterator(const ZELSysSimpleHashTable& i_table) noexcept
      : _pHashTable(&i_table), _size(i_table.Size()), _currentItem(0)
  {
  }

  const ZELSysSimpleHashTable* _pHashTable;
  std::int32_t _size;
  std::int32_t _currentItem;

private:
  bool HasCurrentItem() const
  {
    return ZELSYP_CHECK_POINTER(_pHashTable) && ZELSYP_CHECK_TRUE_DETAILS(_pHashTable->Size() == _size, "Hash table size has changed!") &&
           ZELSYP_CHECK_TRUE(_currentItem >= 0 && _currentItem <= _size - 1);
  }
};

#endif
