// ZELSYPCheckKey: the place of a check, as an element of a host hash table.
// ZELSysSimpleHashTable hidden(0, &ZELSYPCheckKey::Hash, &ZELSYPCheckKey::Compare);
#ifndef ZELSYPCheckKey_H
#define ZELSYPCheckKey_H

#include <cstdint>
#include <memory>

class ZELSYPCheckKey
{
public:
  // Copies the text. A null one is taken as empty and printed as an internal error.
  ZELSYPCheckKey(const char* i_file, int i_line) noexcept;
  // False when there was no memory for the text: such a key is the key of no check, and no table may have it.
  bool IsWhole() const noexcept { return _pFile != nullptr; }

  // 31 times the hash so far plus the next byte (signed), over the file text, and then plus the line.
  static int Hash(const void* i_key);
  // Both take whole keys only. 1 for the same file text and line, 0 otherwise. A null key, here and above, is printed as an internal error.
  static int Compare(const void* i_left, const void* i_right);

private:
  std::unique_ptr<char[]> _pFile;
  std::int32_t _line;
};

#endif
