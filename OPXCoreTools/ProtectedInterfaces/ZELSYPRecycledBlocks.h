// ZELSYPRecycledBlocks: memory that what was just destroyed gives back and what comes next takes again, without the heap.
// void* pBlock = ZELSYPRecycledBlocks::Take(64); ... ZELSYPRecycledBlocks::GiveBack(pBlock);
//
// Each thread keeps the blocks that were given back on it, by powers of two, until it ends. Any thread.
#ifndef ZELSYPRecycledBlocks_H
#define ZELSYPRecycledBlocks_H

#include "OPXCoreToolsExport.h"

#include <cstddef>

struct OPXCORETOOLS_EXPORT ZELSYPRecycledBlocks
{
  // i_bytes of memory, aligned as new aligns by itself, or null when there is none.
  static void* Take(std::size_t i_bytes) noexcept;
  // A block of i_bytes that begins with the first i_used bytes of io_block and takes its place. Null when there is no
  // memory, and io_block stands as it was. For a null io_block a new block.
  static void* Extend(void* io_block, std::size_t i_used, std::size_t i_bytes) noexcept;
  // Takes a block back, on whatever thread it was taken. Null is nothing.
  static void GiveBack(void* i_pBlock) noexcept;
};

#endif
