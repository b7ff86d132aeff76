// ZELSYPHeapBlocks: memory from the heap, for a container that is told where its memory comes from.
// void* pBlock = ZELSYPHeapBlocks::Take(64); pBlock = ZELSYPHeapBlocks::Extend(pBlock, 64, 128); ZELSYPHeapBlocks::GiveBack(pBlock);
#ifndef ZELSYPHeapBlocks_H
#define ZELSYPHeapBlocks_H

#include <cstddef>
#include <cstdlib>

struct ZELSYPHeapBlocks
{
  // Null when there is no memory.
  static void* Take(std::size_t i_bytes) noexcept { return std::malloc(i_bytes); }
  // A block of i_bytes that begins with the first i_used bytes of io_block and takes its place. Null when there is no
  // memory, and io_block stands as it was. For a null io_block a new block.
  static void* Extend(void* io_block, std::size_t, std::size_t i_bytes) noexcept { return std::realloc(io_block, i_bytes); }
  // Null is nothing.
  static void GiveBack(void* i_pBlock) noexcept { std::free(i_pBlock); }
};

#endif
