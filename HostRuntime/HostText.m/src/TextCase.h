// TextCase: the case of the 26 letters that every code page shares.
// ZELSharedText upper = MapLetters("name", 'a'); // "NAME"
#ifndef TextCase_H
#define TextCase_H

#include "ZELSharedText.h"

#include <string_view>

// A letter of the alphabet that begins with i_firstLetter ('a' or 'A') becomes the same letter of the other one.
template <class Character>
constexpr Character MapLetter(Character i_character, char i_firstLetter) noexcept
{
  const unsigned letter = static_cast<unsigned>(i_character) - static_cast<unsigned>(i_firstLetter);
  return letter < 26 ? static_cast<Character>(i_character ^ 0x20) : i_character;
}

// The text with its letters mapped; every other byte is kept.
ZELSharedText MapLetters(std::string_view i_text, char i_firstLetter);

#endif
