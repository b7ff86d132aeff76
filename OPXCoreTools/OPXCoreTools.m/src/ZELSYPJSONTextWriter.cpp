#include "ZELSYPJSONTextWriter.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace
{
using Json = nlohmann::json;

constexpr std::size_t s_wordSize = sizeof(std::uint64_t);

constexpr std::uint64_t Repeat(unsigned char i_byte)
{
  return 0x0101010101010101u * i_byte;
}

// Not 0 where any byte of the word is 0. A byte above a zero byte may be taken for one, which costs a second look only.
constexpr std::uint64_t FindZero(std::uint64_t i_word)
{
  return (i_word - Repeat(0x01)) & ~i_word & Repeat(0x80);
}

// True when all eight characters stand for themselves in a JSON text: ASCII, no control character, no quote, no backslash.
bool IsPlain(std::uint64_t i_word)
{
  const std::uint64_t controls = i_word - Repeat(0x20);
  const std::uint64_t special = FindZero(i_word ^ Repeat('"')) | FindZero(i_word ^ Repeat('\\'));
  return (((controls | i_word) & Repeat(0x80)) | special) == 0;
}

bool IsPlain(char i_char)
{
  const auto byte = static_cast<unsigned char>(i_char);
  return byte >= 0x20 && byte < 0x80 && byte != '"' && byte != '\\';
}

// Four characters are looked at as eight, of which the others are spaces.
constexpr std::uint64_t Widen(std::uint64_t i_word)
{
  return i_word;
}
constexpr std::uint64_t Widen(std::uint32_t i_word)
{
  return Repeat(' ') << 32 | i_word;
}

// Copies a word whose characters are all plain.
template <typename Word>
bool CopyPlainWord(const char* i_pText, char* o_pText)
{
  Word word;
  std::memcpy(&word, i_pText, sizeof(word));
  if (!IsPlain(Widen(word)))
    return false;
  std::memcpy(o_pText, &word, sizeof(word));
  return true;
}

// Copies the last characters of a text whose others are plain and copied; those are copied once more where that makes a
// word. Answers false when the end is not plain, or too short.
bool CopyPlainEnd(const char* i_pText, std::size_t i_size, char* o_pText)
{
  constexpr std::size_t half = s_wordSize / 2;
  if (i_size >= s_wordSize)
    return CopyPlainWord<std::uint64_t>(i_pText + i_size - s_wordSize, o_pText + i_size - s_wordSize);
  return i_size >= half && CopyPlainWord<std::uint32_t>(i_pText, o_pText) &&
         CopyPlainWord<std::uint32_t>(i_pText + i_size - half, o_pText + i_size - half);
}

// Copies the plain characters that a text begins with, and answers how many they are.
std::size_t CopyPlain(const char* i_pText, std::size_t i_size, char* o_pText)
{
  std::size_t count = 0;
  while (count + s_wordSize <= i_size && CopyPlainWord<std::uint64_t>(i_pText + count, o_pText + count))
    count += s_wordSize;
  if (i_size - count < s_wordSize && CopyPlainEnd(i_pText, i_size, o_pText))
    return i_size;
  for (; count < i_size && IsPlain(i_pText[count]); ++count)
    o_pText[count] = i_pText[count];
  return count;
}

// The range of the second byte tells too long forms, surrogates and numbers beyond Unicode from the rest.
struct Utf8Form
{
  std::size_t size;
  unsigned char secondLow;
  unsigned char secondHigh;
};

Utf8Form GetForm(unsigned char i_lead)
{
  if (i_lead >= 0xC2 && i_lead <= 0xDF)
    return {2, 0x80, 0xBF};
  if (i_lead >= 0xE0 && i_lead <= 0xEF)
    return {3, static_cast<unsigned char>(i_lead == 0xE0 ? 0xA0 : 0x80), static_cast<unsigned char>(i_lead == 0xED ? 0x9F : 0xBF)};
  if (i_lead >= 0xF0 && i_lead <= 0xF4)
    return {4, static_cast<unsigned char>(i_lead == 0xF0 ? 0x90 : 0x80), static_cast<unsigned char>(i_lead == 0xF4 ? 0x8F : 0xBF)};
  return {0, 0, 0};
}

// The number of bytes of the character that the text begins with; 0 when it is none.
std::size_t MeasureCharacter(std::string_view i_text)
{
  const auto byteAt = [i_text](std::size_t i_position) { return static_cast<unsigned char>(i_text[i_position]); };
  const Utf8Form form = GetForm(byteAt(0));
  if (form.size == 0 || form.size > i_text.size() || byteAt(1) < form.secondLow || byteAt(1) > form.secondHigh)
    return 0;
  for (std::size_t position = 2; position < form.size; ++position)
    if ((byteAt(position) & 0xC0) != 0x80)
      return 0;
  return form.size;
}

// An array or object that is being written.
struct OpenValue
{
  explicit OpenValue(const Json& i_value) : next(i_value.cbegin()), end(i_value.cend()), isObject(i_value.is_object()) {}

  Json::const_iterator next;
  Json::const_iterator end;
  bool isObject;
};
} // namespace

ZELSYPJSONTextWriter::~ZELSYPJSONTextWriter()
{
  if (!_finished)
    _text.resize(_start);
}

void ZELSYPJSONTextWriter::Finish()
{
  Flush();
  _finished = true;
}

void ZELSYPJSONTextWriter::Flush()
{
  _text.append(_buffer.data(), _size);
  _size = 0;
}

char* ZELSYPJSONTextWriter::Reserve(std::size_t i_size)
{
  if (i_size > s_capacity - _size)
    Flush();
  return _buffer.data() + _size;
}

void ZELSYPJSONTextWriter::Put(std::string_view i_text)
{
  if (i_text.size() > s_capacity)
  {
    Flush();
    _text.append(i_text);
    return;
  }
  std::memcpy(Reserve(i_text.size()), i_text.data(), i_text.size());
  _size += i_text.size();
}

void ZELSYPJSONTextWriter::Separate()
{
  // The text itself tells whether something stands before: a value never ends with an opening bracket.
  const char last = GetLast();
  if (last != '[' && last != '{')
    Put(',');
}

void ZELSYPJSONTextWriter::WriteKey(std::string_view i_key)
{
  Separate();
  WriteString(i_key);
  Put(':');
}

void ZELSYPJSONTextWriter::WriteString(std::string_view i_text)
{
  Put('"');
  std::size_t position = 0;
  while (position < i_text.size())
  {
    const std::size_t piece = std::min(i_text.size() - position, s_capacity);
    const std::size_t plain = CopyPlain(i_text.data() + position, piece, Reserve(piece));
    _size += plain;
    position += plain;
    if (plain < piece)
      position = WriteSpecial(i_text, position);
  }
  Put('"');
}

// Answers the position after the character that was written.
std::size_t ZELSYPJSONTextWriter::WriteSpecial(std::string_view i_text, std::size_t i_position)
{
  if (static_cast<unsigned char>(i_text[i_position]) < 0x80)
  {
    WriteEscaped(i_text[i_position]);
    return i_position + 1;
  }
  const std::size_t size = MeasureCharacter(i_text.substr(i_position));
  if (size == 0)
    static_cast<void>(Json(i_text).dump()); // raises the library's own error, with its own words
  Put(i_text.substr(i_position, size));
  return i_position + size;
}

void ZELSYPJSONTextWriter::WriteEscaped(char i_char)
{
  static constexpr std::string_view s_controls = "uuuuuuuubtnufruuuuuuuuuuuuuuuuuu";
  static constexpr std::string_view s_digits = "0123456789abcdef";
  const auto code = static_cast<unsigned char>(i_char);
  const char letter = code < s_controls.size() ? s_controls[code] : i_char;
  const char escape[] = {'\\', letter, '0', '0', s_digits[code >> 4], s_digits[code & 0xF]};
  Put(std::string_view(escape, letter == 'u' ? sizeof(escape) : 2));
}

template <typename Integer>
void ZELSYPJSONTextWriter::WriteInteger(Integer i_number)
{
  char* pBegin = Reserve(s_longestNumber);
  Advance(std::to_chars(pBegin, pBegin + s_longestNumber, i_number).ptr);
}
template void ZELSYPJSONTextWriter::WriteInteger(int);

void ZELSYPJSONTextWriter::WriteFloat(double i_number)
{
  if (!std::isfinite(i_number))
    return Put("null");
  // The library's conversion, because the standard one chooses other digits for a few numbers.
  char* pBegin = Reserve(s_longestNumber);
  Advance(nlohmann::detail::to_chars(pBegin, pBegin + s_longestNumber, i_number));
}

void ZELSYPJSONTextWriter::WritePrimitive(const Json& i_value)
{
  switch (i_value.type())
  {
  case Json::value_t::string:
    return WriteString(*i_value.get_ptr<const Json::string_t*>());
  case Json::value_t::number_integer:
    return WriteInteger(*i_value.get_ptr<const Json::number_integer_t*>());
  case Json::value_t::number_unsigned:
    return WriteInteger(*i_value.get_ptr<const Json::number_unsigned_t*>());
  case Json::value_t::number_float:
    return WriteFloat(*i_value.get_ptr<const Json::number_float_t*>());
  case Json::value_t::boolean:
    return Write(*i_value.get_ptr<const Json::boolean_t*>());
  case Json::value_t::null:
    return Put("null");
  default: // binary and discarded values do not come from a message
    return Put(i_value.dump());
  }
}

void ZELSYPJSONTextWriter::Write(const Json& i_value)
{
  if (i_value.is_structured())
    WriteStructured(i_value);
  else
    WritePrimitive(i_value);
}

// Keeps what is open in a list, so that the depth of a value is no danger to the stack.
void ZELSYPJSONTextWriter::WriteStructured(const Json& i_value)
{
  std::vector<OpenValue> open;
  const auto beginValue = [this, &open](const Json& i_structured) { Begin(open.emplace_back(i_structured).isObject ? '{' : '['); };
  beginValue(i_value);
  while (!open.empty())
  {
    OpenValue& inner = open.back();
    if (inner.next == inner.end)
    {
      End(inner.isObject ? '}' : ']');
      open.pop_back();
      continue;
    }
    const Json::const_iterator element = inner.next++;
    inner.isObject ? WriteKey(element.key()) : Separate();
    element->is_structured() ? beginValue(*element) : WritePrimitive(*element);
  }
}
