#include "ZELSYPMakeWeakHandler.h"

#include "EventWorld.h"
#include "RecordingFailureHandler.h"

#include <gmock/gmock.h>

#include <optional>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class Panel
{
public:
  explicit Panel(Runs& io_runs) : _runs(io_runs) {}
  void OnOpened(ZELSYPEventArgs*) { _runs.Add("panel"); }
  void OnCounted(ZELBaseUnknown*, NumberArgs* i_pArgs) const { _runs.Add(std::to_string(i_pArgs->GetNumber())); }
  auto MakeHandler() { return ZELSYPMakeWeakHandler(_weakTarget, this, &Panel::OnOpened); }
  const ZELSYPWeakTarget& GetWeakTarget() const { return _weakTarget; }

private:
  Runs& _runs;
  ZELSYPWeakTarget _weakTarget;
};

class ZELSYPMakeWeakHandlerTest : public testing::Test
{
protected:
  Runs runs;
  Listener listener;
  std::optional<Panel> panel{runs};
};
} // namespace

TEST_F(ZELSYPMakeWeakHandlerTest, RunsWhileItsTargetLives)
{
  listener.AddHandler(Opened(), panel->MakeHandler(), 0);
  Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("panel"));
}

TEST_F(ZELSYPMakeWeakHandlerTest, RunsNothingOnceItsTargetIsGone)
{
  listener.AddHandler(Opened(), panel->MakeHandler(), 0);
  panel.reset();
  Raise(listener);
  EXPECT_THAT(runs.Take(), IsEmpty());
}

TEST_F(ZELSYPMakeWeakHandlerTest, MustBeRemovedOnceItsTargetIsGone)
{
  const auto spHandler = panel->MakeHandler();
  EXPECT_EQ(spHandler->MustBeRemoved(), 0);
  panel.reset();
  EXPECT_NE(spHandler->MustBeRemoved(), 0);
}

TEST_F(ZELSYPMakeWeakHandlerTest, LeavesItsStoreWithTheNextDispatch)
{
  const auto spHandler = panel->MakeHandler();
  listener.AddHandler(Opened(), spHandler, 0);
  panel.reset();
  Raise(listener);
  EXPECT_EQ(listener.RemoveHandler(Opened(), spHandler), 0);
}

TEST_F(ZELSYPMakeWeakHandlerTest, IsPassedByWhenItsTargetDiesInTheDispatchWhoseSnapshotHoldsIt)
{
  listener.AddHandler(Opened(), ZELSYPMakeHandler([&](ZELSYPEventArgs*) { panel.reset(); }), 0);
  listener.AddHandler(Opened(), panel->MakeHandler(), 0);
  listener.AddHandler(Opened(), runs.Note("after"), 0);
  Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("after"));
}

TEST_F(ZELSYPMakeWeakHandlerTest, IsPassedByInADispatchThatBeginsAfterItDestroyedItsOwnTarget)
{
  const auto spHandler = ZELSYPMakeWeakHandler(panel->GetWeakTarget(),
                                               [&](ZELSYPEventArgs*)
                                               {
                                                 runs.Add("last words");
                                                 panel.reset();
                                                 Raise(listener);
                                               });
  listener.AddHandler(Opened(), spHandler, 0);
  listener.AddHandler(Opened(), panel->MakeHandler(), 0);
  Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("last words"));
}

TEST_F(ZELSYPMakeWeakHandlerTest, TakesItsArgumentsClassFromTheMethod)
{
  const auto spHandler = ZELSYPMakeWeakHandler(panel->GetWeakTarget(), &*panel, &Panel::OnCounted);
  EXPECT_EQ(spHandler->GetArgumentsClass(), NumberArgs::MetaObject());
  EXPECT_EQ(listener.AddHandler(Counted(), spHandler, 0), 1);
  RaiseNumber(listener, 4);
  EXPECT_THAT(runs.Take(), ElementsAre("4"));
}

TEST_F(ZELSYPMakeWeakHandlerTest, TakesACallable)
{
  const auto spHandler = ZELSYPMakeWeakHandler<NumberArgs>(panel->GetWeakTarget(),
                                                           [&](NumberArgs* i_pArgs) { runs.Add(std::to_string(i_pArgs->GetNumber())); });
  listener.AddHandler(Counted(), spHandler, 0);
  RaiseNumber(listener, 1);
  panel.reset();
  RaiseNumber(listener, 2);
  EXPECT_THAT(runs.Take(), ElementsAre("1"));
}

TEST_F(ZELSYPMakeWeakHandlerTest, TakesAHandler)
{
  listener.AddHandler(Opened(), ZELSYPMakeWeakHandler(panel->GetWeakTarget(), runs.Note("wrapped")), 0);
  Raise(listener);
  panel.reset();
  Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("wrapped"));
}

TEST_F(ZELSYPMakeWeakHandlerTest, MustBeRemovedWhenTheHandlerThatItRunsMust)
{
  std::optional<Panel> other(runs);
  const auto spHandler = ZELSYPMakeWeakHandler(panel->GetWeakTarget(), other->MakeHandler());
  other.reset();
  EXPECT_NE(spHandler->MustBeRemoved(), 0);
}

TEST_F(ZELSYPMakeWeakHandlerTest, WatchesASharedObject)
{
  auto pShared = std::make_shared<Panel>(runs);
  const auto spHandler = ZELSYPMakeWeakHandler(pShared, &Panel::OnOpened);
  listener.AddHandler(Opened(), spHandler, 0);
  Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("panel"));
  pShared.reset();
  EXPECT_NE(spHandler->MustBeRemoved(), 0);
  Raise(listener);
  EXPECT_THAT(runs.Take(), IsEmpty());
}

TEST_F(ZELSYPMakeWeakHandlerTest, WatchesThroughAWeakPointer)
{
  const auto pShared = std::make_shared<const Panel>(runs);
  const std::weak_ptr<const Panel> pWeak = pShared;
  listener.AddHandler(Counted(), ZELSYPMakeWeakHandler(pWeak, &Panel::OnCounted), 0);
  RaiseNumber(listener, 9);
  EXPECT_THAT(runs.Take(), ElementsAre("9"));
}

TEST_F(ZELSYPMakeWeakHandlerTest, KeepsASharedObjectWhileItsMethodRuns)
{
  class Suicidal
  {
  public:
    explicit Suicidal(Runs& io_runs) : _runs(io_runs) {}
    ~Suicidal() { _runs.Add("gone"); }
    void OnOpened(ZELSYPEventArgs*)
    {
      _pSelf.reset();
      _runs.Add("still here");
    }
    std::shared_ptr<Suicidal> _pSelf;

  private:
    Runs& _runs;
  };
  auto pShared = std::make_shared<Suicidal>(runs);
  pShared->_pSelf = pShared;
  listener.AddHandler(Opened(), ZELSYPMakeWeakHandler(pShared, &Suicidal::OnOpened), 0);
  pShared.reset();
  Raise(listener);
  EXPECT_THAT(runs.Take(), ElementsAre("still here", "gone"));
}

TEST_F(ZELSYPMakeWeakHandlerTest, WatchesTheObjectThatACopyWasMadeOf)
{
  const auto spHandler = panel->MakeHandler();
  {
    const Panel copy(*panel);
  }
  EXPECT_EQ(spHandler->MustBeRemoved(), 0);
  std::optional<Panel> kept(*panel);
  panel.reset();
  EXPECT_NE(spHandler->MustBeRemoved(), 0);
}

TEST_F(ZELSYPMakeWeakHandlerTest, GoesOnWatchingAnObjectThatIsAssignedTo)
{
  ZELSYPWeakTarget target;
  const auto spHandler = ZELSYPMakeWeakHandler(target, runs.Note("watched"));
  target = ZELSYPWeakTarget();
  EXPECT_EQ(spHandler->MustBeRemoved(), 0);
}

TEST_F(ZELSYPMakeWeakHandlerTest, RefusesWhatIsNull)
{
  RecordingFailureHandler failures;
  void (Panel::*const none)(ZELSYPEventArgs*) = nullptr;
  const ZELSYPWeakTarget target;
  EXPECT_FALSE(ZELSYPMakeWeakHandler(target, nullptr));
  EXPECT_FALSE(ZELSYPMakeWeakHandler(target, static_cast<Panel*>(nullptr), &Panel::OnOpened));
  EXPECT_FALSE(ZELSYPMakeWeakHandler(std::make_shared<Panel>(runs), none));
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer spHandler is NULL", "pointer i_pObject is NULL", "pointer i_method is NULL"));
}

TEST_F(ZELSYPMakeWeakHandlerTest, RunsNothingForANullSharedPointer)
{
  const auto spHandler = ZELSYPMakeWeakHandler(std::shared_ptr<Panel>(), &Panel::OnOpened);
  EXPECT_NE(spHandler->MustBeRemoved(), 0);
}
