// TextPieces: the non-empty pieces of a text between separators, one after the other.
// TextPieces pieces("a;;b", ';'); for (std::string_view piece; pieces.Next(piece);) ...
#ifndef TextPieces_H
#define TextPieces_H

#include <algorithm>
#include <string_view>

class TextPieces
{
public:
  // The pieces are views of i_text.
  TextPieces(std::string_view i_text, char i_separator) noexcept : _rest(i_text), _separator(i_separator) { SkipSeparators(); }

  // False when there is none left.
  bool Next(std::string_view& o_piece) noexcept
  {
    o_piece = _rest.substr(0, _rest.find(_separator));
    _rest.remove_prefix(o_piece.size());
    SkipSeparators();
    return !o_piece.empty();
  }
  bool IsDone() const noexcept { return _rest.empty(); }

private:
  void SkipSeparators() noexcept { _rest.remove_prefix(std::min(_rest.find_first_not_of(_separator), _rest.size())); }

  std::string_view _rest;
  char _separator;
};

#endif
