// ZELSYPArray<T>: a growable array with positions from 0.
// ZELSYPArray<Node*> nodes; nodes.Append(pNode); for (Node* pEach : nodes) ...
//
// Appending doubles the room: capacities run 1, 4, 10, 22, 46, ... The room never shrinks by itself. A copy is deep. One
// thread at a time. Nothing throws but T's own operations. Elements that only travel are moved, not copied, and a move
// must not throw. An element that must be aligned to more than 16 bytes does not compile.
//
// Blocks is where the room comes from (ZELSYPHeapBlocks.h says what it must offer).
#ifndef ZELSYPArray_H
#define ZELSYPArray_H

#include "ZELSYPCheck.h"
#include "ZELSYPHeapBlocks.h"
#include "ZELTravelsAsBytes.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

template <class T, class Blocks = ZELSYPHeapBlocks>
class ZELSYPArray
{
  static_assert(alignof(T) <= alignof(std::max_align_t), "the block is aligned as the heap aligns by itself");

public:
  ZELSYPArray() = default;
  // A copy of an element that throws leaves nothing behind.
  ZELSYPArray(const ZELSYPArray& i_other) : ZELSYPArray() { CopyFrom(i_other); }
  ZELSYPArray& operator=(const ZELSYPArray& i_other);
  ~ZELSYPArray()
  {
    DestroyElements();
    Blocks::GiveBack(_data);
  }

  int GetLength() const noexcept { return _length; }
  int GetCapacity() const noexcept { return _capacity; }

  // 1: the element, which may stand in this array, is copied or moved to the end. 0: no memory, "plNewArray"; the array has
  // the elements it had and records the capacity it asked for, and an element that was to be moved is gone.
  int Append(const T& i_element) { return AppendFrom(i_element); }
  int Append(T&& i_element) { return AppendFrom(std::move(i_element)); }
  // Makes room for i_capacity elements. Not above the length: "i_capacity > _length", and nothing changes. No memory:
  // "plNewArray", and the elements stay where they are. The capacity of now: nothing happens.
  void SetCapacity(int i_capacity);

  // For an array without room: uses the room of i_room, a ZELSYPRecycledBlocks::Room<T, n> or whatever else its Blocks takes
  // back, which must outlive it, before it takes a block.
  template <class Room>
  void UseRoom(Room& io_room);

  // The capacity that a full array of that length grows to.
  static constexpr int CapacityAbove(int i_length) noexcept
  {
    return i_length == 0 ? 1 : i_length < INT_MAX / 2 ? 2 * (i_length + 1) : INT_MAX;
  }
  // The bytes of that many elements. Too many to count: the largest block there is, which no heap has.
  static constexpr std::size_t BytesOf(int i_capacity) noexcept
  {
    const std::size_t count = static_cast<std::size_t>(i_capacity);
    return count > SIZE_MAX / sizeof(T) ? SIZE_MAX : count * sizeof(T);
  }

  // The element at i_index (0 to GetLength() - 1), valid until the array changes. For any other index
  // "(i_index>=0 && i_index<_length)" and a spare element that no index reaches.
  T& operator[](int i_index) { return HasElement(i_index) ? _data[i_index] : _spare; }
  const T& operator[](int i_index) const { return HasElement(i_index) ? _data[i_index] : _spare; }

  // Takes the element out and answers it; later ones move down. For an index without element
  // "(i_index >=0 && i_index < _length)" and a default element.
  T RemoveAt(int i_index);
  // The same for the last element; an empty array answers a default element.
  T RemoveLast() { return _length == 0 ? T() : RemoveAt(_length - 1); }
  // Keeps the room.
  void RemoveAll()
  {
    DestroyElements();
    _length = 0;
  }

  T* begin() noexcept { return _data; }
  T* end() noexcept { return _data + _length; }
  const T* begin() const noexcept { return _data; }
  const T* end() const noexcept { return _data + _length; }

private:
  bool HasElement(int i_index) const;
  void DestroyElements();
  template <class From>
  int AppendFrom(From&& i_element);
  template <class From>
  int AppendInRoom(From&& i_element);
  int AppendGrowing(T i_element);
  void GrowForOneMore();
  void MoveToNewBlock();
  void CopyFrom(const ZELSYPArray& i_other);
  void FreeBlock();
  static T* MovedToNewBlock(T* io_block, int i_length, int i_capacity);
  static void MoveElements(T* io_block, int i_length, T* o_newBlock) noexcept;

  T _spare{};
  T* _data = nullptr;
  std::int32_t _length = 0;
  std::int32_t _capacity = 0;
  // What the block really holds: the capacity, or less after a failed allocation.
  std::int32_t _room = 0;
};

template <class T, class Blocks>
ZELSYPArray<T, Blocks>& ZELSYPArray<T, Blocks>::operator=(const ZELSYPArray& i_other)
{
  if (this != &i_other)
  {
    FreeBlock();
    CopyFrom(i_other);
  }
  return *this;
}

template <class T, class Blocks>
template <class From>
inline int ZELSYPArray<T, Blocks>::AppendFrom(From&& i_element)
{
  if (__builtin_expect(_length >= _room, false))
    return AppendGrowing(std::forward<From>(i_element));
  return AppendInRoom(std::forward<From>(i_element));
}

template <class T, class Blocks>
template <class From>
inline int ZELSYPArray<T, Blocks>::AppendInRoom(From&& i_element)
{
  ::new (static_cast<void*>(_data + _length)) T(std::forward<From>(i_element));
  ++_length;
  return 1;
}

// By value: what is appended may stand in the block that growth replaces.
template <class T, class Blocks>
inline int ZELSYPArray<T, Blocks>::AppendGrowing(T i_element)
{
  GrowForOneMore();
  return _length < _room ? AppendInRoom(std::move(i_element)) : 0;
}

template <class T, class Blocks>
inline void ZELSYPArray<T, Blocks>::GrowForOneMore()
{
  if (_length >= _capacity)
    _capacity = CapacityAbove(_length);
  MoveToNewBlock();
}

template <class T, class Blocks>
void ZELSYPArray<T, Blocks>::SetCapacity(int i_capacity)
{
  if (i_capacity == _capacity || !ZELSYP_CHECK_TRUE(i_capacity > _length))
    return;
  // Kept: the recorded capacity changes even when the allocation fails.
  _capacity = i_capacity;
  MoveToNewBlock();
}

template <class T, class Blocks>
template <class Room>
inline void ZELSYPArray<T, Blocks>::UseRoom(Room& io_room)
{
  _data = io_room.Get();
  _capacity = _room = Room::Capacity;
}

template <class T, class Blocks>
inline void ZELSYPArray<T, Blocks>::MoveToNewBlock()
{
  T* const plNewArray = MovedToNewBlock(_data, _length, _capacity);
  if (!ZELSYP_CHECK_POINTER(plNewArray))
  {
    _room = _capacity < _room ? _capacity : _room;
    return;
  }
  _data = plNewArray;
  _room = _capacity;
}

// One by one: each is destroyed while it is at hand. A move that throws would leave them in two places.
template <class T, class Blocks>
void ZELSYPArray<T, Blocks>::MoveElements(T* io_block, int i_length, T* o_newBlock) noexcept
{
  for (int index = 0; index < i_length; ++index)
  {
    ::new (static_cast<void*>(o_newBlock + index)) T(std::move(io_block[index]));
    io_block[index].~T();
  }
  Blocks::GiveBack(io_block);
}

template <class T, class Blocks>
T ZELSYPArray<T, Blocks>::RemoveAt(int i_index)
{
  if (!ZELSYP_CHECK_REPORT(i_index >= 0 && i_index < _length, Check_TRUE_Failed__, "(i_index >=0 && i_index < _length)", __LINE__, nullptr))
    return T();
  T element(std::move(_data[i_index]));
  std::move(_data + i_index + 1, end(), _data + i_index);
  std::destroy_at(_data + --_length);
  return element;
}

template <class T, class Blocks>
void ZELSYPArray<T, Blocks>::DestroyElements()
{
  // What stands here is a T and nothing that derives from it: the destructor needs no look-up.
  T* const pEnd = end();
  for (T* pElement = begin(); pElement != pEnd; ++pElement)
    pElement->T::~T();
}

template <class T, class Blocks>
inline bool ZELSYPArray<T, Blocks>::HasElement(int i_index) const
{
  return ZELSYP_CHECK_REPORT(i_index >= 0 && i_index < _length, Check_TRUE_Failed__, "(i_index>=0 && i_index<_length)", __LINE__, nullptr);
}

template <class T, class Blocks>
void ZELSYPArray<T, Blocks>::CopyFrom(const ZELSYPArray& i_other)
{
  _capacity = i_other._capacity;
  if (_capacity == 0)
    return;
  MoveToNewBlock();
  if (_room == 0)
    return;
  std::uninitialized_copy(i_other.begin(), i_other.end(), _data);
  _length = i_other._length;
}

template <class T, class Blocks>
void ZELSYPArray<T, Blocks>::FreeBlock()
{
  RemoveAll();
  Blocks::GiveBack(_data);
  _data = nullptr;
  _room = 0;
}

// A block with room for i_capacity elements in place of i_block, and the elements in it; null: no memory, and i_block
// stands as it was. Elements that travel as bytes may find themselves where they were: the heap extends a block when it
// can.
//
// Static, and never inlined: an array whose address nobody takes stays in registers while a loop appends to it.
template <class T, class Blocks>
__attribute__((noinline)) T* ZELSYPArray<T, Blocks>::MovedToNewBlock(T* io_block, int i_length, int i_capacity)
{
  const std::size_t bytes = BytesOf(i_capacity);
  if constexpr (ZELTravelsAsBytes<T>::value)
    return static_cast<T*>(Blocks::Extend(io_block, static_cast<std::size_t>(i_length) * sizeof(T), bytes));
  T* const newBlock = static_cast<T*>(Blocks::Take(bytes));
  if (newBlock)
    MoveElements(io_block, i_length, newBlock);
  return newBlock;
}

#endif
