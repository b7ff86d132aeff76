#include "ZELSYPArray.h"

#include "AllocationFailures.h"
#include "RecordingFailureHandler.h"
#include "ZELBaseUnknown_var.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

namespace
{
typedef std::shared_ptr<int> Handle;

template <class T>
ZELSYPArray<T> ArrayOf(std::initializer_list<T> i_elements)
{
  ZELSYPArray<T> array;
  for (const T& element : i_elements)
    array.Append(element);
  return array;
}

template <class T>
std::vector<T> ElementsOf(const ZELSYPArray<T>& i_array)
{
  return std::vector<T>(i_array.begin(), i_array.end());
}

// Blocks of the heap, counted while they are held.
struct CountedBlocks
{
  static void* Take(std::size_t i_bytes) noexcept
  {
    ++s_held;
    return ZELSYPHeapBlocks::Take(i_bytes);
  }
  static void GiveBack(void* i_pBlock) noexcept
  {
    s_held -= i_pBlock != nullptr;
    ZELSYPHeapBlocks::GiveBack(i_pBlock);
  }
  static inline int s_held = 0;
};

// The third copy that is made of it throws.
struct CopiedTwice
{
  CopiedTwice() = default;
  CopiedTwice(const CopiedTwice&)
  {
    if (++s_copies > 2)
      throw std::runtime_error("no copy");
  }
  CopiedTwice(CopiedTwice&&) noexcept {}
  CopiedTwice& operator=(const CopiedTwice&) = default;
  ~CopiedTwice() {}
  static inline int s_copies = 0;
};
} // namespace

TEST(ZELSYPArrayTest, NewArrayHasNoElementAndNoRoom)
{
  const ZELSYPArray<int> array;
  EXPECT_EQ(0, array.GetLength());
  EXPECT_EQ(0, array.GetCapacity());
  EXPECT_EQ(array.begin(), array.end());
}

TEST(ZELSYPArrayTest, CapacitiesRunOneFourTenTwentyTwoFortySix)
{
  ZELSYPArray<int> array;
  std::vector<int> capacities;
  for (int element = 0; element < 46; ++element)
  {
    EXPECT_EQ(1, array.Append(element));
    if (capacities.empty() || capacities.back() != array.GetCapacity())
      capacities.push_back(array.GetCapacity());
  }
  EXPECT_THAT(capacities, ElementsAre(1, 4, 10, 22, 46));
  EXPECT_EQ(46, array.GetLength());
}

TEST(ZELSYPArrayTest, CapacityIsNeverAboveTheLargestInteger)
{
  EXPECT_EQ(INT_MAX - 1, ZELSYPArray<int>::CapacityAbove(INT_MAX / 2 - 1));
  EXPECT_EQ(INT_MAX, ZELSYPArray<int>::CapacityAbove(INT_MAX / 2));
  EXPECT_EQ(INT_MAX, ZELSYPArray<int>::CapacityAbove(INT_MAX - 1));
}

TEST(ZELSYPArrayTest, SizeThatOverflowsIsThatOfTheLargestBlock)
{
  struct Huge
  {
    char _bytes[std::size_t{1} << 34];
  };
  EXPECT_EQ(SIZE_MAX, ZELSYPArray<Huge>::BytesOf(INT_MAX));
  EXPECT_EQ(std::size_t{1} << 63, ZELSYPArray<Huge>::BytesOf(1 << 29));
  EXPECT_EQ(std::size_t{4} * INT_MAX, ZELSYPArray<int>::BytesOf(INT_MAX));
}

TEST(ZELSYPArrayTest, ElementsKeepTheirOrderThroughEveryGrowth)
{
  ZELSYPArray<std::string> array;
  for (int element = 0; element < 1000; ++element)
    array.Append(std::to_string(element));
  for (int element = 0; element < 1000; ++element)
    ASSERT_EQ(std::to_string(element), array[element]);
}

TEST(ZELSYPArrayTest, ElementOfTheArrayItselfCanBeAppended)
{
  ZELSYPArray<std::string> array = ArrayOf<std::string>({"a text that is too long to stand inside its object"});
  for (int time = 0; time < 10; ++time)
    array.Append(array[0]);
  for (const std::string& element : array)
    EXPECT_EQ("a text that is too long to stand inside its object", element);
}

TEST(ZELSYPArrayTest, NumberOfTheArrayItselfCanBeAppended)
{
  ZELSYPArray<int> array = ArrayOf({7});
  for (int time = 0; time < 100000; ++time)
    array.Append(array[0]);
  EXPECT_EQ(100001, std::count(array.begin(), array.end(), 7));
}

TEST(ZELSYPArrayTest, NumbersKeepTheirOrderThroughEveryGrowth)
{
  ZELSYPArray<int> array;
  for (int element = 0; element < 300000; ++element)
    array.Append(element);
  for (int element = 0; element < 300000; ++element)
    ASSERT_EQ(element, array[element]);
}

TEST(ZELSYPArrayTest, CapacityAboveTheLengthIsTakenAndMayShrink)
{
  RecordingFailureHandler failures;
  ZELSYPArray<int> array = ArrayOf({1, 2, 3});
  array.SetCapacity(100);
  EXPECT_EQ(100, array.GetCapacity());
  array.SetCapacity(5);
  EXPECT_EQ(5, array.GetCapacity());
  EXPECT_THAT(ElementsOf(array), ElementsAre(1, 2, 3));
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
}

TEST(ZELSYPArrayTest, CapacityNotAboveTheLengthIsReportedAndChangesNothing)
{
  RecordingFailureHandler failures;
  ZELSYPArray<int> array = ArrayOf({1, 2, 3});
  array.SetCapacity(3);
  array.SetCapacity(-1);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean i_capacity > _length is FALSE", "boolean i_capacity > _length is FALSE"));
  EXPECT_EQ("ZELSYPArray.h", failures.GetFailures()[0].file);
  EXPECT_FALSE(failures.GetFailures()[0].details.has_value());
  EXPECT_EQ(4, array.GetCapacity());
  EXPECT_THAT(ElementsOf(array), ElementsAre(1, 2, 3));
}

TEST(ZELSYPArrayTest, CapacityOfNowIsTakenInSilenceEvenWhenTheArrayIsFull)
{
  RecordingFailureHandler failures;
  ZELSYPArray<int> array = ArrayOf({1});
  array.SetCapacity(1);
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
}

TEST(ZELSYPArrayTest, IndexOutsideIsReportedAndAnswersTheSpareElement)
{
  RecordingFailureHandler failures;
  ZELSYPArray<int*> array;
  int value = 0;
  array.Append(&value);
  const ZELSYPArray<int*>& readOnly = array;
  EXPECT_EQ(nullptr, array[-1]);
  EXPECT_EQ(nullptr, array[1]);
  EXPECT_EQ(nullptr, readOnly[1]);
  EXPECT_EQ(&value, readOnly[0]);
  EXPECT_EQ(&array[5], &array[-5]);
  EXPECT_EQ(5u, failures.GetMessages().size());
  EXPECT_EQ("boolean (i_index>=0 && i_index<_length) is FALSE", failures.GetMessages()[0]);
}

TEST(ZELSYPArrayTest, WritingThroughTheSpareElementChangesNoElement)
{
  RecordingFailureHandler failures;
  ZELSYPArray<int> array = ArrayOf({1, 2, 3});
  array[3] = 99;
  array[-1] = 98;
  EXPECT_THAT(ElementsOf(array), ElementsAre(1, 2, 3));
}

TEST(ZELSYPArrayTest, RemoveAtAnswersTheElementAndMovesTheLaterOnesDown)
{
  ZELSYPArray<int> array = ArrayOf({1, 2, 3, 4});
  EXPECT_EQ(2, array.RemoveAt(1));
  EXPECT_THAT(ElementsOf(array), ElementsAre(1, 3, 4));
  EXPECT_EQ(1, array.RemoveAt(0));
  EXPECT_EQ(4, array.RemoveAt(1));
  EXPECT_THAT(ElementsOf(array), ElementsAre(3));
}

TEST(ZELSYPArrayTest, RemoveAtWithoutElementIsReportedAndAnswersADefault)
{
  RecordingFailureHandler failures;
  ZELSYPArray<int> array = ArrayOf({1});
  EXPECT_EQ(0, array.RemoveAt(1));
  EXPECT_EQ(0, array.RemoveAt(-1));
  EXPECT_THAT(failures.GetMessages(),
              ElementsAre("boolean (i_index >=0 && i_index < _length) is FALSE", "boolean (i_index >=0 && i_index < _length) is FALSE"));
  EXPECT_THAT(ElementsOf(array), ElementsAre(1));
}

TEST(ZELSYPArrayTest, RemoveLastAnswersTheLastElementAndKeepsTheRoom)
{
  ZELSYPArray<int> array = ArrayOf({1, 2});
  EXPECT_EQ(2, array.RemoveLast());
  EXPECT_EQ(1, array.RemoveLast());
  EXPECT_EQ(0, array.GetLength());
  EXPECT_EQ(4, array.GetCapacity());
}

TEST(ZELSYPArrayTest, RemoveLastOfAnEmptyArrayAnswersADefaultInSilence)
{
  RecordingFailureHandler failures;
  ZELSYPArray<int> array;
  EXPECT_EQ(0, array.RemoveLast());
  EXPECT_EQ(0, array.GetLength());
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
}

TEST(ZELSYPArrayTest, RemoveAllKeepsTheRoomForNewElements)
{
  ZELSYPArray<int> array = ArrayOf({1, 2, 3});
  array.RemoveAll();
  EXPECT_EQ(0, array.GetLength());
  EXPECT_EQ(4, array.GetCapacity());
  array.Append(7);
  EXPECT_THAT(ElementsOf(array), ElementsAre(7));
}

TEST(ZELSYPArrayTest, CopyIsDeepAndHasTheCapacityOfItsSource)
{
  ZELSYPArray<std::string> source = ArrayOf<std::string>({"a", "b"});
  source.SetCapacity(33);
  ZELSYPArray<std::string> copy(source);
  copy[0] = "changed";
  EXPECT_EQ("a", source[0]);
  EXPECT_EQ(33, copy.GetCapacity());
  EXPECT_EQ(0, ZELSYPArray<std::string>(ZELSYPArray<std::string>()).GetCapacity());
}

TEST(ZELSYPArrayTest, CopyOfAnElementThatThrowsLeavesNoMemoryBehind)
{
  typedef ZELSYPArray<CopiedTwice, CountedBlocks> Array;
  {
    Array source;
    for (int element = 0; element < 4; ++element)
      source.Append(CopiedTwice());
    EXPECT_EQ(1, CountedBlocks::s_held);
    EXPECT_THROW(Array{source}, std::runtime_error);
    EXPECT_EQ(3, CopiedTwice::s_copies);
    EXPECT_EQ(1, CountedBlocks::s_held);
  }
  EXPECT_EQ(0, CountedBlocks::s_held);
}

TEST(ZELSYPArrayTest, AssignmentReplacesElementsAndCapacity)
{
  const ZELSYPArray<std::string> source = ArrayOf<std::string>({"a", "b"});
  ZELSYPArray<std::string> target = ArrayOf<std::string>({"1", "2", "3", "4", "5"});
  target = source;
  EXPECT_THAT(ElementsOf(target), ElementsAre("a", "b"));
  EXPECT_EQ(4, target.GetCapacity());
  target = ZELSYPArray<std::string>();
  EXPECT_EQ(0, target.GetLength());
  EXPECT_EQ(0, target.GetCapacity());
}

TEST(ZELSYPArrayTest, AssignmentToItselfDoesNothing)
{
  ZELSYPArray<std::string> array = ArrayOf<std::string>({"a", "b"});
  const ZELSYPArray<std::string>& same = array;
  const std::string* const pFirst = array.begin();
  array = same;
  EXPECT_EQ(pFirst, array.begin());
  EXPECT_THAT(ElementsOf(array), ElementsAre("a", "b"));
}

TEST(ZELSYPArrayTest, SmartPointersAreHeldOnceAndLetGoWhenRemoved)
{
  const Handle handle = std::make_shared<int>(1);
  {
    ZELSYPArray<Handle> array;
    for (int time = 0; time < 100; ++time)
      array.Append(handle);
    EXPECT_EQ(101, handle.use_count());
    array.RemoveAt(50);
    array.RemoveLast();
    EXPECT_EQ(99, handle.use_count());
    const ZELSYPArray<Handle> copy(array);
    EXPECT_EQ(197, handle.use_count());
    array.RemoveAll();
    EXPECT_EQ(99, handle.use_count());
  }
  EXPECT_EQ(1, handle.use_count());
}

TEST(ZELSYPArrayTest, HandlesOfTheHostAreHeldOnceThroughEveryGrowth)
{
  const ZELBaseUnknown_var object = ZELBaseUnknown_var::Adopt(new ZELBaseUnknown);
  {
    ZELSYPArray<ZELBaseUnknown_var> array;
    for (int time = 0; time < 1000; ++time)
      array.Append(object);
    EXPECT_EQ(1002, object->AddRef());
    EXPECT_EQ(1001, object->Release());
    for (const ZELBaseUnknown_var& element : array)
      ASSERT_EQ(object.Get(), element.Get());
  }
  EXPECT_EQ(2, object->AddRef());
  EXPECT_EQ(1, object->Release());
}

TEST(ZELSYPArrayTest, FailedAllocationReportsKeepsTheElementsAndRecordsTheCapacity)
{
  RecordingFailureHandler failures;
  ZELSYPArray<int> array = ArrayOf({1, 2, 3});
  {
    AllocationFailures refused;
    array.SetCapacity(1000);
  }
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer plNewArray is NULL"));
  EXPECT_EQ(1000, array.GetCapacity());
  EXPECT_THAT(ElementsOf(array), ElementsAre(1, 2, 3));
}

TEST(ZELSYPArrayTest, FailedAllocationKeepsElementsThatCannotTravelAsBytes)
{
  RecordingFailureHandler failures;
  ZELSYPArray<std::string> array = ArrayOf<std::string>({"a", "a text that is too long to stand inside its object"});
  {
    AllocationFailures refused;
    array.SetCapacity(1000);
  }
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer plNewArray is NULL"));
  EXPECT_EQ(1000, array.GetCapacity());
  EXPECT_THAT(ElementsOf(array), ElementsAre("a", "a text that is too long to stand inside its object"));
}

TEST(ZELSYPArrayTest, AppendAfterAFailedAllocationNeverWritesOutsideTheBlock)
{
  RecordingFailureHandler failures;
  ZELSYPArray<int> array = ArrayOf({1, 2, 3});
  {
    AllocationFailures refused;
    array.SetCapacity(1000);
    EXPECT_EQ(1, array.Append(4));
    EXPECT_EQ(0, array.Append(5));
  }
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer plNewArray is NULL", "pointer plNewArray is NULL"));
  EXPECT_THAT(ElementsOf(array), ElementsAre(1, 2, 3, 4));
  EXPECT_EQ(1, array.Append(5));
  EXPECT_EQ(1000, array.GetCapacity());
  EXPECT_THAT(ElementsOf(array), ElementsAre(1, 2, 3, 4, 5));
}

TEST(ZELSYPArrayTest, ShrinkingThatFailsKeepsTheElementsAndGrowsAgain)
{
  RecordingFailureHandler failures;
  ZELSYPArray<int> array = ArrayOf({1, 2, 3});
  array.SetCapacity(100);
  {
    AllocationFailures refused;
    array.SetCapacity(4);
  }
  EXPECT_EQ(4, array.GetCapacity());
  for (int element = 4; element <= 6; ++element)
    EXPECT_EQ(1, array.Append(element));
  EXPECT_EQ(10, array.GetCapacity());
  EXPECT_THAT(ElementsOf(array), ElementsAre(1, 2, 3, 4, 5, 6));
}

TEST(ZELSYPArrayTest, FirstAppendWithoutMemoryLeavesTheArrayEmpty)
{
  RecordingFailureHandler failures;
  ZELSYPArray<Handle> array;
  const Handle handle = std::make_shared<int>(1);
  {
    AllocationFailures refused;
    EXPECT_EQ(0, array.Append(handle));
  }
  EXPECT_EQ(0, array.GetLength());
  EXPECT_EQ(1, array.GetCapacity());
  EXPECT_EQ(1, handle.use_count());
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer plNewArray is NULL"));
}

TEST(ZELSYPArrayTest, ElementThatWasToBeMovedIsGoneWithoutMemory)
{
  RecordingFailureHandler failures;
  ZELSYPArray<Handle> array = ArrayOf<Handle>({nullptr});
  Handle handle = std::make_shared<int>(1);
  {
    AllocationFailures refused;
    EXPECT_EQ(0, array.Append(std::move(handle)));
  }
  EXPECT_EQ(nullptr, handle);
  EXPECT_EQ(1, array.GetLength());
  EXPECT_EQ(4, array.GetCapacity());
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer plNewArray is NULL"));
}

TEST(ZELSYPArrayTest, CopyWithoutMemoryIsReportedAndEmpty)
{
  RecordingFailureHandler failures;
  const ZELSYPArray<int> source = ArrayOf({1, 2});
  ZELSYPArray<int> target = ArrayOf({9});
  {
    AllocationFailures refused;
    target = source;
  }
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer plNewArray is NULL"));
  EXPECT_EQ(0, target.GetLength());
  EXPECT_EQ(4, target.GetCapacity());
  EXPECT_EQ(1, target.Append(3));
  EXPECT_THAT(ElementsOf(target), ElementsAre(3));
}

TEST(ZELSYPArrayTest, RandomOperationsAgreeWithAModel)
{
  std::mt19937 random(7);
  ZELSYPArray<std::string> array;
  std::vector<std::string> model;
  for (int step = 0; step < 30000; ++step)
  {
    if (model.empty() || random() % 100 < (step / 5000 % 2 == 0 ? 60U : 40U))
    {
      model.push_back(std::to_string(random()));
      array.Append(model.back());
    }
    else
    {
      const std::size_t index = random() % model.size();
      ASSERT_EQ(model[index], array.RemoveAt(static_cast<int>(index)));
      model.erase(model.begin() + static_cast<std::ptrdiff_t>(index));
    }
    ASSERT_EQ(model.size(), static_cast<std::size_t>(array.GetLength()));
  }
  EXPECT_THAT(ElementsOf(array), ElementsAreArray(model));
}
