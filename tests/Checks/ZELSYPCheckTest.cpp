#include "ZELSYPCheck.h"
#include "RecordingFailureHandler.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>

using testing::ElementsAre;
using testing::IsEmpty;
typedef RecordingFailureHandler::Failure Failure;

TEST(ZELSYPCheck, HoldingChecksAreTrueAndReportNothing)
{
  RecordingFailureHandler failures;
  const int value = 7;
  const auto pHandler = std::make_shared<int>(1);

  EXPECT_TRUE(ZELSYP_CHECK_TRUE(value == 7));
  EXPECT_TRUE(ZELSYP_CHECK_TRUE_DETAILS(value == 7, "details"));
  EXPECT_TRUE(ZELSYP_CHECK_TRUE_AT(value == 7, 12));
  EXPECT_TRUE(ZELSYP_CHECK_POINTER(&value));
  EXPECT_TRUE(ZELSYP_CHECK_POINTER_DETAILS(&value, "details"));
  EXPECT_TRUE(ZELSYP_CHECK_POINTER_AT(&value, 12));
  EXPECT_TRUE(ZELSYP_CHECK_HANDLER(pHandler));
  EXPECT_TRUE(ZELSYP_CHECK_HANDLER_DETAILS(pHandler, "details"));
  EXPECT_TRUE(ZELSYP_CHECK_HANDLER_AT(pHandler, 12));

  EXPECT_THAT(failures.GetMessages(), IsEmpty());
}

TEST(ZELSYPCheck, FalseConditionIsReportedAsWritten)
{
  RecordingFailureHandler failures;
  const std::string supports;
  EXPECT_FALSE(ZELSYP_CHECK_TRUE(supports.size() == 1));
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean supports.size() == 1 is FALSE"));
}

TEST(ZELSYPCheck, NullPointerIsReportedAsWritten)
{
  RecordingFailureHandler failures;
  const int* i_pClass = nullptr;
  EXPECT_FALSE(ZELSYP_CHECK_POINTER(i_pClass));
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_pClass is NULL"));
}

TEST(ZELSYPCheck, UnsetHandlerIsReportedAsWritten)
{
  RecordingFailureHandler failures;
  const std::shared_ptr<int> i_spHandler;
  EXPECT_FALSE(ZELSYP_CHECK_HANDLER(i_spHandler));
  EXPECT_THAT(failures.GetMessages(), ElementsAre("handler i_spHandler is NULL_var"));
}

TEST(ZELSYPCheck, ReportNamesTheBareFileAndTheLineOfTheCheck)
{
  RecordingFailureHandler failures;
  const int* i_pClass = nullptr;
  const int line = __LINE__ + 1;
  (void)ZELSYP_CHECK_POINTER(i_pClass);
  EXPECT_THAT(failures.GetFailures(), ElementsAre(Failure{"pointer i_pClass is NULL", "ZELSYPCheckTest.cpp", line, std::nullopt}));
}

TEST(ZELSYPCheck, DetailsAndGivenLinesArePassedOn)
{
  RecordingFailureHandler failures;
  const int* i_p = nullptr;
  const bool ready = false;
  const int line = __LINE__ + 1;
  EXPECT_FALSE(ZELSYP_CHECK_TRUE_DETAILS(ready, "a") || ZELSYP_CHECK_POINTER_DETAILS(i_p, "b") || ZELSYP_CHECK_HANDLER_DETAILS(i_p, "c"));
  EXPECT_FALSE(ZELSYP_CHECK_TRUE_AT(ready, 12) || ZELSYP_CHECK_POINTER_AT(i_p, 34) || ZELSYP_CHECK_HANDLER_AT(i_p, 56));

  const char* file = "ZELSYPCheckTest.cpp";
  EXPECT_THAT(failures.GetFailures(),
              ElementsAre(Failure{"boolean ready is FALSE", file, line, "a"}, Failure{"pointer i_p is NULL", file, line, "b"},
                          Failure{"handler i_p is NULL_var", file, line, "c"}, Failure{"boolean ready is FALSE", file, 12, std::nullopt},
                          Failure{"pointer i_p is NULL", file, 34, std::nullopt},
                          Failure{"handler i_p is NULL_var", file, 56, std::nullopt}));
}

TEST(ZELSYPCheck, CallersMessageIsReportedAsItIs)
{
  RecordingFailureHandler failures;
  CheckFailure__("100 %s of it", "Some.cpp", 3, "more");
  EXPECT_THAT(failures.GetFailures(), ElementsAre(Failure{"100 %s of it", "Some.cpp", 3, "more"}));
}

TEST(ZELSYPCheck, MessageHoldsAnExpressionOfAnyLength)
{
  RecordingFailureHandler failures;
  const std::string expression(100000, 'x');
  Check_TRUE_Failed__(expression.c_str(), "Some.cpp", 3, nullptr);
  Check_Pointer_Failed__("", "Some.cpp", 3, nullptr);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean " + expression + " is FALSE", "pointer  is NULL"));
}

TEST(ZELSYPCheck, NullExpressionIsReportedAsAnEmptyOne)
{
  RecordingFailureHandler failures;
  Check_Handler_Failed__(nullptr, "Some.cpp", 3, nullptr);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("handler  is NULL_var"));
}
