#include "ZELSYPHashMapBaseIterator.h"

ZELSYPHashMapBaseIterator::ZELSYPHashMapBaseIterator(const ZELSysSimpleHashTable* i_pHashTable)
    : _pHashTable(i_pHashTable), _size(0), _currentItem(0)
{
  if (ZELSYP_CHECK_POINTER(i_pHashTable))
    _size = i_pHashTable->Size();
}
