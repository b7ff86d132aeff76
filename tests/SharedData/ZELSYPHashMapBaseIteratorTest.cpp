#include "ZELSYPHashMapBaseIterator.h"

#include "RecordingFailureHandler.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
int HashInt(const void* i_element)
{
  return *static_cast<const int*>(i_element);
}
int SameInt(const void* i_left, const void* i_right)
{
  return HashInt(i_left) == HashInt(i_right) ? 1 : 0;
}

class Walk : public ZELSYPHashMapBaseIterator
{
public:
  using ZELSYPHashMapBaseIterator::ZELSYPHashMapBaseIterator;
  void StandAt(int i_position) { _currentItem = i_position; }
  int GetPosition() const { return _currentItem; }
};

class ZELSYPHashMapBaseIteratorTest : public testing::Test
{
protected:
  ZELSYPHashMapBaseIteratorTest() : _table(0, &HashInt, &SameInt)
  {
    _table.Insert(&_numbers[0]);
    _table.Insert(&_numbers[1]);
  }

  RecordingFailureHandler _failures;
  int _numbers[3] = {10, 20, 30};
  ZELSysSimpleHashTable _table;
};
} // namespace

TEST_F(ZELSYPHashMapBaseIteratorTest, WalksEveryElementByPosition)
{
  ZELSYPHashMapBaseIterator it(&_table);
  EXPECT_FALSE(it.IsDone());
  EXPECT_EQ(&_numbers[0], it.InternalCurrentItem());
  it.Next();
  EXPECT_EQ(&_numbers[1], it.InternalCurrentItem());
  it.Next();
  EXPECT_TRUE(it.IsDone());
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPHashMapBaseIteratorTest, EmptyTableIsDoneAtOnce)
{
  _table.RemoveAll();
  EXPECT_TRUE(ZELSYPHashMapBaseIterator(&_table).IsDone());
}

TEST_F(ZELSYPHashMapBaseIteratorTest, NullTableIsReportedAndDone)
{
  ZELSYPHashMapBaseIterator it(nullptr);
  EXPECT_TRUE(it.IsDone());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer i_pHashTable is NULL"));
}

TEST_F(ZELSYPHashMapBaseIteratorTest, NothingToAnswerOrStepOverWithoutATable)
{
  Walk it(nullptr);
  _failures.Clear();
  EXPECT_EQ(nullptr, it.InternalCurrentItem());
  it.Next();
  EXPECT_EQ(0, it.GetPosition());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer _pHashTable is NULL", "pointer _pHashTable is NULL"));
}

TEST_F(ZELSYPHashMapBaseIteratorTest, TableThatGrewIsReportedAndYieldsNothing)
{
  Walk it(&_table);
  _table.Insert(&_numbers[2]);
  EXPECT_EQ(nullptr, it.InternalCurrentItem());
  it.Next();
  EXPECT_EQ(0, it.GetPosition());
  EXPECT_THAT(_failures.GetMessages(),
              ElementsAre("boolean _pHashTable->Size() == _size is FALSE", "boolean _pHashTable->Size() == _size is FALSE"));
  EXPECT_EQ("Hash table size has changed!", _failures.GetFailures()[0].details);
  EXPECT_EQ("ZELSYPHashMapBaseIterator.h", _failures.GetFailures()[0].file);
}

TEST_F(ZELSYPHashMapBaseIteratorTest, PositionOutsideTheElementsIsReportedAndYieldsNothing)
{
  Walk it(&_table);
  for (const int position : {2, -1})
  {
    it.StandAt(position);
    EXPECT_EQ(nullptr, it.InternalCurrentItem());
    it.Next();
    EXPECT_EQ(position, it.GetPosition());
  }
  EXPECT_THAT(_failures.GetMessages(),
              testing::AllOf(testing::SizeIs(4), testing::Each("boolean _currentItem >= 0 && _currentItem <= _size - 1 is FALSE")));
}

TEST_F(ZELSYPHashMapBaseIteratorTest, PositionBelowZeroIsReportedAndDone)
{
  Walk it(&_table);
  it.StandAt(-1);
  EXPECT_TRUE(it.IsDone());
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("boolean _currentItem >= 0 is FALSE"));
}

TEST_F(ZELSYPHashMapBaseIteratorTest, TableThatGrewIsReportedBeforeThePosition)
{
  Walk it(&_table);
  _table.Insert(&_numbers[2]);
  it.StandAt(-1);
  EXPECT_EQ(nullptr, it.InternalCurrentItem());
  it.Next();
  EXPECT_EQ(-1, it.GetPosition());
  EXPECT_THAT(_failures.GetMessages(),
              ElementsAre("boolean _pHashTable->Size() == _size is FALSE", "boolean _pHashTable->Size() == _size is FALSE"));
}
