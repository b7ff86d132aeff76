// SystemPath: a path as the system takes it, narrow or wide.
// GetFileAttributesA(SystemPath("C:\\data\\x").Get());
#ifndef SystemPath_H
#define SystemPath_H

#include "ZELUnicodeString.h"

#include <algorithm>
#include <string>

class SystemPath
{
public:
  // A null path becomes the empty path, which no system call finds.
  explicit SystemPath(const char* i_path) noexcept : _text(i_path ? i_path : "") {}

  const char* Get() const noexcept { return _text; }

private:
  const char* _text;
};

// The wide name in a buffer of 1,024 characters; a longer one becomes the empty path.
class SystemWidePath
{
public:
  explicit SystemWidePath(const ZELUnicodeString& i_path)
  {
    const std::u16string text = i_path.ToUTF16();
    if (text.size() < Size)
      std::copy(text.begin(), text.end(), _text);
  }

  const wchar_t* Get() const noexcept { return _text; }

private:
  static constexpr std::size_t Size = 1024;
  wchar_t _text[Size] = {};
};

#endif
