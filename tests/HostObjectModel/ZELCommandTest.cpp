#include "ZELCommand.h"

#include "Kitchen.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
std::vector<std::string> goings;

class Command : public ZELCommand
{
public:
  using ZELCommand::ZELCommand;
  ~Command() override { goings.push_back(GetName().GetText()); }
};

// A command that only its father holds.
ZELCommand* Add(ZELCommand* i_pFather, const char* i_pName)
{
  ZELCommand* const pCommand = new Command(i_pFather, i_pName);
  pCommand->Release();
  return pCommand;
}

std::vector<std::string> NamesBelow(const ZELCommand& i_father)
{
  std::vector<std::string> names;
  for (const ZELCommand* pChild = i_father.GetFirstChild(); pChild; pChild = pChild->GetNextSibling())
    names.push_back(pChild->GetName().GetText());
  return names;
}

class ZELCommandTest : public testing::Test
{
protected:
  ZELCommandTest() { goings.clear(); }

  ZELHandle<ZELCommand> _root = ZELHandle<ZELCommand>::Adopt(new Command(nullptr, "root"));
};
} // namespace

TEST_F(ZELCommandTest, HasNeitherFatherNorNameUnlessGiven)
{
  const ZELCommand command;
  EXPECT_EQ(command.GetFather(), nullptr);
  EXPECT_TRUE(command.GetName().IsEmpty());
  EXPECT_EQ(command.GetFirstChild(), nullptr);
  EXPECT_EQ(command.GetNextSibling(), nullptr);
  EXPECT_STREQ(command.IsA(), "ZELCommand");
}

TEST_F(ZELCommandTest, KnowsItsNameAndItsFather)
{
  const ZELCommand* const pFile = Add(_root, "File");
  EXPECT_STREQ(pFile->GetName().GetText(), "File");
  EXPECT_EQ(pFile->GetFather(), _root.Get());
}

TEST_F(ZELCommandTest, ChildrenComeInTheOrderOfTheirMaking)
{
  for (const char* pName : {"c", "a", "b", "a"})
    Add(_root, pName);
  EXPECT_THAT(NamesBelow(*_root), ElementsAre("c", "a", "b", "a"));
}

TEST_F(ZELCommandTest, ChildIsFoundByItsNameTheFirstOfSeveral)
{
  Add(_root, "a");
  ZELCommand* const pFirst = Add(_root, "b");
  Add(_root, "b");
  Add(pFirst, "below");
  EXPECT_EQ(_root->FindChild("b"), pFirst);
  EXPECT_EQ(_root->FindChild("below"), nullptr);
  EXPECT_EQ(_root->FindChild("B"), nullptr);
  EXPECT_EQ(_root->FindChild(""), nullptr);
}

TEST_F(ZELCommandTest, FatherHoldsOneReferenceOnEachChild)
{
  const auto child = ZELHandle<ZELCommand>::Adopt(new ZELCommand(_root, "child"));
  EXPECT_EQ(CountOf(child), 2);
  EXPECT_EQ(CountOf(_root), 1);
}

TEST_F(ZELCommandTest, FatherThatIsDestroyedTakesTheChildrenAlongThatNobodyElseHolds)
{
  Add(Add(_root, "a"), "below a");
  Add(_root, "b");
  _root = NULL_var;
  EXPECT_THAT(goings, ElementsAre("root", "a", "b", "below a"));
}

TEST_F(ZELCommandTest, ChildThatSomeoneHoldsLivesOnWithoutAFather)
{
  const ZELHandle<ZELCommand> child(Add(_root, "child"));
  Add(child, "grandchild");
  _root = NULL_var;
  EXPECT_EQ(child->GetFather(), nullptr);
  EXPECT_EQ(child->GetNextSibling(), nullptr);
  EXPECT_EQ(CountOf(child), 1);
  EXPECT_THAT(NamesBelow(*child), ElementsAre("grandchild"));
  EXPECT_THAT(goings, ElementsAre("root"));
}

TEST_F(ZELCommandTest, ChildOnTheStackLeavesItsFatherWhenItGoes)
{
  Add(_root, "a");
  {
    Command child(_root, "child");
    Add(&child, "grandchild");
    Add(_root, "b");
    EXPECT_THAT(NamesBelow(*_root), ElementsAre("a", "child", "b"));
  }
  EXPECT_THAT(NamesBelow(*_root), ElementsAre("a", "b"));
  EXPECT_THAT(goings, ElementsAre("child", "grandchild"));
}

TEST_F(ZELCommandTest, ChildOnTheStackOutlivesItsFather)
{
  Command child(_root, "child");
  _root = NULL_var;
  EXPECT_EQ(child.GetFather(), nullptr);
  EXPECT_EQ(CountOf(&child), 1);
}

TEST_F(ZELCommandTest, NewFatherHasItAsItsLastChildWithItsOwnChildren)
{
  ZELCommand* const pA = Add(_root, "a");
  ZELCommand* const pB = Add(_root, "b");
  Add(pB, "below b");
  ZELCommand* const pC = Add(pA, "c");
  EXPECT_EQ(pB->SetFather(pA), 1);
  EXPECT_EQ(pB->GetFather(), pA);
  EXPECT_THAT(NamesBelow(*_root), ElementsAre("a"));
  EXPECT_THAT(NamesBelow(*pA), ElementsAre("c", "b"));
  EXPECT_THAT(NamesBelow(*pB), ElementsAre("below b"));
  EXPECT_EQ(CountOf(pB), 1);
  EXPECT_EQ(pC->SetFather(pA), 1);
  EXPECT_THAT(NamesBelow(*pA), ElementsAre("b", "c"));
}

TEST_F(ZELCommandTest, BecomesARootForANullFather)
{
  const ZELHandle<ZELCommand> child(Add(_root, "child"));
  EXPECT_EQ(child->SetFather(nullptr), 1);
  EXPECT_EQ(child->GetFather(), nullptr);
  EXPECT_EQ(CountOf(child), 1);
  EXPECT_THAT(NamesBelow(*_root), IsEmpty());
  EXPECT_EQ(child->SetFather(nullptr), 1);
  EXPECT_EQ(CountOf(child), 1);
}

TEST_F(ZELCommandTest, RootThatNobodyHoldsIsDestroyed)
{
  EXPECT_EQ(Add(_root, "child")->SetFather(nullptr), 1);
  EXPECT_THAT(goings, ElementsAre("child"));
}

TEST_F(ZELCommandTest, RootBecomesAChild)
{
  const auto other = ZELHandle<ZELCommand>::Adopt(new Command(nullptr, "other"));
  EXPECT_EQ(other->SetFather(_root), 1);
  EXPECT_THAT(NamesBelow(*_root), ElementsAre("other"));
  EXPECT_EQ(CountOf(other), 2);
}

TEST_F(ZELCommandTest, CannotStandBelowItself)
{
  ZELCommand* const pChild = Add(_root, "child");
  ZELCommand* const pGrandchild = Add(pChild, "grandchild");
  EXPECT_EQ(_root->SetFather(_root), 0);
  EXPECT_EQ(_root->SetFather(pGrandchild), 0);
  EXPECT_EQ(pChild->SetFather(pGrandchild), 0);
  EXPECT_EQ(_root->GetFather(), nullptr);
  EXPECT_EQ(pChild->GetFather(), _root.Get());
  EXPECT_EQ(CountOf(_root), 1);
}

TEST_F(ZELCommandTest, MillionLevelsAreDestroyedWithoutDepthOfCalls)
{
  constexpr int levels = 1000000;
  int deaths = 0;
  struct Level : ZELCommand
  {
    Level(ZELCommand* i_pFather, int& io_deaths) : ZELCommand(i_pFather), _deaths(io_deaths) {}
    ~Level() override { ++_deaths; }
    int& _deaths;
  };
  ZELCommand* pDeepest = _root;
  for (int level = 0; level < levels; ++level)
  {
    ZELCommand* const pNext = new Level(pDeepest, deaths);
    pNext->Release();
    pDeepest = pNext;
  }
  _root = NULL_var;
  EXPECT_EQ(deaths, levels);
}

TEST_F(ZELCommandTest, HundredThousandChildrenLeaveInAnyOrder)
{
  std::vector<ZELHandle<ZELCommand>> children;
  for (int number = 0; number < 100000; ++number)
    children.push_back(ZELHandle<ZELCommand>::Adopt(new ZELCommand(_root)));
  while (!children.empty())
  {
    children.back()->SetFather(nullptr);
    children.pop_back();
  }
  EXPECT_EQ(_root->GetFirstChild(), nullptr);
}

TEST_F(ZELCommandTest, ChildMayGiveABrotherANewFatherWhileTheirFatherGoes)
{
  struct Saviour : ZELCommand
  {
    using ZELCommand::ZELCommand;
    ~Saviour() override { _pBrother->SetFather(_newFather); }
    ZELCommand* _pBrother = nullptr;
    ZELHandle<ZELCommand> _newFather;
  };
  const auto newFather = ZELHandle<ZELCommand>::Adopt(new Command(nullptr, "new father"));
  Saviour* const pSaviour = new Saviour(_root, "saviour");
  pSaviour->Release();
  pSaviour->_pBrother = Add(_root, "brother");
  pSaviour->_newFather = newFather;
  _root = NULL_var;
  EXPECT_THAT(goings, ElementsAre("root"));
  EXPECT_THAT(NamesBelow(*newFather), ElementsAre("brother"));
  EXPECT_EQ(CountOf(newFather->GetFirstChild()), 1);
}

TEST_F(ZELCommandTest, CommandMadeBelowOneThatGoesIsDestroyedWithIt)
{
  struct Late : ZELCommand
  {
    using ZELCommand::ZELCommand;
    ~Late() override { Add(this, "late"); }
  };
  ZELHandle<ZELCommand>::Adopt(new Late(nullptr, "father"));
  EXPECT_THAT(goings, ElementsAre("late"));
}

TEST_F(ZELCommandTest, ChildThatGoesCannotAddToTheFatherThatGoesNorGiveItAFather)
{
  struct Clinger : ZELCommand
  {
    Clinger(ZELCommand* i_pFather, int& o_answer) : ZELCommand(i_pFather), _pFatherOnce(i_pFather), _answer(o_answer) {}
    ~Clinger() override
    {
      const auto late = ZELHandle<ZELCommand>::Adopt(new Command(_pFatherOnce, "late"));
      EXPECT_EQ(late->GetFather(), nullptr);
      _answer = late->SetFather(_pFatherOnce) + _pFatherOnce->SetFather(late);
    }
    ZELCommand* const _pFatherOnce;
    int& _answer;
  };
  int answer = 7;
  (new Clinger(_root, answer))->Release();
  _root = NULL_var;
  EXPECT_EQ(answer, 0);
  EXPECT_THAT(goings, ElementsAre("root", "late"));
}

TEST_F(ZELCommandTest, TreeThatADestructorDestroysIsGoneWhenItGoesOn)
{
  struct Window : ZELCommand
  {
    using ZELCommand::ZELCommand;
    ~Window() override
    {
      _menu = NULL_var;
      goings.push_back("window");
    }
    ZELHandle<ZELCommand> _menu = ZELHandle<ZELCommand>::Adopt(new Command(nullptr, "menu"));
  };
  Window* const pWindow = new Window(_root);
  pWindow->Release();
  Add(Add(pWindow->_menu, "file"), "open");
  Add(pWindow, "in the window");
  _root = NULL_var;
  EXPECT_THAT(goings, ElementsAre("root", "menu", "file", "open", "window", "in the window"));
}
