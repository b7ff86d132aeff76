#include "ZELSYPDeferredJSResult.h"

#include <gtest/gtest.h>

#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>
#include <type_traits>
#include <utility>

namespace
{
// A call into the script side, as the one who makes it sees it.
struct Call
{
  ZELSYPDeferredJSResult MakeResult() { return {completion.get_future(), value.get_future(), error.get_future()}; }

  void Succeed(const nlohmann::json& i_value)
  {
    value.set_value({i_value});
    completion.set_value(true);
  }
  void Fail()
  {
    error.set_value({"TypeError", "tree is undefined", "at select (tree.js:12)"});
    completion.set_value(false);
  }

  std::promise<bool> completion;
  std::promise<ZELSYPJSValue> value;
  std::promise<ZELSYPJSError> error;
};

bool IsDefault(const ZELSYPJSError& i_error)
{
  return i_error.name.empty() && i_error.message.empty() && i_error.stack.empty();
}

class ZELSYPDeferredJSResultTest : public testing::Test
{
protected:
  Call call;
  ZELSYPDeferredJSResult result = call.MakeResult();
};
} // namespace

TEST(ZELSYPJSResultsTest, AValueIsNullByDefault)
{
  EXPECT_TRUE(ZELSYPJSValue().value.is_null());
}

TEST(ZELSYPJSResultsTest, AnErrorSaysNothingByDefault)
{
  EXPECT_TRUE(IsDefault(ZELSYPJSError()));
}

TEST(ZELSYPJSResultsTest, AResultIsMovedAndNeverCopied)
{
  EXPECT_TRUE(std::is_nothrow_move_constructible_v<ZELSYPDeferredJSResult>);
  EXPECT_TRUE(std::is_move_assignable_v<ZELSYPDeferredJSResult>);
  EXPECT_FALSE(std::is_copy_constructible_v<ZELSYPDeferredJSResult>);
  EXPECT_FALSE(std::is_copy_assignable_v<ZELSYPDeferredJSResult>);
}

TEST(ZELSYPJSResultsTest, WithoutFuturesNothingIsEverThere)
{
  ZELSYPDeferredJSResult result;
  result.WaitForResult(60000);
  EXPECT_FALSE(result.HasValue());
  EXPECT_FALSE(result.HasError());
  EXPECT_TRUE(result.GetValue().value.is_null());
  EXPECT_TRUE(IsDefault(result.GetError()));
}

TEST_F(ZELSYPDeferredJSResultTest, BeforeTheScriptAnswersThereIsNeitherValueNorError)
{
  EXPECT_FALSE(result.HasValue());
  EXPECT_FALSE(result.HasError());
  EXPECT_TRUE(result.GetValue().value.is_null());
  EXPECT_TRUE(IsDefault(result.GetError()));
}

TEST_F(ZELSYPDeferredJSResultTest, AskingTooEarlyLosesNothing)
{
  EXPECT_FALSE(result.HasValue());
  EXPECT_TRUE(result.GetValue().value.is_null());
  call.Succeed(7);
  EXPECT_TRUE(result.HasValue());
  EXPECT_EQ(result.GetValue().value, 7);
}

TEST_F(ZELSYPDeferredJSResultTest, ASuccessfulAnswerIsAValueAndNoError)
{
  call.Succeed({{"selected", 3}});
  EXPECT_TRUE(result.HasValue());
  EXPECT_FALSE(result.HasError());
  EXPECT_TRUE(IsDefault(result.GetError()));
  EXPECT_EQ(result.GetValue().value, nlohmann::json({{"selected", 3}}));
}

TEST_F(ZELSYPDeferredJSResultTest, AFailedCallIsAnErrorAndNoValue)
{
  call.Fail();
  EXPECT_FALSE(result.HasValue());
  EXPECT_TRUE(result.HasError());
  EXPECT_TRUE(result.GetValue().value.is_null());
  const ZELSYPJSError error = result.GetError();
  EXPECT_EQ(error.name, "TypeError");
  EXPECT_EQ(error.message, "tree is undefined");
  EXPECT_EQ(error.stack, "at select (tree.js:12)");
}

TEST_F(ZELSYPDeferredJSResultTest, GetValueAsksByItself)
{
  call.Succeed("text");
  EXPECT_EQ(result.GetValue().value, "text");
}

TEST_F(ZELSYPDeferredJSResultTest, GetErrorAsksByItself)
{
  call.Fail();
  EXPECT_EQ(result.GetError().name, "TypeError");
}

TEST_F(ZELSYPDeferredJSResultTest, AValueIsTakenOnlyOnceAndTheCallStaysSuccessful)
{
  call.Succeed(7);
  EXPECT_EQ(result.GetValue().value, 7);
  EXPECT_TRUE(result.GetValue().value.is_null());
  EXPECT_TRUE(result.HasValue());
}

TEST_F(ZELSYPDeferredJSResultTest, AnErrorIsTakenOnlyOnceAndTheCallStaysFailed)
{
  call.Fail();
  EXPECT_EQ(result.GetError().name, "TypeError");
  EXPECT_TRUE(IsDefault(result.GetError()));
  EXPECT_TRUE(result.HasError());
}

TEST_F(ZELSYPDeferredJSResultTest, AnErrorOfACallThatHasNotCompletedIsNotSeen)
{
  call.error.set_value({"TypeError", "", ""});
  EXPECT_FALSE(result.HasError());
  EXPECT_TRUE(IsDefault(result.GetError()));
  call.completion.set_value(false);
  EXPECT_TRUE(result.HasError());
}

TEST_F(ZELSYPDeferredJSResultTest, TheCompletionDecidesEvenWhenAnErrorIsThere)
{
  call.error.set_value({"TypeError", "", ""});
  call.completion.set_value(true);
  EXPECT_FALSE(result.HasError());
  EXPECT_TRUE(result.HasValue());
}

TEST_F(ZELSYPDeferredJSResultTest, AFailureWhoseErrorIsMissingIsSeenByHasValueFirst)
{
  call.completion.set_value(false);
  EXPECT_FALSE(result.HasError());
  EXPECT_FALSE(result.HasValue());
  EXPECT_TRUE(result.HasError());
  EXPECT_TRUE(IsDefault(result.GetError()));
}

TEST_F(ZELSYPDeferredJSResultTest, AValueThatComesAfterTheCompletionIsNotWaitedForAndNotLost)
{
  call.completion.set_value(true);
  EXPECT_TRUE(result.GetValue().value.is_null());
  call.value.set_value({7});
  EXPECT_EQ(result.GetValue().value, 7);
}

TEST_F(ZELSYPDeferredJSResultTest, ACallThatIsGivenUpIsAFailure)
{
  call = Call();
  EXPECT_FALSE(result.HasValue());
  EXPECT_TRUE(result.HasError());
  EXPECT_TRUE(IsDefault(result.GetError()));
}

TEST_F(ZELSYPDeferredJSResultTest, AnExceptionInPlaceOfTheCompletionIsAFailure)
{
  call.completion.set_exception(std::make_exception_ptr(std::runtime_error("no script")));
  EXPECT_FALSE(result.HasValue());
  EXPECT_TRUE(result.GetValue().value.is_null());
}

TEST_F(ZELSYPDeferredJSResultTest, AnExceptionOfAnyTypeInPlaceOfTheCompletionIsAFailure)
{
  call.completion.set_exception(std::make_exception_ptr(42));
  EXPECT_NO_THROW(EXPECT_FALSE(result.HasValue()));
  call.error.set_value({"TypeError", "", ""});
  EXPECT_TRUE(result.HasError());
  EXPECT_EQ(result.GetError().name, "TypeError");
}

TEST_F(ZELSYPDeferredJSResultTest, AnExceptionOfAnyTypeInPlaceOfTheValueIsADefaultOne)
{
  call.value.set_exception(std::make_exception_ptr(42));
  call.completion.set_value(true);
  EXPECT_NO_THROW(EXPECT_TRUE(result.GetValue().value.is_null()));
  EXPECT_TRUE(result.HasValue());
}

TEST_F(ZELSYPDeferredJSResultTest, AnExceptionOfAnyTypeInPlaceOfTheErrorIsADefaultOne)
{
  call.error.set_exception(std::make_exception_ptr(42));
  call.completion.set_value(false);
  EXPECT_NO_THROW(EXPECT_TRUE(IsDefault(result.GetError())));
  EXPECT_TRUE(result.HasError());
}

TEST_F(ZELSYPDeferredJSResultTest, MovingTakesOverTheFutures)
{
  ZELSYPDeferredJSResult moved(std::move(result));
  call.Succeed(7);
  EXPECT_EQ(moved.GetValue().value, 7);
}

TEST_F(ZELSYPDeferredJSResultTest, MovingTakesOverTheState)
{
  call.Succeed(7);
  EXPECT_TRUE(result.HasValue());
  ZELSYPDeferredJSResult moved(std::move(result));
  EXPECT_TRUE(moved.HasValue());
  EXPECT_EQ(moved.GetValue().value, 7);
}

TEST_F(ZELSYPDeferredJSResultTest, MovingTakesOverAFailureAndItsError)
{
  call.Fail();
  EXPECT_TRUE(result.HasError());
  ZELSYPDeferredJSResult moved(std::move(result));
  EXPECT_TRUE(moved.HasError());
  EXPECT_EQ(moved.GetError().name, "TypeError");
}

TEST_F(ZELSYPDeferredJSResultTest, WaitingEndsAfterTheTimeGiven)
{
  const auto start = std::chrono::steady_clock::now();
  result.WaitForResult(20);
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(20));
  EXPECT_FALSE(result.HasValue());
}

TEST_F(ZELSYPDeferredJSResultTest, WaitingForNoTimeOrLessReturnsAtOnce)
{
  result.WaitForResult(0);
  result.WaitForResult(-5);
  EXPECT_FALSE(result.HasValue());
}

TEST_F(ZELSYPDeferredJSResultTest, WaitingEndsWhenAnotherThreadCompletesTheCall)
{
  std::thread script([this] { call.Succeed(7); });
  result.WaitForResult(60000);
  EXPECT_TRUE(result.HasValue());
  EXPECT_EQ(result.GetValue().value, 7);
  script.join();
}

TEST_F(ZELSYPDeferredJSResultTest, WaitingForWhatHasSettledReturnsAtOnce)
{
  call.Fail();
  EXPECT_TRUE(result.HasError());
  result.WaitForResult(60000);
  EXPECT_TRUE(result.HasError());
}

TEST_F(ZELSYPDeferredJSResultTest, AFailureWhoseErrorIsMissingIsNotSeenByWaitingNorByGetError)
{
  call.completion.set_value(false);
  result.WaitForResult(60000);
  EXPECT_FALSE(result.HasError());
  EXPECT_TRUE(IsDefault(result.GetError()));
  EXPECT_FALSE(result.HasError());
  call.error.set_value({"TypeError", "", ""});
  EXPECT_EQ(result.GetError().name, "TypeError");
}

TEST_F(ZELSYPDeferredJSResultTest, AFailureWhoseErrorIsMissingIsSeenByGetValue)
{
  call.completion.set_value(false);
  EXPECT_TRUE(result.GetValue().value.is_null());
  EXPECT_TRUE(result.HasError());
}

TEST_F(ZELSYPDeferredJSResultTest, WaitingTakesNothingOut)
{
  call.Succeed(7);
  result.WaitForResult(60000);
  result.WaitForResult(60000);
  EXPECT_EQ(result.GetValue().value, 7);
  EXPECT_TRUE(result.HasValue());
}
