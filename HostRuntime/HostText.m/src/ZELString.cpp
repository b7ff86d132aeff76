#include "ZELString.h"
#include "TextCase.h"
#include "TextPlaces.h"

ZELString::ZELString(const char* i_text) : _text(i_text ? std::string_view(i_text) : std::string_view()) {}

ZELString& ZELString::operator+=(const ZELString& i_text)
{
  _text.Append(i_text.GetView());
  return *this;
}

ZELString operator+(const ZELString& i_left, const ZELString& i_right)
{
  return ZELString(ZELSharedText(i_left.GetView(), i_right.GetView()));
}

int ZELString::Search(const ZELString& i_text, int i_start, ZELTextSearch i_mode) const noexcept
{
  return FindInBytes(GetView(), i_text.GetView(), i_start, i_mode, AnyPlace);
}

ZELString ZELString::SubString(int i_start, int i_length) const
{
  const TextRange range = ClipRange(i_start, i_length, GetLength());
  return range.length == GetLength() ? *this : ZELString(CutRange(GetView(), range));
}

ZELString ZELString::ToUpper() const
{
  return ZELString(MapLetters(GetView(), 'a'));
}

ZELString ZELString::ToLower() const
{
  return ZELString(MapLetters(GetView(), 'A'));
}
