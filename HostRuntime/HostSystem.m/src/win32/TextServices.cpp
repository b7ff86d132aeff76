#include "TextServices.h"

#include "TextCharacters.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace
{
const wchar_t* Wide(const char16_t* i_units) noexcept
{
  return reinterpret_cast<const wchar_t*>(i_units);
}

std::u16string NarrowToUTF16(std::string_view i_narrow)
{
  const int size = static_cast<int>(i_narrow.size());
  std::u16string units(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, i_narrow.data(), size, nullptr, 0)), u'\0');
  MultiByteToWideChar(CP_ACP, 0, i_narrow.data(), size, reinterpret_cast<wchar_t*>(units.data()), static_cast<int>(units.size()));
  return units;
}

// Without best fits: a character that only resembles a backslash must not become one. UTF-8 knows no best fits, and
// refuses the flag.
void AppendNarrow(std::u16string_view i_units, std::string& io_narrow)
{
  const DWORD flags = GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
  const wchar_t* const units = Wide(i_units.data());
  const int size = static_cast<int>(i_units.size());
  const std::size_t old = io_narrow.size();
  const int added = WideCharToMultiByte(CP_ACP, flags, units, size, nullptr, 0, nullptr, nullptr);
  io_narrow.resize(old + static_cast<std::size_t>(added));
  WideCharToMultiByte(CP_ACP, flags, units, size, io_narrow.data() + old, added, nullptr, nullptr);
}

char32_t MapCase(char32_t i_character, DWORD i_flags)
{
  std::u16string units;
  AppendUTF16(i_character, units);
  wchar_t mapped[2] = {};
  const int size = static_cast<int>(units.size());
  if (LCMapStringEx(LOCALE_NAME_INVARIANT, i_flags, Wide(units.data()), size, mapped, 2, nullptr, nullptr, 0) != size)
    return i_character;
  char32_t answer = i_character;
  const std::u16string_view text(reinterpret_cast<const char16_t*>(mapped), units.size());
  ForEachCharacter(text, [&](char32_t i_mapped) { answer = i_mapped; });
  return answer;
}
} // namespace

std::string_view TextServices::NarrowToUTF8(std::string_view i_narrow, std::string& io_room)
{
  if (IsASCII(i_narrow))
    return i_narrow;
  ForEachCharacter(NarrowToUTF16(i_narrow), [&](char32_t i_character) { AppendUTF8(i_character, io_room); });
  return io_room;
}

std::string_view TextServices::UTF8ToNarrow(std::string_view i_text, std::string& io_room)
{
  std::u16string units;
  const auto flush = [&]
  {
    if (!units.empty())
      AppendNarrow(units, io_room);
    units.clear();
  };
  ForEachCharacter(i_text,
                   [&](char32_t i_character)
                   {
                     if (i_character < BrokenByte)
                       return AppendUTF16(i_character, units);
                     flush();
                     AppendUTF8(i_character, io_room);
                   });
  flush();
  return io_room;
}

char32_t TextServices::ToUpper(char32_t i_character)
{
  return MapCase(i_character, LCMAP_UPPERCASE);
}

char32_t TextServices::ToLower(char32_t i_character)
{
  return MapCase(i_character, LCMAP_LOWERCASE);
}
