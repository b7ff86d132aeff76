// TextServices: what the system knows of texts: its code page and its case mapping.
// std::string room; std::string_view text = TextServices::NarrowToUTF8(narrow, room);
//
// Any thread.
#ifndef TextServices_H
#define TextServices_H

#include <string>
#include <string_view>

namespace TextServices
{
// The narrow text as UTF-8, and back. The answer is the given text itself when the two are the same, and otherwise
// stands in io_room. A character that the code page lacks becomes its replacement character; bytes that are not UTF-8
// go through as they are.
std::string_view NarrowToUTF8(std::string_view i_narrow, std::string& io_room);
std::string_view UTF8ToNarrow(std::string_view i_text, std::string& io_room);

// The one character that the system maps the given one to; itself when there is none.
char32_t ToUpper(char32_t i_character);
char32_t ToLower(char32_t i_character);
} // namespace TextServices

#endif
