#include "ZELSYPMakeMemberHandler.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"

#include <gmock/gmock.h>

#include <string>

using testing::ElementsAre;

namespace
{
class Base
{
public:
  void OnBase(NumberArgs*) { _last = "base"; }
  std::string _last;
};

class Panel : public Base
{
public:
  void OnNumber(NumberArgs* i_pArgs) { _last = std::to_string(i_pArgs->GetNumber()); }
  void OnNode(ZELBaseUnknown* i_pNode, NumberArgs*) { _pNode = i_pNode; }
  void OnConst(NumberArgs*) const { ++_calls; }
  void OnNoexcept(NumberArgs*) noexcept { ++_calls; }
  void OnConstNoexcept(ZELBaseUnknown*, NumberArgs*) const noexcept { ++_calls; }
  int OnAnswering(ZELSYPEventArgs*) { return ++_calls; }

  ZELBaseUnknown* _pNode = nullptr;
  mutable int _calls = 0;
};
} // namespace

TEST(ZELSYPMakeMemberHandler, CallsAMethodThatTakesTheArguments)
{
  Panel panel;
  NumberArgs args(Counted(), 7);
  ZELSYPMakeMemberHandler(&panel, &Panel::OnNumber)->Handle(nullptr, &args);
  EXPECT_EQ(panel._last, "7");
}

TEST(ZELSYPMakeMemberHandler, CallsAMethodThatTakesTheNodeToo)
{
  Panel panel;
  ZELBaseUnknown node;
  NumberArgs args(Counted());
  ZELSYPMakeMemberHandler(&panel, &Panel::OnNode)->Handle(&node, &args);
  EXPECT_EQ(panel._pNode, &node);
}

TEST(ZELSYPMakeMemberHandler, CallsConstAndNoexceptMethodsAndIgnoresAnswers)
{
  Panel panel;
  const Panel& constant = panel;
  NumberArgs args(Counted());
  for (const auto& spHandler :
       {ZELSYPMakeMemberHandler(&constant, &Panel::OnConst), ZELSYPMakeMemberHandler(&panel, &Panel::OnNoexcept),
        ZELSYPMakeMemberHandler(&constant, &Panel::OnConstNoexcept), ZELSYPMakeMemberHandler(&panel, &Panel::OnAnswering)})
    spHandler->Handle(nullptr, &args);
  EXPECT_EQ(panel._calls, 4);
}

TEST(ZELSYPMakeMemberHandler, CallsAMethodOfABase)
{
  Panel panel;
  NumberArgs args(Counted());
  ZELSYPMakeMemberHandler(&panel, &Panel::OnBase)->Handle(nullptr, &args);
  EXPECT_EQ(panel._last, "base");
}

TEST(ZELSYPMakeMemberHandler, TakesItsArgumentsClassFromTheMethod)
{
  Panel panel;
  EXPECT_EQ(ZELSYPMakeMemberHandler(&panel, &Panel::OnNode)->GetArgumentsClass(), NumberArgs::MetaObject());
  EXPECT_EQ(ZELSYPMakeMemberHandler(&panel, &Panel::OnConst)->GetArgumentsClass(), NumberArgs::MetaObject());
  EXPECT_EQ(ZELSYPMakeMemberHandler(&panel, &Panel::OnAnswering)->GetArgumentsClass(), ZELSYPEventArgs::MetaObject());
}

TEST(ZELSYPMakeMemberHandler, RefusesANullObject)
{
  RecordingFailureHandler failures;
  EXPECT_FALSE(ZELSYPMakeMemberHandler(static_cast<Panel*>(nullptr), &Panel::OnNumber));
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_pObject is NULL"));
}

TEST(ZELSYPMakeMemberHandler, RefusesANullMethod)
{
  RecordingFailureHandler failures;
  Panel panel;
  void (Panel::*const none)(NumberArgs*) = nullptr;
  EXPECT_FALSE(ZELSYPMakeMemberHandler(&panel, none));
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_method is NULL"));
}
