#include "OPXTreeError.h"

#include "OPXTreeSession.h"

#include <utility>

OPXTreeError::OPXTreeError(Code i_code, nlohmann::json i_data) : _code(i_code), _data(std::move(i_data)) {}

OPXTreeError OPXTreeError::MessageTooLong()
{
  return OPXTreeError(InvalidRequest, {{"reason", "message too long"}, {"maxBytes", OPXTreeSession::MaxMessageSize}});
}

const char* OPXTreeError::what() const noexcept
{
  switch (_code)
  {
  case ParseError:
    return "Parse error";
  case InvalidRequest:
    return "Invalid Request";
  case MethodNotFound:
    return "Method not found";
  case InvalidParams:
    return "Invalid params";
  case InternalError:
    break;
  }
  return "Internal error";
}

std::string OPXTreeError::ToJSON() const
{
  const nlohmann::json error{{"code", static_cast<int>(_code)}, {"message", what()}, {"data", _data}};
  // A source's own words may be in any encoding.
  return error.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}
