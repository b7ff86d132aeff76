// ZELSYPCheckKey: the place of a check, as an element of a host hash table.
// ZELSysSimpleHashTable hidden(0, &ZELSYPCheckKey::Hash, &ZELSYPCheckKey::Compare);
#ifndef ZELSYPCheckKey_H
#define ZELSYPCheckKey_H

#include <cstdint>
#include <string>

class ZELSYPCheckKey
{
public:
  // Copies the text. A null one is taken as empty and printed as an internal error.
  ZELSYPCheckKey(const char* i_file, int i_line);

  // 31 times the hash so far plus the next byte (signed), over the file text, and then plus the line.
  static int Hash(const void* i_key);
  // 1 for the same file text and line, 0 otherwise. A null key, here and above, is printed as an internal error.
  static int Compare(const void* i_left, const void* i_right);

private:
  std::string _file;
  std::int32_t _line;
};

#endif
