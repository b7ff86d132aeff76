#include "ZELSYPRecycledBlocks.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <pthread.h>

// The blocks of one thread.
struct ZELSYPRecycledBlocks::Kept
{
  // The last one is that of the blocks that are not kept: empty for ever.
  Head* _lists[KindCount + 1] = {};
  // How many blocks of each size the thread owns.
  std::int32_t _owned[KindCount] = {};

  // Of a thread that owns no block yet, and of one that has ended.
  static Kept s_none;
  [[gnu::tls_model("initial-exec")]] static thread_local Kept* t_pKept;

  static std::size_t BytesOf(std::size_t i_kind, std::size_t i_bytes) noexcept;
  static Kept* OwnerOfOneMore(std::size_t i_kind) noexcept;
  static Kept* OfThisThread() noexcept;
};

ZELSYPRecycledBlocks::Kept ZELSYPRecycledBlocks::Kept::s_none;
[[gnu::tls_model("initial-exec")]] thread_local ZELSYPRecycledBlocks::Kept* ZELSYPRecycledBlocks::Kept::t_pKept = &s_none;

// Ends what a thread keeps when the thread ends. By a key of the system, which is given the blocks themselves: not every
// platform destroys the objects of a thread before it frees their memory. Whatever comes later starts anew.
struct ZELSYPRecycledBlocks::KeptUntilThreadEnds
{
  KeptUntilThreadEnds() noexcept : _hasKey(pthread_key_create(&_key, &End) == 0) {}

  // False: the system would not end them.
  bool Promises(Kept* i_pKept) const noexcept { return _hasKey && pthread_setspecific(_key, i_pKept) == 0; }

  static void End(void* i_pKept) noexcept
  {
    Kept::t_pKept = &Kept::s_none;
    Kept* const pKept = static_cast<Kept*>(i_pKept);
    for (Head*& pList : pKept->_lists)
      while (Head* const pBlock = pList)
      {
        pList = pBlock->_pNext;
        ::operator delete(pBlock);
      }
    delete pKept;
  }

private:
  pthread_key_t _key;
  const bool _hasKey;
};

// None when there is no memory, or nobody to end them.
ZELSYPRecycledBlocks::Kept* ZELSYPRecycledBlocks::Kept::OfThisThread() noexcept
{
  static const KeptUntilThreadEnds s_ends;
  if (t_pKept != &s_none)
    return t_pKept;
  std::unique_ptr<Kept> pNew(new (std::nothrow) Kept);
  if (pNew && s_ends.Promises(pNew.get()))
    t_pKept = pNew.release();
  return t_pKept;
}

// Null: the thread owns as many as it may.
ZELSYPRecycledBlocks::Kept* ZELSYPRecycledBlocks::Kept::OwnerOfOneMore(std::size_t i_kind) noexcept
{
  Kept* const pKept = i_kind == NotKept ? &s_none : OfThisThread();
  if (pKept == &s_none || pKept->_owned[i_kind] >= static_cast<std::int32_t>(MostOwnedBytes / BytesOf(i_kind, 0)))
    return nullptr;
  ++pKept->_owned[i_kind];
  return pKept;
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
  Head* const pBlock = pKept->_lists[i_kind];
  if (__builtin_expect(!pBlock, false))
    return TakeFromHeap(i_kind, i_bytes);
  pKept->_lists[i_kind] = pBlock->_pNext;
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
  pBlock->_pOwner = Kept::OwnerOfOneMore(i_kind);
  return pBlock + 1;
}

// Without a new block the old one stands as it was.
void* ZELSYPRecycledBlocks::MovedTo(void* i_pNew, void* io_block, std::size_t i_used) noexcept
{
  if (!i_pNew || !io_block)
    return i_pNew;
  std::memcpy(i_pNew, io_block, i_used);
  GiveBack(io_block);
  return i_pNew;
}

void ZELSYPRecycledBlocks::Keep(Head* i_pBlock) noexcept
{
  Kept* const pKept = Kept::t_pKept;
  if (__builtin_expect(i_pBlock->_pOwner != pKept, false))
    return ::operator delete(i_pBlock);
  Head*& pList = pKept->_lists[i_pBlock->_kind];
  i_pBlock->_pNext = pList;
  pList = i_pBlock;
}
