#include "AllocationFailures.h"
#include "RecordingFailureHandler.h"
#include "RouteWorld.h"
#include "ZELSYPRecycledBlocks.h"
#include "ZELSYPTreeEventPathBuilder.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <new>
#include <thread>

using testing::ElementsAre;

namespace
{
class RoutesWithoutMemoryTest : public testing::Test, protected RouteWorld
{
protected:
  // Runs on a thread that has no blocks of earlier dispatches.
  template <class Run>
  static void OnAFreshThread(const Run& i_run)
  {
    std::thread(i_run).join();
  }

  RecordingFailureHandler _failures;
};
} // namespace

TEST_F(RoutesWithoutMemoryTest, HandlerIsRefusedWhenItsEventCannotBeKept)
{
  LoggingHandler* const pHandler = Keep("handler");
  {
    AllocationFailures refused;
    EXPECT_EQ(0, _leaf->_handlers.AddHandler(_pUp, pHandler, 0));
  }
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("Failed to add the element", "pointer pList is NULL"));
  EXPECT_EQ(1, CountReferences(_pUp));
  EXPECT_EQ(1, _leaf->_handlers.AddHandler(_pUp, pHandler, 0));
}

TEST_F(RoutesWithoutMemoryTest, ClassHandlerIsRefusedWhenTheStoreOfItsClassCannotBeKept)
{
  LoggingHandler* const pHandler = Keep("handler");
  {
    AllocationFailures refused;
    EXPECT_EQ(0, _classHandlers.AddClassHandler(Panel::MetaObject(), _pUp, pHandler, 0));
  }
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("Failed to add the element", "pointer pSupport is NULL"));
  EXPECT_EQ(nullptr, _classHandlers.GetClassHandlersSupport(Panel::MetaObject()));
  EXPECT_EQ(1, _classHandlers.AddClassHandler(Panel::MetaObject(), _pUp, pHandler, 0));
}

TEST_F(RoutesWithoutMemoryTest, RouteWhoseNodesFindNoRoomIsRefused)
{
  std::vector<ZELHandle<Widget>> chain{_root};
  while (chain.size() < 100)
    chain.push_back(ZELHandle<Widget>::Adopt(new Widget(chain.back())));
  Listen(*chain.back(), "leaf");
  OnAFreshThread(
      [&]
      {
        ZELSYPEventArgs args(_pUp);
        WidgetBuilder builder;
        AllocationFailures refused;
        EXPECT_EQ(0, builder.Dispatch(chain.back(), &args));
      });
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer plNewArray is NULL", "boolean io_list.GetLength() >= 1 is FALSE",
                                                   "boolean FillListOfNodes(nodes, i_pArgs) is FALSE", "pointer pPath is NULL"));
  EXPECT_EQ(0u, _log.size());
  EXPECT_EQ(2, CountReferences(_root));
  Raise(*chain.back());
  EXPECT_THAT(_log, ElementsAre("leaf"));
}

TEST_F(RoutesWithoutMemoryTest, StopThatFindsNoMemoryThrowsAndNothingIsKept)
{
  LoggingHandler* const pHandler = Listen(*_leaf, "leaf");
  const int references = CountReferences(pHandler);
  OnAFreshThread(
      [&]
      {
        ZELSYPEventArgs args(_pUp);
        WidgetBuilder builder;
        AllocationFailures refused;
        EXPECT_THROW(builder.Dispatch(_leaf, &args), std::bad_alloc);
      });
  EXPECT_EQ(references, CountReferences(pHandler));
  EXPECT_EQ(1, CountReferences(_leaf));
}

TEST_F(RoutesWithoutMemoryTest, BlockThatThereIsNoMemoryForIsNull)
{
  AllocationFailures refused;
  EXPECT_EQ(nullptr, ZELSYPRecycledBlocks::Take(std::size_t{1} << 21));
  EXPECT_EQ(nullptr, ZELSYPRecycledBlocks::Take(SIZE_MAX));
}

TEST_F(RoutesWithoutMemoryTest, ClassHandlersRunWhenTheirChainFindsNoMemoryAndAfterwards)
{
  LoggingHandler* const pWidgets = Listen(Widget::MetaObject(), "widget");
  LoggingHandler* const pButtons = Listen(Button::MetaObject(), "button");
  _log.reserve(8);
  pWidgets->_nodes.reserve(8);
  pButtons->_nodes.reserve(8);
  const auto other = ZELHandle<Widget>::Adopt(new Widget);
  // The blocks of a dispatch are there then, and no chain of a button.
  Raise(*other);
  _log.clear();
  _leaf->_pParent = nullptr;
  {
    AllocationFailures refused;
    EXPECT_EQ(1, Raise(*_leaf));
  }
  Raise(*_leaf);
  EXPECT_THAT(_log, ElementsAre("button", "widget", "button", "widget"));
}

TEST_F(RoutesWithoutMemoryTest, DepthIsCountedAnewAfterAChainThatFoundNoMemory)
{
  std::vector<ZELHandle<Widget>> chain{_root};
  while (chain.size() < 100)
    chain.push_back(ZELHandle<Widget>::Adopt(new Widget(chain.back())));
  ZELSYPTreeEventPathBuilder builder([](ZELBaseUnknown* i_pNode) -> ZELBaseUnknown* { return static_cast<Widget*>(i_pNode)->_pParent; },
                                     [](ZELBaseUnknown* i_pNode) { return &static_cast<Widget*>(i_pNode)->_handlers; },
                                     [](ZELBaseUnknown*) -> ZELSYPClassEventHandlersSupport* { return nullptr; }, 100);
  OnAFreshThread(
      [&]
      {
        ZELSYPEventArgs args(_pUp);
        AllocationFailures refused;
        EXPECT_EQ(0, builder.Dispatch(chain.back(), &args));
      });
  _failures.Clear();
  ZELSYPEventArgs args(_pUp);
  EXPECT_EQ(1, builder.Dispatch(chain.back(), &args));
  EXPECT_THAT(_failures.GetMessages(), testing::IsEmpty());
}
