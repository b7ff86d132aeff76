#include "ZELSYPMakeHandler.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
int g_sum = 0;

void AddNumber(NumberArgs* i_pArgs)
{
  g_sum += i_pArgs->GetNumber();
}
} // namespace

TEST(ZELSYPMakeHandler, CallsWhatTakesTheArguments)
{
  NumberArgs args(Counted(), 7);
  int number = 0;
  const auto spHandler = ZELSYPMakeHandler<NumberArgs>([&](NumberArgs* i_pArgs) { number = i_pArgs->GetNumber(); });
  spHandler->Handle(nullptr, &args);
  EXPECT_EQ(number, 7);
}

TEST(ZELSYPMakeHandler, CallsWhatTakesTheNodeAndTheArguments)
{
  NumberArgs args(Counted());
  ZELBaseUnknown node;
  ZELBaseUnknown* pSeen = nullptr;
  const auto spHandler = ZELSYPMakeHandler<NumberArgs>([&](ZELBaseUnknown* i_pNode, NumberArgs*) { pSeen = i_pNode; });
  spHandler->Handle(&node, &args);
  EXPECT_EQ(pSeen, &node);
}

TEST(ZELSYPMakeHandler, CallsAFunction)
{
  NumberArgs args(Counted(), 5);
  g_sum = 0;
  ZELSYPMakeHandler<NumberArgs>(AddNumber)->Handle(nullptr, &args);
  ZELSYPMakeHandler<NumberArgs>(&AddNumber)->Handle(nullptr, &args);
  EXPECT_EQ(g_sum, 10);
}

TEST(ZELSYPMakeHandler, AcceptsArgumentsOfTheClassThatItIsMadeFor)
{
  EXPECT_EQ(ZELSYPMakeHandler<NumberArgs>([](NumberArgs*) {})->GetArgumentsClass(), NumberArgs::MetaObject());
  EXPECT_EQ(ZELSYPMakeHandler([](ZELSYPEventArgs*) {})->GetArgumentsClass(), ZELSYPEventArgs::MetaObject());
}

TEST(ZELSYPMakeHandler, IsNeverToBeRemoved)
{
  EXPECT_EQ(ZELSYPMakeHandler([](ZELSYPEventArgs*) {})->MustBeRemoved(), 0);
}

TEST(ZELSYPMakeHandler, TakesWhatCanOnlyBeMoved)
{
  NumberArgs args(Counted());
  int number = 0;
  const auto spHandler = ZELSYPMakeHandler([pNumber = std::make_unique<int>(3), &number](ZELSYPEventArgs*) { number = *pNumber; });
  spHandler->Handle(nullptr, &args);
  EXPECT_EQ(number, 3);
}

TEST(ZELSYPMakeHandler, CopiesWhatIsNotGivenAway)
{
  NumberArgs args(Counted());
  const auto pCount = std::make_shared<int>(0);
  const auto callable = [pCount](ZELSYPEventArgs*) { ++*pCount; };
  ZELSYPMakeHandler(callable)->Handle(nullptr, &args);
  callable(&args);
  EXPECT_EQ(*pCount, 2);
}

TEST(ZELSYPMakeHandler, KeepsAStateBetweenItsRuns)
{
  NumberArgs args(Counted());
  int last = 0;
  const auto spHandler = ZELSYPMakeHandler([count = 0, &last](ZELSYPEventArgs*) mutable { last = ++count; });
  spHandler->Handle(nullptr, &args);
  spHandler->Handle(nullptr, &args);
  EXPECT_EQ(last, 2);
}

TEST(ZELSYPMakeHandler, IsHeldByItsHandleAlone)
{
  const auto pOwned = std::make_shared<int>(0);
  auto spHandler = ZELSYPMakeHandler([pOwned](ZELSYPEventArgs*) {});
  EXPECT_EQ(pOwned.use_count(), 2);
  spHandler = nullptr;
  EXPECT_EQ(pOwned.use_count(), 1);
}

TEST(ZELSYPMakeHandler, AnswersAHandlerAsItIs)
{
  const auto spHandler = ZELSYPMakeHandler([](ZELSYPEventArgs*) {});
  EXPECT_EQ(ZELSYPMakeHandler(spHandler).Get(), spHandler.Get());
  EXPECT_EQ(ZELSYPMakeHandler(spHandler.Get()).Get(), spHandler.Get());
}

TEST(ZELSYPMakeHandler, RefusesANullFunction)
{
  RecordingFailureHandler failures;
  void (*const pNone)(ZELSYPEventArgs*) = nullptr;
  EXPECT_FALSE(ZELSYPMakeHandler(pNone));
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_callable is NULL"));
}

TEST(ZELSYPMakeHandler, RefusesAnEmptyFunctionObject)
{
  RecordingFailureHandler failures;
  const std::function<void(ZELSYPEventArgs*)> none;
  EXPECT_FALSE(ZELSYPMakeHandler(none));
  EXPECT_FALSE(ZELSYPMakeHandler(std::function<void(ZELBaseUnknown*, ZELSYPEventArgs*)>()));
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_callable is NULL", "pointer i_callable is NULL"));
}

TEST(ZELSYPMakeHandler, CallsAFunctionObject)
{
  NumberArgs args(Counted(), 5);
  int number = 0;
  const std::function<void(NumberArgs*)> callable = [&](NumberArgs* i_pArgs) { number = i_pArgs->GetNumber(); };
  ZELSYPMakeHandler<NumberArgs>(callable)->Handle(nullptr, &args);
  EXPECT_EQ(number, 5);
}

TEST(ZELSYPMakeHandler, AnswersANullHandleForANullHandler)
{
  RecordingFailureHandler failures;
  EXPECT_FALSE(ZELSYPMakeHandler(nullptr));
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
}

TEST(ZELSYPMakeHandler, CallsNothingWithoutArguments)
{
  RecordingFailureHandler failures;
  bool called = false;
  ZELSYPMakeHandler([&](ZELSYPEventArgs*) { called = true; })->Handle(nullptr, nullptr);
  EXPECT_FALSE(called);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_pArgs is NULL"));
}

TEST(ZELSYPMakeHandler, CallsNothingWithArgumentsOfAnotherClass)
{
  RecordingFailureHandler failures;
  ZELSYPEventArgs args(Counted());
  bool called = false;
  ZELSYPMakeHandler<NumberArgs>([&](NumberArgs*) { called = true; })->Handle(nullptr, &args);
  EXPECT_FALSE(called);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean i_pArgs->IsAKindOf(Args::MetaObject()) is FALSE"));
}

TEST(ZELSYPMakeHandler, LetsThroughWhatTheCallableThrows)
{
  NumberArgs args(Counted());
  const auto spHandler = ZELSYPMakeHandler([](ZELSYPEventArgs*) { throw 7; });
  EXPECT_THROW(spHandler->Handle(nullptr, &args), int);
}
