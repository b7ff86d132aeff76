#include "OPXExplorerNaturalOrder.h"

#include "ZELTextCase.h"
#include "ZELUnicodeString.h"

#include <algorithm>
#include <cstddef>

namespace
{
bool IsDigit(char i_character)
{
  return i_character >= '0' && i_character <= '9';
}

bool IsASCII(std::string_view i_text)
{
  return std::all_of(i_text.begin(), i_text.end(), [](char i_character) { return static_cast<unsigned char>(i_character) < 0x80; });
}

// A number sorts by how many digits it has, then by the digits; leading zeros say nothing. Where a number meets another
// character it counts as a digit.
void AppendNumber(std::string_view i_digits, std::string& io_text)
{
  i_digits.remove_prefix(std::min(i_digits.find_first_not_of('0'), i_digits.size()));
  io_text += '0';
  // More digits than a byte can count do not occur in a name; they would sort as text.
  io_text += static_cast<char>(std::min<std::size_t>(i_digits.size(), 254) + 1);
  io_text += i_digits;
}

void AppendFolded(std::string_view i_name, std::string& io_text)
{
  for (std::size_t i = 0; i < i_name.size();)
  {
    std::size_t end = i;
    while (end < i_name.size() && IsDigit(i_name[end]))
      ++end;
    if (end > i)
      AppendNumber(i_name.substr(i, end - i), io_text);
    else
      io_text += ZELMapLetter(i_name[end++], 'A');
    i = end;
  }
}
} // namespace

void OPXExplorerNaturalOrder::AppendKey(std::string_view i_name, std::string& io_text)
{
  if (IsASCII(i_name))
    AppendFolded(i_name, io_text);
  else
    AppendFolded(ZELUnicodeString::FromUTF8(i_name).ToLower().GetUTF8(), io_text);
}
