#include "HeapRequests.h"
#include "RouteWorld.h"
#include "ZELSYPRecycledBlocks.h"
#include "ZELSYPSingleEventPathBuilder.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <thread>

namespace
{
// Counts how often it runs, and takes no memory.
class Counter : public CountedHandler
{
public:
  void Handle(ZELBaseUnknown* i_pNode, ZELSYPEventArgs* i_pArgs) override
  {
    ++_runs;
    if (_action)
      _action(i_pNode, i_pArgs);
  }

  int _runs = 0;
  std::function<void(ZELBaseUnknown*, ZELSYPEventArgs*)> _action;
};

class DispatchMemoryTest : public testing::Test, protected RouteWorld
{
protected:
  // The leaf of a chain of that many nodes that ends in the root.
  Widget& Chain(std::size_t i_depth)
  {
    if (_chain.empty())
      _chain.push_back(_root);
    while (_chain.size() < i_depth)
      _chain.push_back(ZELHandle<Widget>::Adopt(new Button(_chain.back())));
    return *_chain[i_depth - 1];
  }
  void ListenEverywhere(std::size_t i_depth)
  {
    Chain(i_depth);
    for (const auto& node : _chain)
      node->_handlers.AddHandler(_pEvent, _counter, 0);
  }
  // How often a dispatch from there asks the heap for memory.
  long RequestsOfARaise(Widget& io_origin)
  {
    const long before = HeapRequests::GetCount();
    EXPECT_EQ(1, Raise(io_origin));
    return HeapRequests::GetCount() - before;
  }

  const ZELHandle<Counter> _counter = ZELHandle<Counter>::Adopt(new Counter);
  std::vector<ZELHandle<Widget>> _chain;
};
} // namespace

TEST_F(DispatchMemoryTest, RequestsAreCountedAtAll)
{
  const long before = HeapRequests::GetCount(), held = HeapRequests::GetHeld();
  const auto handler = CountedHandler::New();
  Listen(*_leaf, "leaf");
  EXPECT_LT(before + 1, HeapRequests::GetCount());
  EXPECT_LT(held + 1, HeapRequests::GetHeld());
}

TEST_F(DispatchMemoryTest, OnlyTheFirstDispatchOfADepthTakesMemory)
{
  ListenEverywhere(1000);
  for (const std::size_t depth : {1u, 2u, 10u, 100u, 1000u})
  {
    RequestsOfARaise(Chain(depth));
    EXPECT_EQ(0, RequestsOfARaise(Chain(depth))) << depth;
  }
  EXPECT_EQ(2 * (1 + 2 + 10 + 100 + 1000), _counter->_runs);
}

TEST_F(DispatchMemoryTest, DispatchThatNobodyListensToTakesNoMemory)
{
  for (const std::size_t depth : {1u, 8u})
    EXPECT_EQ(0, RequestsOfARaise(Chain(depth))) << depth;
  RequestsOfARaise(Chain(1000));
  EXPECT_EQ(0, RequestsOfARaise(Chain(1000)));
}

TEST_F(DispatchMemoryTest, ClassHandlersAndManyListsOfOneStopTakeNoMemoryEither)
{
  ListenEverywhere(100);
  for (ZELMetaClass* const pClass : {ZELBaseUnknown::MetaObject(), Widget::MetaObject(), Panel::MetaObject(), Button::MetaObject()})
    _classHandlers.AddClassHandler(pClass, _pEvent, _counter, 0);
  RequestsOfARaise(Chain(100));
  _counter->_runs = 0;
  EXPECT_EQ(0, RequestsOfARaise(Chain(100)));
  EXPECT_EQ(100 + 2 * 100 + 2 * 99, _counter->_runs);
}

TEST_F(DispatchMemoryTest, RootToOriginAndNoPropagationTakeNoMemoryEither)
{
  for (ZELSYPEvent* const pEvent : {_pDown, _pHere})
  {
    _pEvent = pEvent;
    ListenEverywhere(100);
    RequestsOfARaise(Chain(100));
    EXPECT_EQ(0, RequestsOfARaise(Chain(100)));
  }
}

TEST_F(DispatchMemoryTest, NestedDispatchesTakeNoMemoryOnceTheyWereAsDeep)
{
  ListenEverywhere(3);
  int depth = 0;
  _counter->_action = [&](ZELBaseUnknown* i_pNode, ZELSYPEventArgs*)
  {
    if (i_pNode != _chain[2].Get() || depth == 100)
      return;
    ++depth;
    Raise(*_chain[2]);
    --depth;
  };
  RequestsOfARaise(Chain(3));
  EXPECT_EQ(3 * 101, _counter->_runs);
  EXPECT_EQ(0, RequestsOfARaise(Chain(3)));
  for (const auto& node : _chain)
    EXPECT_EQ(node == _root ? 2 : 1, CountReferences(node));
}

TEST_F(DispatchMemoryTest, DispatchThatThrowsGivesItsMemoryToTheNextOne)
{
  ListenEverywhere(100);
  RequestsOfARaise(Chain(100));
  _counter->_action = [&](ZELBaseUnknown* i_pNode, ZELSYPEventArgs*)
  {
    if (i_pNode == _chain[50].Get())
      throw std::runtime_error("no");
  };
  EXPECT_THROW(Raise(Chain(100)), std::runtime_error);
  _counter->_action = nullptr;
  EXPECT_EQ(0, RequestsOfARaise(Chain(100)));
}

TEST_F(DispatchMemoryTest, DispatchHoldsNothingOnceItHasEnded)
{
  ListenEverywhere(50);
  std::vector<int> before, after;
  for (const auto& node : _chain)
    before.push_back(CountReferences(node));
  const int handler = CountReferences(_counter), event = CountReferences(_pEvent);
  Raise(Chain(50));
  for (const auto& node : _chain)
    after.push_back(CountReferences(node));
  EXPECT_EQ(before, after);
  EXPECT_EQ(handler, CountReferences(_counter));
  EXPECT_EQ(event, CountReferences(_pEvent));
}

TEST_F(DispatchMemoryTest, ThreadThatEndsGivesTheHeapItsBlocksBack)
{
  const auto raise = [&]
  {
    const auto node = ZELHandle<Widget>::Adopt(new Widget);
    node->_handlers.AddHandler(_pHere, _counter, 0);
    ZELSYPEventArgs args(_pHere);
    EXPECT_EQ(1, ZELSYPSingleEventPathBuilder(&node->_handlers, nullptr).Dispatch(node, &args));
  };
  std::thread(raise).join();
  const long held = HeapRequests::GetHeld();
  for (int index = 0; index < 10; ++index)
    std::thread(raise).join();
  EXPECT_EQ(held, HeapRequests::GetHeld());
  EXPECT_EQ(11, _counter->_runs);
}

TEST(ZELSYPRecycledBlocksTest, BlockThatWasGivenBackIsTakenNext)
{
  void* const pBlock = ZELSYPRecycledBlocks::Take(100);
  ZELSYPRecycledBlocks::GiveBack(pBlock);
  EXPECT_EQ(pBlock, ZELSYPRecycledBlocks::Take(60));
  ZELSYPRecycledBlocks::GiveBack(pBlock);
  ZELSYPRecycledBlocks::GiveBack(nullptr);
}

TEST(ZELSYPRecycledBlocksTest, BlocksOfEverySizeHoldWhatTheyWereTakenForAndAreAligned)
{
  for (std::size_t bytes = 1; bytes < (std::size_t{1} << 22); bytes += bytes / 2 + 1)
  {
    void* const pBlock = ZELSYPRecycledBlocks::Take(bytes);
    ASSERT_NE(nullptr, pBlock);
    EXPECT_EQ(0u, reinterpret_cast<std::uintptr_t>(pBlock) % __STDCPP_DEFAULT_NEW_ALIGNMENT__);
    std::memset(pBlock, 0x5A, bytes);
    ZELSYPRecycledBlocks::GiveBack(pBlock);
  }
}

TEST(ZELSYPRecycledBlocksTest, LargeBlocksGoBackToTheHeap)
{
  const long held = HeapRequests::GetHeld();
  void* const pBlock = ZELSYPRecycledBlocks::Take(std::size_t{1} << 21);
  EXPECT_EQ(held + 1, HeapRequests::GetHeld());
  ZELSYPRecycledBlocks::GiveBack(pBlock);
  EXPECT_EQ(held, HeapRequests::GetHeld());
}

TEST(ZELSYPRecycledBlocksTest, ExtendedBlockKeepsItsContent)
{
  void* pBlock = ZELSYPRecycledBlocks::Extend(nullptr, 0, 10);
  std::memcpy(pBlock, "0123456789", 10);
  pBlock = ZELSYPRecycledBlocks::Extend(pBlock, 10, 10000);
  EXPECT_EQ(0, std::memcmp(pBlock, "0123456789", 10));
  ZELSYPRecycledBlocks::GiveBack(pBlock);
}

TEST(ZELSYPRecycledBlocksTest, LastingBlocksComeFromTheHeapAndGoBackToIt)
{
  ZELSYPRecycledBlocks::GiveBack(ZELSYPRecycledBlocks::Take(100));
  const long held = HeapRequests::GetHeld();
  void* pBlock = ZELSYPRecycledBlocks::Lasting::Take(10);
  std::memcpy(pBlock, "0123456789", 10);
  pBlock = ZELSYPRecycledBlocks::Lasting::Extend(pBlock, 10, 100);
  EXPECT_EQ(0, std::memcmp(pBlock, "0123456789", 10));
  EXPECT_EQ(held + 1, HeapRequests::GetHeld());
  ZELSYPRecycledBlocks::Lasting::GiveBack(pBlock);
  EXPECT_EQ(held, HeapRequests::GetHeld());
}

TEST(ZELSYPRecycledBlocksTest, ThreadGivesWhatItKeepsToTheHeapWhenItEnds)
{
  const long held = HeapRequests::GetHeld();
  long heldByThread = 0;
  std::thread(
      [&]
      {
        ZELSYPRecycledBlocks::GiveBack(ZELSYPRecycledBlocks::Take(100));
        heldByThread = HeapRequests::GetHeld();
      })
      .join();
  EXPECT_GT(heldByThread, held);
  EXPECT_EQ(held, HeapRequests::GetHeld());
}

TEST(ZELSYPRecycledBlocksTest, BlockOfAnotherThreadGoesBackToTheHeap)
{
  void* const pBlock = ZELSYPRecycledBlocks::Take(100);
  long freed = 0;
  std::thread(
      [&]
      {
        ZELSYPRecycledBlocks::GiveBack(ZELSYPRecycledBlocks::Take(100));
        const long held = HeapRequests::GetHeld();
        ZELSYPRecycledBlocks::GiveBack(pBlock);
        freed = held - HeapRequests::GetHeld();
      })
      .join();
  EXPECT_EQ(1, freed);
}

TEST(ZELSYPRecycledBlocksTest, BlockOfAThreadThatHasEndedGoesBackToTheHeap)
{
  void* pBlock = nullptr;
  std::thread([&] { pBlock = ZELSYPRecycledBlocks::Take(100); }).join();
  const long held = HeapRequests::GetHeld();
  ZELSYPRecycledBlocks::GiveBack(pBlock);
  EXPECT_EQ(held - 1, HeapRequests::GetHeld());
}

TEST(ZELSYPRecycledBlocksTest, ThreadKeepsAtMostFourMegabytesOfASize)
{
  long freed = 0;
  const auto takeAndGiveBack = [&]
  {
    std::vector<void*> blocks(100);
    for (void*& pBlock : blocks)
      pBlock = ZELSYPRecycledBlocks::Take(500 << 10);
    const long held = HeapRequests::GetHeld();
    for (void* const pBlock : blocks)
      ZELSYPRecycledBlocks::GiveBack(pBlock);
    freed = held - HeapRequests::GetHeld();
  };
  std::thread(takeAndGiveBack).join();
  EXPECT_EQ(100 - 8, freed);
}
