// The hash and the equality of the common key types, and how a map finds those of its key type.
// int hash = ZELSYPHashMapHasherDouble(1.5);
//
// Equal keys have equal hashes in one process. Comparators answer 1 for equal, 0 otherwise. Any thread.
#ifndef ZELSYPHashMapFunctions_H
#define ZELSYPHashMapFunctions_H

#include "OPXCoreToolsExport.h"

#include <cstdint>

class ZELString;
class ZELUnicodeString;

// By the bytes of the text, which are not copied: they must live as long as the key. Not null.
OPXCORETOOLS_EXPORT int ZELSYPHashMapHasherCString(const char* const& i_key);
OPXCORETOOLS_EXPORT int ZELSYPHashMapComparatorCString(const char* const& i_key1, const char* const& i_key2);

OPXCORETOOLS_EXPORT int ZELSYPHashMapHasherZELString(const ZELString& i_key);
OPXCORETOOLS_EXPORT int ZELSYPHashMapHasherZELUnicodeString(const ZELUnicodeString& i_key);

// By the bit pattern, on purpose: every NaN equals every other NaN, and +0.0 and -0.0 are different keys.
OPXCORETOOLS_EXPORT int ZELSYPHashMapHasherDouble(const double& i_key);
OPXCORETOOLS_EXPORT int ZELSYPHashMapComparatorDouble(const double& i_key1, const double& i_key2);
OPXCORETOOLS_EXPORT int ZELSYPHashMapHasherFloat(const float& i_key);
OPXCORETOOLS_EXPORT int ZELSYPHashMapComparatorFloat(const float& i_key1, const float& i_key2);

// By the address alone; null is a key like any other.
OPXCORETOOLS_EXPORT int ZELSYPHashMapPointerHasherCompute(void* i_key);

// ZELSYPHashMapPointerHasherCompute where the compiler sees it.
inline int ZELSYPHashMapHashOfAddress(const void* i_key) noexcept
{
  const std::int64_t address = static_cast<std::int64_t>(reinterpret_cast<std::uintptr_t>(i_key)) >> 4;
  return static_cast<int>(static_cast<std::uint32_t>(static_cast<std::uint64_t>((address >> 32) ^ address)));
}

// What a map uses for its key type unless it is told otherwise. For a key type of your own, declare both beside it:
// int ZELSYPHashMapHasher(const Key&) and int ZELSYPHashMapComparator(const Key&, const Key&).
inline int ZELSYPHashMapHasher(const char* const& i_key)
{
  return ZELSYPHashMapHasherCString(i_key);
}
inline int ZELSYPHashMapHasher(const ZELString& i_key)
{
  return ZELSYPHashMapHasherZELString(i_key);
}
inline int ZELSYPHashMapHasher(const ZELUnicodeString& i_key)
{
  return ZELSYPHashMapHasherZELUnicodeString(i_key);
}
inline int ZELSYPHashMapHasher(const double& i_key)
{
  return ZELSYPHashMapHasherDouble(i_key);
}
inline int ZELSYPHashMapHasher(const float& i_key)
{
  return ZELSYPHashMapHasherFloat(i_key);
}
template <class Pointed>
int ZELSYPHashMapHasher(Pointed* const& i_key)
{
  return ZELSYPHashMapHashOfAddress(i_key);
}

inline int ZELSYPHashMapComparator(const char* const& i_key1, const char* const& i_key2)
{
  return ZELSYPHashMapComparatorCString(i_key1, i_key2);
}
inline int ZELSYPHashMapComparator(const double& i_key1, const double& i_key2)
{
  return ZELSYPHashMapComparatorDouble(i_key1, i_key2);
}
inline int ZELSYPHashMapComparator(const float& i_key1, const float& i_key2)
{
  return ZELSYPHashMapComparatorFloat(i_key1, i_key2);
}
template <class Key>
int ZELSYPHashMapComparator(const Key& i_key1, const Key& i_key2)
{
  return i_key1 == i_key2 ? 1 : 0;
}

// The same two as functions with one address a key type.
template <class Key>
int ZELSYPHashMapDefaultHasher(const Key& i_key)
{
  return ZELSYPHashMapHasher(i_key);
}
template <class Key>
int ZELSYPHashMapDefaultComparator(const Key& i_key1, const Key& i_key2)
{
  return ZELSYPHashMapComparator(i_key1, i_key2);
}

#endif
