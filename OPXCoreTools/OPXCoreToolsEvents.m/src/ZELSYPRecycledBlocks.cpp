#include "ZELSYPRecycledBlocks.h"

#include <cstdint>
#include <cstring>
#include <new>

namespace
{
enum : unsigned
{
  // Blocks of 64 bytes to 1 MiB are kept; a larger one goes back to the heap.
  SmallestBits = 6,
  LargestBits = 20,
  KindCount = LargestBits - SmallestBits + 1,
  NotKept = KindCount
};

// Stands before the memory that is handed out.
struct alignas(__STDCPP_DEFAULT_NEW_ALIGNMENT__) Block
{
  // While handed out: which list takes it back. While kept: the next one of its list.
  union
  {
    std::size_t _kind;
    Block* _pNext;
  };
};

// Plain data, so that it can be used before and after everything else of its thread.
struct Kept
{
  Block* _lists[KindCount];
  bool _threadEnds;
};
[[gnu::tls_model("initial-exec")]] thread_local Kept t_kept;

struct KeptUntilThreadEnds
{
  ~KeptUntilThreadEnds()
  {
    t_kept._threadEnds = true;
    for (Block*& pList : t_kept._lists)
      while (Block* const pBlock = pList)
      {
        pList = pBlock->_pNext;
        ::operator delete(pBlock);
      }
  }
};

unsigned KindOf(std::size_t i_bytes) noexcept
{
  if (i_bytes <= (std::size_t{1} << SmallestBits) - sizeof(Block))
    return 0;
  if (i_bytes > (std::size_t{1} << LargestBits) - sizeof(Block))
    return NotKept;
  return 64 - static_cast<unsigned>(__builtin_clzll(i_bytes + sizeof(Block) - 1)) - SmallestBits;
}

std::size_t BytesOf(unsigned i_kind, std::size_t i_bytes) noexcept
{
  if (i_kind != NotKept)
    return std::size_t{1} << (i_kind + SmallestBits);
  return i_bytes > SIZE_MAX - sizeof(Block) ? SIZE_MAX : i_bytes + sizeof(Block);
}

[[gnu::noinline]] void* TakeFromHeap(unsigned i_kind, std::size_t i_bytes) noexcept
{
  thread_local KeptUntilThreadEnds t_cleaner;
  static_cast<void>(&t_cleaner);
  void* const pMemory = ::operator new(BytesOf(i_kind, i_bytes), std::nothrow);
  if (!pMemory)
    return nullptr;
  Block* const pBlock = ::new (pMemory) Block;
  pBlock->_kind = i_kind;
  return pBlock + 1;
}

[[gnu::noinline]] void GiveBackToHeap(Block* i_pBlock) noexcept
{
  ::operator delete(i_pBlock);
}
} // namespace

void* ZELSYPRecycledBlocks::Take(std::size_t i_bytes) noexcept
{
  const unsigned kind = KindOf(i_bytes);
  Block* const pBlock = kind != NotKept ? t_kept._lists[kind] : nullptr;
  if (!pBlock)
    return TakeFromHeap(kind, i_bytes);
  t_kept._lists[kind] = pBlock->_pNext;
  pBlock->_kind = kind;
  return pBlock + 1;
}

void* ZELSYPRecycledBlocks::Extend(void* io_block, std::size_t i_used, std::size_t i_bytes) noexcept
{
  void* const pBlock = Take(i_bytes);
  if (!pBlock || !io_block)
    return pBlock;
  std::memcpy(pBlock, io_block, i_used);
  GiveBack(io_block);
  return pBlock;
}

void ZELSYPRecycledBlocks::GiveBack(void* i_pBlock) noexcept
{
  if (!i_pBlock)
    return;
  Block* const pBlock = static_cast<Block*>(i_pBlock) - 1;
  const std::size_t kind = pBlock->_kind;
  if (kind == NotKept || t_kept._threadEnds)
    return GiveBackToHeap(pBlock);
  pBlock->_pNext = t_kept._lists[kind];
  t_kept._lists[kind] = pBlock;
}
