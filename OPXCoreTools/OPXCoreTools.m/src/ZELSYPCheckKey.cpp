#include "ZELSYPCheckKey.h"

#include <cstdio>
#include <cstring>
#include <new>

namespace
{
template <class T>
bool IsGiven(const T* i_pValue, int i_line)
{
  if (!i_pValue)
    std::fprintf(stderr, "Internal error in %s %d, NULL value!\n", __FILE_NAME__, i_line);
  return i_pValue != nullptr;
}

const char* EmptyUnlessGiven(const char* i_file)
{
  if (IsGiven(i_file, __LINE__))
    return i_file;
  IsGiven(i_file, __LINE__); // Kept: a null text is printed twice.
  return "";
}

char* Copy(const char* i_text)
{
  const std::size_t size = std::strlen(i_text) + 1;
  char* const pCopy = new (std::nothrow) char[size];
  return pCopy ? static_cast<char*>(std::memcpy(pCopy, i_text, size)) : nullptr;
}
} // namespace

ZELSYPCheckKey::ZELSYPCheckKey(const char* i_file, int i_line) noexcept : _pFile(Copy(EmptyUnlessGiven(i_file))), _line(i_line) {}

int ZELSYPCheckKey::Hash(const void* i_key)
{
  if (!IsGiven(i_key, __LINE__))
    return 0;
  const ZELSYPCheckKey& key = *static_cast<const ZELSYPCheckKey*>(i_key);
  std::uint32_t hash = 0;
  for (const char* byte = key._pFile.get(); *byte; ++byte)
    hash = hash * 31 + static_cast<std::uint32_t>(static_cast<signed char>(*byte));
  return static_cast<int>(hash * 31 + static_cast<std::uint32_t>(key._line));
}

int ZELSYPCheckKey::Compare(const void* i_left, const void* i_right)
{
  const bool leftGiven = IsGiven(i_left, __LINE__);
  const bool rightGiven = IsGiven(i_right, __LINE__);
  if (!leftGiven || !rightGiven)
    return 0;
  const ZELSYPCheckKey& left = *static_cast<const ZELSYPCheckKey*>(i_left);
  const ZELSYPCheckKey& right = *static_cast<const ZELSYPCheckKey*>(i_right);
  return left._line == right._line && std::strcmp(left._pFile.get(), right._pFile.get()) == 0 ? 1 : 0;
}
