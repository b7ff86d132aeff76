#include "ZELMutex.h"

#include <gmock/gmock.h>
#include <mutex>
#include <thread>
#include <vector>

TEST(ZELMutexTest, SecondThreadIsRefusedWhileOneHoldsIt)
{
  ZELMutex mutex(0, 1, 1);
  mutex.Lock();
  int taken = -1;
  std::thread([&] { taken = mutex.TryLock(); }).join();
  EXPECT_EQ(taken, 0);
  mutex.Unlock();
}

TEST(ZELMutexTest, FreeLockIsTaken)
{
  ZELMutex mutex;
  EXPECT_EQ(mutex.TryLock(), 1);
  mutex.Unlock();
}

TEST(ZELMutexTest, GuardedCountLosesNothing)
{
  ZELMutex mutex;
  int count = 0;
  const auto add = [&]
  {
    for (int i = 0; i < 10000; ++i)
    {
      const std::lock_guard<ZELMutex> hold(mutex);
      ++count;
    }
  };
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i)
    threads.emplace_back(add);
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(count, 40000);
}
