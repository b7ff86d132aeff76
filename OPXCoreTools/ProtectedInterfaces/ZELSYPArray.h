// ZELSYPArray<T>: a growable array with positions from 0.
// ZELSYPArray<Node*> nodes; nodes.Append(pNode); for (Node* pEach : nodes) ...
//
// Appending doubles the room: capacities run 1, 4, 10, 22, 46, ... The room never shrinks by itself. A copy is deep. One
// thread at a time. Nothing throws but T's own operations. Elements that only travel are moved, not copied.
#ifndef ZELSYPArray_H
#define ZELSYPArray_H

#include "ZELSYPCheck.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

template <class T>
class ZELSYPArray
{
  static_assert(alignof(T) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__, "the block is aligned as new aligns by itself");

public:
  ZELSYPArray() = default;
  ZELSYPArray(const ZELSYPArray& i_other) { CopyFrom(i_other); }
  ZELSYPArray& operator=(const ZELSYPArray& i_other);
  ~ZELSYPArray() { FreeBlock(); }

  int GetLength() const noexcept { return _length; }
  int GetCapacity() const noexcept { return _capacity; }

  // 1: a copy of the element, which may stand in this array, is the last one now. 0: no memory, "plNewArray"; the array
  // is as it was.
  int Append(const T& i_element);
  // Makes room for i_capacity elements. Not above the length: "i_capacity > _length", and nothing changes. No memory:
  // "plNewArray", and the elements stay where they are. The capacity of now: nothing happens.
  void SetCapacity(int i_capacity);

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
  void RemoveAll();

  T* begin() noexcept { return _data; }
  T* end() noexcept { return _data + _length; }
  const T* begin() const noexcept { return _data; }
  const T* end() const noexcept { return _data + _length; }

private:
  bool HasElement(int i_index) const;
  int AppendGrowing(T i_element);
  void GrowForOneMore();
  void MoveToNewBlock();
  void CopyFrom(const ZELSYPArray& i_other);
  void FreeBlock();
  static T* NewBlock(int i_capacity) noexcept;

  T _spare{};
  T* _data = nullptr;
  std::int32_t _length = 0;
  std::int32_t _capacity = 0;
  // What the block really holds: the capacity, or less after a failed allocation.
  std::int32_t _room = 0;
};

template <class T>
ZELSYPArray<T>& ZELSYPArray<T>::operator=(const ZELSYPArray& i_other)
{
  if (this != &i_other)
  {
    FreeBlock();
    CopyFrom(i_other);
  }
  return *this;
}

template <class T>
inline int ZELSYPArray<T>::Append(const T& i_element)
{
  if (__builtin_expect(_length >= _room, false))
    return AppendGrowing(i_element);
  ::new (static_cast<void*>(_data + _length)) T(i_element);
  ++_length;
  return 1;
}

// By value: what is appended may stand in the block that growth replaces.
template <class T>
__attribute__((noinline)) int ZELSYPArray<T>::AppendGrowing(T i_element)
{
  GrowForOneMore();
  return _length < _room ? Append(i_element) : 0;
}

template <class T>
void ZELSYPArray<T>::GrowForOneMore()
{
  if (_length < _capacity)
    MoveToNewBlock();
  else
    SetCapacity(_length == 0 ? 1 : static_cast<int>(std::min<long long>(2 * (_length + 1LL), INT_MAX)));
}

template <class T>
void ZELSYPArray<T>::SetCapacity(int i_capacity)
{
  if (i_capacity == _capacity || !ZELSYP_CHECK_TRUE(i_capacity > _length))
    return;
  // Kept: the recorded capacity changes even when the allocation fails.
  _capacity = i_capacity;
  MoveToNewBlock();
}

template <class T>
void ZELSYPArray<T>::MoveToNewBlock()
{
  T* const plNewArray = NewBlock(_capacity);
  if (!ZELSYP_CHECK_POINTER(plNewArray))
  {
    _room = std::min(_room, _capacity);
    return;
  }
  std::uninitialized_move(begin(), end(), plNewArray);
  std::destroy(begin(), end());
  ::operator delete(_data);
  _data = plNewArray;
  _room = _capacity;
}

template <class T>
T ZELSYPArray<T>::RemoveAt(int i_index)
{
  if (!ZELSYP_CHECK_REPORT(i_index >= 0 && i_index < _length, Check_TRUE_Failed__, "(i_index >=0 && i_index < _length)", __LINE__, nullptr))
    return T();
  T element(std::move(_data[i_index]));
  std::move(_data + i_index + 1, end(), _data + i_index);
  std::destroy_at(_data + --_length);
  return element;
}

template <class T>
void ZELSYPArray<T>::RemoveAll()
{
  std::destroy(begin(), end());
  _length = 0;
}

template <class T>
inline bool ZELSYPArray<T>::HasElement(int i_index) const
{
  return ZELSYP_CHECK_REPORT(i_index >= 0 && i_index < _length, Check_TRUE_Failed__, "(i_index>=0 && i_index<_length)", __LINE__, nullptr);
}

template <class T>
void ZELSYPArray<T>::CopyFrom(const ZELSYPArray& i_other)
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

template <class T>
void ZELSYPArray<T>::FreeBlock()
{
  RemoveAll();
  ::operator delete(_data);
  _data = nullptr;
  _room = 0;
}

// A size that overflows asks for the largest block there is, so that the allocation fails.
template <class T>
T* ZELSYPArray<T>::NewBlock(int i_capacity) noexcept
{
  const std::size_t count = static_cast<std::size_t>(i_capacity);
  const std::size_t bytes = count > SIZE_MAX / sizeof(T) ? SIZE_MAX : count * sizeof(T);
  return static_cast<T*>(::operator new(bytes, std::nothrow));
}

#endif
