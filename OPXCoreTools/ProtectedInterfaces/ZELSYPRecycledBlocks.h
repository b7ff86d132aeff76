// ZELSYPRecycledBlocks: memory that what was just destroyed gives back and what comes next takes again, without the heap.
// void* pBlock = ZELSYPRecycledBlocks::Take(64); ... ZELSYPRecycledBlocks::GiveBack(pBlock);
//
// Each thread owns the first blocks that it takes, by powers of two and up to 4 MiB of each, and keeps those given back on
// it until it ends. All others are the heap's again when they are given back, on whatever thread: what lasts is better taken
// from the heap at once, or it leaves fewer blocks to take and give back. Any thread.
#ifndef ZELSYPRecycledBlocks_H
#define ZELSYPRecycledBlocks_H

#include "OPXCoreToolsExport.h"

#include <cstddef>

struct OPXCORETOOLS_EXPORT ZELSYPRecycledBlocks
{
  // Room for the first i_count elements of an array, beside the array (ZELSYPArray::UseRoom): GiveBack takes it for nothing.
  template <class T, int i_count>
  class Room;
  // The same operations with blocks of the heap that nobody keeps, for what outlasts dispatches.
  struct Lasting;

  // i_bytes of memory, aligned as new aligns by itself, or null when there is none.
  static void* Take(std::size_t i_bytes) noexcept { return TakeOf(KindOf(i_bytes), i_bytes); }
  // A block of i_bytes that begins with the first i_used bytes of io_block and takes its place. Null when there is no
  // memory, and io_block stands as it was. For a null io_block a new block.
  static void* Extend(void* io_block, std::size_t i_used, std::size_t i_bytes) noexcept { return MovedTo(Take(i_bytes), io_block, i_used); }
  // Takes a block back, on whatever thread it was taken. Null is nothing.
  static void GiveBack(void* i_pBlock) noexcept
  {
    if (i_pBlock && HeadOf(i_pBlock)->_kind != NoBlock)
      Keep(HeadOf(i_pBlock));
  }

private:
  enum : std::size_t
  {
    // Blocks of 64 bytes to 1 MiB are kept; a larger one goes back to the heap.
    SmallestBits = 6,
    LargestBits = 20,
    KindCount = LargestBits - SmallestBits + 1,
    NotKept = KindCount,
    // Of each size.
    MostOwnedBytes = std::size_t{4} << 20,
    NoBlock = ~static_cast<std::size_t>(0)
  };
  struct Kept;
  struct KeptUntilThreadEnds;

  // Stands before the memory that is handed out.
  struct alignas(__STDCPP_DEFAULT_NEW_ALIGNMENT__) Head
  {
    // While handed out: which list takes the block back. While kept: the next one of its list.
    union
    {
      std::size_t _kind;
      Head* _pNext;
    };
    // The thread that keeps the block; null: none.
    Kept* _pOwner;
  };
  // Known to the compiler where the size is.
  static constexpr std::size_t KindOf(std::size_t i_bytes) noexcept
  {
    if (i_bytes <= (std::size_t{1} << SmallestBits) - sizeof(Head))
      return 0;
    if (i_bytes > (std::size_t{1} << LargestBits) - sizeof(Head))
      return NotKept;
    return 64 - static_cast<std::size_t>(__builtin_clzll(i_bytes + sizeof(Head) - 1)) - SmallestBits;
  }

  static Head* HeadOf(void* i_pBlock) noexcept { return static_cast<Head*>(i_pBlock) - 1; }
  static void* TakeOf(std::size_t i_kind, std::size_t i_bytes) noexcept;
  static void* TakeFromHeap(std::size_t i_kind, std::size_t i_bytes) noexcept;
  static void Keep(Head* i_pBlock) noexcept;
  static void* MovedTo(void* i_pNew, void* io_block, std::size_t i_used) noexcept;
};

struct ZELSYPRecycledBlocks::Lasting
{
  static void* Take(std::size_t i_bytes) noexcept { return TakeFromHeap(NotKept, i_bytes); }
  static void* Extend(void* io_block, std::size_t i_used, std::size_t i_bytes) noexcept { return MovedTo(Take(i_bytes), io_block, i_used); }
  static void GiveBack(void* i_pBlock) noexcept { ZELSYPRecycledBlocks::GiveBack(i_pBlock); }
};

template <class T, int i_count>
class ZELSYPRecycledBlocks::Room
{
public:
  enum : int
  {
    Capacity = i_count
  };

  Room() noexcept { _head._kind = NoBlock; }
  Room(const Room&) = delete;
  Room& operator=(const Room&) = delete;

  T* Get() noexcept { return reinterpret_cast<T*>(_memory); }

private:
  static_assert(alignof(T) <= alignof(Head), "the elements follow the head");

  Head _head;
  unsigned char _memory[i_count * sizeof(T)];
};

#endif
