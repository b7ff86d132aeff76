// GetSlot: where a virtual operation stands in the table of its class, in bytes.
// EXPECT_EQ(GetSlot(&Shape::Draw) + static_cast<std::ptrdiff_t>(sizeof(void*)), GetSlot(&Shape::Erase));
#ifndef VirtualSlots_H
#define VirtualSlots_H

#include <cstddef>
#include <cstring>

// What the platforms' common calling rules put into a pointer to a virtual member: the place, and one more.
template <class Operation>
std::ptrdiff_t GetSlot(Operation i_pOperation)
{
  std::ptrdiff_t offset = 0;
  std::memcpy(&offset, &i_pOperation, sizeof offset);
  return offset;
}

// Whether the operation stands in the table at all. The address of one that does not is even.
template <class Operation>
bool IsVirtual(Operation i_pOperation)
{
  return GetSlot(i_pOperation) % 2 != 0;
}

// What GetSlot answers for the operation that has so many places before it. A destructor takes two.
constexpr std::ptrdiff_t SlotAfter(int i_places)
{
  return 1 + i_places * static_cast<std::ptrdiff_t>(sizeof(void*));
}

#endif
