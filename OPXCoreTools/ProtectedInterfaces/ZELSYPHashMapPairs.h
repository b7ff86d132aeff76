// ZELSYPHashMapPairs<Pair>: the memory of one map's pairs, taken from the heap by the block and handed out one by one.
// void* pMemory = pairs.Take(0); Pair* pPair = new (pMemory) Pair{key, value}; ... pPair->~Pair(); pairs.GiveBack(pMemory);
//
// Pairs that were made one after the other lie one after the other. Without pairs it has no memory; the first one stands
// alone, and each later block has as many as there were before it. It runs no constructor and no destructor. One thread at
// a time.
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

  // Memory for one pair, or null when there is none. i_taken pairs are taken at the time.
  void* Take(std::size_t i_taken) noexcept;
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
    SecondBlock = 3,
    LargestBlock = 4096
  };

  bool AddBlock(std::size_t i_cells) noexcept;

  Block* _pBlocks = nullptr;
  Cell* _pFree = nullptr;
};

template <class Pair>
inline void* ZELSYPHashMapPairs<Pair>::Take(std::size_t i_taken) noexcept
{
  if (!_pFree && !AddBlock(i_taken == 0 ? 1 : std::clamp<std::size_t>(i_taken, SecondBlock, LargestBlock)))
    return nullptr;
  Cell* const pCell = _pFree;
  _pFree = pCell->_pNextFree;
  return pCell;
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
  _pFree = nullptr;
}

template <class Pair>
bool ZELSYPHashMapPairs<Pair>::AddBlock(std::size_t i_cells) noexcept
{
  void* const pMemory = ::operator new(sizeof(Block) + i_cells * sizeof(Cell), std::nothrow);
  if (!pMemory)
    return false;
  _pBlocks = ::new (pMemory) Block{_pBlocks};
  Cell* const pCells = reinterpret_cast<Cell*>(_pBlocks + 1);
  for (std::size_t index = i_cells; index > 0; --index)
    GiveBack(&pCells[index - 1]);
  return true;
}

#endif
