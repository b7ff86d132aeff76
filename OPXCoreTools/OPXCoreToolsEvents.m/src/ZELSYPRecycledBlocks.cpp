#include "ZELSYPRecycledBlocks.h"

#include <cstdint>
#include <cstring>
#include <new>
#include <pthread.h>

// The blocks of one thread.
struct ZELSYPRecycledBlocks::Kept
{
  Kept() noexcept
  {
    for (std::size_t kind = 0; kind < KindCount; ++kind)
      _room[kind] = static_cast<std::int32_t>(MostKeptBytes / BytesOf(kind, 0));
  }

  // The last one is that of the blocks that are not kept: empty for ever, without room.
  Head* _lists[KindCount + 1] = {};
  // How many blocks more each list takes.
  std::int32_t _room[KindCount + 1] = {};

  // Null before the thread gave its first block back, and once it has ended.
  [[gnu::tls_model("initial-exec")]] static thread_local Kept* t_pKept;

  static std::size_t BytesOf(std::size_t i_kind, std::size_t i_bytes) noexcept;
  static Kept* New() noexcept;
};

[[gnu::tls_model("initial-exec")]] thread_local ZELSYPRecycledBlocks::Kept* ZELSYPRecycledBlocks::Kept::t_pKept = nullptr;

// Ends what a thread keeps when the thread ends. By a key of the system, which is given the blocks themselves: not every
// platform destroys the objects of a thread before it frees their memory. Whatever comes later starts anew.
struct ZELSYPRecycledBlocks::KeptUntilThreadEnds
{
  KeptUntilThreadEnds() noexcept { pthread_key_create(&_key, &End); }

  static void End(void* i_pKept) noexcept
  {
    Kept::t_pKept = nullptr;
    Kept* const pKept = static_cast<Kept*>(i_pKept);
    for (Head*& pList : pKept->_lists)
      while (Head* const pBlock = pList)
      {
        pList = pBlock->_pNext;
        ::operator delete(pBlock);
      }
    delete pKept;
  }

  pthread_key_t _key;
};

[[gnu::noinline]] ZELSYPRecycledBlocks::Kept* ZELSYPRecycledBlocks::Kept::New() noexcept
{
  static const KeptUntilThreadEnds s_ends;
  t_pKept = new (std::nothrow) Kept;
  pthread_setspecific(s_ends._key, t_pKept);
  return t_pKept;
}

std::size_t ZELSYPRecycledBlocks::Kept::BytesOf(std::size_t i_kind, std::size_t i_bytes) noexcept
{
  if (i_kind != NotKept)
    return std::size_t{1} << (i_kind + SmallestBits);
  return i_bytes > SIZE_MAX - sizeof(Head) ? SIZE_MAX : i_bytes + sizeof(Head);
}

void* ZELSYPRecycledBlocks::TakeOf(std::size_t i_kind, std::size_t i_bytes) noexcept
{
  Kept* const pKept = Kept::t_pKept;
  Head* const pBlock = pKept ? pKept->_lists[i_kind] : nullptr;
  if (!pBlock)
    return TakeFromHeap(i_kind, i_bytes);
  pKept->_lists[i_kind] = pBlock->_pNext;
  ++pKept->_room[i_kind];
  pBlock->_kind = i_kind;
  return pBlock + 1;
}

[[gnu::noinline]] void* ZELSYPRecycledBlocks::TakeFromHeap(std::size_t i_kind, std::size_t i_bytes) noexcept
{
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
  Kept* const pKept = Kept::t_pKept;
  if (__builtin_expect(!pKept, false))
    return KeepFirst(i_pBlock);
  const std::size_t kind = i_pBlock->_kind;
  if (__builtin_expect(pKept->_room[kind] == 0, false))
    return ::operator delete(i_pBlock);
  --pKept->_room[kind];
  i_pBlock->_pNext = pKept->_lists[kind];
  pKept->_lists[kind] = i_pBlock;
}

[[gnu::noinline, gnu::cold]] void ZELSYPRecycledBlocks::KeepFirst(Head* i_pBlock) noexcept
{
  if (Kept::New())
    Keep(i_pBlock);
  else
    ::operator delete(i_pBlock);
}
