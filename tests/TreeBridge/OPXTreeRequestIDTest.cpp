// The ids of requests that are numbers: given back to the last digit, or refused.
#include "OPXTreeSession.h"

#include "MemorySource.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using nlohmann::json;

namespace
{
std::string AnswerTo(const std::string& i_id)
{
  MemorySource source;
  return OPXTreeSession(source).Answer(R"({"jsonrpc":"2.0","id":)" + i_id + R"(,"method":"tree/structure","params":{}})");
}
} // namespace

TEST(OPXTreeRequestIDTest, WholeNumbersOfSixtyFourBitsComeBackToTheLastDigit)
{
  for (const char* const id : {"9007199254740993", "9223372036854775807", "-9223372036854775808", "18446744073709551615"})
    EXPECT_EQ(AnswerTo(id), std::string(R"({"jsonrpc":"2.0","id":)") + id + R"(,"result":null})");
}

TEST(OPXTreeRequestIDTest, ANumberOfMoreThanSixtyFourBitsIsRefused)
{
  for (const char* const id : {"18446744073709551616", "-9223372036854775809", "123456789012345678901234567890", "1e300"})
    EXPECT_EQ(json::parse(AnswerTo(id)), json::parse(R"({"jsonrpc":"2.0","id":null,"error":{"code":-32600,"message":"Invalid Request",)"
                                                     R"("data":{"reason":"\"id\" is a string, a number of at most 64 bits or null"}}})"))
        << id;
}
