#include "OPXTreeMessageReader.h"

#include "OPXTreeError.h"
#include "OPXTreeSession.h"

#include <cstddef>
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
    return nlohmann::json::parse(i_text);
  }
  catch (const nlohmann::json::exception& error)
  {
    throw OPXTreeError(OPXTreeError::ParseError, {{"reason", std::string(error.what()).substr(0, maxReason)}});
  }
}
