#include "WildcardPattern.h"

#include "TextPieces.h"

WildcardPattern::WildcardPattern(std::string_view i_pattern) noexcept
    : _pattern(i_pattern), _head(i_pattern.substr(0, i_pattern.find('*'))), _tail(i_pattern.substr(i_pattern.rfind('*') + 1))
{
}

bool WildcardPattern::Matches(std::string_view i_name) const noexcept
{
  return IsEverything() || i_name == _pattern || (FitsEnds(i_name) && FitsPieces(i_name));
}

bool WildcardPattern::FitsEnds(std::string_view i_name) const noexcept
{
  if (i_name.substr(0, _head.size()) != _head)
    return false;
  // Kept: a tail longer than the name is not held against its end.
  return _tail.size() > i_name.size() || i_name.substr(i_name.size() - _tail.size()) == _tail;
}

bool WildcardPattern::FitsPieces(std::string_view i_name) const noexcept
{
  TextPieces pieces(_pattern, '*');
  // Kept: two or more stars alone match nothing.
  if (pieces.IsDone())
    return false;
  std::size_t found = 0;
  // Kept: each piece is looked for from where the one before it was found, so that the two may overlap.
  for (std::string_view piece; found != std::string_view::npos && pieces.Next(piece);)
    found = i_name.find(piece, found);
  return found != std::string_view::npos;
}
