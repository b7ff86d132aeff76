// The names that a directory lists.
// if (IsEntryName("a.txt", "/")) ...
#ifndef EntryNames_H
#define EntryNames_H

#include <string_view>

// "." and "..": the directory itself and the one above it.
template <class Character>
bool IsDots(std::basic_string_view<Character> i_name)
{
  return !i_name.empty() && i_name.size() <= 2 && i_name.find_first_not_of(static_cast<Character>('.')) == i_name.npos;
}

// A bare name of one entry; i_separators: what the system takes for something else than a part of a name.
inline bool IsEntryName(std::string_view i_name, std::string_view i_separators)
{
  return !i_name.empty() && !IsDots(i_name) && i_name.find_first_of(i_separators) == i_name.npos;
}

#endif
