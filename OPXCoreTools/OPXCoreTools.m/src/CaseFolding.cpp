#include "CaseFolding.h"

#include "ZELString.h"
#include "ZELTextCase.h"
#include "ZELUnicodeString.h"

#include <algorithm>

bool EqualIgnoringCase(std::string_view i_left, std::string_view i_right) noexcept
{
  return std::equal(i_left.begin(), i_left.end(), i_right.begin(), i_right.end(),
                    [](char i_one, char i_other) { return ZELMapLetter(i_one, 'a') == ZELMapLetter(i_other, 'a'); });
}

// Copies the text in upper case and answers whether every character was ASCII, which is its own narrow view.
static bool UpperCaseIfASCII(std::string_view i_utf8, std::string& o_upper)
{
  o_upper.assign(i_utf8);
  unsigned seen = 0;
  for (char& character : o_upper)
  {
    seen |= static_cast<unsigned char>(character);
    character = ZELMapLetter(character, 'a');
  }
  return seen < 0x80;
}

void UpperCaseNarrow(std::string_view i_utf8, std::string& o_upper)
{
  if (!UpperCaseIfASCII(i_utf8, o_upper))
    o_upper.assign(ZELUnicodeString::FromUTF8(i_utf8).ToUpper().ToNarrow().GetView());
}
