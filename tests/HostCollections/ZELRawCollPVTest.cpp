#include "ZELRawCollPV.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace
{
int CompareInts(void* i_left, void* i_right)
{
  const int left = *static_cast<int*>(i_left);
  const int right = *static_cast<int*>(i_right);
  return (left > right) - (left < right);
}

// Ascending, or descending where the context says so.
int CompareIntsAs(void* i_left, void* i_right, void* i_pIsDescending)
{
  return *static_cast<bool*>(i_pIsDescending) ? CompareInts(i_right, i_left) : CompareInts(i_left, i_right);
}

ZELRawCollPV ListOf(std::vector<int>& io_values)
{
  ZELRawCollPV list;
  for (int& value : io_values)
    list.Append(&value);
  return list;
}

std::vector<int> ValuesOf(const ZELRawCollPV& i_list)
{
  std::vector<int> values;
  for (int position = 1; position <= i_list.Size(); ++position)
    values.push_back(*static_cast<int*>(i_list[position]));
  return values;
}

std::vector<int> RandomValues(int i_count)
{
  std::mt19937 random(42);
  std::vector<int> values;
  for (int index = 0; index < i_count; ++index)
    values.push_back(static_cast<int>(random() % 1000));
  return values;
}
} // namespace

TEST(ZELRawCollPVTest, PositionsCountFromOne)
{
  std::vector<int> values{10, 20, 30};
  const ZELRawCollPV list = ListOf(values);
  EXPECT_EQ(3, list.Size());
  EXPECT_EQ(&values[0], list[1]);
  EXPECT_EQ(&values[2], list[3]);
}

TEST(ZELRawCollPVTest, CapacityOfAnyKindGivesAnEmptyCollection)
{
  EXPECT_EQ(0, ZELRawCollPV(-5).Size());
  EXPECT_EQ(0, ZELRawCollPV(0).Size());
  EXPECT_EQ(0, ZELRawCollPV(100).Size());
}

TEST(ZELRawCollPVTest, PositionOutsideAnswersNullAndSaysSo)
{
  std::vector<int> values{10, 20};
  const ZELRawCollPV list = ListOf(values);
  testing::internal::CaptureStderr();
  EXPECT_EQ(nullptr, list[0]);
  EXPECT_EQ(nullptr, list[3]);
  EXPECT_EQ("ZELRawCollPV::operator[]: position 0 is outside 1 to 2\n"
            "ZELRawCollPV::operator[]: position 3 is outside 1 to 2\n",
            testing::internal::GetCapturedStderr());
}

TEST(ZELRawCollPVTest, SetReplacesOnePointer)
{
  std::vector<int> values{10, 20, 30};
  ZELRawCollPV list = ListOf(values);
  list.Set(2, &values[2]);
  EXPECT_EQ((std::vector<int>{10, 30, 30}), ValuesOf(list));
}

TEST(ZELRawCollPVTest, SetOutsideChangesNothingAndSaysSo)
{
  std::vector<int> values{10};
  ZELRawCollPV list = ListOf(values);
  testing::internal::CaptureStderr();
  list.Set(2, nullptr);
  EXPECT_EQ("ZELRawCollPV::Set: position 2 is outside 1 to 1\n", testing::internal::GetCapturedStderr());
  EXPECT_EQ((std::vector<int>{10}), ValuesOf(list));
}

TEST(ZELRawCollPVTest, LocateAnswersTheFirstPositionOrZero)
{
  std::vector<int> values{10, 20};
  ZELRawCollPV list = ListOf(values);
  list.Append(&values[1]);
  EXPECT_EQ(2, list.Locate(&values[1]));
  EXPECT_EQ(0, list.Locate(&list));
}

TEST(ZELRawCollPVTest, RemovePositionMovesTheLaterOnesDown)
{
  std::vector<int> values{10, 20, 30};
  ZELRawCollPV list = ListOf(values);
  list.RemovePosition(1);
  EXPECT_EQ((std::vector<int>{20, 30}), ValuesOf(list));
}

TEST(ZELRawCollPVTest, RemovePositionOutsideChangesNothingAndSaysSo)
{
  ZELRawCollPV list;
  testing::internal::CaptureStderr();
  list.RemovePosition(1);
  EXPECT_EQ("ZELRawCollPV::RemovePosition: position 1 is outside 1 to 0\n", testing::internal::GetCapturedStderr());
}

TEST(ZELRawCollPVTest, RemoveAllEmptiesWhetherMemoryIsKeptOrNot)
{
  for (const auto memory : {ZELRawCollPV::KeepMemory, ZELRawCollPV::ReleaseMemory})
  {
    std::vector<int> values{10, 20};
    ZELRawCollPV list = ListOf(values);
    list.RemoveAll(memory);
    EXPECT_EQ(0, list.Size());
    list.Append(&values[1]);
    EXPECT_EQ((std::vector<int>{20}), ValuesOf(list));
  }
}

TEST(ZELRawCollPVTest, QuickSortOrdersAnyNumberOfElements)
{
  for (const int count : {0, 1, 2, 3, 10, 5000})
  {
    std::vector<int> values = RandomValues(count);
    ZELRawCollPV list = ListOf(values);
    list.QuickSort(&CompareInts);
    std::vector<int> expected = values;
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(expected, ValuesOf(list));
  }
}

TEST(ZELRawCollPVTest, QuickSortTellsTheFunctionItsContext)
{
  for (bool isDescending : {false, true})
  {
    std::vector<int> values = RandomValues(5000);
    ZELRawCollPV list = ListOf(values);
    list.QuickSort(&CompareIntsAs, &isDescending);
    std::vector<int> expected = values;
    std::sort(expected.begin(), expected.end());
    if (isDescending)
      std::reverse(expected.begin(), expected.end());
    EXPECT_EQ(expected, ValuesOf(list));
  }
}

TEST(ZELRawCollPVTest, QuickSortPassesANullContextOn)
{
  std::vector<int> values{20, 10};
  ZELRawCollPV list = ListOf(values);
  list.QuickSort([](void* i_left, void* i_right, void* i_context) { return i_context ? 0 : CompareInts(i_left, i_right); }, nullptr);
  EXPECT_EQ((std::vector<int>{10, 20}), ValuesOf(list));
}

TEST(ZELRawCollPVTest, QuickSortWithoutAStrictOrderKeepsEveryElement)
{
  std::vector<int> values = RandomValues(5000);
  ZELRawCollPV list = ListOf(values);
  list.QuickSort([](void*, void*) { return -1; });
  list.QuickSort(
      [](void*, void*)
      {
        static std::mt19937 random(1);
        return static_cast<int>(random() % 3) - 1;
      });
  std::vector<int> left = ValuesOf(list);
  std::sort(left.begin(), left.end());
  std::sort(values.begin(), values.end());
  EXPECT_EQ(values, left);
}
