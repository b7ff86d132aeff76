// SystemPath: a path as the system takes it.
// const SystemPath path("C:\\data\\x"); stat(path.Get(), &status);   // "/data/x"
//
// A backslash becomes a slash, a drive prefix (C:) names the root of the one file tree, \\server\share becomes
// //server/share. Every other byte is handed on untouched, valid text or not. The only place that knows these rules.
#ifndef SystemPath_H
#define SystemPath_H

#include "ZELUnicodeString.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <string>

class SystemPath
{
public:
  // A null path, or one longer than the system takes, becomes the empty path, which no system call finds.
  explicit SystemPath(const char* i_path) noexcept { Translate(i_path ? i_path : ""); }
  explicit SystemPath(const ZELUnicodeString& i_path) noexcept { Translate(i_path.GetUTF8().data()); }

  const char* Get() const noexcept { return _text; }

  // The way back: a text of the system with backslashes.
  static void TranslateBack(char* io_text) noexcept { std::replace(io_text, io_text + std::strlen(io_text), '/', '\\'); }

private:
  static bool IsSeparator(char i_char) noexcept { return i_char == '\\' || i_char == '/'; }
  static bool HasDrive(const char* i_path) noexcept
  {
    const char letter = static_cast<char>(i_path[0] | 0x20);
    return letter >= 'a' && letter <= 'z' && i_path[1] == ':';
  }

  void Translate(const char* i_path) noexcept
  {
    char* write = _text;
    if (HasDrive(i_path))
    {
      *write++ = '/';
      i_path += IsSeparator(i_path[2]) ? 3 : 2;
    }
    const std::size_t length = std::strlen(i_path);
    if (length < sizeof(_text) - 1)
      *std::replace_copy(i_path, i_path + length, write, '\\', '/') = 0;
    else
      _text[0] = 0;
  }

  char _text[PATH_MAX];
};

#endif
