// ZELString: an 8-bit text of any bytes, whose copies share one buffer.
// ZELString name("file"); if (name.EndsWith(".txt")) ...
//
// Positions and lengths are in bytes, from 0. A copy costs one atomic increment; a text that is shared is copied before
// it is written. Texts longer than an int can count are refused with std::length_error. One text belongs to one thread at a time; copies of
// it may live on other threads.
#ifndef ZELString_H
#define ZELString_H

#include "OPXHostRuntimeExport.h"
#include "ZELSharedText.h"
#include "ZELTextHash.h"
#include "ZELTextSearch.h"

#include <string_view>

class OPXHOSTRUNTIME_EXPORT ZELString
{
public:
  ZELString() noexcept = default;
  // A null text gives the empty string.
  ZELString(const char* i_text);
  // A zero within is kept as any other byte, and ends only what readers of a zero-terminated text see.
  explicit ZELString(std::string_view i_text) : _text(i_text) {}

  // The bytes, zero-terminated; valid while this value lives and is unchanged. Never null.
  const char* GetText() const noexcept { return _text.GetText(); }
  std::string_view GetView() const noexcept { return _text.GetView(); }
  int GetLength() const noexcept { return _text.GetLength(); }
  bool IsEmpty() const noexcept { return GetLength() == 0; }

  ZELString& operator+=(const ZELString& i_text);
  friend OPXHOSTRUNTIME_EXPORT ZELString operator+(const ZELString& i_left, const ZELString& i_right);

  // Byte for byte.
  friend bool operator==(const ZELString& i_left, const ZELString& i_right) noexcept { return i_left.GetView() == i_right.GetView(); }
  friend bool operator!=(const ZELString& i_left, const ZELString& i_right) noexcept { return !(i_left == i_right); }
  friend bool operator<(const ZELString& i_left, const ZELString& i_right) noexcept { return i_left.GetView() < i_right.GetView(); }

  // Where i_text stands, or -1. Forward: the first place at or after i_start. Backward: the last place, and when
  // i_start is above 0 the last one that begins at or before i_start. An empty text stands at i_start, unless that is behind the end. A
  // negative i_start counts as 0.
  int Search(const ZELString& i_text, int i_start = 0, ZELTextSearch i_mode = ZELTextSearch::Forward) const noexcept;
  // The bytes from i_start on, at most i_length of them; what lies outside the text is left out.
  ZELString SubString(int i_start, int i_length) const;
  // ASCII letters only.
  ZELString ToUpper() const;
  ZELString ToLower() const;

  // A hash of the bytes: equal texts have equal hashes in one process. Spread over all 32 bits.
  int ComputeHashKey() const noexcept { return ZELTextHash(GetView()); }

private:
  friend class ZELUnicodeString;
  explicit ZELString(ZELSharedText i_text) noexcept : _text(std::move(i_text)) {}

  ZELSharedText _text;
};

#endif
