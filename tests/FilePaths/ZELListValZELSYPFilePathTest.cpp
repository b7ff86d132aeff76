#include "PathTexts.h"

#include <gtest/gtest.h>

typedef std::vector<std::string> Texts;

static ZELListValZELSYPFilePath ListOf(const Texts& i_texts)
{
  ZELListValZELSYPFilePath list(static_cast<int>(i_texts.size()));
  for (const std::string& text : i_texts)
    list.Append(ZELSYPFilePath(text.c_str()));
  return list;
}

TEST(ZELListValZELSYPFilePath, IsEmptyAtFirstWhateverItsCapacity)
{
  EXPECT_EQ(ZELListValZELSYPFilePath().Size(), 0);
  EXPECT_EQ(ZELListValZELSYPFilePath(10).Size(), 0);
  EXPECT_EQ(ZELListValZELSYPFilePath(-1).Size(), 0);
}

TEST(ZELListValZELSYPFilePath, AppendsCopiesAtPositionsFromOne)
{
  ZELSYPFilePath path("a");
  ZELListValZELSYPFilePath list;
  list.Append(path);
  path = "b";
  list.Append(path);
  EXPECT_EQ(TextOf(list[1]), "a");
  EXPECT_EQ(TextOf(list[2]), "b");
}

TEST(ZELListValZELSYPFilePath, GivesItsElementsForWriting)
{
  ZELListValZELSYPFilePath list = ListOf({"a", "b"});
  list[2] = "c";
  EXPECT_EQ(TextsOf(list), (Texts{"a", "c"}));
}

TEST(ZELListValZELSYPFilePath, CopiesItsElements)
{
  ZELListValZELSYPFilePath source = ListOf({"a", "b"});
  const ZELListValZELSYPFilePath copy(source);
  source[1] = "changed";
  EXPECT_EQ(TextsOf(copy), (Texts{"a", "b"}));
}

TEST(ZELListValZELSYPFilePath, AssignmentReplacesItsElements)
{
  ZELListValZELSYPFilePath list = ListOf({"x", "y", "z"});
  list = ListOf({"a"});
  EXPECT_EQ(TextsOf(list), Texts{"a"});
}

TEST(ZELListValZELSYPFilePath, AssignedToItselfKeepsItsElements)
{
  ZELListValZELSYPFilePath list = ListOf({"a", "b"});
  const ZELListValZELSYPFilePath& same = list;
  list = same;
  EXPECT_EQ(TextsOf(list), (Texts{"a", "b"}));
}

TEST(ZELListValZELSYPFilePath, RemovesAPositionAndMovesTheLaterOnesDown)
{
  ZELListValZELSYPFilePath list = ListOf({"a", "b", "c"});
  list.RemovePosition(2);
  EXPECT_EQ(TextsOf(list), (Texts{"a", "c"}));
}

TEST(ZELListValZELSYPFilePath, RemovesAllWithEitherMemoryHandling)
{
  for (const auto memory : {ZELRawCollPV::KeepMemory, ZELRawCollPV::ReleaseMemory})
  {
    ZELListValZELSYPFilePath list = ListOf({"a", "b"});
    list.RemoveAll(memory);
    EXPECT_EQ(list.Size(), 0);
    list.Append(ZELSYPFilePath("c"));
    EXPECT_EQ(TextsOf(list), Texts{"c"});
  }
}

TEST(ZELListValZELSYPFilePath, AnswersAnEmptyPathForAPositionThatDoesNotExist)
{
  testing::internal::CaptureStderr();
  ZELListValZELSYPFilePath list = ListOf({"a"});
  list[2] = "lost";
  const std::string second = TextOf(list[2]);
  list.RemovePosition(0);
  EXPECT_NE(testing::internal::GetCapturedStderr().find("position 2 is outside 1 to 1"), std::string::npos);
  EXPECT_EQ(second, "");
  EXPECT_EQ(TextsOf(list), Texts{"a"});
}

TEST(ZELListValZELSYPFilePath, SortsWithTheGivenFunction)
{
  ZELListValZELSYPFilePath list = ListOf({"b", "C", "a", "B"});
  list.QuickSort(&ZELSYPFilePath::Compare);
  EXPECT_EQ(TextsOf(list), (Texts{"B", "C", "a", "b"}));
  list.QuickSort([](ZELSYPFilePath* i_pLeft, ZELSYPFilePath* i_pRight) { return ZELSYPFilePath::Compare(i_pRight, i_pLeft); });
  EXPECT_EQ(TextsOf(list), (Texts{"b", "a", "C", "B"}));
}

TEST(ZELListValZELSYPFilePath, KeepsItsOrderWithoutAFunction)
{
  ZELListValZELSYPFilePath list = ListOf({"b", "a"});
  list.QuickSort(nullptr);
  EXPECT_EQ(TextsOf(list), (Texts{"b", "a"}));
}

TEST(ZELListValZELSYPFilePath, EqualsAListOfTheSamePathsInAnotherCase)
{
  EXPECT_EQ(ListOf({"A\\b", "c"}) == ListOf({"a\\B", "C"}), 1);
  EXPECT_EQ(ListOf({"A\\b", "c"}) != ListOf({"a\\B", "C"}), 0);
}

TEST(ZELListValZELSYPFilePath, DiffersAtTheFirstOtherPathOrLength)
{
  EXPECT_EQ(ListOf({"a", "b"}) != ListOf({"a", "c"}), 1);
  EXPECT_EQ(ListOf({"a"}) != ListOf({"a", "b"}), 1);
  EXPECT_EQ(ListOf({"a"}) == ListOf({"a", "b"}), 0);
}

TEST(ZELListValZELSYPFilePath, EqualsItselfAndEveryEmptyListEqualsAnother)
{
  const ZELListValZELSYPFilePath list = ListOf({"a"});
  EXPECT_EQ(list != list, 0);
  EXPECT_EQ(ZELListValZELSYPFilePath() != ZELListValZELSYPFilePath(), 0);
}
