// WildcardPattern: a pattern in which the star stands for any text; every other character is itself.
// WildcardPattern("*.txt").Matches("notes.txt")
#ifndef WildcardPattern_H
#define WildcardPattern_H

#include <string_view>

class WildcardPattern
{
public:
  // Keeps a view of i_pattern.
  explicit WildcardPattern(std::string_view i_pattern) noexcept;

  bool IsEverything() const noexcept { return _pattern == "*"; }
  // Byte for byte, without an allocation.
  bool Matches(std::string_view i_name) const noexcept;

private:
  bool FitsEnds(std::string_view i_name) const noexcept;
  bool FitsPieces(std::string_view i_name) const noexcept;

  std::string_view _pattern;
  // What stands before the first star and behind the last one.
  std::string_view _head;
  std::string_view _tail;
};

#endif
