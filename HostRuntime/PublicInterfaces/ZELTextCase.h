// ZELMapLetter: the case of the 26 letters that every code page shares, whatever the locale.
// ZELMapLetter('x', 'a') == 'X'; ZELMapLetter('X', 'A') == 'x'; ZELMapLetter('1', 'a') == '1';
#ifndef ZELTextCase_H
#define ZELTextCase_H

// A letter of the alphabet that begins with i_firstLetter ('a' or 'A') becomes the same letter of the other one; every
// other character is kept.
template <class Character>
constexpr Character ZELMapLetter(Character i_character, char i_firstLetter) noexcept
{
  const unsigned letter = static_cast<unsigned>(i_character) - static_cast<unsigned>(i_firstLetter);
  return letter < 26 ? static_cast<Character>(i_character ^ 0x20) : i_character;
}

#endif
