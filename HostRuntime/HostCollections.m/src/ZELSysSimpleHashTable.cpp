#include "ZELSysSimpleHashTable.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <new>

namespace
{
// Of a group's 15 slots: full enough to be small, empty enough that few elements pass by their first group.
const std::size_t ElementsPerGroup = 12;
// Positions are ints.
const std::size_t MaximumGroups = std::size_t{1} << 28;
const std::align_val_t BlockAlignment{64};

std::size_t GroupsFor(int i_size)
{
  std::size_t groups = 1;
  while (groups * ElementsPerGroup < static_cast<std::size_t>(std::max(i_size, 1)))
    groups *= 2;
  return groups;
}

// Of 64 bits: those of a power of two of groups stay, and eight more.
int ShiftFor(std::size_t i_groupCount)
{
  return 64 - 8 - __builtin_ctzll(i_groupCount);
}

// Cuts the next i_count objects off the front of a block of memory.
template <class T>
T* Cut(char*& io_memory, std::size_t i_count)
{
  T* const array = reinterpret_cast<T*>(io_memory);
  io_memory += i_count * sizeof(T);
  return array;
}
} // namespace

alignas(64) const ZELSysSimpleHashTable::Group ZELSysSimpleHashTable::s_noElements = {};

// The group without elements is looked into, never written: its capacity is 0.
ZELSysSimpleHashTable::ZELSysSimpleHashTable(int i_size, HashFunction i_hash, CompareFunction i_compare)
    : _block{const_cast<Group*>(&s_noElements), nullptr, nullptr, nullptr, nullptr, 0, ShiftFor(1), 0},
      _size(0),
      _initialSize(i_size),
      _hash(i_hash),
      _compare(i_compare)
{
}

ZELSysSimpleHashTable::~ZELSysSimpleHashTable()
{
  Free(_block);
}

int ZELSysSimpleHashTable::Insert(void* i_element)
{
  const int size = _size;
  if (!InsertOrReturn(i_element))
    return -1;
  return _size - size;
}

void* ZELSysSimpleHashTable::InsertOrReturn(void* i_element)
{
  if (!i_element)
    return nullptr;
  const int hash = _hash(i_element);
  void* const present = LocateHashed(hash, [&](const void* i_other) { return _compare(i_element, i_other) != 0; });
  return present ? present : InsertHashed(hash, i_element);
}

void* ZELSysSimpleHashTable::Locate(const void* i_element) const
{
  if (!i_element)
    return nullptr;
  return LocateHashed(_hash(i_element), [&](const void* i_other) { return _compare(i_element, i_other) != 0; });
}

void* ZELSysSimpleHashTable::Remove(const void* i_element)
{
  if (!i_element)
    return nullptr;
  return RemoveHashed(_hash(i_element), [&](const void* i_other) { return _compare(i_element, i_other) != 0; });
}

void ZELSysSimpleHashTable::RemoveAll()
{
  if (_block._capacity != 0)
    std::memset(_block._groups, 0, (_block._groupMask + 1) * sizeof(Group));
  _size = 0;
}

void* ZELSysSimpleHashTable::InsertHashed(int i_hash, void* i_element) noexcept
{
  if (_size == _block._capacity && !Grow())
    return nullptr;
  _block._elements[_size] = i_element;
  _block._hashes[_size] = i_hash;
  Place(_size++);
  return i_element;
}

bool ZELSysSimpleHashTable::Allocate(std::size_t i_groupCount, Block& o_block) noexcept
{
  if (i_groupCount > MaximumGroups)
    return false;
  const std::size_t slots = i_groupCount * SlotsPerGroup;
  const std::size_t elements = i_groupCount * ElementsPerGroup;
  const std::size_t bytes = i_groupCount * sizeof(Group) + (slots + elements) * (sizeof(void*) + sizeof(int));
  char* memory = static_cast<char*>(::operator new(bytes, BlockAlignment, std::nothrow));
  if (!memory)
    return false;
  o_block._groups = Cut<Group>(memory, i_groupCount);
  o_block._slots = Cut<void*>(memory, slots);
  o_block._elements = Cut<void*>(memory, elements);
  o_block._positions = Cut<std::uint32_t>(memory, slots);
  o_block._hashes = Cut<int>(memory, elements);
  o_block._groupMask = i_groupCount - 1;
  o_block._shift = ShiftFor(i_groupCount);
  o_block._capacity = static_cast<int>(std::min<std::size_t>(elements, INT_MAX));
  std::memset(o_block._groups, 0, i_groupCount * sizeof(Group));
  return true;
}

void ZELSysSimpleHashTable::Free(const Block& i_block) noexcept
{
  if (i_block._capacity != 0)
    ::operator delete(i_block._groups, BlockAlignment);
}

bool ZELSysSimpleHashTable::Grow() noexcept
{
  const Block old = _block;
  if (!Allocate(old._capacity == 0 ? GroupsFor(_initialSize) : 2 * (old._groupMask + 1), _block))
    return false;
  if (_size != 0)
  {
    std::memcpy(_block._elements, old._elements, static_cast<std::size_t>(_size) * sizeof(void*));
    std::memcpy(_block._hashes, old._hashes, static_cast<std::size_t>(_size) * sizeof(int));
  }
  for (int position = 0; position < _size; ++position)
    Place(position);
  Free(old);
  return true;
}

// Enters the element that stands at the position into the index. There is room: a group has more slots than its share.
void ZELSysSimpleHashTable::Place(int i_position) noexcept
{
  const std::uint64_t spread = Spread(_block._hashes[i_position]);
  std::size_t group = HomeOf(spread);
  unsigned freeSlots = Matches(_block._groups[group], 0);
  for (std::size_t step = 1; freeSlots == 0; ++step)
  {
    if (_block._groups[group]._passed != UCHAR_MAX)
      ++_block._groups[group]._passed;
    group = (group + step) & _block._groupMask;
    freeSlots = Matches(_block._groups[group], 0);
  }
  const std::size_t index = static_cast<std::size_t>(__builtin_ctz(freeSlots));
  _block._groups[group]._tags[index] = TagOf(spread);
  _block._slots[group * SlotsPerGroup + index] = _block._elements[i_position];
  _block._positions[group * SlotsPerGroup + index] = static_cast<std::uint32_t>(i_position);
}

void* ZELSysSimpleHashTable::TakeOut(std::size_t i_slot) noexcept
{
  void* const element = _block._slots[i_slot];
  const int position = static_cast<int>(_block._positions[i_slot]);
  ForgetPassing(_block._hashes[position], i_slot);
  _block._groups[i_slot / SlotsPerGroup]._tags[i_slot % SlotsPerGroup] = 0;
  MoveLastTo(position);
  return element;
}

// The element in the slot no longer passed by the groups on its way there.
void ZELSysSimpleHashTable::ForgetPassing(int i_hash, std::size_t i_slot) noexcept
{
  std::size_t group = HomeOf(Spread(i_hash));
  for (std::size_t step = 1; group != i_slot / SlotsPerGroup; ++step)
  {
    if (_block._groups[group]._passed != UCHAR_MAX)
      --_block._groups[group]._passed;
    group = (group + step) & _block._groupMask;
  }
}

void ZELSysSimpleHashTable::MoveLastTo(int i_position) noexcept
{
  const int last = --_size;
  if (i_position == last)
    return;
  const int hash = _block._hashes[last];
  const std::size_t slot = FindSlot(hash, [&](std::size_t i_slot) { return _block._positions[i_slot] == static_cast<unsigned>(last); });
  _block._positions[slot] = static_cast<std::uint32_t>(i_position);
  _block._elements[i_position] = _block._elements[last];
  _block._hashes[i_position] = hash;
}
