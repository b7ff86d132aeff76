// ZELSysSimpleHashTable: a hash table of pointers to elements, told apart by two functions. It never owns the elements.
// ZELSysSimpleHashTable table(16, &HashKey, &SameKey); table.Insert(pKey);
//
// Elements stand in a dense array beside their hashes, in the order they were inserted: the element at a position is one
// load. Positions stay put while nothing is removed. One thread at a time. Nothing throws but what the two functions
// throw, and then the table is as it was.
//
// Up to eight elements are found by going through their hashes, and an empty table has no memory. More elements have an
// index: groups of one cache line each, with a tag a slot (a few bits of the element's hash, all compared at once) and the
// slots themselves. A look-up that finds nothing touches one line as a rule; one that finds its element touches that line
// and the element.
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
  void* Get(int i_position) const noexcept { return i_position >= 0 && i_position < _size ? _elements[i_position] : nullptr; }
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
    SlotsPerGroup = 7
  };
  struct alignas(64) Group
  {
    // 0: the slot is free.
    unsigned char _tags[SlotsPerGroup];
    // How many elements found no room here and went on to another group; at 255 it has lost count and stays.
    unsigned char _passed;
    void* _slots[SlotsPerGroup];
  };
  // A place in the index.
  struct Slot
  {
    Group* _pGroup;
    std::size_t _index;
  };

  // The home group of a hash, and below it the eight bits of its tag, from the highest bits of a product: addresses at
  // regular distances spread evenly over the groups, and those that meet in one group have different tags.
  std::uint64_t Spread(int i_hash) const noexcept { return static_cast<std::uint32_t>(i_hash) * UINT64_C(0x9E3779B97F4A7C15) >> _shift; }
  static std::size_t HomeOf(std::uint64_t i_spread) noexcept { return i_spread >> 8; }
  static unsigned char TagOf(std::uint64_t i_spread) noexcept
  {
    const unsigned char tag = static_cast<unsigned char>(i_spread);
    return static_cast<unsigned char>(tag + (tag == 0));
  }
  // One bit for each slot with that tag.
  static unsigned Matches(const Group& i_group, unsigned char i_tag) noexcept
  {
    const __m128i tags = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&i_group));
    const __m128i same = _mm_cmpeq_epi8(tags, _mm_set1_epi8(static_cast<char>(i_tag)));
    return static_cast<unsigned>(_mm_movemask_epi8(same)) & ((1U << SlotsPerGroup) - 1);
  }
  std::size_t GroupCount() const noexcept { return std::size_t{1} << (64 - 8 - _shift); }
  int* Hashes() const noexcept { return reinterpret_cast<int*>(_elements + _capacity); }
  std::uint32_t& PositionOf(const Slot& i_slot) const noexcept;

  template <class Same>
  int FindPosition(int i_hash, const Same& i_same) const;
  template <class Same>
  Slot FindSlot(int i_hash, const Same& i_same) const;

  std::size_t NextCapacity() const noexcept;
  bool Grow() noexcept;
  bool Reallocate(std::size_t i_capacity, std::size_t i_groupCount) noexcept;
  void FreeMemory() noexcept;
  void EnterAll(std::size_t i_groupCount) noexcept;
  void ClearIndex() noexcept;
  void Place(int i_position) noexcept;
  void* TakeOut(const Slot& i_slot) noexcept;
  void* TakeOut(int i_position) noexcept;
  void ForgetPassing(int i_hash, const Group* i_pGroup) noexcept;

  // One allocation has the index, as many elements as the capacity says, their hashes, and for each slot of the index the
  // position of its element. No groups: no index.
  Group* _groups;
  void** _elements;
  int _size;
  int _capacity;
  int _initialSize;
  // Leaves a product's bits for the group and the tag.
  int _shift;
  HashFunction _hash;
  CompareFunction _compare;
};

// -1: none. For a table without index.
template <class Same>
inline int ZELSysSimpleHashTable::FindPosition(int i_hash, const Same& i_same) const
{
  const int* const hashes = Hashes();
  for (int position = 0; position < _size; ++position)
    if (hashes[position] == i_hash && i_same(_elements[position]))
      return position;
  return -1;
}

// A null group: none.
template <class Same>
inline ZELSysSimpleHashTable::Slot ZELSysSimpleHashTable::FindSlot(int i_hash, const Same& i_same) const
{
  const std::uint64_t spread = Spread(i_hash);
  const unsigned char tag = TagOf(spread);
  std::size_t number = HomeOf(spread);
  for (std::size_t step = 1;; ++step)
  {
    Group& group = _groups[number];
    for (unsigned matches = Matches(group, tag); matches != 0; matches &= matches - 1)
    {
      const std::size_t index = static_cast<std::size_t>(__builtin_ctz(matches));
      if (__builtin_expect(i_same(group._slots[index]), true))
        return {&group, index};
    }
    // Growing steps visit every group once, which ends the walk when removals left every group marked as passed by.
    if (__builtin_expect(group._passed == 0 || step >= GroupCount(), true))
      return {nullptr, 0};
    number = (number + step) & (GroupCount() - 1);
  }
}

template <class Same>
void* ZELSysSimpleHashTable::LocateHashed(int i_hash, const Same& i_same) const
{
  if (!_groups)
  {
    const int position = FindPosition(i_hash, i_same);
    return position < 0 ? nullptr : _elements[position];
  }
  const Slot slot = FindSlot(i_hash, i_same);
  return slot._pGroup ? slot._pGroup->_slots[slot._index] : nullptr;
}

template <class Same>
void* ZELSysSimpleHashTable::RemoveHashed(int i_hash, const Same& i_same)
{
  if (!_groups)
  {
    const int position = FindPosition(i_hash, i_same);
    return position < 0 ? nullptr : TakeOut(position);
  }
  const Slot slot = FindSlot(i_hash, i_same);
  return slot._pGroup ? TakeOut(slot) : nullptr;
}

#endif
