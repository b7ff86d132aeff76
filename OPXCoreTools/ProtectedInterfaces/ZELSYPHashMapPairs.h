// ZELSYPHashMapPairs<Pair>: the memory of one map's pairs, taken from the heap by the block and handed out one by one.
// void* pMemory = pairs.Take(); Pair* pPair = new (pMemory) Pair{key, value}; ... pPair->~Pair(); pairs.GiveBack(pMemory);
//
// Pairs that were made one after the other lie one after the other. It runs no constructor and no destructor. One thread
// at a time.
#ifndef ZELSYPHashMapPairs_H
#define ZELSYPHashMapPairs_H

#include <algorithm>
#include <cstddef>
#include <new>

template <class Pair>
class ZELSYPHashMapPairs
{
  static_assert(alignof(Pair) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__, "a block is aligned as new aligns by itself");

public:
  ZELSYPHashMapPairs() = default;
  ZELSYPHashMapPairs(const ZELSYPHashMapPairs&) = delete;
  ZELSYPHashMapPairs& operator=(const ZELSYPHashMapPairs&) = delete;
  ~ZELSYPHashMapPairs() { ReleaseAll(); }

  // Memory for one pair, or null when there is none.
  void* Take() noexcept;
  // Takes the memory of one pair back; the next Take answers it.
  void GiveBack(void* i_pPair) noexcept { _pFree = ::new (i_pPair) Cell{_pFree}; }
  // Gives every block back to the heap: all memory that Take answered is gone.
  void ReleaseAll() noexcept;

private:
  union Cell
  {
    Cell* _pNextFree;
    alignas(Pair) unsigned char _pair[sizeof(Pair)];
  };
  // The cells follow the head.
  struct alignas(Cell) Block
  {
    Block* _pNext;
  };
  enum : std::size_t
  {
    FirstBlock = 4,
    LargestBlock = 4096
  };

  bool AddBlock() noexcept;

  Block* _pBlocks = nullptr;
  Cell* _pFree = nullptr;
  Cell* _pUnused = nullptr;
  Cell* _pEnd = nullptr;
  std::size_t _nextBlock = FirstBlock;
};

template <class Pair>
inline void* ZELSYPHashMapPairs<Pair>::Take() noexcept
{
  if (_pFree)
  {
    Cell* const pCell = _pFree;
    _pFree = pCell->_pNextFree;
    return pCell;
  }
  if (_pUnused == _pEnd && !AddBlock())
    return nullptr;
  return _pUnused++;
}

template <class Pair>
void ZELSYPHashMapPairs<Pair>::ReleaseAll() noexcept
{
  while (_pBlocks)
  {
    Block* const pBlock = _pBlocks;
    _pBlocks = pBlock->_pNext;
    ::operator delete(pBlock);
  }
  _pFree = _pUnused = _pEnd = nullptr;
  _nextBlock = FirstBlock;
}

template <class Pair>
bool ZELSYPHashMapPairs<Pair>::AddBlock() noexcept
{
  void* const pMemory = ::operator new(sizeof(Block) + _nextBlock * sizeof(Cell), std::nothrow);
  if (!pMemory)
    return false;
  _pBlocks = ::new (pMemory) Block{_pBlocks};
  _pUnused = reinterpret_cast<Cell*>(_pBlocks + 1);
  _pEnd = _pUnused + _nextBlock;
  _nextBlock = std::min<std::size_t>(2 * _nextBlock, LargestBlock);
  return true;
}

#endif
