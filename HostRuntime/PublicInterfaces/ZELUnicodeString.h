// ZELUnicodeString: a Unicode text whose positions are characters and whose copies share one buffer.
// ZELUnicodeString name("caf\xC3\xA9"); name.GetLength() == 4 on a system whose code page is UTF-8.
//
// The text is kept as UTF-8. What the system calls a name is not always a valid text: bytes that are not UTF-8 (Linux)
// and lone surrogates (Windows) are kept as they are, each counting as one character, and come back unchanged at the
// system's border. The narrow view is the text in the system code page: UTF-8 on Linux, the ANSI code page on Windows.
// Positions cost no more than an offset in a text whose characters are all one byte, and a walk over the text otherwise.
// One text belongs to one thread at a time; copies of it may live on other threads. Texts longer than an int can count
// are refused with std::length_error.
#ifndef ZELUnicodeString_H
#define ZELUnicodeString_H

#include "OPXHostRuntimeExport.h"
#include "ZELSharedText.h"
#include "ZELTextHash.h"
#include "ZELTextSearch.h"

#include <string>
#include <string_view>

class ZELString;

class OPXHOSTRUNTIME_EXPORT ZELUnicodeString
{
public:
  ZELUnicodeString() noexcept = default;
  // From the narrow view. A null text gives the empty string.
  ZELUnicodeString(const char* i_narrow);
  ZELUnicodeString(const ZELString& i_narrow);

  // Any bytes, and any units: what is not a valid text is kept as it is.
  static ZELUnicodeString FromUTF8(std::string_view i_text);
  static ZELUnicodeString FromUTF16(std::u16string_view i_text);

  // The text as UTF-8, zero-terminated, broken bytes and lone surrogates (three bytes each) included; valid while this
  // value lives and is unchanged.
  std::string_view GetUTF8() const noexcept { return _text.GetView(); }
  // Lone surrogates are what they were; a byte that is not UTF-8 becomes U+FFFD, as UTF-16 has no form for it.
  std::u16string ToUTF16() const;
  // True when GetUTF8 is UTF-8 that every reader accepts.
  bool IsValidUTF8() const noexcept;
  // The text in the system code page, zero-terminated; valid while this value lives and is unchanged. Characters that
  // the code page lacks become its replacement character; bytes that are not UTF-8 stand in it as they are. Made on first
  // use where it differs from UTF-8, and kept for all copies. Never null.
  const char* GetNarrow() const { return IsPlain() ? _text.GetText() : GetConvertedNarrow(); }
  ZELString ToNarrow() const;

  // In characters.
  int GetLength() const noexcept { return _text.GetCharacters(); }
  bool IsEmpty() const noexcept { return GetLength() == 0; }

  ZELUnicodeString& operator+=(const ZELUnicodeString& i_text);
  friend OPXHOSTRUNTIME_EXPORT ZELUnicodeString operator+(const ZELUnicodeString& i_left, const ZELUnicodeString& i_right);
  // The texts one after the other in one buffer, with one allocation.
  static ZELUnicodeString Join(std::string_view i_utf8First, std::string_view i_utf8Second, std::string_view i_utf8Third);

  friend bool operator==(const ZELUnicodeString& i_left, const ZELUnicodeString& i_right) noexcept
  {
    return i_left.GetUTF8() == i_right.GetUTF8();
  }
  friend bool operator!=(const ZELUnicodeString& i_left, const ZELUnicodeString& i_right) noexcept { return !(i_left == i_right); }
  // By code point.
  friend bool operator<(const ZELUnicodeString& i_left, const ZELUnicodeString& i_right) noexcept
  {
    return i_left.GetUTF8() < i_right.GetUTF8();
  }

  // As ZELString::Search, in characters: a byte within a character is not found.
  int Search(const ZELUnicodeString& i_text, int i_start = 0, ZELTextSearch i_mode = ZELTextSearch::Forward) const noexcept;
  // The characters from i_start on, at most i_length of them; what lies outside the text is left out.
  ZELUnicodeString SubString(int i_start, int i_length) const;
  // Every place of one ASCII character becomes another. Nothing happens when either is not ASCII.
  void Replace(char i_from, char i_to);
  // The system's own one-to-one case mapping of every character, ASCII or not. The number of
  // characters stays; lone surrogates and bytes that are not UTF-8 stay what they are.
  ZELUnicodeString ToUpper() const;
  ZELUnicodeString ToLower() const;

  // A hash of the text: equal texts have equal hashes in one process. Spread over all 32 bits.
  int ComputeHashKey() const noexcept { return ZELTextHash(GetUTF8()); }

private:
  ZELUnicodeString(ZELSharedText&& io_text, int i_characters) noexcept;

  // Every character is one byte, as in any ASCII text: then positions are offsets and the narrow view is the text.
  bool IsPlain() const noexcept { return _text.GetCharacters() == _text.GetLength(); }
  const char* GetConvertedNarrow() const;

  ZELSharedText _text;
};

#endif
