// ZELSysSimpleHashTable: a hash table of pointers to elements, told apart by two functions. It never owns the elements.
// ZELSysSimpleHashTable table(16, &HashKey, &SameKey); table.Insert(pKey);
//
// Elements stand in a dense array, in the order they were inserted, beside the index that finds them: the element at a
// position is one load. Positions stay put while nothing is removed. One thread at a time. Nothing throws but what the
// two functions throw, and then the table is as it was.
//
// The index is an array of groups of 16 bytes: one tag a slot, a few bits of the element's hash, all compared at once.
// A look-up that finds nothing touches one group as a rule; one that finds its element touches the group, the slot that
// holds the pointer, and the element.
#ifndef ZELSysSimpleHashTable_H
#define ZELSysSimpleHashTable_H

#include "OPXHostRuntimeExport.h"

#include <cstddef>
#include <cstdint>
#include <emmintrin.h>

class OPXHOSTRUNTIME_EXPORT ZELSysSimpleHashTable
{
public:
  typedef int (*HashFunction)(const void* i_element);
  // 1 when the two are equal, 0 otherwise.
  typedef int (*CompareFunction)(const void* i_left, const void* i_right);

  // Room for i_size elements before the first growth; not above 0: the default. Memory is taken by the first insertion.
  ZELSysSimpleHashTable(int i_size, HashFunction i_hash, CompareFunction i_compare);
  ZELSysSimpleHashTable(const ZELSysSimpleHashTable&) = delete;
  ZELSysSimpleHashTable& operator=(const ZELSysSimpleHashTable&) = delete;
  ~ZELSysSimpleHashTable();

  // 1: the table took the element. 0: an equal one is there. -1: null element, or no memory.
  int Insert(void* i_element);
  // The element that now stands for its key: i_element, or the equal one that is there. Null: null element, no memory.
  void* InsertOrReturn(void* i_element);
  // The element equal to i_element, or null.
  void* Locate(const void* i_element) const;
  // The element at i_position (0 to Size() - 1), or null.
  void* Get(int i_position) const noexcept { return i_position >= 0 && i_position < _size ? _block._elements[i_position] : nullptr; }
  // Takes the equal element out and answers it, or null. The last element takes its position.
  void* Remove(const void* i_element);
  // Keeps the memory for the next elements.
  void RemoveAll();
  int Size() const noexcept { return _size; }

  // The same operations for a caller that knows the hash and compares inline: i_same(const void* element) is true for
  // the element that is looked for. i_hash must be what the hash function would answer for it.
  template <class Same>
  void* LocateHashed(int i_hash, const Same& i_same) const;
  template <class Same>
  void* RemoveHashed(int i_hash, const Same& i_same);
  // Takes an element that is not null and whose key is known to be absent, and answers it; null: no memory.
  void* InsertHashed(int i_hash, void* i_element) noexcept;

private:
  enum : std::size_t
  {
    SlotsPerGroup = 16,
    NoSlot = ~static_cast<std::size_t>(0)
  };
  // One bit for each slot in use; the sixteenth byte of a group is not a tag.
  enum : unsigned
  {
    TagBits = 0x7FFF
  };
  struct alignas(16) Group
  {
    // 0: the slot is free.
    unsigned char _tags[15];
    // How many elements found no room here and went on to another group; at 255 it has lost count and stays.
    unsigned char _passed;
  };
  // One allocation holds all five arrays.
  struct Block
  {
    Group* _groups;
    void** _slots;
    std::uint32_t* _positions;
    void** _elements;
    int* _hashes;
    std::size_t _groupMask;
    // Leaves a product's bits for the group and the tag.
    int _shift;
    int _capacity;
  };
  static const Group s_noElements;

  // The home group of a hash, and below it the eight bits of its tag, from the highest bits of a product: addresses at
  // regular distances spread evenly over the groups, and those that meet in one group have different tags.
  std::uint64_t Spread(int i_hash) const noexcept
  {
    return static_cast<std::uint32_t>(i_hash) * UINT64_C(0x9E3779B97F4A7C15) >> _block._shift;
  }
  static std::size_t HomeOf(std::uint64_t i_spread) noexcept { return i_spread >> 8; }
  static unsigned char TagOf(std::uint64_t i_spread) noexcept
  {
    const unsigned char tag = static_cast<unsigned char>(i_spread);
    return static_cast<unsigned char>(tag + (tag == 0));
  }
  static unsigned Matches(const Group& i_group, unsigned char i_tag) noexcept
  {
    const __m128i tags = _mm_load_si128(reinterpret_cast<const __m128i*>(&i_group));
    return static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(tags, _mm_set1_epi8(static_cast<char>(i_tag))))) & TagBits;
  }
  template <class SameSlot>
  std::size_t FindSlot(int i_hash, const SameSlot& i_sameSlot) const;

  static bool Allocate(std::size_t i_groupCount, Block& o_block) noexcept;
  static void Free(const Block& i_block) noexcept;
  bool Grow() noexcept;
  void Place(int i_position) noexcept;
  void* TakeOut(std::size_t i_slot) noexcept;
  void ForgetPassing(int i_hash, std::size_t i_slot) noexcept;
  void MoveLastTo(int i_position) noexcept;

  Block _block;
  int _size;
  int _initialSize;
  HashFunction _hash;
  CompareFunction _compare;
};

template <class SameSlot>
std::size_t ZELSysSimpleHashTable::FindSlot(int i_hash, const SameSlot& i_sameSlot) const
{
  const std::uint64_t spread = Spread(i_hash);
  const unsigned char tag = TagOf(spread);
  std::size_t group = HomeOf(spread);
  for (std::size_t step = 1;; ++step)
  {
    for (unsigned matches = Matches(_block._groups[group], tag); matches != 0; matches &= matches - 1)
    {
      const std::size_t slot = group * SlotsPerGroup + static_cast<std::size_t>(__builtin_ctz(matches));
      if (__builtin_expect(i_sameSlot(slot), true))
        return slot;
    }
    // Growing steps visit every group once, which ends the walk when removals left every group marked as passed by.
    if (__builtin_expect(_block._groups[group]._passed == 0 || step > _block._groupMask, true))
      return NoSlot;
    group = (group + step) & _block._groupMask;
  }
}

template <class Same>
void* ZELSysSimpleHashTable::LocateHashed(int i_hash, const Same& i_same) const
{
  const std::size_t slot = FindSlot(i_hash, [&](std::size_t i_slot) { return i_same(_block._slots[i_slot]); });
  return slot == NoSlot ? nullptr : _block._slots[slot];
}

template <class Same>
void* ZELSysSimpleHashTable::RemoveHashed(int i_hash, const Same& i_same)
{
  const std::size_t slot = FindSlot(i_hash, [&](std::size_t i_slot) { return i_same(_block._slots[i_slot]); });
  return slot == NoSlot ? nullptr : TakeOut(slot);
}

#endif
