#include "ZELSYPRefCounted.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace
{
class Counted : public ZELSYPRefCounted
{
public:
  explicit Counted(std::atomic<int>& io_deletions) : _deletions(io_deletions) {}

protected:
  ~Counted() override { ++_deletions; }

private:
  std::atomic<int>& _deletions;
};

void HoldAndLetGo(Counted& io_object, int i_times)
{
  for (int time = 0; time < i_times; ++time)
  {
    io_object.AddRef();
    io_object.Release();
  }
}
} // namespace

TEST(ZELSYPRefCountedTest, CreatorHoldsTheOnlyReference)
{
  std::atomic<int> deletions{0};
  (new Counted(deletions))->Release();
  EXPECT_EQ(1, deletions);
}

TEST(ZELSYPRefCountedTest, ObjectLivesUntilItsLastReferenceIsGivenBack)
{
  std::atomic<int> deletions{0};
  Counted* const pObject = new Counted(deletions);
  pObject->AddRef();
  pObject->Release();
  EXPECT_EQ(0, deletions);
  pObject->Release();
  EXPECT_EQ(1, deletions);
}

TEST(ZELSYPRefCountedTest, LastReferenceDeletesThroughTheVirtualDestructor)
{
  std::atomic<int> deletions{0};
  ZELSYPRefCounted* const pObject = new Counted(deletions);
  pObject->Release();
  EXPECT_EQ(1, deletions);
}

TEST(ZELSYPRefCountedTest, SixteenThreadsLoseNoReference)
{
  std::atomic<int> deletions{0};
  Counted* const pObject = new Counted(deletions);
  std::vector<std::thread> threads;
  for (int index = 0; index < 16; ++index)
  {
    pObject->AddRef();
    threads.emplace_back(
        [pObject]
        {
          HoldAndLetGo(*pObject, 5000);
          pObject->Release();
        });
  }
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(0, deletions);
  pObject->Release();
  EXPECT_EQ(1, deletions);
}

TEST(ZELSYPRefCountedTest, WhicheverOfSixteenThreadsIsLastDeletesOnce)
{
  for (int round = 0; round < 50; ++round)
  {
    std::atomic<int> deletions{0};
    Counted* const pObject = new Counted(deletions);
    std::vector<std::thread> threads;
    for (int index = 0; index < 16; ++index)
    {
      pObject->AddRef();
      threads.emplace_back([pObject] { pObject->Release(); });
    }
    pObject->Release();
    for (std::thread& thread : threads)
      thread.join();
    ASSERT_EQ(1, deletions);
  }
}
