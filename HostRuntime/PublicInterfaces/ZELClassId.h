// ZELClassId: the 16 bytes that name a class or an interface, whatever it is called.
// constexpr ZELIID IID_Shape = ZELClassId::FromText("A1FD0DB1-8269-4BEE-AF4C-9D67326E869D");
//
// A value; nothing throws.
#ifndef ZELClassId_H
#define ZELClassId_H

#include <cstdint>

struct ZELClassId
{
  std::uint64_t _high = 0;
  std::uint64_t _low = 0;

  // From 32 hexadecimal digits in groups of 8-4-4-4-12. Any other text, and null, gives the null id.
  static constexpr ZELClassId FromText(const char* i_pText) noexcept;
  // The id of a class that was given none: the same for the same name, on every platform and in every run.
  static constexpr ZELClassId FromName(const char* i_pName) noexcept
  {
    return {Hash(i_pName, 0xCBF29CE484222325U), Hash(i_pName, 0x9E3779B97F4A7C15U)};
  }

  constexpr bool IsNull() const noexcept { return (_high | _low) == 0; }

private:
  // FNV-1a, with a start of the caller's.
  static constexpr std::uint64_t Hash(const char* i_pName, std::uint64_t i_start) noexcept
  {
    std::uint64_t hash = i_start;
    for (; *i_pName; ++i_pName)
      hash = (hash ^ static_cast<unsigned char>(*i_pName)) * 0x100000001B3U;
    return hash;
  }
  // The value of a hexadecimal digit; -1 for any other character.
  static constexpr int DigitOf(char i_character) noexcept
  {
    if (i_character >= '0' && i_character <= '9')
      return i_character - '0';
    const char lower = static_cast<char>(i_character | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
  }
};

using ZELIID = ZELClassId;

constexpr bool operator==(const ZELClassId& i_a, const ZELClassId& i_b) noexcept
{
  return i_a._high == i_b._high && i_a._low == i_b._low;
}
constexpr bool operator!=(const ZELClassId& i_a, const ZELClassId& i_b) noexcept
{
  return !(i_a == i_b);
}
// The order of their texts.
constexpr bool operator<(const ZELClassId& i_a, const ZELClassId& i_b) noexcept
{
  return i_a._high != i_b._high ? i_a._high < i_b._high : i_a._low < i_b._low;
}

constexpr ZELClassId ZELClassId::FromText(const char* i_pText) noexcept
{
  ZELClassId id;
  int position = 0;
  for (; i_pText && i_pText[position] && position < 36; ++position)
  {
    const bool isDash = position == 8 || position == 13 || position == 18 || position == 23;
    const int digit = DigitOf(i_pText[position]);
    if (isDash ? i_pText[position] != '-' : digit < 0)
      return {};
    if (isDash)
      continue;
    id._high = id._high << 4 | id._low >> 60;
    id._low = id._low << 4 | static_cast<std::uint64_t>(digit);
  }
  return position == 36 && !i_pText[36] ? id : ZELClassId{};
}

#endif
