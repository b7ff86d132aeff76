#include "ZELSYPSupportsEventPathBuilder.h"

#include "RecordingFailureHandler.h"
#include "RouteWorld.h"

#include <gmock/gmock.h>

#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
// A builder for one node whose stores a test gives, and which notes what it is asked.
class OneNodeBuilder : public ZELSYPSupportsEventPathBuilder
{
public:
  using ZELSYPSupportsEventPathBuilder::BuildElement;
  using ZELSYPSupportsEventPathBuilder::NO_CLASS_SUPPORT;
  using ZELSYPSupportsEventPathBuilder::NO_ELEMENT;
  using ZELSYPSupportsEventPathBuilder::NO_SUPPORT;

  ZELSYPEventHandlersSupport* _pSupport = NO_SUPPORT();
  ZELSYPClassEventHandlersSupport* _pClassSupport = NO_CLASS_SUPPORT();
  std::vector<std::string> _asked;

private:
  ZELBaseUnknown* GetParent(ZELSYPEventArgs*, ZELBaseUnknown*) override { return nullptr; }
  ZELSYPEventHandlersSupport* GetSupportForNode(ZELBaseUnknown*) override
  {
    _asked.push_back("support");
    return _pSupport;
  }
  ZELSYPClassEventHandlersSupport* GetClassSupportForNode(ZELBaseUnknown*) override
  {
    _asked.push_back("class support");
    return _pClassSupport;
  }
};

class ZELSYPSupportsEventPathBuilderTest : public testing::Test, protected RouteWorld
{
protected:
  int Dispatch() { return _builder.Dispatch(_leaf, &_args); }

  RecordingFailureHandler _failures;
  ZELSYPEventArgs _args{_pUp};
  OneNodeBuilder _builder;
};
} // namespace

TEST_F(ZELSYPSupportsEventPathBuilderTest, NodeWithoutStoresHasNothingToRun)
{
  EXPECT_EQ(OneNodeBuilder::NO_ELEMENT(), _builder.BuildElement(&_args, _leaf));
  EXPECT_EQ(1, Dispatch());
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPSupportsEventPathBuilderTest, BothStoresAreAskedForOnceWhetherOrNotSomeoneListens)
{
  EXPECT_EQ(1, Dispatch());
  EXPECT_THAT(_builder._asked, ElementsAre("support", "class support"));
  Listen(*_root, "elsewhere");
  EXPECT_EQ(1, Dispatch());
  EXPECT_THAT(_builder._asked, ElementsAre("support", "class support", "support", "class support"));
}

TEST_F(ZELSYPSupportsEventPathBuilderTest, NodeWithoutClassStoreRunsItsOwnHandlersOnly)
{
  Listen(Button::MetaObject(), "class");
  Listen(*_leaf, "leaf");
  _builder._pSupport = &_leaf->_handlers;
  EXPECT_EQ(1, Dispatch());
  EXPECT_THAT(_log, ElementsAre("leaf"));
}

TEST_F(ZELSYPSupportsEventPathBuilderTest, NodeWithoutStoreOfItsOwnRunsItsClassHandlersOnly)
{
  Listen(Button::MetaObject(), "class");
  Listen(*_leaf, "leaf");
  _builder._pClassSupport = &_classHandlers;
  EXPECT_EQ(1, Dispatch());
  EXPECT_THAT(_log, ElementsAre("class"));
}

TEST_F(ZELSYPSupportsEventPathBuilderTest, StopHasOneListForEachClassThatHasHandlersAndOneForTheNode)
{
  Listen(Widget::MetaObject(), "widget");
  Listen(Button::MetaObject(), "button");
  Listen(*_leaf, "leaf");
  _builder._pSupport = &_leaf->_handlers;
  _builder._pClassSupport = &_classHandlers;
  const std::unique_ptr<ZELSYPEventPathElt> pStop(_builder.BuildElement(&_args, _leaf));
  EXPECT_EQ(3, pStop->GetListCount());
  EXPECT_EQ(_leaf.Get(), pStop->GetNode());
  pStop->Dispatch(&_args);
  EXPECT_THAT(_log, ElementsAre("button", "widget", "leaf"));
}

TEST_F(ZELSYPSupportsEventPathBuilderTest, ListThatIsEmptyAgainAddsNoStop)
{
  LoggingHandler* const pHandler = Listen(*_leaf, "leaf");
  _leaf->_handlers.RemoveHandler(_pUp, pHandler);
  _builder._pSupport = &_leaf->_handlers;
  EXPECT_EQ(OneNodeBuilder::NO_ELEMENT(), _builder.BuildElement(&_args, _leaf));
}

TEST_F(ZELSYPSupportsEventPathBuilderTest, StoreThatIsNullRefusesTheDispatchAfterBothWereAskedFor)
{
  _builder._pSupport = nullptr;
  EXPECT_EQ(0, Dispatch());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pSupport is NULL", "pointer pElt is NULL", "pointer pPath is NULL"));
  EXPECT_EQ("ZELSYPSupportsEventPathBuilder.cpp", _failures.GetFailures()[0].file);
  EXPECT_THAT(_builder._asked, ElementsAre("support", "class support"));
}

TEST_F(ZELSYPSupportsEventPathBuilderTest, ClassStoreThatIsNullRefusesTheDispatch)
{
  _builder._pClassSupport = nullptr;
  EXPECT_EQ(0, Dispatch());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pClassSupport is NULL", "pointer pElt is NULL", "pointer pPath is NULL"));
}

TEST_F(ZELSYPSupportsEventPathBuilderTest, OfTwoStoresThatAreNullTheNodesOwnIsReported)
{
  _builder._pSupport = nullptr;
  _builder._pClassSupport = nullptr;
  EXPECT_EQ(nullptr, _builder.BuildElement(&_args, _leaf));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pSupport is NULL"));
}

TEST_F(ZELSYPSupportsEventPathBuilderTest, OfArgumentsAndNodeThatAreNullTheArgumentsAreReported)
{
  EXPECT_EQ(nullptr, _builder.BuildElement(nullptr, nullptr));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pArgs is NULL"));
}

TEST_F(ZELSYPSupportsEventPathBuilderTest, StopOfNothingIsRefused)
{
  EXPECT_EQ(nullptr, _builder.BuildElement(nullptr, _leaf));
  EXPECT_EQ(nullptr, _builder.BuildElement(&_args, nullptr));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pArgs is NULL", "pointer i_pNode is NULL"));
  ZELSYPEventArgs args(nullptr);
  _failures.Clear();
  EXPECT_EQ(nullptr, _builder.BuildElement(&args, _leaf));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer pEvent is NULL"));
  EXPECT_THAT(_builder._asked, IsEmpty());
}

TEST_F(ZELSYPSupportsEventPathBuilderTest, StoresForNothingAreOneObjectEachForEver)
{
  EXPECT_NE(nullptr, OneNodeBuilder::NO_SUPPORT());
  EXPECT_NE(nullptr, OneNodeBuilder::NO_CLASS_SUPPORT());
  EXPECT_EQ(OneNodeBuilder::NO_SUPPORT(), WidgetBuilder::NO_SUPPORT());
  EXPECT_EQ(OneNodeBuilder::NO_CLASS_SUPPORT(), WidgetBuilder::NO_CLASS_SUPPORT());
  EXPECT_EQ(0, OneNodeBuilder::NO_SUPPORT()->GetHandlersList(_pUp).GetSize());
  EXPECT_EQ(nullptr, OneNodeBuilder::NO_CLASS_SUPPORT()->GetClassHandlersSupport(Button::MetaObject()));
}

TEST_F(ZELSYPSupportsEventPathBuilderTest, HandlersPutOnTheStoresForNothingDoNotRun)
{
  LoggingHandler* const pHandler = Keep("on a store for nothing");
  EXPECT_EQ(1, OneNodeBuilder::NO_SUPPORT()->AddHandler(_pUp, pHandler, 0));
  EXPECT_EQ(1, OneNodeBuilder::NO_CLASS_SUPPORT()->AddClassHandler(Button::MetaObject(), _pUp, pHandler, 0));
  EXPECT_EQ(1, Dispatch());
  EXPECT_EQ(1, OneNodeBuilder::NO_SUPPORT()->RemoveHandler(_pUp, pHandler));
  EXPECT_EQ(1, OneNodeBuilder::NO_CLASS_SUPPORT()->RemoveClassHandler(Button::MetaObject(), _pUp, pHandler));
  EXPECT_THAT(_log, IsEmpty());
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}
