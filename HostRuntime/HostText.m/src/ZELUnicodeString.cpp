#include "ZELUnicodeString.h"
#include "TextCase.h"
#include "TextCharacters.h"
#include "TextPlaces.h"
#include "TextServices.h"
#include "ZELString.h"
#include "ZELTextCase.h"

#include <algorithm>

namespace
{
// The characters of either encoding, each mapped, in one new buffer of exactly their size.
template <class View, class Map>
ZELSharedText EncodeText(View i_text, Map i_map)
{
  std::size_t length = 0;
  ForEachCharacter(i_text, [&](char32_t i_character) { length += GetEncodedLength(i_map(i_character)); });
  char* end;
  ZELSharedText text = ZELSharedText::MakeRoom(length, end);
  ForEachCharacter(i_text, [&](char32_t i_character) { end = EncodeCharacter(i_map(i_character), end); });
  return text;
}

typedef char32_t (*SystemMapping)(char32_t);

// The system is asked only where it knows more than the alphabet, and never about a byte that is no character.
char32_t MapCharacter(char32_t i_character, char i_firstLetter, SystemMapping i_mapping)
{
  if (i_character < 0x80)
    return ZELMapLetter(i_character, i_firstLetter);
  return i_character < BrokenByte ? i_mapping(i_character) : i_character;
}

ZELSharedText MapCharacters(std::string_view i_text, char i_firstLetter, SystemMapping i_mapping)
{
  return EncodeText(i_text, [=](char32_t i_character) { return MapCharacter(i_character, i_firstLetter, i_mapping); });
}

// Characters do not change when another text follows, unless it begins with bytes that complete the last of them.
bool BeginsCharacter(std::string_view i_next) noexcept
{
  return (static_cast<unsigned char>(i_next.front()) & 0xC0) != 0x80;
}
} // namespace

ZELUnicodeString::ZELUnicodeString(ZELSharedText&& io_text, int i_characters) noexcept : _text(std::move(io_text))
{
  _text.SetCharacters(i_characters);
}

ZELUnicodeString::ZELUnicodeString(const char* i_narrow)
{
  std::string room;
  if (i_narrow)
    *this = FromUTF8(TextServices::NarrowToUTF8(i_narrow, room));
}

ZELUnicodeString::ZELUnicodeString(const ZELString& i_narrow)
{
  std::string room;
  const std::string_view text = TextServices::NarrowToUTF8(i_narrow.GetView(), room);
  _text = text.data() == i_narrow.GetText() ? i_narrow._text : ZELSharedText(text);
  _text.SetCharacters(CountCharacters(text));
}

ZELUnicodeString ZELUnicodeString::FromUTF8(std::string_view i_text)
{
  return ZELUnicodeString(ZELSharedText(i_text), CountCharacters(i_text));
}

ZELUnicodeString ZELUnicodeString::FromUTF16(std::u16string_view i_text)
{
  ZELSharedText text = EncodeText(i_text, [](char32_t i_character) { return i_character; });
  const int characters = CountCharacters(text.GetView());
  return ZELUnicodeString(std::move(text), characters);
}

ZELUnicodeString ZELUnicodeString::Join(std::string_view i_utf8First, std::string_view i_utf8Second, std::string_view i_utf8Third)
{
  ZELSharedText text(i_utf8First, i_utf8Second, i_utf8Third);
  const int characters = CountCharacters(text.GetView());
  return ZELUnicodeString(std::move(text), characters);
}

std::u16string ZELUnicodeString::ToUTF16() const
{
  std::u16string units;
  units.reserve(GetUTF8().size());
  ForEachCharacter(GetUTF8(), [&](char32_t i_character) { AppendUTF16(i_character, units); });
  return units;
}

bool ZELUnicodeString::IsValidUTF8() const noexcept
{
  bool isValid = true;
  if (!IsASCII(GetUTF8()))
    ForEachCharacter(GetUTF8(), [&](char32_t i_character) { isValid &= i_character < BrokenByte && !IsSurrogate(i_character); });
  return isValid;
}

const char* ZELUnicodeString::GetConvertedNarrow() const
{
  if (const char* const kept = _text.GetKeptForm())
    return kept;
  std::string room;
  const std::string_view narrow = TextServices::UTF8ToNarrow(GetUTF8(), room);
  return narrow.data() == _text.GetText() ? _text.GetText() : _text.KeepForm(narrow);
}

ZELString ZELUnicodeString::ToNarrow() const
{
  std::string room;
  const std::string_view narrow = IsPlain() ? GetUTF8() : TextServices::UTF8ToNarrow(GetUTF8(), room);
  return narrow.data() == _text.GetText() ? ZELString(_text) : ZELString(narrow);
}

ZELUnicodeString& ZELUnicodeString::operator+=(const ZELUnicodeString& i_text)
{
  if (i_text.IsEmpty())
    return *this;
  const bool isSum = BeginsCharacter(i_text.GetUTF8());
  const int sum = GetLength() + i_text.GetLength();
  _text.Append(i_text.GetUTF8());
  _text.SetCharacters(isSum ? sum : CountCharacters(GetUTF8()));
  return *this;
}

ZELUnicodeString operator+(const ZELUnicodeString& i_left, const ZELUnicodeString& i_right)
{
  return ZELUnicodeString::Join(i_left.GetUTF8(), i_right.GetUTF8(), {});
}

int ZELUnicodeString::Search(const ZELUnicodeString& i_text, int i_start, ZELTextSearch i_mode) const noexcept
{
  const std::string_view text = GetUTF8();
  const std::string_view part = i_text.GetUTF8();
  if (IsPlain())
    return FindInBytes(text, part, i_start, i_mode, AnyPlace);
  if (part.empty())
    return FindEmptyText(GetLength(), i_start);
  // Bytes that stand within a character are not the part.
  const auto isPlace = [&](std::size_t i_place)
  { return IsCharacterBoundary(text, i_place) && IsCharacterBoundary(text, i_place + part.size()); };
  const int start = static_cast<int>(SkipCharacters(text, 0, i_start));
  const int place = FindInBytes(text, part, start, i_mode, isPlace);
  return place < 0 ? -1 : CountCharacters(text.substr(0, static_cast<std::size_t>(place)));
}

ZELUnicodeString ZELUnicodeString::SubString(int i_start, int i_length) const
{
  const TextRange range = ClipRange(i_start, i_length, GetLength());
  if (range.length == GetLength())
    return *this;
  if (IsPlain())
    return ZELUnicodeString(ZELSharedText(CutRange(GetUTF8(), range)), range.length);
  const std::size_t start = SkipCharacters(GetUTF8(), 0, range.start);
  const std::size_t end = SkipCharacters(GetUTF8(), start, range.length);
  return ZELUnicodeString(ZELSharedText(GetUTF8().substr(start, end - start)), range.length);
}

void ZELUnicodeString::Replace(char i_from, char i_to)
{
  const char both[] = {i_from, i_to};
  if (!IsASCII({both, 2}) || GetUTF8().find(i_from) == std::string_view::npos)
    return;
  const int characters = GetLength();
  char* const bytes = _text.MakeWritable();
  std::replace(bytes, bytes + _text.GetLength(), i_from, i_to);
  _text.SetCharacters(characters);
}

ZELUnicodeString ZELUnicodeString::ToUpper() const
{
  ZELSharedText text = IsPlain() ? MapLetters(GetUTF8(), 'a') : MapCharacters(GetUTF8(), 'a', &TextServices::ToUpper);
  return ZELUnicodeString(std::move(text), GetLength());
}

ZELUnicodeString ZELUnicodeString::ToLower() const
{
  ZELSharedText text = IsPlain() ? MapLetters(GetUTF8(), 'A') : MapCharacters(GetUTF8(), 'A', &TextServices::ToLower);
  return ZELUnicodeString(std::move(text), GetLength());
}
