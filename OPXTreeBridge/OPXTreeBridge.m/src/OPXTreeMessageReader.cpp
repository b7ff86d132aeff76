#include "OPXTreeMessageReader.h"

#include "OPXTreeError.h"
#include "OPXTreeSession.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <string>

namespace
{
// Of the reason that is told, in bytes: the library quotes what it read last, which may be all of a message.
constexpr std::size_t maxReason = 200;

// The place after a text's closing quote; i_start is the place after the opening one.
std::size_t SkipText(std::string_view i_text, std::size_t i_start)
{
  std::size_t place = i_text.find_first_of("\"\\", i_start);
  while (place != std::string_view::npos && i_text[place] == '\\')
    place = i_text.find_first_of("\"\\", place + 2);
  return place == std::string_view::npos ? i_text.size() : place + 1;
}

bool IsTooDeep(std::string_view i_text)
{
  int depth = 0;
  for (std::size_t i = 0; i < i_text.size(); ++i)
  {
    const char character = i_text[i];
    if (character == '"')
      i = SkipText(i_text, i + 1) - 1;
    else if (character == '[' || character == '{')
      ++depth;
    else if (character == ']' || character == '}')
      --depth;
    if (depth > OPXTreeSession::MaxNesting)
      return true;
  }
  return false;
}

void CheckLimits(std::string_view i_text)
{
  if (i_text.size() > OPXTreeSession::MaxMessageSize)
    throw OPXTreeError::MessageTooLong();
  if (IsTooDeep(i_text))
    throw OPXTreeError(OPXTreeError::InvalidRequest, {{"reason", "nested too deeply"}, {"maxLevels", OPXTreeSession::MaxNesting}});
}

bool IsDigit(char i_character)
{
  return i_character >= '0' && i_character <= '9';
}

// Whether it is a number of JSON and larger than any double. What the conversion takes and JSON does not is a zero before
// other digits, and a point without a digit on each side.
bool IsBeyondDouble(const std::string& i_number)
{
  char* pEnd = nullptr;
  const bool isInfinite = std::isinf(std::strtod(i_number.c_str(), &pEnd));
  const char* const pFirst = i_number.c_str() + (i_number[0] == '-' ? 1 : 0);
  const std::size_t point = i_number.find('.');
  return isInfinite && *pEnd == '\0' && IsDigit(pFirst[0]) && !(pFirst[0] == '0' && IsDigit(pFirst[1])) &&
         (point == std::string::npos || IsDigit(i_number[point + 1]));
}

// The text with each number that is larger than any double replaced by one that lies out of every range just as well: for
// the library it would be the end of the message.
std::string BoundNumbers(std::string_view i_text)
{
  std::string bounded;
  std::size_t start = 0;
  while (start < i_text.size())
  {
    const std::size_t place = std::min(i_text.find_first_of("\"-0123456789", start), i_text.size());
    bounded += i_text.substr(start, place - start);
    const bool isText = place < i_text.size() && i_text[place] == '"';
    start = isText ? SkipText(i_text, place + 1) : std::min(i_text.find_first_not_of("+-.0123456789eE", place), i_text.size());
    const std::string token(i_text.substr(place, start - place));
    bounded += !isText && IsBeyondDouble(token) ? (token[0] == '-' ? "-1e308" : "1e308") : token;
  }
  return bounded;
}

nlohmann::json Parse(std::string_view i_text)
{
  try
  {
    return nlohmann::json::parse(i_text);
  }
  catch (const nlohmann::json::out_of_range&)
  {
    return nlohmann::json::parse(BoundNumbers(i_text));
  }
}
} // namespace

nlohmann::json OPXTreeMessageReader::Read(std::string_view i_text)
{
  CheckLimits(i_text);
  // The library takes a zero byte for the end of its input and would accept whatever follows.
  const std::size_t zero = i_text.find('\0');
  if (zero != std::string_view::npos)
    throw OPXTreeError(OPXTreeError::ParseError, {{"reason", "zero byte"}, {"byte", zero + 1}});
  try
  {
    return Parse(i_text);
  }
  catch (const nlohmann::json::exception& error)
  {
    throw OPXTreeError(OPXTreeError::ParseError, {{"reason", std::string(error.what()).substr(0, maxReason)}});
  }
}
