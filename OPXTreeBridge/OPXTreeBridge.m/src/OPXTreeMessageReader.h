// OPXTreeMessageReader: a message's text read into JSON, within the session's limits.
// nlohmann::json message = OPXTreeMessageReader::Read(text);
#ifndef OPXTreeMessageReader_H
#define OPXTreeMessageReader_H

#include <nlohmann/json.hpp>
#include <string_view>

class OPXTreeMessageReader
{
public:
  // Throws an OPXTreeError for what is too long, too deep or not JSON in UTF-8. The limits are tested first, so that
  // they bound the work that a message can cause.
  static nlohmann::json Read(std::string_view i_text);
};

#endif
