#include "TextCase.h"

#include "ZELTextCase.h"

#include <algorithm>

ZELSharedText MapLetters(std::string_view i_text, char i_firstLetter)
{
  char* bytes;
  ZELSharedText text = ZELSharedText::MakeRoom(i_text.size(), bytes);
  std::transform(i_text.begin(), i_text.end(), bytes, [=](char i_byte) { return ZELMapLetter(i_byte, i_firstLetter); });
  return text;
}
