// OPXTreeError: why a message gets an error instead of a result.
// throw OPXTreeError(OPXTreeError::MethodNotFound, {{"method", name}});
#ifndef OPXTreeError_H
#define OPXTreeError_H

#include <exception>
#include <nlohmann/json.hpp>
#include <string>

class OPXTreeError : public std::exception
{
public:
  enum Code
  {
    ParseError = -32700,
    InvalidRequest = -32600,
    MethodNotFound = -32601,
    InvalidParams = -32602,
    InternalError = -32603
  };

  // i_data: an object that says more; it becomes the error's "data".
  OPXTreeError(Code i_code, nlohmann::json i_data);

  static OPXTreeError MessageTooLong();

  const char* what() const noexcept override;
  // The value of an answer's "error".
  std::string ToJSON() const;

private:
  Code _code;
  nlohmann::json _data;
};

#endif
