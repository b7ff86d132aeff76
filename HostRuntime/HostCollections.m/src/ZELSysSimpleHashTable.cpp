#include "ZELSysSimpleHashTable.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <new>

namespace
{
// So many are found faster, and in less memory, without an index.
const std::size_t LargestWithoutIndex = 8;
const std::size_t FirstCapacity = 2;
// Of a group's seven slots: full enough to be small, empty enough that few elements pass by their first group.
const std::size_t ElementsPerGroup = 5;
// Positions are ints.
const std::size_t MaximumGroups = std::size_t{1} << 28;
const std::align_val_t GroupAlignment{64};

std::size_t GroupsFor(std::size_t i_capacity)
{
  std::size_t groups = 1;
  while (groups * ElementsPerGroup < i_capacity)
    groups *= 2;
  return groups;
}

// Of 64 bits: those of a power of two of groups stay, and eight more.
int ShiftFor(std::size_t i_groupCount)
{
  return 64 - 8 - __builtin_ctzll(i_groupCount);
}
} // namespace

ZELSysSimpleHashTable::ZELSysSimpleHashTable(int i_size, HashFunction i_hash, CompareFunction i_compare)
    : _groups(nullptr), _elements(nullptr), _size(0), _capacity(0), _initialSize(i_size), _shift(0), _hash(i_hash), _compare(i_compare)
{
}

ZELSysSimpleHashTable::~ZELSysSimpleHashTable()
{
  FreeMemory();
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
  if (_groups)
    ClearIndex();
  _size = 0;
}

void* ZELSysSimpleHashTable::InsertHashed(int i_hash, void* i_element) noexcept
{
  if (_size == _capacity && !Grow())
    return nullptr;
  _elements[_size] = i_element;
  Hashes()[_size] = i_hash;
  if (_groups)
    Place(_size);
  ++_size;
  return i_element;
}

std::size_t ZELSysSimpleHashTable::NextCapacity() const noexcept
{
  if (_capacity == 0)
    return _initialSize > 0 ? static_cast<std::size_t>(_initialSize) : FirstCapacity;
  return std::max(LargestWithoutIndex, 2 * static_cast<std::size_t>(_capacity));
}

bool ZELSysSimpleHashTable::Grow() noexcept
{
  const std::size_t capacity = NextCapacity();
  if (capacity <= LargestWithoutIndex)
    return Reallocate(capacity, 0);
  const std::size_t groups = GroupsFor(capacity);
  return groups <= MaximumGroups && Reallocate(groups * ElementsPerGroup, groups);
}

bool ZELSysSimpleHashTable::Reallocate(std::size_t i_capacity, std::size_t i_groupCount) noexcept
{
  const std::size_t bytes =
      i_capacity * (sizeof(void*) + sizeof(int)) + i_groupCount * (sizeof(Group) + SlotsPerGroup * sizeof(std::uint32_t));
  void* const memory = i_groupCount == 0 ? ::operator new(bytes, std::nothrow) : ::operator new(bytes, GroupAlignment, std::nothrow);
  if (!memory)
    return false;
  Group* const groups = i_groupCount == 0 ? nullptr : static_cast<Group*>(memory);
  void** const elements = groups ? reinterpret_cast<void**>(groups + i_groupCount) : static_cast<void**>(memory);
  if (_size != 0)
  {
    std::memcpy(elements, _elements, static_cast<std::size_t>(_size) * sizeof(void*));
    std::memcpy(elements + i_capacity, Hashes(), static_cast<std::size_t>(_size) * sizeof(int));
  }
  FreeMemory();
  _elements = elements;
  _groups = groups;
  _capacity = static_cast<int>(i_capacity);
  if (groups)
    EnterAll(i_groupCount);
  return true;
}

void ZELSysSimpleHashTable::FreeMemory() noexcept
{
  if (_groups)
    ::operator delete(_groups, GroupAlignment);
  else
    ::operator delete(_elements);
}

// Enters the elements into an index of so many groups, whose memory is there.
void ZELSysSimpleHashTable::EnterAll(std::size_t i_groupCount) noexcept
{
  _shift = ShiftFor(i_groupCount);
  ClearIndex();
  for (int position = 0; position < _size; ++position)
    Place(position);
}

void ZELSysSimpleHashTable::ClearIndex() noexcept
{
  Group* const pEnd = _groups + GroupCount();
  for (Group* pGroup = _groups; pGroup != pEnd; ++pGroup)
    std::memset(pGroup, 0, sizeof(pGroup->_tags) + sizeof(pGroup->_passed));
}

std::uint32_t& ZELSysSimpleHashTable::PositionOf(const Slot& i_slot) const noexcept
{
  std::uint32_t* const positions = reinterpret_cast<std::uint32_t*>(Hashes() + _capacity);
  return positions[static_cast<std::size_t>(i_slot._pGroup - _groups) * SlotsPerGroup + i_slot._index];
}

// Enters the element that stands at the position into the index. There is room: a group has more slots than its share.
void ZELSysSimpleHashTable::Place(int i_position) noexcept
{
  const std::uint64_t spread = Spread(Hashes()[i_position]);
  std::size_t number = HomeOf(spread);
  unsigned freeSlots = Matches(_groups[number], 0);
  for (std::size_t step = 1; freeSlots == 0; ++step)
  {
    if (_groups[number]._passed != UCHAR_MAX)
      ++_groups[number]._passed;
    number = (number + step) & (GroupCount() - 1);
    freeSlots = Matches(_groups[number], 0);
  }
  const Slot slot{&_groups[number], static_cast<std::size_t>(__builtin_ctz(freeSlots))};
  slot._pGroup->_tags[slot._index] = TagOf(spread);
  slot._pGroup->_slots[slot._index] = _elements[i_position];
  PositionOf(slot) = static_cast<std::uint32_t>(i_position);
}

void* ZELSysSimpleHashTable::TakeOut(const Slot& i_slot) noexcept
{
  const int position = static_cast<int>(PositionOf(i_slot));
  ForgetPassing(Hashes()[position], i_slot._pGroup);
  i_slot._pGroup->_tags[i_slot._index] = 0;
  return TakeOut(position);
}

// Takes the element out of the array. The last one moves to its position.
void* ZELSysSimpleHashTable::TakeOut(int i_position) noexcept
{
  void* const element = _elements[i_position];
  void* const last = _elements[--_size];
  const int hash = Hashes()[_size];
  if (_groups && i_position != _size)
    PositionOf(FindSlot(hash, [last](const void* i_other) { return i_other == last; })) = static_cast<std::uint32_t>(i_position);
  _elements[i_position] = last;
  Hashes()[i_position] = hash;
  return element;
}

// The element that stood in the group no longer passes by the groups on its way there.
void ZELSysSimpleHashTable::ForgetPassing(int i_hash, const Group* i_pGroup) noexcept
{
  std::size_t number = HomeOf(Spread(i_hash));
  for (std::size_t step = 1; &_groups[number] != i_pGroup; ++step)
  {
    if (_groups[number]._passed != UCHAR_MAX)
      --_groups[number]._passed;
    number = (number + step) & (GroupCount() - 1);
  }
}
