#include "ZELSYPRecycledBlocks.h"

#include <cstdint>
#include <cstring>
#include <new>

// Plain data, so that it can be used before and after everything else of its thread.
struct ZELSYPRecycledBlocks::Kept
{
  // The last one is that of the blocks that are not kept: empty for ever.
  Head* _lists[KindCount + 1];
  bool _threadEnds;

  [[gnu::tls_model("initial-exec")]] static thread_local Kept t_kept;

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

std::size_t ZELSYPRecycledBlocks::Kept::BytesOf(std::size_t i_kind, std::size_t i_bytes) noexcept
{
  if (i_kind != NotKept)
    return std::size_t{1} << (i_kind + SmallestBits);
  return i_bytes > SIZE_MAX - sizeof(Head) ? SIZE_MAX : i_bytes + sizeof(Head);
}

void* ZELSYPRecycledBlocks::TakeOf(std::size_t i_kind, std::size_t i_bytes) noexcept
{
  Head* const pBlock = Kept::t_kept._lists[i_kind];
  if (!pBlock)
    return TakeFromHeap(i_kind, i_bytes);
  Kept::t_kept._lists[i_kind] = pBlock->_pNext;
  pBlock->_kind = i_kind;
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
