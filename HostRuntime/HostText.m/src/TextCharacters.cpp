#include "TextCharacters.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace
{
unsigned char ByteAt(const char* i_here) noexcept
{
  return static_cast<unsigned char>(*i_here);
}

bool IsContinuation(char i_byte) noexcept
{
  return (static_cast<unsigned char>(i_byte) & 0xC0) == 0x80;
}

// How many bytes a character takes that begins with this byte; 0 when none does.
std::ptrdiff_t GetSequenceLength(unsigned i_lead) noexcept
{
  if (i_lead < 0x80)
    return 1;
  if (i_lead < 0xC2 || i_lead > 0xF4)
    return 0;
  return i_lead < 0xE0 ? 2 : i_lead < 0xF0 ? 3 : 4;
}

// What the continuation bytes add to the lead byte's bits, or BrokenByte when one of them is none.
char32_t GatherBits(const char* i_here, std::ptrdiff_t i_length) noexcept
{
  char32_t character = ByteAt(i_here) & (0x7Fu >> i_length);
  for (std::ptrdiff_t at = 1; at < i_length; ++at)
  {
    if (!IsContinuation(i_here[at]))
      return BrokenByte;
    character = character << 6 | (ByteAt(i_here + at) & 0x3Fu);
  }
  return character;
}

char EncodedByte(char32_t i_bits, char32_t i_mark) noexcept
{
  return static_cast<char>(static_cast<unsigned char>(i_mark | i_bits));
}

bool IsPlainWord(const char* i_bytes) noexcept
{
  std::uint64_t word;
  std::memcpy(&word, i_bytes, sizeof word);
  return (word & 0x8080808080808080u) == 0;
}

// The first offset whose next eight bytes are not all ASCII, or are no longer in the text.
std::size_t SkipASCII(std::string_view i_text) noexcept
{
  std::size_t offset = 0;
  while (offset + sizeof(std::uint64_t) <= i_text.size() && IsPlainWord(i_text.data() + offset))
    offset += sizeof(std::uint64_t);
  return offset;
}
} // namespace

char32_t DecodeCharacter(const char*& io_here, const char* i_end) noexcept
{
  static constexpr char32_t Smallest[] = {0, 0, 0x80, 0x800, 0x10000};
  const unsigned char lead = ByteAt(io_here);
  const std::ptrdiff_t length = GetSequenceLength(lead);
  if (length == 1)
  {
    ++io_here;
    return lead;
  }
  const bool isWhole = length != 0 && i_end - io_here >= length;
  const char32_t character = isWhole ? GatherBits(io_here, length) : BrokenByte;
  if (character >= BrokenByte || character < Smallest[length])
  {
    ++io_here;
    return BrokenByte + lead;
  }
  io_here += length;
  return character;
}

std::size_t GetEncodedLength(char32_t i_character) noexcept
{
  if (i_character < 0x80 || i_character >= BrokenByte)
    return 1;
  return i_character < 0x800 ? 2 : i_character < 0x10000 ? 3 : 4;
}

char* EncodeCharacter(char32_t i_character, char* o_bytes) noexcept
{
  static constexpr char32_t LeadMarks[] = {0, 0, 0xC0, 0xE0, 0xF0};
  const std::size_t length = GetEncodedLength(i_character);
  for (std::size_t at = length - 1; at > 0; --at, i_character >>= 6)
    o_bytes[at] = EncodedByte(i_character & 0x3F, 0x80);
  // What is above a byte is the mark of a broken one.
  *o_bytes = EncodedByte(i_character & 0xFF, LeadMarks[length]);
  return o_bytes + length;
}

bool IsASCII(std::string_view i_text) noexcept
{
  const std::size_t plain = SkipASCII(i_text);
  if (i_text.size() >= sizeof(std::uint64_t))
    return i_text.size() - plain < sizeof(std::uint64_t) && IsPlainWord(i_text.data() + i_text.size() - sizeof(std::uint64_t));
  return std::all_of(i_text.begin(), i_text.end(), [](char i_byte) { return static_cast<unsigned char>(i_byte) < 0x80; });
}

int CountCharacters(std::string_view i_text) noexcept
{
  if (IsASCII(i_text))
    return static_cast<int>(i_text.size());
  const std::size_t plain = SkipASCII(i_text);
  int characters = static_cast<int>(plain);
  ForEachCharacter(i_text.substr(plain), [&](char32_t) { ++characters; });
  return characters;
}

bool IsCharacterBoundary(std::string_view i_text, std::size_t i_offset) noexcept
{
  std::size_t lead = i_offset;
  while (lead < i_text.size() && lead > 0 && i_offset - lead < 3 && IsContinuation(i_text[lead]))
    --lead;
  if (lead == i_offset)
    return true;
  const char* here = i_text.data() + lead;
  DecodeCharacter(here, i_text.data() + i_text.size());
  return here <= i_text.data() + i_offset;
}

std::size_t SkipCharacters(std::string_view i_text, std::size_t i_offset, int i_characters) noexcept
{
  const char* const end = i_text.data() + i_text.size();
  const char* here = i_text.data() + i_offset;
  for (; i_characters > 0 && here != end; --i_characters)
    DecodeCharacter(here, end);
  return static_cast<std::size_t>(here - i_text.data());
}

void AppendUTF8(char32_t i_character, std::string& io_text)
{
  char bytes[4];
  io_text.append(bytes, EncodeCharacter(i_character, bytes));
}

void AppendUTF16(char32_t i_character, std::u16string& io_units)
{
  const char32_t character = i_character >= BrokenByte ? 0xFFFD : i_character;
  if (character >= 0x10000)
    io_units += static_cast<char16_t>(0xD7C0 + (character >> 10));
  io_units += static_cast<char16_t>(character >= 0x10000 ? 0xDC00 | (character & 0x3FF) : character);
}
