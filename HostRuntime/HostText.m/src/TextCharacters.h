// TextCharacters: the characters of a text kept as UTF-8, one after the other.
// for (const char* here = text.data(); here != end;) { char32_t character = DecodeCharacter(here, end); ... }
//
// A lone surrogate stands as three bytes and is one character. A byte that belongs to no character is one too: it is
// decoded to a value above every character and encoded to the same byte, so that whatever a text goes through keeps it.
#ifndef TextCharacters_H
#define TextCharacters_H

#include <cstddef>
#include <string>
#include <string_view>

// A byte b that belongs to no character is decoded to BrokenByte + b.
constexpr char32_t BrokenByte = 0x110000;

constexpr bool IsSurrogate(char32_t i_character) noexcept
{
  return (i_character & ~char32_t(0x7FF)) == 0xD800;
}

// The character at io_here, which moves behind it. io_here must lie before i_end.
char32_t DecodeCharacter(const char*& io_here, const char* i_end) noexcept;
// Writes the character and answers the place behind it.
char* EncodeCharacter(char32_t i_character, char* o_bytes) noexcept;
// The bytes that it takes.
std::size_t GetEncodedLength(char32_t i_character) noexcept;

bool IsASCII(std::string_view i_text) noexcept;
int CountCharacters(std::string_view i_text) noexcept;
// Whether a character begins at the offset, or the text ends there.
bool IsCharacterBoundary(std::string_view i_text, std::size_t i_offset) noexcept;
// The offset of the character that stands i_characters behind the one at i_offset; the end of the text when it has
// fewer.
std::size_t SkipCharacters(std::string_view i_text, std::size_t i_offset, int i_characters) noexcept;

// Calls i_visit with every character, and with what a lone surrogate or a broken byte is decoded to.
template <class Visit>
void ForEachCharacter(std::string_view i_text, Visit i_visit)
{
  const char* const end = i_text.data() + i_text.size();
  for (const char* here = i_text.data(); here != end;)
    i_visit(DecodeCharacter(here, end));
}

// The same for UTF-16: a pair is one character, a lone surrogate is itself.
template <class Visit>
void ForEachCharacter(std::u16string_view i_text, Visit i_visit)
{
  for (std::size_t at = 0; at < i_text.size(); ++at)
  {
    const char32_t unit = i_text[at];
    const char32_t next = at + 1 < i_text.size() ? i_text[at + 1] : 0;
    const bool isPair = unit >> 10 == 0xD800 >> 10 && next >> 10 == 0xDC00 >> 10;
    i_visit(isPair ? 0x10000 + ((unit & 0x3FF) << 10) + (next & 0x3FF) : unit);
    at += isPair;
  }
}

void AppendUTF8(char32_t i_character, std::string& io_text);
// A broken byte has no form in UTF-16 and becomes U+FFFD.
void AppendUTF16(char32_t i_character, std::u16string& io_units);

#endif
