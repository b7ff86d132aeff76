#include "ZELSYPHashMapFunctions.h"

#include "ZELString.h"
#include "ZELUnicodeString.h"

#include <cmath>
#include <cstring>

namespace
{
template <class Bits, class Number>
Bits BitsOf(Number i_number)
{
  static_assert(sizeof(Bits) == sizeof(Number), "every bit and no other");
  Bits bits;
  std::memcpy(&bits, &i_number, sizeof(bits));
  return bits;
}

template <class Bits, class Number>
int HaveSameBits(Number i_key1, Number i_key2)
{
  if (std::isnan(i_key1) || std::isnan(i_key2))
    return std::isnan(i_key1) && std::isnan(i_key2) ? 1 : 0;
  return BitsOf<Bits>(i_key1) == BitsOf<Bits>(i_key2) ? 1 : 0;
}
} // namespace

int ZELSYPHashMapHasherCString(const char* const& i_key)
{
  return ZELString(i_key).ComputeHashKey();
}

int ZELSYPHashMapComparatorCString(const char* const& i_key1, const char* const& i_key2)
{
  return std::strcmp(i_key1, i_key2) == 0 ? 1 : 0;
}

int ZELSYPHashMapHasherZELString(const ZELString& i_key)
{
  return i_key.ComputeHashKey();
}

int ZELSYPHashMapHasherZELUnicodeString(const ZELUnicodeString& i_key)
{
  return i_key.ComputeHashKey();
}

int ZELSYPHashMapHasherDouble(const double& i_key)
{
  if (std::isnan(i_key))
    return 0x7FF80000;
  const std::uint64_t bits = BitsOf<std::uint64_t>(i_key);
  return static_cast<int>(static_cast<std::uint32_t>(bits >> 32 ^ bits));
}

int ZELSYPHashMapComparatorDouble(const double& i_key1, const double& i_key2)
{
  return HaveSameBits<std::uint64_t>(i_key1, i_key2);
}

int ZELSYPHashMapHasherFloat(const float& i_key)
{
  return std::isnan(i_key) ? 0x7FC00000 : BitsOf<std::int32_t>(i_key);
}

int ZELSYPHashMapComparatorFloat(const float& i_key1, const float& i_key2)
{
  return HaveSameBits<std::uint32_t>(i_key1, i_key2);
}

int ZELSYPHashMapPointerHasherCompute(void* i_key)
{
  return ZELSYPHashMapHashOfAddress(i_key);
}
