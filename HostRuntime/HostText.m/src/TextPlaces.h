// TextPlaces: where a part of a text stands, and which bytes a range names, as both strings answer it.
// std::size_t place = FindPlace(text, part, 0, ZELTextSearch::Forward, AnyPlace);
#ifndef TextPlaces_H
#define TextPlaces_H

#include "ZELTextSearch.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

// One byte, most often a separator, is found without comparing texts at each offset.
inline std::size_t FindLast(std::string_view i_text, std::string_view i_part, std::size_t i_start) noexcept
{
  return i_part.size() == 1 ? i_text.rfind(i_part.front(), i_start) : i_text.rfind(i_part, i_start);
}

// The offset of i_part that the search finds from i_start on, among those that i_isPlace accepts, or npos.
template <class IsPlace>
std::size_t FindPlace(std::string_view i_text, std::string_view i_part, std::size_t i_start, ZELTextSearch i_mode, IsPlace i_isPlace)
{
  const bool isForward = i_mode == ZELTextSearch::Forward;
  std::size_t place = isForward ? i_text.find(i_part, i_start) : FindLast(i_text, i_part, i_start);
  while (place != std::string_view::npos && !i_isPlace(place))
    place = isForward ? i_text.find(i_part, place + 1) : place == 0 ? std::string_view::npos : FindLast(i_text, i_part, place - 1);
  return place;
}

// Where an empty text stands in one of i_length positions: at i_start, if that is not behind its end.
inline int FindEmptyText(int i_length, int i_start) noexcept
{
  const int start = std::max(i_start, 0);
  return start <= i_length ? start : -1;
}

// The search as both strings define it, with i_start in bytes: 0 and below mean the whole text.
template <class IsPlace>
int FindInBytes(std::string_view i_text, std::string_view i_part, int i_start, ZELTextSearch i_mode, IsPlace i_isPlace)
{
  if (i_part.empty())
    return FindEmptyText(static_cast<int>(i_text.size()), i_start);
  const bool isWhole = i_mode == ZELTextSearch::Backward && i_start <= 0;
  const std::size_t start = isWhole ? std::string_view::npos : static_cast<std::size_t>(std::max(i_start, 0));
  const std::size_t place = FindPlace(i_text, i_part, start, i_mode, i_isPlace);
  return place == std::string_view::npos ? -1 : static_cast<int>(place);
}

inline bool AnyPlace(std::size_t) noexcept
{
  return true;
}

struct TextRange
{
  int start;
  int length;
};

// The part of the range that lies in a text of i_textLength positions.
inline TextRange ClipRange(int i_start, int i_length, int i_textLength) noexcept
{
  const long long end = std::min<long long>(static_cast<long long>(i_start) + i_length, i_textLength);
  const int start = std::max(i_start, 0);
  return end > start ? TextRange{start, static_cast<int>(end - start)} : TextRange{0, 0};
}

// The bytes of a range that lies in the text.
inline std::string_view CutRange(std::string_view i_text, TextRange i_range) noexcept
{
  return i_text.substr(static_cast<std::size_t>(i_range.start), static_cast<std::size_t>(i_range.length));
}

#endif
