// What the tests of the tree records share: reports and errors as values that compare.
// EXPECT_THAT(failures.GetFailures(), ElementsAre(FailedCheck("children.is_array()", 526)));
#ifndef RecordTesting_H
#define RecordTesting_H

#include "RecordingFailureHandler.h"
#include "ZELSYPDataSourceParameters.h"

#include <gmock/gmock.h>

#include <string>

namespace RecordTesting
{
using namespace ZELSYPDataSourceParameters;
using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;

inline RecordingFailureHandler::Failure Failed(const std::string& i_message, int i_line)
{
  return {i_message, "ZELSYPDataSourceParameters.cpp", i_line, std::nullopt};
}

inline RecordingFailureHandler::Failure FailedCheck(const std::string& i_expression, int i_line)
{
  return Failed("boolean " + i_expression + " is FALSE", i_line);
}

// The words of the JSON library's type error; empty when nothing is thrown.
template <typename Call>
std::string TypeErrorOf(Call i_call)
{
  try
  {
    i_call();
  }
  catch (const json::type_error& error)
  {
    return error.what();
  }
  return {};
}

inline std::string WrongType(const std::string& i_wanted, const std::string& i_given)
{
  return "[json.exception.type_error.302] type must be " + i_wanted + ", but is " + i_given;
}

// What i_call writes on standard error.
template <typename Call>
std::string StandardErrorOf(Call i_call)
{
  testing::internal::CaptureStderr();
  i_call();
  return testing::internal::GetCapturedStderr();
}

template <typename Record>
std::string WrittenJSON(const Record& i_record)
{
  std::string text;
  i_record.WriteJSON(text);
  return text;
}

inline json NestedArrays(int i_depth, json i_innermost)
{
  json nested = std::move(i_innermost);
  for (int level = 0; level < i_depth; ++level)
  {
    json::array_t outer;
    outer.push_back(std::move(nested));
    nested = std::move(outer);
  }
  return nested;
}
} // namespace RecordTesting

#endif
