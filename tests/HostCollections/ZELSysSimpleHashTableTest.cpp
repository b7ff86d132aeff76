#include "ZELSysSimpleHashTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

namespace
{
struct Word
{
  int _key;
  std::string _text;
};

int HashWord(const void* i_element)
{
  return static_cast<const Word*>(i_element)->_key;
}
int SameWord(const void* i_left, const void* i_right)
{
  return static_cast<const Word*>(i_left)->_key == static_cast<const Word*>(i_right)->_key ? 1 : 0;
}
int HashAllAlike(const void*)
{
  return 7;
}

std::vector<Word> MakeWords(int i_count, int i_stride = 1)
{
  std::vector<Word> words;
  for (int index = 0; index < i_count; ++index)
    words.push_back({index * i_stride, std::to_string(index)});
  return words;
}

void InsertAll(ZELSysSimpleHashTable& io_table, std::vector<Word>& io_words)
{
  for (Word& word : io_words)
    ASSERT_EQ(1, io_table.Insert(&word));
}

std::vector<void*> ElementsOf(const ZELSysSimpleHashTable& i_table)
{
  std::vector<void*> elements;
  for (int position = 0; position < i_table.Size(); ++position)
    elements.push_back(i_table.Get(position));
  return elements;
}
} // namespace

TEST(ZELSysSimpleHashTableTest, NewTableIsEmptyAndFindsNothing)
{
  const ZELSysSimpleHashTable table(0, &HashWord, &SameWord);
  const Word word{1, ""};
  EXPECT_EQ(0, table.Size());
  EXPECT_EQ(nullptr, table.Locate(&word));
  EXPECT_EQ(nullptr, table.Get(0));
}

TEST(ZELSysSimpleHashTableTest, InsertAnswersOneForANewKeyAndZeroForAnEqualOne)
{
  ZELSysSimpleHashTable table(0, &HashWord, &SameWord);
  Word first{5, "first"};
  Word equal{5, "equal"};
  EXPECT_EQ(1, table.Insert(&first));
  EXPECT_EQ(0, table.Insert(&equal));
  EXPECT_EQ(1, table.Size());
  EXPECT_EQ(&first, table.Locate(&equal));
}

TEST(ZELSysSimpleHashTableTest, InsertOrReturnAnswersTheElementThatIsThere)
{
  ZELSysSimpleHashTable table(0, &HashWord, &SameWord);
  Word first{5, "first"};
  Word equal{5, "equal"};
  EXPECT_EQ(&first, table.InsertOrReturn(&first));
  EXPECT_EQ(&first, table.InsertOrReturn(&equal));
}

TEST(ZELSysSimpleHashTableTest, NullElementIsNeverTakenFoundOrRemoved)
{
  ZELSysSimpleHashTable table(0, &HashWord, &SameWord);
  EXPECT_EQ(-1, table.Insert(nullptr));
  EXPECT_EQ(nullptr, table.InsertOrReturn(nullptr));
  EXPECT_EQ(nullptr, table.Locate(nullptr));
  EXPECT_EQ(nullptr, table.Remove(nullptr));
  EXPECT_EQ(0, table.Size());
}

TEST(ZELSysSimpleHashTableTest, PositionsFollowTheOrderOfInsertionThroughEveryGrowth)
{
  for (const int initialSize : {-1, 0, 1, 5, 8, 9, 12, 13, 5000})
  {
    ZELSysSimpleHashTable table(initialSize, &HashWord, &SameWord);
    std::vector<Word> words = MakeWords(1000);
    InsertAll(table, words);
    for (int position = 0; position < 1000; ++position)
      ASSERT_EQ(&words[static_cast<std::size_t>(position)], table.Get(position)) << initialSize;
  }
}

TEST(ZELSysSimpleHashTableTest, GetOutsideTheElementsAnswersNull)
{
  ZELSysSimpleHashTable table(0, &HashWord, &SameWord);
  std::vector<Word> words = MakeWords(3);
  InsertAll(table, words);
  EXPECT_EQ(nullptr, table.Get(-1));
  EXPECT_EQ(nullptr, table.Get(3));
  EXPECT_EQ(&words[2], table.Get(2));
}

TEST(ZELSysSimpleHashTableTest, LastElementTakesThePositionOfTheRemovedOne)
{
  ZELSysSimpleHashTable table(0, &HashWord, &SameWord);
  std::vector<Word> words = MakeWords(4);
  InsertAll(table, words);
  EXPECT_EQ(&words[1], table.Remove(&words[1]));
  EXPECT_EQ((std::vector<void*>{&words[0], &words[3], &words[2]}), ElementsOf(table));
  EXPECT_EQ(nullptr, table.Locate(&words[1]));
  EXPECT_EQ(&words[3], table.Locate(&words[3]));
}

TEST(ZELSysSimpleHashTableTest, RemovingTheLastElementLeavesTheOthersInPlace)
{
  ZELSysSimpleHashTable table(0, &HashWord, &SameWord);
  std::vector<Word> words = MakeWords(3);
  InsertAll(table, words);
  EXPECT_EQ(&words[2], table.Remove(&words[2]));
  EXPECT_EQ((std::vector<void*>{&words[0], &words[1]}), ElementsOf(table));
}

TEST(ZELSysSimpleHashTableTest, RemovingAnAbsentKeyAnswersNull)
{
  ZELSysSimpleHashTable table(0, &HashWord, &SameWord);
  std::vector<Word> words = MakeWords(2);
  const Word absent{99, ""};
  EXPECT_EQ(nullptr, table.Remove(&absent));
  InsertAll(table, words);
  EXPECT_EQ(nullptr, table.Remove(&absent));
  EXPECT_EQ(2, table.Size());
}

TEST(ZELSysSimpleHashTableTest, RemoveAllEmptiesTheTableForNewElements)
{
  ZELSysSimpleHashTable table(0, &HashWord, &SameWord);
  std::vector<Word> words = MakeWords(100);
  table.RemoveAll();
  InsertAll(table, words);
  table.RemoveAll();
  EXPECT_EQ(0, table.Size());
  EXPECT_EQ(nullptr, table.Locate(&words[0]));
  InsertAll(table, words);
  EXPECT_EQ(&words[99], table.Get(99));
}

TEST(ZELSysSimpleHashTableTest, FewElementsWithOneHashAreToldApart)
{
  ZELSysSimpleHashTable table(0, &HashAllAlike, &SameWord);
  std::vector<Word> words = MakeWords(5);
  InsertAll(table, words);
  EXPECT_EQ(&words[3], table.Remove(&words[3]));
  EXPECT_EQ((std::vector<void*>{&words[0], &words[1], &words[2], &words[4]}), ElementsOf(table));
  EXPECT_EQ(nullptr, table.Locate(&words[3]));
  EXPECT_EQ(&words[4], table.Locate(&words[4]));
}

TEST(ZELSysSimpleHashTableTest, ElementsWithOneAndTheSameHashAreToldApart)
{
  ZELSysSimpleHashTable table(0, &HashAllAlike, &SameWord);
  std::vector<Word> words = MakeWords(2000);
  InsertAll(table, words);
  for (std::size_t index = 0; index < words.size(); index += 2)
    ASSERT_EQ(&words[index], table.Remove(&words[index]));
  for (std::size_t index = 0; index < words.size(); ++index)
    ASSERT_EQ(index % 2 == 0 ? nullptr : &words[index], table.Locate(&words[index]));
}

TEST(ZELSysSimpleHashTableTest, LookUpEndsWhenElementsWithOneHashCameAndWent)
{
  ZELSysSimpleHashTable table(0, &HashAllAlike, &SameWord);
  std::vector<Word> words = MakeWords(1000);
  for (int round = 0; round < 3; ++round)
  {
    InsertAll(table, words);
    for (Word& word : words)
      ASSERT_EQ(&word, table.Remove(&word));
    ASSERT_EQ(nullptr, table.Locate(&words[0]));
  }
  EXPECT_EQ(0, table.Size());
}

TEST(ZELSysSimpleHashTableTest, EveryRegularDistanceBetweenHashesIsServed)
{
  for (int shift = 0; shift < 20; ++shift)
  {
    ZELSysSimpleHashTable table(0, &HashWord, &SameWord);
    std::vector<Word> words = MakeWords(2000, 1 << shift);
    InsertAll(table, words);
    for (Word& word : words)
      ASSERT_EQ(&word, table.Locate(&word)) << shift;
  }
}

TEST(ZELSysSimpleHashTableTest, KnownHashAndInlineComparisonFindTheSameElements)
{
  ZELSysSimpleHashTable table(0, &HashWord, &SameWord);
  Word word{3, "three"};
  const auto isThree = [](const void* i_element) { return static_cast<const Word*>(i_element)->_key == 3; };
  EXPECT_EQ(nullptr, table.LocateHashed(3, isThree));
  EXPECT_EQ(&word, table.InsertHashed(3, &word));
  EXPECT_EQ(&word, table.LocateHashed(3, isThree));
  EXPECT_EQ(&word, table.Locate(&word));
  EXPECT_EQ(&word, table.RemoveHashed(3, isThree));
  EXPECT_EQ(nullptr, table.RemoveHashed(3, isThree));
}

TEST(ZELSysSimpleHashTableTest, RandomOperationsAgreeWithAModel)
{
  std::mt19937 random(20261);
  ZELSysSimpleHashTable table(0, &HashWord, &SameWord);
  std::vector<Word> words = MakeWords(3000, 4096);
  std::unordered_map<int, Word*> model;
  for (int step = 0; step < 60000; ++step)
  {
    Word& word = words[random() % words.size()];
    const bool present = model.count(word._key) != 0;
    const bool inserting = random() % 100 < (step / 10000 % 2 == 0 ? 70U : 30U);
    if (inserting)
    {
      ASSERT_EQ(present ? 0 : 1, table.Insert(&word));
      model[word._key] = &word;
    }
    else
    {
      ASSERT_EQ(present ? &word : nullptr, table.Remove(&word));
      model.erase(word._key);
    }
    ASSERT_EQ(static_cast<int>(model.size()), table.Size());
    const Word& other = words[random() % words.size()];
    ASSERT_EQ(model.count(other._key) != 0, table.Locate(&other) != nullptr);
    const std::vector<void*> elements = step % 1000 == 0 ? ElementsOf(table) : std::vector<void*>();
    for (const void* element : elements)
      ASSERT_EQ(element, table.Locate(element));
  }
}
