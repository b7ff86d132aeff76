#include "ZELAtomicCounter.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace
{
void CountUpAndDown(ZELAtomicCounter& io_counter)
{
  EXPECT_EQ(2, io_counter.Increment());
  EXPECT_EQ(3, io_counter.Increment());
  EXPECT_EQ(2, io_counter.Decrement());
  EXPECT_FALSE(io_counter.DecrementToZero());
  EXPECT_EQ(1, io_counter.Get());
  EXPECT_TRUE(io_counter.DecrementToZero());
  EXPECT_EQ(0, io_counter.Get());
}
} // namespace

TEST(ZELAtomicCounterTest, BothDirectionsAnswerTheCountThatStandsThen)
{
  ZELAtomicCounter counter(1);
  CountUpAndDown(counter);
}

TEST(ZELAtomicCounterTest, CountsTheSameWhileAnotherThreadLives)
{
  ZELAtomicCounter counter(1);
  std::thread([&counter] { CountUpAndDown(counter); }).join();
  EXPECT_EQ(0, counter.Get());
}

TEST(ZELAtomicCounterTest, ThreadsThatStartOneAfterTheOtherLoseNoCount)
{
  ZELAtomicCounter counter(0);
  std::vector<std::thread> threads;
  for (int index = 0; index < 8; ++index)
  {
    for (int time = 0; time < 1000; ++time)
      counter.Increment();
    threads.emplace_back(
        [&counter]
        {
          for (int time = 0; time < 1000; ++time)
            counter.Increment();
        });
  }
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(16000, counter.Get());
}

TEST(ZELAtomicCounterTest, CountsOnFromWhatOneThreadAloneCounted)
{
  ZELAtomicCounter counter(1);
  counter.Increment();
  std::thread([&counter] { counter.Increment(); }).join();
  EXPECT_EQ(4, counter.Increment());
}
