#include "ZELSYPRecycledBlocks.h"

#include <cstdint>
#include <cstring>
#include <new>

namespace
{
enum : std::size_t
{
  // Blocks of 64 bytes to 1 MiB are kept; a larger one goes back to the heap.
  SmallestBits = 6,
  LargestBits = 20,
  KindCount = LargestBits - SmallestBits + 1,
  NotKept = KindCount
};
} // namespace

// Plain data, so that it can be used before and after everything else of its thread.
struct ZELSYPRecycledBlocks::Kept
{
  Head* _lists[KindCount];
  bool _threadEnds;

  [[gnu::tls_model("initial-exec")]] static thread_local Kept t_kept;

  static std::size_t KindOf(std::size_t i_bytes) noexcept;
  static std::size_t BytesOf(std::size_t i_kind, std::size_t i_bytes) noexcept;
};

[[gnu::tls_model("initial-exec")]] thread_local ZELSYPRecycledBlocks::Kept ZELSYPRecycledBlocks::Kept::t_kept;

struct ZELSYPRecycledBlocks::KeptUntilThreadEnds
{
  ~KeptUntilThreadEnds()
  {
    Kept::t_kept._threadEnds = true;
    for (Head*& pList : Kept::t_kept._lists)
      while (Head* const pBlock = pList)
      {
        pList = pBlock->_pNext;
        ::operator delete(pBlock);
      }
  }
};

std::size_t ZELSYPRecycledBlocks::Kept::KindOf(std::size_t i_bytes) noexcept
{
  if (i_bytes <= (std::size_t{1} << SmallestBits) - sizeof(Head))
    return 0;
  if (i_bytes > (std::size_t{1} << LargestBits) - sizeof(Head))
    return NotKept;
  return 64 - static_cast<std::size_t>(__builtin_clzll(i_bytes + sizeof(Head) - 1)) - SmallestBits;
}

std::size_t ZELSYPRecycledBlocks::Kept::BytesOf(std::size_t i_kind, std::size_t i_bytes) noexcept
{
  if (i_kind != NotKept)
    return std::size_t{1} << (i_kind + SmallestBits);
  return i_bytes > SIZE_MAX - sizeof(Head) ? SIZE_MAX : i_bytes + sizeof(Head);
}

void* ZELSYPRecycledBlocks::Take(std::size_t i_bytes) noexcept
{
  const std::size_t kind = Kept::KindOf(i_bytes);
  Head* const pBlock = kind != NotKept ? Kept::t_kept._lists[kind] : nullptr;
  if (!pBlock)
    return TakeFromHeap(kind, i_bytes);
  Kept::t_kept._lists[kind] = pBlock->_pNext;
  pBlock->_kind = kind;
  return pBlock + 1;
}

[[gnu::noinline]] void* ZELSYPRecycledBlocks::TakeFromHeap(std::size_t i_kind, std::size_t i_bytes) noexcept
{
  thread_local KeptUntilThreadEnds t_cleaner;
  static_cast<void>(&t_cleaner);
  void* const pMemory = ::operator new(Kept::BytesOf(i_kind, i_bytes), std::nothrow);
  if (!pMemory)
    return nullptr;
  Head* const pBlock = ::new (pMemory) Head;
  pBlock->_kind = i_kind;
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

void ZELSYPRecycledBlocks::Keep(Head* i_pBlock) noexcept
{
  const std::size_t kind = i_pBlock->_kind;
  if (__builtin_expect(kind == NotKept || Kept::t_kept._threadEnds, false))
    return ::operator delete(i_pBlock);
  i_pBlock->_pNext = Kept::t_kept._lists[kind];
  Kept::t_kept._lists[kind] = i_pBlock;
}
