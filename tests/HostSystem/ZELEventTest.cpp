#include "ZELEvent.h"

#include <atomic>
#include <gmock/gmock.h>
#include <memory>
#include <thread>
#include <vector>

TEST(ZELEventTest, StartsAsTheFactoryWasTold)
{
  const std::unique_ptr<ZELEvent> free(CreateZELEvent(1)), busy(CreateZELEvent(0));
  EXPECT_TRUE(free->IsSignalled());
  EXPECT_FALSE(busy->IsSignalled());
}

TEST(ZELEventTest, StaysSignalledUntilItIsReset)
{
  ZELEvent event(true);
  EXPECT_EQ(WaitForSingleEvent(&event, -1), 1);
  EXPECT_EQ(WaitForSingleEvent(&event, -1), 1);
  event.Reset();
  EXPECT_EQ(WaitForSingleEvent(&event, 0), 0);
}

TEST(ZELEventTest, WaitEndsWhenTheTimeIsOver)
{
  const ZELEvent event(false);
  const auto before = std::chrono::steady_clock::now();
  EXPECT_EQ(WaitForSingleEvent(&event, 30), 0);
  EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(25));
}

TEST(ZELEventTest, NullEventIsAFailure)
{
  EXPECT_EQ(WaitForSingleEvent(nullptr, -1), -1);
}

TEST(ZELEventTest, OneSignalWakesEveryWaiter)
{
  ZELEvent event(false);
  std::atomic<int> woken{0};
  std::vector<std::thread> waiters;
  for (int i = 0; i < 8; ++i)
    waiters.emplace_back([&] { woken += WaitForSingleEvent(&event, -1); });
  event.Signal();
  for (std::thread& waiter : waiters)
    waiter.join();
  EXPECT_EQ(woken, 8);
}

TEST(ZELEventTest, WaitWithATimeLimitSeesASignalOfAnotherThread)
{
  ZELEvent event(false);
  std::thread signaller([&] { event.Signal(); });
  EXPECT_EQ(WaitForSingleEvent(&event, 60000), 1);
  signaller.join();
}

TEST(ZELEventTest, WaiterMayDestroyTheEventAtOnce)
{
  for (int i = 0; i < 200; ++i)
  {
    std::unique_ptr<ZELEvent> pEvent(CreateZELEvent(0));
    std::thread signaller([p = pEvent.get()] { p->Signal(); });
    EXPECT_EQ(WaitForSingleEvent(pEvent.get(), -1), 1);
    pEvent.reset();
    signaller.join();
  }
}
