#include "TextServices.h"

#include <utf8proc.h>

// The code page is UTF-8: both forms are the same bytes.
std::string_view TextServices::NarrowToUTF8(std::string_view i_narrow, std::string&)
{
  return i_narrow;
}

std::string_view TextServices::UTF8ToNarrow(std::string_view i_text, std::string&)
{
  return i_text;
}

char32_t TextServices::ToUpper(char32_t i_character)
{
  return static_cast<char32_t>(utf8proc_toupper(static_cast<utf8proc_int32_t>(i_character)));
}

char32_t TextServices::ToLower(char32_t i_character)
{
  return static_cast<char32_t>(utf8proc_tolower(static_cast<utf8proc_int32_t>(i_character)));
}
