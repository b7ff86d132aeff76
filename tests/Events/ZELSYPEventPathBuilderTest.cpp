#include "ZELSYPEventPathBuilder.h"

#include "RecordingFailureHandler.h"
#include "RouteWorld.h"
#include "ZELExtension.h"
#include "ZELSYPEventHandlerInfo.h"

#include <gmock/gmock.h>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

typedef ZELSYPArray<ZELBaseUnknown_var, ZELSYPRecycledBlocks> Nodes;

// Opens two private steps, to give them what the steps before them never would.
template <class Tag, typename Tag::Type step>
struct OpenStep
{
  friend typename Tag::Type Get(Tag) { return step; }
};
struct FillListOfNodes
{
  typedef int (ZELSYPEventPathBuilder::*Type)(Nodes&, ZELSYPEventArgs*);
  friend Type Get(FillListOfNodes);
};
template struct OpenStep<FillListOfNodes, &ZELSYPEventPathBuilder::FillListOfNodes>;
struct BuildElements
{
  typedef bool (ZELSYPEventPathBuilder::*Type)(ZELSYPEventPath&, ZELSYPEventArgs&, Nodes&);
  friend Type Get(BuildElements);
};
template struct OpenStep<BuildElements, &ZELSYPEventPathBuilder::BuildElements>;

namespace
{
class ZELSYPEventPathBuilderTest : public testing::Test, protected RouteWorld
{
protected:
  // One handler on each of the three.
  void ListenEverywhere()
  {
    Listen(*_root, "root");
    Listen(*_leaf, "leaf");
    Listen(*_parent, "parent");
  }
  // An event for arguments of the class DoorArgs.
  ZELHandle<ZELSYPEvent> NewDoorEvent(ZELSYPEvent::Propagation i_propagation = ZELSYPEvent::OriginToRoot)
  {
    return ZELHandle<ZELSYPEvent>::Adopt(OpenFactory::MakeEvent("Door", i_propagation, DoorArgs::MetaObject(), Widget::MetaObject()));
  }
  std::vector<int> CountReferencesOfNodes() { return {CountReferences(_leaf), CountReferences(_parent), CountReferences(_root)}; }
  // The builder's route from the leaf has the three as its stops, in which they all run, and holds each of them once.
  void ExpectWholeRoute(ZELSYPEventPathBuilder& io_builder, ZELSYPEventArgs& io_args);

  RecordingFailureHandler _failures;
};

// A builder whose answers a test gives.
class ScriptedBuilder : public ZELSYPEventPathBuilder
{
public:
  using ZELSYPEventPathBuilder::NO_ELEMENT;

  std::function<ZELSYPEventPathElt*(ZELBaseUnknown*)> _buildElement = [](ZELBaseUnknown*) { return NO_ELEMENT(); };
  std::function<ZELBaseUnknown*(ZELBaseUnknown*)> _getParent = [](ZELBaseUnknown*) { return nullptr; };
  // What it was asked for parents with.
  std::vector<std::pair<ZELSYPEventArgs*, ZELBaseUnknown*>> _askedForParents;

private:
  ZELSYPEventPathElt* BuildElement(ZELSYPEventArgs*, ZELBaseUnknown* i_pNode) override { return _buildElement(i_pNode); }
  ZELBaseUnknown* GetParent(ZELSYPEventArgs* i_pArgs, ZELBaseUnknown* i_pNode) override
  {
    _askedForParents.emplace_back(i_pArgs, i_pNode);
    return _getParent(i_pNode);
  }
};

// Tells of each node whose store is asked for.
class StoreWatchingBuilder : public WidgetBuilder
{
public:
  explicit StoreWatchingBuilder(std::function<void(ZELBaseUnknown*)> i_watch) : _watch(std::move(i_watch)) {}

private:
  ZELSYPEventHandlersSupport* GetSupportForNode(ZELBaseUnknown* i_pNode) override
  {
    _watch(i_pNode);
    return &static_cast<Widget*>(i_pNode)->_handlers;
  }

  const std::function<void(ZELBaseUnknown*)> _watch;
};

Widget* ParentOf(ZELBaseUnknown* i_pNode)
{
  return static_cast<Widget*>(i_pNode)->_pParent;
}

// Finds no stop good enough.
class PickyBuilder : public StoreWatchingBuilder
{
public:
  using StoreWatchingBuilder::StoreWatchingBuilder;

private:
  ZELSYPEventPathElt* BuildElement(ZELSYPEventArgs* i_pArgs, ZELBaseUnknown* i_pNode) override
  {
    ZELSYPEventPathElt* const pElt = WidgetBuilder::BuildElement(i_pArgs, i_pNode);
    if (pElt != NO_ELEMENT())
      delete pElt;
    return NO_ELEMENT();
  }
};

// Throws the stops away and uses their memory for itself.
class FrugalBuilder : public WidgetBuilder
{
public:
  typedef std::array<unsigned char, sizeof(ZELSYPEventPathElt)> Memory;
  struct Delete
  {
    void operator()(Memory* i_pMemory) const { ZELSYPEventPathElt::operator delete(i_pMemory); }
  };
  std::vector<std::unique_ptr<Memory, Delete>> _used;

private:
  ZELSYPEventPathElt* BuildElement(ZELSYPEventArgs* i_pArgs, ZELBaseUnknown* i_pNode) override
  {
    delete WidgetBuilder::BuildElement(i_pArgs, i_pNode);
    _used.emplace_back(static_cast<Memory*>(ZELSYPEventPathElt::operator new(sizeof(Memory))));
    _used.back()->fill(0xff);
    return NO_ELEMENT();
  }
};

// Keeps two stops of each node for itself, and throws at the root.
class HoardingBuilder : public WidgetBuilder
{
public:
  std::vector<std::unique_ptr<ZELSYPEventPathElt>> _hoard;

private:
  ZELSYPEventPathElt* BuildElement(ZELSYPEventArgs* i_pArgs, ZELBaseUnknown* i_pNode) override
  {
    _hoard.emplace_back(WidgetBuilder::BuildElement(i_pArgs, i_pNode));
    _hoard.emplace_back(WidgetBuilder::BuildElement(i_pArgs, i_pNode));
    if (!ParentOf(i_pNode))
      throw std::runtime_error("enough");
    return NO_ELEMENT();
  }
};

// Writes over what the calls before left on the stack.
[[gnu::noinline]] void OverwriteOldStack()
{
  volatile std::uintptr_t old[4096];
  for (volatile std::uintptr_t& word : old)
    word = 1;
}

// Builds the same route, to no end.
void TakeDetour(ZELSYPEventArgs* i_pArgs)
{
  delete WidgetBuilder().BuildPath(i_pArgs);
  OverwriteOldStack();
}

// Takes a detour before and after each stop is made.
class DetouringBuilder : public WidgetBuilder
{
private:
  ZELSYPEventPathElt* BuildElement(ZELSYPEventArgs* i_pArgs, ZELBaseUnknown* i_pNode) override
  {
    TakeDetour(i_pArgs);
    ZELSYPEventPathElt* const pElt = WidgetBuilder::BuildElement(i_pArgs, i_pNode);
    TakeDetour(i_pArgs);
    return pElt;
  }
};

// Throws each stop away and has it made once more.
class WaveringBuilder : public StoreWatchingBuilder
{
public:
  using StoreWatchingBuilder::StoreWatchingBuilder;

private:
  ZELSYPEventPathElt* BuildElement(ZELSYPEventArgs* i_pArgs, ZELBaseUnknown* i_pNode) override
  {
    delete WidgetBuilder::BuildElement(i_pArgs, i_pNode);
    return WidgetBuilder::BuildElement(i_pArgs, i_pNode);
  }
};

// Arguments that do not say what class they are of.
class ClasslessArgs : public ZELSYPEventArgs
{
public:
  using ZELSYPEventArgs::ZELSYPEventArgs;
  ZELMetaClass* GetMetaObject() const override { return nullptr; }
};

// Stands for the object that it extends.
class Stand : public ZELExtension<ZELBaseUnknown>
{
};

// A chain of three that tells which of its widgets live, once nobody here holds the upper two.
struct GivenUpChain
{
  // Gives up the widget if it is one of the upper two.
  void GiveUp(const ZELBaseUnknown* i_pNode)
  {
    for (ZELHandle<Widget>* const pHeld : {&_parent, &_root})
      if (pHeld->Get() == i_pNode)
        *pHeld = nullptr;
  }
  int CountLiving() const { return Widget::s_living - _others; }

  const int _others = Widget::s_living;
  ZELHandle<Widget> _root = ZELHandle<Widget>::Adopt(new Widget);
  ZELHandle<Widget> _parent = ZELHandle<Widget>::Adopt(new Widget(_root));
  const ZELHandle<Widget> _leaf = ZELHandle<Widget>::Adopt(new Widget(_parent));
};

std::vector<const ZELBaseUnknown*> NodesOf(const ZELSYPEventPath& i_path)
{
  std::vector<const ZELBaseUnknown*> nodes;
  for (int index = 0; index < i_path.GetElementCount(); ++index)
    nodes.push_back(i_path.GetElement(index)->GetNode());
  return nodes;
}

void ZELSYPEventPathBuilderTest::ExpectWholeRoute(ZELSYPEventPathBuilder& io_builder, ZELSYPEventArgs& io_args)
{
  ListenEverywhere();
  io_args.SetOrigin(_leaf);
  std::unique_ptr<ZELSYPEventPath> pPath(io_builder.BuildPath(&io_args));
  ASSERT_NE(nullptr, pPath);
  EXPECT_THAT(NodesOf(*pPath), ElementsAre(_leaf.Get(), _parent.Get(), _root.Get()));
  EXPECT_THAT(CountReferencesOfNodes(), ElementsAre(3, 2, 2));
  pPath->Dispatch(&io_args);
  EXPECT_THAT(_log, ElementsAre("leaf", "parent", "root"));
  pPath = nullptr;
  EXPECT_THAT(CountReferencesOfNodes(), ElementsAre(2, 1, 1));
}
} // namespace

TEST_F(ZELSYPEventPathBuilderTest, OriginToRootRunsFromTheOriginUp)
{
  ListenEverywhere();
  EXPECT_EQ(1, Raise(*_leaf));
  EXPECT_THAT(_log, ElementsAre("leaf", "parent", "root"));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventPathBuilderTest, RootToOriginRunsFromTheRootDown)
{
  _pEvent = _pDown;
  ListenEverywhere();
  EXPECT_EQ(1, Raise(*_leaf));
  EXPECT_THAT(_log, ElementsAre("root", "parent", "leaf"));
}

TEST_F(ZELSYPEventPathBuilderTest, NoPropagationRunsAtTheOriginOnlyAlthoughThereIsAParent)
{
  _pEvent = _pHere;
  ListenEverywhere();
  EXPECT_EQ(1, Raise(*_leaf));
  EXPECT_THAT(_log, ElementsAre("leaf"));
}

TEST_F(ZELSYPEventPathBuilderTest, RouteBeginsAtTheOriginNotAtTheLeaf)
{
  ListenEverywhere();
  EXPECT_EQ(1, Raise(*_parent));
  EXPECT_THAT(_log, ElementsAre("parent", "root"));
}

TEST_F(ZELSYPEventPathBuilderTest, EventsDoNotMix)
{
  ListenEverywhere();
  _pEvent = _pDown;
  Listen(*_leaf, "down");
  EXPECT_EQ(1, Raise(*_leaf));
  EXPECT_THAT(_log, ElementsAre("down"));
}

TEST_F(ZELSYPEventPathBuilderTest, NobodyListensAndTheDispatchSucceeds)
{
  EXPECT_EQ(1, Raise(*_leaf));
  EXPECT_THAT(_log, IsEmpty());
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventPathBuilderTest, HandlerIsGivenItsNodeAndTheArguments)
{
  ZELSYPEventArgs args(_pEvent);
  ZELSYPEventArgs* pSeen = nullptr;
  LoggingHandler* const pHandler = Listen(*_root, "root", [&](ZELBaseUnknown*, ZELSYPEventArgs* i_pArgs) { pSeen = i_pArgs; });
  EXPECT_EQ(1, WidgetBuilder().Dispatch(_leaf, &args));
  EXPECT_THAT(pHandler->_nodes, ElementsAre(_root.Get()));
  EXPECT_EQ(&args, pSeen);
  EXPECT_EQ(_leaf.Get(), args.GetOrigin());
}

TEST_F(ZELSYPEventPathBuilderTest, AtANodeClassHandlersRunFirstMostDerivedClassFirst)
{
  Listen(*_leaf, "leaf 1");
  Listen(ZELBaseUnknown::MetaObject(), "any object");
  Listen(Widget::MetaObject(), "widget");
  Listen(Button::MetaObject(), "button");
  Listen(Panel::MetaObject(), "panel");
  Listen(*_leaf, "leaf 2");
  _pEvent = _pHere;
  Listen(Button::MetaObject(), "of another event");
  _pEvent = _pUp;
  EXPECT_EQ(1, Raise(*_leaf));
  EXPECT_THAT(_log, ElementsAre("button", "panel", "widget", "any object", "leaf 1", "leaf 2", // at the leaf
                                "panel", "widget", "any object",                               // at the parent
                                "widget", "any object"));                                      // at the root
}

TEST_F(ZELSYPEventPathBuilderTest, ClassHandlersAreGivenEachNodeInTurn)
{
  _pEvent = _pDown;
  LoggingHandler* const pHandler = Listen(Widget::MetaObject(), "widget");
  EXPECT_EQ(1, Raise(*_leaf));
  EXPECT_THAT(pHandler->_nodes, ElementsAre(_root.Get(), _parent.Get(), _leaf.Get()));
}

TEST_F(ZELSYPEventPathBuilderTest, ClassHandlersGoWithTheClassOfTheNodeWhereverItStands)
{
  const auto outer = ZELHandle<Button>::Adopt(new Button);
  const auto middle = ZELHandle<Button>::Adopt(new Button(outer));
  const auto inner = ZELHandle<Widget>::Adopt(new Widget(middle));
  Listen(Button::MetaObject(), "button");
  Listen(*inner, "inner");
  EXPECT_EQ(1, Raise(*inner));
  EXPECT_THAT(_log, ElementsAre("inner", "button", "button"));
}

TEST_F(ZELSYPEventPathBuilderTest, ConsumedArgumentsReachOnlyThoseWhoHandleConsumedEvents)
{
  const auto consume = [](ZELBaseUnknown*, ZELSYPEventArgs* i_pArgs) { i_pArgs->Consume(); };
  Listen(*_leaf, "first", consume);
  Listen(*_leaf, "not any more");
  Listen(*_leaf, "all the same", nullptr, 1);
  Listen(Panel::MetaObject(), "at the leaf, as its class says");
  Listen(*_parent, "no");
  Listen(*_root, "the root, too", nullptr, -1);
  EXPECT_EQ(1, Raise(*_leaf));
  EXPECT_THAT(_log, ElementsAre("at the leaf, as its class says", "first", "all the same", "the root, too"));
}

TEST_F(ZELSYPEventPathBuilderTest, ArgumentsConsumedBeforehandReachOnlyThoseWhoHandleConsumedEvents)
{
  ZELSYPEventArgs args(_pEvent);
  args.Consume();
  Listen(*_leaf, "no");
  Listen(*_parent, "yes", nullptr, 1);
  EXPECT_EQ(1, WidgetBuilder().Dispatch(_leaf, &args));
  EXPECT_THAT(_log, ElementsAre("yes"));
}

TEST_F(ZELSYPEventPathBuilderTest, HandlerThatRemovesItselfAndTheNextOneChangesTheNextDispatchOnly)
{
  LoggingHandler* pNext = nullptr;
  LoggingHandler* pSelf = nullptr;
  pSelf = Listen(*_leaf, "self",
                 [&](ZELBaseUnknown*, ZELSYPEventArgs*)
                 {
                   EXPECT_EQ(1, _leaf->_handlers.RemoveHandler(_pUp, pSelf));
                   EXPECT_EQ(1, _leaf->_handlers.RemoveHandler(_pUp, pNext));
                 });
  pNext = Listen(*_leaf, "next");
  Listen(*_leaf, "last");
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("self", "next", "last"));
  _log.clear();
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("last"));
}

TEST_F(ZELSYPEventPathBuilderTest, RemovedHandlerThatNobodyElseHoldsStillRunsInTheCurrentDispatch)
{
  Listen(*_leaf, "first",
         [&](ZELBaseUnknown*, ZELSYPEventArgs*)
         {
           EXPECT_EQ(1, _root->_handlers.RemoveHandler(_pUp, _kept.back()));
           _kept.pop_back();
         });
  Listen(*_root, "removed");
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("first", "removed"));
  EXPECT_EQ(1, CountedHandler::s_living);
}

TEST_F(ZELSYPEventPathBuilderTest, HandlerAddedDuringADispatchRunsFromTheNextOneOn)
{
  Listen(*_leaf, "adds",
         [&](ZELBaseUnknown*, ZELSYPEventArgs*)
         {
           Listen(*_leaf, "here");
           Listen(*_root, "later on the route");
           Listen(Widget::MetaObject(), "class");
         });
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("adds"));
  _log.clear();
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("class", "adds", "here", "class", "class", "later on the route"));
}

TEST_F(ZELSYPEventPathBuilderTest, NestedDispatchSeesTheStoresAsTheyAreAndTheOuterOneItsSnapshot)
{
  bool nested = false;
  Listen(*_leaf, "outer",
         [&](ZELBaseUnknown*, ZELSYPEventArgs*)
         {
           if (nested)
             return;
           nested = true;
           Listen(*_leaf, "added");
           Raise(*_leaf);
           _log.push_back("end of nested");
         });
  Listen(*_root, "root");
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("outer", "outer", "added", "root", "end of nested", "root"));
}

TEST_F(ZELSYPEventPathBuilderTest, StoreThatIsReplacedDuringADispatchChangesTheNextDispatchOnly)
{
  ZELSYPEventHandlersSupport other;
  other.AddHandler(_pUp, Keep("other"), 0);
  Listen(*_leaf, "leaf",
         [&](ZELBaseUnknown*, ZELSYPEventArgs*)
         {
           _leaf->_handlers.ReplaceHandlers(other);
           _root->_handlers.ReplaceHandlers(other);
         });
  Listen(*_root, "root");
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("leaf", "root"));
  _log.clear();
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("other", "other"));
}

TEST_F(ZELSYPEventPathBuilderTest, ParentThatChangesDuringADispatchLeavesTheRouteAsItIs)
{
  Listen(*_leaf, "leaf", [&](ZELBaseUnknown*, ZELSYPEventArgs*) { _leaf->_pParent = nullptr; });
  Listen(*_root, "root");
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("leaf", "root"));
}

TEST_F(ZELSYPEventPathBuilderTest, NodesThatHandlersLetGoLiveUntilTheDispatchEnds)
{
  auto root = ZELHandle<Widget>::Adopt(new Widget);
  auto leaf = ZELHandle<Widget>::Adopt(new Widget(root));
  const int others = Widget::s_living - 2;
  Listen(*leaf, "leaf", [&](ZELBaseUnknown*, ZELSYPEventArgs*) { root = nullptr; });
  Listen(*root, "root",
         [&](ZELBaseUnknown* i_pNode, ZELSYPEventArgs*)
         {
           EXPECT_STREQ("Widget", i_pNode->IsA());
           EXPECT_EQ(others + 2, Widget::s_living);
         });
  Raise(*leaf);
  EXPECT_THAT(_log, ElementsAre("leaf", "root"));
  EXPECT_EQ(others + 1, Widget::s_living);
}

TEST_F(ZELSYPEventPathBuilderTest, HandlerThatMustBeRemovedIsDroppedWhileTheRouteIsBuilt)
{
  Listen(*_leaf, "leaf");
  Listen(*_root, "gone")->_mustBeRemoved = 1;
  Listen(Button::MetaObject(), "gone, too")->_mustBeRemoved = 1;
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("leaf"));
  for (const auto& handler : _kept)
    handler->_mustBeRemoved = 0;
  _log.clear();
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("leaf"));
}

TEST_F(ZELSYPEventPathBuilderTest, HandlerThatBecomesUselessDuringADispatchStillRunsInIt)
{
  LoggingHandler* pLater = nullptr;
  Listen(*_leaf, "leaf", [&](ZELBaseUnknown*, ZELSYPEventArgs*) { pLater->_mustBeRemoved = 1; });
  pLater = Listen(*_root, "root");
  Raise(*_leaf);
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("leaf", "root", "leaf"));
}

TEST_F(ZELSYPEventPathBuilderTest, HandlerThatThrowsEndsTheDispatchAndNothingIsKept)
{
  Listen(*_leaf, "leaf");
  Listen(*_parent, "throws", [](ZELBaseUnknown*, ZELSYPEventArgs*) { throw std::runtime_error("no"); });
  LoggingHandler* const pRoot = Listen(*_root, "root");
  const int references = CountReferences(_root), held = CountReferences(pRoot), raised = CountReferences(_pUp);
  EXPECT_THROW(Raise(*_leaf), std::runtime_error);
  EXPECT_THAT(_log, ElementsAre("leaf", "throws"));
  EXPECT_EQ(references, CountReferences(_root));
  EXPECT_EQ(held, CountReferences(pRoot));
  EXPECT_EQ(raised, CountReferences(_pUp));
  EXPECT_EQ(1, CountReferences(_leaf));
  EXPECT_EQ(1, _parent->_handlers.RemoveHandler(_pUp, _kept[1]));
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("leaf", "throws", "leaf", "root"));
}

TEST_F(ZELSYPEventPathBuilderTest, DispatchGivesBackEveryReference)
{
  LoggingHandler* const pHandler = Listen(*_leaf, "leaf");
  Listen(Panel::MetaObject(), "panel");
  const int held = CountReferences(pHandler), raised = CountReferences(_pUp);
  Raise(*_leaf);
  EXPECT_EQ(1, CountReferences(_leaf));
  EXPECT_EQ(1, CountReferences(_parent));
  EXPECT_EQ(1, CountReferences(_root));
  EXPECT_EQ(held, CountReferences(pHandler));
  EXPECT_EQ(raised, CountReferences(_pUp));
}

TEST_F(ZELSYPEventPathBuilderTest, PathShowsItsStopsTheirNodesAndTheirLists)
{
  LoggingHandler* const pPanel = Listen(Panel::MetaObject(), "panel");
  LoggingHandler* const pLeaf = Listen(*_leaf, "leaf");
  ZELSYPEventArgs args(_pEvent);
  args.SetOrigin(_leaf);
  const std::unique_ptr<ZELSYPEventPath> pPath(WidgetBuilder(&_classHandlers).BuildPath(&args));
  ASSERT_NE(nullptr, pPath);
  EXPECT_THAT(NodesOf(*pPath), ElementsAre(_leaf.Get(), _parent.Get()));
  const ZELSYPEventPathElt& atLeaf = *pPath->GetElement(0);
  ASSERT_EQ(2, atLeaf.GetListCount());
  EXPECT_EQ(pPanel, atLeaf.GetList(0).Get(0)->GetHandler());
  EXPECT_EQ(pLeaf, atLeaf.GetList(1).Get(0)->GetHandler());
  EXPECT_EQ(1, pPath->GetElement(1)->GetListCount());
  EXPECT_THAT(_log, IsEmpty());
}

TEST_F(ZELSYPEventPathBuilderTest, PathOfANodeWithoutHandlersHasNoStopAndDoesNothing)
{
  ZELSYPEventArgs args(_pEvent);
  args.SetOrigin(_leaf);
  const std::unique_ptr<ZELSYPEventPath> pPath(WidgetBuilder().BuildPath(&args));
  ASSERT_NE(nullptr, pPath);
  EXPECT_EQ(0, pPath->GetElementCount());
  pPath->Dispatch(&args);
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventPathBuilderTest, BuiltPathHoldsWhatItNeedsUntilItIsDeleted)
{
  Listen(*_leaf, "leaf");
  ZELSYPEventArgs args(_pEvent);
  args.SetOrigin(_leaf);
  std::unique_ptr<ZELSYPEventPath> pPath(WidgetBuilder().BuildPath(&args));
  EXPECT_EQ(3, CountReferences(_leaf));
  EXPECT_EQ(1, CountReferences(_parent));
  EXPECT_EQ(1, _leaf->_handlers.RemoveHandler(_pUp, _kept.back()));
  _kept.clear();
  pPath->Dispatch(&args);
  pPath->Dispatch(&args);
  EXPECT_THAT(_log, ElementsAre("leaf", "leaf"));
  pPath = nullptr;
  EXPECT_EQ(2, CountReferences(_leaf));
  EXPECT_EQ(0, CountedHandler::s_living);
}

TEST_F(ZELSYPEventPathBuilderTest, OneAfterTheOtherTheNodesAreAskedForTheirParentsThenForTheirStops)
{
  ScriptedBuilder builder;
  builder._getParent = [&](ZELBaseUnknown* i_pNode)
  {
    _log.push_back(std::string("parent of ") + i_pNode->IsA());
    return static_cast<Widget*>(i_pNode)->_pParent;
  };
  builder._buildElement = [&](ZELBaseUnknown* i_pNode)
  {
    _log.push_back(std::string("stop at ") + i_pNode->IsA());
    return ScriptedBuilder::NO_ELEMENT();
  };
  ZELSYPEventArgs down(_pDown);
  EXPECT_EQ(1, builder.Dispatch(_leaf, &down));
  EXPECT_THAT(_log,
              ElementsAre("parent of Button", "parent of Panel", "parent of Widget", "stop at Widget", "stop at Panel", "stop at Button"));
  _log.clear();
  ZELSYPEventArgs here(_pHere);
  EXPECT_EQ(1, builder.Dispatch(_leaf, &here));
  EXPECT_THAT(_log, ElementsAre("stop at Button"));
}

TEST_F(ZELSYPEventPathBuilderTest, LongChainsAreWalkedToTheirEnd)
{
  std::vector<ZELHandle<Widget>> chain{_root};
  while (chain.size() < 5000)
    chain.push_back(ZELHandle<Widget>::Adopt(new Widget(chain.back())));
  LoggingHandler* const pHandler = Listen(Widget::MetaObject(), "widget");
  EXPECT_EQ(1, Raise(*chain.back()));
  EXPECT_EQ(5000u, pHandler->_nodes.size());
  EXPECT_EQ(chain.back().Get(), pHandler->_nodes.front());
  EXPECT_EQ(_root.Get(), pHandler->_nodes.back());
}

TEST_F(ZELSYPEventPathBuilderTest, DispatchWithoutOriginOrArgumentsIsRefused)
{
  ZELSYPEventArgs args(_pEvent);
  EXPECT_EQ(0, ScriptedBuilder().Dispatch(nullptr, &args));
  EXPECT_EQ(0, ScriptedBuilder().Dispatch(_leaf, nullptr));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pOrigin is NULL", "pointer i_pArgs is NULL"));
  EXPECT_EQ("ZELSYPEventPathBuilder.cpp", _failures.GetFailures()[0].file);
  EXPECT_EQ(nullptr, args.GetOrigin());
}

TEST_F(ZELSYPEventPathBuilderTest, OfOriginAndArgumentsThatAreNullTheOriginIsReported)
{
  EXPECT_EQ(0, ScriptedBuilder().Dispatch(nullptr, nullptr));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pOrigin is NULL"));
}

TEST_F(ZELSYPEventPathBuilderTest, OriginStaysSetOnArgumentsThatAreRefusedAfterwards)
{
  const auto event = NewDoorEvent();
  ZELSYPEventArgs args(event);
  EXPECT_EQ(0, WidgetBuilder().Dispatch(_leaf, &args));
  EXPECT_EQ(_leaf.Get(), args.GetOrigin());
}

TEST_F(ZELSYPEventPathBuilderTest, OfAnotherOriginAndAWrongClassOfTheArgumentsTheOriginAloneIsReported)
{
  const auto event = NewDoorEvent();
  ZELSYPEventArgs args(event);
  args.SetOrigin(_parent);
  EXPECT_EQ(0, WidgetBuilder().Dispatch(_leaf, &args));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean i_pOrigin->IsEqual(i_pArgs->GetOrigin()) is FALSE"));
}

TEST_F(ZELSYPEventPathBuilderTest, ArgumentsOfAnotherOriginAreRefusedAndNothingRuns)
{
  ListenEverywhere();
  ZELSYPEventArgs args(_pEvent);
  args.SetOrigin(_parent);
  EXPECT_EQ(0, WidgetBuilder().Dispatch(_leaf, &args));
  EXPECT_THAT(_log, IsEmpty());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean i_pOrigin->IsEqual(i_pArgs->GetOrigin()) is FALSE"));
  EXPECT_EQ("The origin of the event is incorrect", _failures.GetFailures()[0].details);
}

TEST_F(ZELSYPEventPathBuilderTest, ArgumentsOfTheSameOriginAreTakenAgain)
{
  ListenEverywhere();
  ZELSYPEventArgs args(_pEvent);
  EXPECT_EQ(1, WidgetBuilder().Dispatch(_parent, &args));
  EXPECT_EQ(1, WidgetBuilder().Dispatch(_parent, &args));
  EXPECT_THAT(_log, ElementsAre("parent", "root", "parent", "root"));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventPathBuilderTest, RouteOfArgumentsWithoutOriginIsRefused)
{
  ZELSYPEventArgs args(_pEvent);
  EXPECT_EQ(nullptr, ScriptedBuilder().BuildPath(nullptr));
  EXPECT_EQ(nullptr, ScriptedBuilder().BuildPath(&args));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pArgs is NULL", "boolean i_pArgs->GetOrigin() is FALSE"));
  EXPECT_EQ("Can't dispatch, Origin has not been set on the event arguments", _failures.GetFailures()[1].details);
}

TEST_F(ZELSYPEventPathBuilderTest, ArgumentsOfABaseClassAreRefused)
{
  const auto event = NewDoorEvent();
  ZELSYPEventArgs args(event);
  EXPECT_EQ(0, WidgetBuilder().Dispatch(_leaf, &args));
  EXPECT_THAT(_failures.GetMessages(),
              ElementsAre("The event expects argument of type DoorArgs but the dispatch arguments are of type ZELSYPEventArgs",
                          "pointer pPath is NULL"));
}

TEST_F(ZELSYPEventPathBuilderTest, NoParentIsAskedForWithArgumentsOfAWrongClass)
{
  const auto event = NewDoorEvent();
  ZELSYPEventArgs args(event);
  ScriptedBuilder builder;
  EXPECT_EQ(0, builder.Dispatch(_leaf, &args));
  EXPECT_THAT(builder._askedForParents, IsEmpty());
}

TEST_F(ZELSYPEventPathBuilderTest, OfAWrongClassAndAnUnknownPropagationTheClassAloneIsReported)
{
  const auto event = NewDoorEvent(static_cast<ZELSYPEvent::Propagation>(3));
  ZELSYPEventArgs args(event);
  args.SetOrigin(_leaf);
  EXPECT_EQ(nullptr, WidgetBuilder().BuildPath(&args));
  EXPECT_THAT(_failures.GetMessages(),
              ElementsAre("The event expects argument of type DoorArgs but the dispatch arguments are of type ZELSYPEventArgs"));
}

TEST_F(ZELSYPEventPathBuilderTest, ArgumentsOfADerivedClassAreTaken)
{
  ListenEverywhere();
  DoorArgs args(_pEvent);
  EXPECT_EQ(1, WidgetBuilder().Dispatch(_leaf, &args));
  EXPECT_THAT(_log, ElementsAre("leaf", "parent", "root"));
}

TEST_F(ZELSYPEventPathBuilderTest, ArgumentsWithoutEventAreRefused)
{
  ZELSYPEventArgs args(nullptr);
  _failures.Clear();
  EXPECT_EQ(0, WidgetBuilder().Dispatch(_leaf, &args));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pEvent is NULL", "pointer pPath is NULL"));
}

TEST_F(ZELSYPEventPathBuilderTest, EventWithoutArgumentTypeAndArgumentsWithoutClassAreRefused)
{
  const auto event = ZELHandle<ZELSYPEvent>::Adopt(OpenFactory::MakeEvent("E", ZELSYPEvent::OriginToRoot, nullptr, Widget::MetaObject()));
  ZELSYPEventArgs args(event);
  ClasslessArgs classless(_pEvent);
  _failures.Clear();
  EXPECT_EQ(0, WidgetBuilder().Dispatch(_leaf, &args));
  EXPECT_EQ(0, WidgetBuilder().Dispatch(_leaf, &classless));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pEventArgumentType is NULL", "pointer pPath is NULL",
                                                   "pointer pArgsType is NULL", "pointer pPath is NULL"));
}

TEST_F(ZELSYPEventPathBuilderTest, OfEventAndArgumentsWithoutClassTheEventIsReported)
{
  const auto event = ZELHandle<ZELSYPEvent>::Adopt(OpenFactory::MakeEvent("E", ZELSYPEvent::OriginToRoot, nullptr, Widget::MetaObject()));
  ClasslessArgs args(event);
  args.SetOrigin(_leaf);
  _failures.Clear();
  EXPECT_EQ(nullptr, WidgetBuilder().BuildPath(&args));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pEventArgumentType is NULL"));
}

TEST_F(ZELSYPEventPathBuilderTest, UnknownPropagationIsRefused)
{
  const auto event = ZELHandle<ZELSYPEvent>::Adopt(
      OpenFactory::MakeEvent("E", static_cast<ZELSYPEvent::Propagation>(3), ZELSYPEventArgs::MetaObject(), Widget::MetaObject()));
  ZELSYPEventArgs args(event);
  EXPECT_EQ(0, WidgetBuilder().Dispatch(_leaf, &args));
  EXPECT_THAT(_failures.GetMessages(),
              ElementsAre("Unknown propagation mode", "boolean FillListOfNodes(nodes, i_pArgs) is FALSE", "pointer pPath is NULL"));
  EXPECT_EQ("<invalid>", _failures.GetFailures()[0].details);
}

TEST_F(ZELSYPEventPathBuilderTest, NodeThatGetsNoStopEndsTheRouteAndNothingRuns)
{
  ListenEverywhere();
  ScriptedBuilder builder;
  builder._getParent = [](ZELBaseUnknown* i_pNode) { return static_cast<Widget*>(i_pNode)->_pParent; };
  builder._buildElement = [&](ZELBaseUnknown* i_pNode) -> ZELSYPEventPathElt*
  {
    if (i_pNode == _parent.Get())
      return nullptr;
    auto* const pElt = new ZELSYPEventPathElt(i_pNode);
    pElt->AddList(static_cast<Widget*>(i_pNode)->_handlers.GetHandlersList(_pUp));
    return pElt;
  };
  ZELSYPEventArgs args(_pUp);
  EXPECT_EQ(0, builder.Dispatch(_leaf, &args));
  EXPECT_THAT(_log, IsEmpty());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pElt is NULL", "pointer pPath is NULL"));
  EXPECT_EQ("Implementation of BuildElement returned NULL", _failures.GetFailures()[0].details);
  EXPECT_EQ(std::nullopt, _failures.GetFailures()[1].details);
  EXPECT_THAT(CountReferencesOfNodes(), ElementsAre(2, 1, 1));
}

TEST_F(ZELSYPEventPathBuilderTest, StopsBeforeOneThatIsMissingGiveBackWhatTheyHold)
{
  LoggingHandler* const pHandler = Listen(*_leaf, "leaf");
  const int held = CountReferences(pHandler);
  ScriptedBuilder builder;
  builder._getParent = ParentOf;
  builder._buildElement = [&](ZELBaseUnknown* i_pNode) -> ZELSYPEventPathElt*
  {
    if (i_pNode == _root.Get())
      return nullptr;
    auto* const pElt = new ZELSYPEventPathElt(i_pNode);
    pElt->AddList(static_cast<Widget*>(i_pNode)->_handlers.GetHandlersList(_pUp));
    return pElt;
  };
  ZELSYPEventArgs args(_pUp);
  args.SetOrigin(_leaf);
  EXPECT_EQ(nullptr, builder.BuildPath(&args));
  EXPECT_THAT(CountReferencesOfNodes(), ElementsAre(2, 1, 1));
  _leaf->_handlers.RemoveHandler(_pUp, pHandler);
  EXPECT_EQ(held - 1, CountReferences(pHandler));
}

TEST_F(ZELSYPEventPathBuilderTest, NoStopIsAskedForAfterOneThatIsMissing)
{
  std::vector<ZELBaseUnknown*> asked;
  ScriptedBuilder builder;
  builder._getParent = ParentOf;
  builder._buildElement = [&](ZELBaseUnknown* i_pNode)
  {
    asked.push_back(i_pNode);
    return i_pNode == _parent.Get() ? nullptr : ScriptedBuilder::NO_ELEMENT();
  };
  ZELSYPEventArgs args(_pUp);
  EXPECT_EQ(0, builder.Dispatch(_leaf, &args));
  EXPECT_THAT(asked, ElementsAre(_leaf.Get(), _parent.Get()));
}

TEST_F(ZELSYPEventPathBuilderTest, StopForNothingIsOneObjectWithoutListsForEver)
{
  ZELSYPEventPathElt* const pNothing = ScriptedBuilder::NO_ELEMENT();
  EXPECT_EQ(pNothing, ScriptedBuilder::NO_ELEMENT());
  EXPECT_EQ(pNothing, WidgetBuilder::NO_ELEMENT());
  EXPECT_EQ(0, pNothing->GetListCount());
  EXPECT_STREQ("ZELBaseUnknown", pNothing->GetNode()->IsA());
  Raise(*_leaf);
  EXPECT_EQ(1, CountReferences(pNothing->GetNode()));
}

TEST_F(ZELSYPEventPathBuilderTest, ListOfNodesThatIsNotEmptyIsRefused)
{
  Nodes nodes;
  nodes.Append(ZELBaseUnknown_var(_leaf));
  ZELSYPEventArgs args(_pEvent);
  args.SetOrigin(_leaf);
  WidgetBuilder builder;
  EXPECT_EQ(0, (builder.*Get(FillListOfNodes()))(nodes, &args));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean io_list.GetLength() == 0 is FALSE"));
}

TEST_F(ZELSYPEventPathBuilderTest, ListOfNodesNeedsArgumentsWithOriginAndEvent)
{
  Nodes nodes;
  ZELSYPEventArgs withoutOrigin(_pEvent), withoutEvent(nullptr);
  withoutEvent.SetOrigin(_leaf);
  _failures.Clear();
  WidgetBuilder builder;
  EXPECT_EQ(0, (builder.*Get(FillListOfNodes()))(nodes, nullptr));
  EXPECT_EQ(0, (builder.*Get(FillListOfNodes()))(nodes, &withoutOrigin));
  EXPECT_EQ(0, (builder.*Get(FillListOfNodes()))(nodes, &withoutEvent));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pArgs is NULL", "handler spOrigin is NULL_var", "pointer pEvent is NULL"));
  EXPECT_EQ(0, nodes.GetLength());
}

TEST_F(ZELSYPEventPathBuilderTest, ListOfNodesIsInTheOrderOfTheWalk)
{
  ZELSYPEventArgs up(_pUp), down(_pDown), here(_pHere);
  WidgetBuilder builder;
  std::vector<std::vector<const ZELBaseUnknown*>> walks;
  for (ZELSYPEventArgs* const pArgs : {&up, &down, &here})
  {
    Nodes nodes;
    pArgs->SetOrigin(_leaf);
    EXPECT_EQ(1, (builder.*Get(FillListOfNodes()))(nodes, pArgs));
    walks.emplace_back(nodes.begin(), nodes.end());
  }
  EXPECT_THAT(walks[0], ElementsAre(_leaf.Get(), _parent.Get(), _root.Get()));
  EXPECT_THAT(walks[1], ElementsAre(_root.Get(), _parent.Get(), _leaf.Get()));
  EXPECT_THAT(walks[2], ElementsAre(_leaf.Get()));
}

TEST_F(ZELSYPEventPathBuilderTest, NullNodeEndsTheRoute)
{
  Nodes nodes;
  nodes.Append(NULL_var);
  ZELSYPEventArgs args(_pEvent);
  ZELSYPEventPath path;
  WidgetBuilder builder;
  EXPECT_FALSE((builder.*Get(BuildElements()))(path, args, nodes));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("handler spNode is NULL_var"));
}

TEST_F(ZELSYPEventPathBuilderTest, ParentsAreAskedForWithTheArgumentsAndTheNodeThatTheChainHasComeTo)
{
  ScriptedBuilder builder;
  builder._getParent = ParentOf;
  ZELSYPEventArgs up(_pUp), down(_pDown);
  EXPECT_EQ(1, builder.Dispatch(_leaf, &up));
  EXPECT_THAT(builder._askedForParents, ElementsAre(Pair(&up, _leaf.Get()), Pair(&up, _parent.Get()), Pair(&up, _root.Get())));
  builder._askedForParents.clear();
  EXPECT_EQ(1, builder.Dispatch(_parent, &down));
  EXPECT_THAT(builder._askedForParents, ElementsAre(Pair(&down, _parent.Get()), Pair(&down, _root.Get())));
}

TEST_F(ZELSYPEventPathBuilderTest, ExtensionOfTheArgumentsOriginIsTakenForTheOrigin)
{
  ListenEverywhere();
  ZELBaseUnknown* const pStand = ZELAttachExtension<Stand>(_leaf.Get());
  ASSERT_NE(pStand, _leaf.Get());
  ZELSYPEventArgs args(_pEvent);
  args.SetOrigin(_leaf);
  EXPECT_EQ(1, WidgetBuilder().Dispatch(pStand, &args));
  EXPECT_THAT(_log, ElementsAre("leaf", "parent", "root"));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventPathBuilderTest, OriginIsTakenForItsExtensionAndTheRouteBeginsWhereTheArgumentsSay)
{
  ZELBaseUnknown* const pStand = ZELAttachExtension<Stand>(_leaf.Get());
  ZELSYPEventArgs args(_pEvent);
  args.SetOrigin(pStand);
  ScriptedBuilder builder;
  EXPECT_EQ(1, builder.Dispatch(_leaf, &args));
  EXPECT_THAT(builder._askedForParents, ElementsAre(Pair(&args, pStand)));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPEventPathBuilderTest, ExtensionOfAnotherObjectIsRefused)
{
  ListenEverywhere();
  ZELSYPEventArgs args(_pEvent);
  args.SetOrigin(_leaf);
  EXPECT_EQ(0, WidgetBuilder().Dispatch(ZELAttachExtension<Stand>(_parent.Get()), &args));
  EXPECT_THAT(_log, IsEmpty());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean i_pOrigin->IsEqual(i_pArgs->GetOrigin()) is FALSE"));
}

TEST_F(ZELSYPEventPathBuilderTest, NodesThatAreGivenUpWhenTheirParentsAreAskedForLiveUntilTheRouteIsBuilt)
{
  GivenUpChain chain;
  ScriptedBuilder builder;
  builder._getParent = [&](ZELBaseUnknown* i_pNode)
  {
    chain.GiveUp(i_pNode);
    return ParentOf(i_pNode);
  };
  std::vector<int> living;
  builder._buildElement = [&](ZELBaseUnknown*)
  {
    living.push_back(chain.CountLiving());
    return ScriptedBuilder::NO_ELEMENT();
  };
  ZELSYPEventArgs args(_pUp);
  EXPECT_EQ(1, builder.Dispatch(chain._leaf, &args));
  EXPECT_THAT(living, ElementsAre(3, 3, 3));
  EXPECT_EQ(1, chain.CountLiving());
}

TEST_F(ZELSYPEventPathBuilderTest, NodesThatAreGivenUpWhenTheirStopsAreBuiltLiveUntilTheRouteIsBuilt)
{
  GivenUpChain chain;
  ScriptedBuilder builder;
  builder._getParent = ParentOf;
  std::vector<int> living;
  builder._buildElement = [&](ZELBaseUnknown* i_pNode)
  {
    chain.GiveUp(i_pNode);
    living.push_back(chain.CountLiving());
    return ScriptedBuilder::NO_ELEMENT();
  };
  ZELSYPEventArgs args(_pUp);
  EXPECT_EQ(1, builder.Dispatch(chain._leaf, &args));
  EXPECT_THAT(living, ElementsAre(3, 3, 3));
  EXPECT_EQ(1, chain.CountLiving());
}

TEST_F(ZELSYPEventPathBuilderTest, NodesThatAreGivenUpWhenTheirStoresAreAskedForLiveUntilTheRouteIsBuilt)
{
  for (const bool isHeard : {false, true})
  {
    GivenUpChain chain;
    if (isHeard)
      Listen(*chain._parent, "parent", [&](ZELBaseUnknown*, ZELSYPEventArgs*) { EXPECT_LE(2, chain.CountLiving()); });
    std::vector<int> living;
    StoreWatchingBuilder builder(
        [&](ZELBaseUnknown* i_pNode)
        {
          chain.GiveUp(i_pNode);
          living.push_back(chain.CountLiving());
        });
    ZELSYPEventArgs args(_pUp);
    EXPECT_EQ(1, builder.Dispatch(chain._leaf, &args));
    EXPECT_THAT(living, ElementsAre(3, 3, 3));
    EXPECT_EQ(1, chain.CountLiving());
  }
  EXPECT_THAT(_log, ElementsAre("parent"));
}

TEST_F(ZELSYPEventPathBuilderTest, NodesWhoseStopsAreThrownAwayLiveUntilTheRouteIsBuilt)
{
  GivenUpChain chain;
  for (Widget* const pWidget : {chain._leaf.Get(), chain._parent.Get(), chain._root.Get()})
    Listen(*pWidget, "never");
  std::vector<int> living;
  PickyBuilder builder(
      [&](ZELBaseUnknown* i_pNode)
      {
        chain.GiveUp(i_pNode);
        living.push_back(chain.CountLiving());
      });
  ZELSYPEventArgs args(_pUp);
  EXPECT_EQ(1, builder.Dispatch(chain._leaf, &args));
  EXPECT_THAT(living, ElementsAre(3, 3, 3));
  EXPECT_EQ(1, chain.CountLiving());
  EXPECT_THAT(_log, IsEmpty());
}

TEST_F(ZELSYPEventPathBuilderTest, MemoryOfStopsThatAreThrownAwayIsLeftAlone)
{
  ListenEverywhere();
  FrugalBuilder builder;
  ZELSYPEventArgs args(_pUp);
  EXPECT_EQ(1, builder.Dispatch(_leaf, &args));
  ASSERT_EQ(3u, builder._used.size());
  for (const auto& pMemory : builder._used)
    EXPECT_THAT(*pMemory, Each(0xff));
}

TEST_F(ZELSYPEventPathBuilderTest, StopsThatAreKeptHoldTheirNodesWhateverBecomesOfTheRoute)
{
  GivenUpChain chain;
  for (Widget* const pWidget : {chain._leaf.Get(), chain._parent.Get(), chain._root.Get()})
    Listen(*pWidget, "never");
  HoardingBuilder builder;
  ZELSYPEventArgs args(_pUp);
  EXPECT_THROW(builder.Dispatch(chain._leaf, &args), std::runtime_error);
  for (ZELHandle<Widget>* const pHeld : {&chain._parent, &chain._root})
    *pHeld = nullptr;
  EXPECT_EQ(3, chain.CountLiving());
  ASSERT_EQ(6u, builder._hoard.size());
  EXPECT_EQ(chain._leaf.Get(), builder._hoard[1]->GetNode());
  builder._hoard.clear();
  EXPECT_EQ(1, chain.CountLiving());
}

TEST_F(ZELSYPEventPathBuilderTest, RouteThatIsBuiltWithTheSameArgumentsWhileAStopIsBuiltLeavesTheOuterOneWhole)
{
  ZELSYPEventArgs args(_pUp);
  DetouringBuilder builder;
  ExpectWholeRoute(builder, args);
}

TEST_F(ZELSYPEventPathBuilderTest, RouteThatIsBuiltWithTheSameArgumentsWhileAStoreIsAskedForLeavesTheOuterOneWhole)
{
  ZELSYPEventArgs args(_pUp);
  StoreWatchingBuilder builder([&](ZELBaseUnknown*) { TakeDetour(&args); });
  ExpectWholeRoute(builder, args);
}

TEST_F(ZELSYPEventPathBuilderTest, RouteThatIsBuiltWhileAnotherOneIsHoldsItsNodesForItself)
{
  ListenEverywhere();
  ZELSYPEventArgs args(_pUp);
  std::vector<std::unique_ptr<ZELSYPEventPath>> inner;
  StoreWatchingBuilder builder([&](ZELBaseUnknown*) { inner.emplace_back(WidgetBuilder().BuildPath(&args)); });
  EXPECT_EQ(1, builder.Dispatch(_leaf, &args));
  ASSERT_EQ(3u, inner.size());
  for (const auto& pPath : inner)
    EXPECT_THAT(NodesOf(*pPath), ElementsAre(_leaf.Get(), _parent.Get(), _root.Get()));
  EXPECT_THAT(CountReferencesOfNodes(), ElementsAre(5, 4, 4));
}

TEST_F(ZELSYPEventPathBuilderTest, NodesThatAreGivenUpLiveUntilTheDispatchEndsAlthoughAnotherRouteIsBuiltMeanwhile)
{
  GivenUpChain chain;
  for (Widget* const pWidget : {chain._leaf.Get(), chain._parent.Get(), chain._root.Get()})
    Listen(*pWidget, "listens");
  std::vector<int> living;
  ZELSYPEventArgs args(_pUp);
  StoreWatchingBuilder builder(
      [&](ZELBaseUnknown* i_pNode)
      {
        chain.GiveUp(i_pNode);
        TakeDetour(&args);
        living.push_back(chain.CountLiving());
      });
  EXPECT_EQ(1, builder.Dispatch(chain._leaf, &args));
  EXPECT_THAT(living, ElementsAre(3, 3, 3));
  EXPECT_THAT(_log, ElementsAre("listens", "listens", "listens"));
  EXPECT_EQ(1, chain.CountLiving());
}

TEST_F(ZELSYPEventPathBuilderTest, StopThatIsAskedForAfterARouteWithTheSameArgumentsHoldsItsNode)
{
  Listen(*_leaf, "leaf");
  ZELSYPEventArgs args(_pUp);
  WidgetBuilder builder;
  EXPECT_EQ(1, builder.Dispatch(_leaf, &args));
  OverwriteOldStack();
  const std::unique_ptr<ZELSYPEventPathElt> pStop(builder.BuildElement(&args, _leaf));
  EXPECT_EQ(_leaf.Get(), pStop->GetNode());
  EXPECT_EQ(3, CountReferences(_leaf));
}

TEST_F(ZELSYPEventPathBuilderTest, StopsThatAreThrownAwayAndMadeOnceMoreLeaveTheRouteWhole)
{
  ZELSYPEventArgs args(_pUp);
  WaveringBuilder builder([](ZELBaseUnknown*) {});
  ExpectWholeRoute(builder, args);
}

TEST_F(ZELSYPEventPathBuilderTest, NodesWhoseStopsAreMadeOnceMoreLiveUntilTheDispatchEnds)
{
  GivenUpChain chain;
  for (Widget* const pWidget : {chain._leaf.Get(), chain._parent.Get(), chain._root.Get()})
    Listen(*pWidget, "listens");
  std::vector<int> living;
  WaveringBuilder builder(
      [&](ZELBaseUnknown* i_pNode)
      {
        chain.GiveUp(i_pNode);
        living.push_back(chain.CountLiving());
      });
  ZELSYPEventArgs args(_pUp);
  EXPECT_EQ(1, builder.Dispatch(chain._leaf, &args));
  EXPECT_THAT(living, ElementsAre(3, 3, 3, 3, 3, 3));
  EXPECT_THAT(_log, ElementsAre("listens", "listens", "listens"));
  EXPECT_EQ(1, chain.CountLiving());
}
