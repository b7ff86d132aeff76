#include "ZELSYPDispatchObserver.h"

#include "RouteWorld.h"
#include "ZELSYPEventHandlerInfo.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <stdexcept>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class Notes : public ZELSYPDispatchObserver
{
public:
  Notes(std::vector<std::string>& io_notes, std::string i_prefix) : _notes(io_notes), _prefix(std::move(i_prefix)) {}

private:
  void HandlerRuns(const Step& i_step) override { Note("runs ", i_step); }
  void HandlerRan(const Step& i_step) override { Note("ran ", i_step); }
  void HandlerSkipped(const Step& i_step) override { Note("skipped ", i_step); }
  void Note(const char* i_what, const Step& i_step)
  {
    const auto* const pHandler = static_cast<const LoggingHandler*>(i_step._info.GetHandler());
    _notes.push_back(_prefix + i_what + pHandler->_name + " at " + i_step._stop.GetNode()->IsA() + " " + std::to_string(i_step._list) +
                     "/" + std::to_string(i_step._index) + (i_step._args.IsConsumed() ? " consumed" : ""));
  }

  std::vector<std::string>& _notes;
  const std::string _prefix;
};

// Does something once, when it is told of a handler that runs.
class Acts : public ZELSYPDispatchObserver
{
public:
  explicit Acts(std::function<void()> i_act) : _act(std::move(i_act)) {}

private:
  void HandlerRuns(const Step&) override
  {
    if (const std::function<void()> act = std::exchange(_act, nullptr))
      act();
  }

  std::function<void()> _act;
};

class ZELSYPDispatchObserverTest : public testing::Test, protected RouteWorld
{
protected:
  std::vector<std::string> _notes;
};
} // namespace

TEST_F(ZELSYPDispatchObserverTest, IsToldOfEveryHandlerThatRunsOrIsPassedOver)
{
  Listen(Panel::MetaObject(), "panel");
  Listen(*_leaf, "first");
  Listen(*_leaf, "consumes", [](ZELBaseUnknown*, ZELSYPEventArgs* i_pArgs) { i_pArgs->Consume(); });
  Listen(*_root, "root");
  const Notes observer(_notes, "");
  Raise(*_leaf);
  EXPECT_THAT(_notes, ElementsAre("runs panel at Button 0/0", "ran panel at Button 0/0", "runs first at Button 1/0",
                                  "ran first at Button 1/0", "runs consumes at Button 1/1", "ran consumes at Button 1/1 consumed",
                                  "skipped panel at Panel 0/0 consumed", "skipped root at Widget 0/0 consumed"));
  EXPECT_THAT(_log, ElementsAre("panel", "first", "consumes"));
}

TEST_F(ZELSYPDispatchObserverTest, SeveralAreToldAndTheLastOneFirst)
{
  Listen(*_leaf, "leaf");
  auto pFirst = std::make_unique<Notes>(_notes, "1 ");
  auto pSecond = std::make_unique<Notes>(_notes, "2 ");
  Raise(*_leaf);
  pFirst = nullptr;
  Raise(*_leaf);
  pSecond = nullptr;
  Raise(*_leaf);
  EXPECT_THAT(_notes, ElementsAre("2 runs leaf at Button 0/0", "1 runs leaf at Button 0/0", "2 ran leaf at Button 0/0",
                                  "1 ran leaf at Button 0/0", "2 runs leaf at Button 0/0", "2 ran leaf at Button 0/0"));
}

TEST_F(ZELSYPDispatchObserverTest, MayComeAndGoInTheMiddleOfADispatch)
{
  std::unique_ptr<Notes> pObserver;
  Listen(*_leaf, "begin", [&](ZELBaseUnknown*, ZELSYPEventArgs*) { pObserver = std::make_unique<Notes>(_notes, ""); });
  Listen(*_leaf, "between");
  Listen(*_leaf, "end", [&](ZELBaseUnknown*, ZELSYPEventArgs*) { pObserver = nullptr; });
  Listen(*_leaf, "after");
  Raise(*_leaf);
  EXPECT_THAT(_notes, ElementsAre("runs between at Button 0/1", "ran between at Button 0/1", "runs end at Button 0/2"));
  EXPECT_THAT(_log, ElementsAre("begin", "between", "end", "after"));
}

TEST_F(ZELSYPDispatchObserverTest, HandlerThatThrowsHasNotRun)
{
  Listen(*_leaf, "throws", [](ZELBaseUnknown*, ZELSYPEventArgs*) { throw std::runtime_error("no"); });
  const Notes observer(_notes, "");
  EXPECT_THROW(Raise(*_leaf), std::runtime_error);
  EXPECT_THAT(_notes, ElementsAre("runs throws at Button 0/0"));
}

TEST_F(ZELSYPDispatchObserverTest, MayDestroyTheOneThatIsToldNext)
{
  Listen(*_leaf, "leaf");
  const Notes first(_notes, "1 ");
  auto pSecond = std::make_unique<Notes>(_notes, "2 ");
  const Acts last([&] { pSecond = nullptr; });
  Raise(*_leaf);
  EXPECT_THAT(_notes, ElementsAre("1 runs leaf at Button 0/0", "1 ran leaf at Button 0/0"));
}

TEST_F(ZELSYPDispatchObserverTest, MayDestroyAllThatAreToldAfterIt)
{
  Listen(*_leaf, "leaf");
  auto pFirst = std::make_unique<Notes>(_notes, "1 ");
  auto pSecond = std::make_unique<Notes>(_notes, "2 ");
  const Acts last(
      [&]
      {
        pSecond = nullptr;
        pFirst = nullptr;
      });
  Raise(*_leaf);
  EXPECT_THAT(_notes, IsEmpty());
  EXPECT_THAT(_log, ElementsAre("leaf"));
}

TEST_F(ZELSYPDispatchObserverTest, MayDestroyItself)
{
  Listen(*_leaf, "leaf");
  const Notes first(_notes, "");
  std::unique_ptr<Acts> pLast;
  pLast = std::make_unique<Acts>([&] { pLast = nullptr; });
  Raise(*_leaf);
  EXPECT_THAT(_notes, ElementsAre("runs leaf at Button 0/0", "ran leaf at Button 0/0"));
  EXPECT_EQ(pLast, nullptr);
}

TEST_F(ZELSYPDispatchObserverTest, MayMakeAnotherOneWhichIsToldFromTheNextStepOn)
{
  Listen(*_leaf, "leaf");
  std::unique_ptr<Notes> pNew;
  const Acts first([&] { pNew = std::make_unique<Notes>(_notes, ""); });
  Raise(*_leaf);
  EXPECT_THAT(_notes, ElementsAre("ran leaf at Button 0/0"));
}

TEST_F(ZELSYPDispatchObserverTest, MayDestroyInADispatchOfItsOwnTheOneThatTheOuterOneComesToNext)
{
  Listen(*_leaf, "leaf");
  const Notes first(_notes, "1 ");
  auto pSecond = std::make_unique<Notes>(_notes, "2 ");
  std::unique_ptr<Acts> pInner;
  const Acts last(
      [&]
      {
        pInner = std::make_unique<Acts>([&] { pSecond = nullptr; });
        Raise(*_leaf);
      });
  Raise(*_leaf);
  EXPECT_THAT(_notes, ElementsAre("1 runs leaf at Button 0/0", "1 ran leaf at Button 0/0", "1 runs leaf at Button 0/0",
                                  "1 ran leaf at Button 0/0"));
}

TEST_F(ZELSYPDispatchObserverTest, WhatItThrowsGoesThroughTheDispatchAndTheNextOneIsToldAsEver)
{
  Listen(*_leaf, "leaf");
  const Notes first(_notes, "");
  const Acts last([] { throw std::runtime_error("no"); });
  EXPECT_THROW(Raise(*_leaf), std::runtime_error);
  EXPECT_THAT(_log, IsEmpty());
  Raise(*_leaf);
  EXPECT_THAT(_notes, ElementsAre("runs leaf at Button 0/0", "ran leaf at Button 0/0"));
}

TEST_F(ZELSYPDispatchObserverTest, IsToldWhetherTheArgumentsWereConsumedBefore)
{
  class Before : public ZELSYPDispatchObserver
  {
  public:
    std::vector<bool> _before;

  private:
    void HandlerRan(const Step& i_step) override { _before.push_back(i_step._wasConsumed); }
    void HandlerSkipped(const Step& i_step) override { _before.push_back(i_step._wasConsumed); }
  };
  Listen(*_leaf, "consumes", [](ZELBaseUnknown*, ZELSYPEventArgs* i_pArgs) { i_pArgs->Consume(); });
  Listen(*_leaf, "passed over");
  Before observer;
  Raise(*_leaf);
  EXPECT_THAT(observer._before, ElementsAre(false, true));
}
