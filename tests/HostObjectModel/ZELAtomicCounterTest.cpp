#include "ZELAtomicCounter.h"

#include <gtest/gtest.h>
#include <thread>
#include <vector>

TEST(ZELAtomicCounter, AnswersTheCountThatStandsThen)
{
  ZELAtomicCounter count(1);
  EXPECT_EQ(count.Increment(), 2);
  EXPECT_EQ(count.Get(), 2);
  EXPECT_EQ(count.Decrement(), 1);
  EXPECT_EQ(count.Decrement(), 0);
}

TEST(ZELAtomicCounter, SixteenThreadsLoseNoCount)
{
  ZELAtomicCounter count(1);
  std::vector<std::thread> threads;
  for (int number = 0; number < 16; ++number)
    threads.emplace_back(
        [&]
        {
          for (int time = 0; time < 20000; ++time)
            count.Increment();
        });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(count.Get(), 1 + 16 * 20000);
}

TEST(ZELAtomicCounter, CountsOnFromWhatOneThreadAloneCounted)
{
  ZELAtomicCounter count(1);
  count.Increment();
  std::thread([&] { count.Increment(); }).join();
  EXPECT_EQ(count.Increment(), 4);
}
