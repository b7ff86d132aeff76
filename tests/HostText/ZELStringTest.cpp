#include "ZELString.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

TEST(ZELStringTest, StartsEmpty)
{
  const ZELString text;
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(text.GetLength(), 0);
  EXPECT_STREQ(text.GetText(), "");
  EXPECT_EQ(text.GetView(), "");
}

TEST(ZELStringTest, NullTextGivesTheEmptyString)
{
  const ZELString text(static_cast<const char*>(nullptr));
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_STREQ(text.GetText(), "");
}

TEST(ZELStringTest, KeepsTheBytesOfItsText)
{
  const ZELString text("data.txt");
  EXPECT_FALSE(text.IsEmpty());
  EXPECT_EQ(text.GetLength(), 8);
  EXPECT_STREQ(text.GetText(), "data.txt");
}

TEST(ZELStringTest, TakesOnlyTheBytesOfAView)
{
  const ZELString text(std::string_view("data.txt", 4));
  EXPECT_EQ(text.GetLength(), 4);
  EXPECT_STREQ(text.GetText(), "data");
}

TEST(ZELStringTest, KeepsAZeroWithin)
{
  const std::string_view bytes("a\0b", 3);
  EXPECT_EQ(ZELString(bytes).GetView(), bytes);
  EXPECT_STREQ(ZELString(bytes).GetText(), "a");
}

TEST(ZELStringTest, CopySharesTheBuffer)
{
  const ZELString text("data");
  const ZELString copy(text);
  EXPECT_EQ(copy.GetText(), text.GetText());
}

TEST(ZELStringTest, CopyOutlivesItsOrigin)
{
  auto pOrigin = std::make_unique<ZELString>("a text that stands on the heap");
  const ZELString copy(*pOrigin);
  pOrigin.reset();
  EXPECT_STREQ(copy.GetText(), "a text that stands on the heap");
}

TEST(ZELStringTest, AppendToACopyLeavesTheOriginAlone)
{
  const ZELString text("data");
  ZELString copy(text);
  copy += ".txt";
  EXPECT_STREQ(copy.GetText(), "data.txt");
  EXPECT_STREQ(text.GetText(), "data");
}

TEST(ZELStringTest, MovedFromTextIsEmpty)
{
  ZELString text("data");
  const ZELString moved(std::move(text));
  EXPECT_STREQ(moved.GetText(), "data");
  EXPECT_TRUE(text.IsEmpty()); // NOLINT: what a moved-from text is, is the point
  EXPECT_STREQ(text.GetText(), "");
}

TEST(ZELStringTest, AssignmentReplacesTheText)
{
  ZELString text("old");
  const ZELString other("new");
  text = other;
  EXPECT_STREQ(text.GetText(), "new");
  text = ZELString("newer");
  EXPECT_STREQ(text.GetText(), "newer");
}

TEST(ZELStringTest, AssignmentToItselfKeepsTheText)
{
  ZELString text("data");
  const ZELString& same = text;
  text = same;
  EXPECT_STREQ(text.GetText(), "data");
}

TEST(ZELStringTest, AppendsItself)
{
  ZELString text("ab");
  text += text;
  text += text;
  text += text;
  EXPECT_STREQ(text.GetText(), "abababababababab");
}

TEST(ZELStringTest, AppendsTheEmptyTextWithoutChange)
{
  ZELString text("ab");
  text += ZELString();
  EXPECT_STREQ(text.GetText(), "ab");
  ZELString empty;
  empty += ZELString();
  EXPECT_TRUE(empty.IsEmpty());
}

TEST(ZELStringTest, GrowsByManyAppends)
{
  ZELString text;
  std::string expected;
  for (int count = 0; count < 1000; ++count)
  {
    text += "xyz";
    expected += "xyz";
  }
  EXPECT_EQ(text.GetText(), expected);
}

TEST(ZELStringTest, SumHoldsBothTexts)
{
  EXPECT_STREQ((ZELString("C:") + ZELString("\\x")).GetText(), "C:\\x");
  EXPECT_STREQ((ZELString() + ZELString("x")).GetText(), "x");
  EXPECT_TRUE((ZELString() + ZELString()).IsEmpty());
}

TEST(ZELStringTest, ComparesByteForByte)
{
  EXPECT_TRUE(ZELString("ab") == ZELString("ab"));
  EXPECT_TRUE(ZELString("ab") != ZELString("aB"));
  EXPECT_TRUE(ZELString("ab") != ZELString("abc"));
  EXPECT_TRUE(ZELString() == ZELString(""));
}

TEST(ZELStringTest, OrdersBytesAsUnsigned)
{
  EXPECT_TRUE(ZELString("a") < ZELString("b"));
  EXPECT_TRUE(ZELString("a") < ZELString("ab"));
  EXPECT_TRUE(ZELString("z") < ZELString("\xE9"));
  EXPECT_FALSE(ZELString("a") < ZELString("a"));
}

TEST(ZELStringTest, ForwardSearchFindsTheFirstPlaceFromTheStart)
{
  const ZELString text("a.b.c");
  EXPECT_EQ(text.Search("."), 1);
  EXPECT_EQ(text.Search(".", 1), 1);
  EXPECT_EQ(text.Search(".", 2), 3);
  EXPECT_EQ(text.Search(".", 4), -1);
  EXPECT_EQ(text.Search("x"), -1);
}

TEST(ZELStringTest, BackwardSearchFromTheBeginningFindsTheLastPlace)
{
  EXPECT_EQ(ZELString("a\\b\\c").Search("\\", 0, ZELTextSearch::Backward), 3);
  EXPECT_EQ(ZELString("abc").Search("\\", 0, ZELTextSearch::Backward), -1);
}

TEST(ZELStringTest, BackwardSearchFromAboveTheBeginningFindsTheLastPlaceUpToIt)
{
  const ZELString text("a.b.c");
  EXPECT_EQ(text.Search(".", 3, ZELTextSearch::Backward), 3);
  EXPECT_EQ(text.Search(".", 2, ZELTextSearch::Backward), 1);
  EXPECT_EQ(text.Search("b.c", 2, ZELTextSearch::Backward), 2);
  EXPECT_EQ(text.Search("b.c", 1, ZELTextSearch::Backward), -1);
}

TEST(ZELStringTest, SearchTakesStartsOutsideTheText)
{
  const ZELString text("a.b");
  EXPECT_EQ(text.Search(".", -5), 1);
  EXPECT_EQ(text.Search(".", 50), -1);
  EXPECT_EQ(text.Search(".", 50, ZELTextSearch::Backward), 1);
  EXPECT_EQ(text.Search(".", -5, ZELTextSearch::Backward), 1);
}

TEST(ZELStringTest, EmptyTextStandsAtTheStart)
{
  const ZELString text("abc");
  EXPECT_EQ(text.Search("", 2), 2);
  EXPECT_EQ(text.Search("", 3), 3);
  EXPECT_EQ(text.Search("", 4), -1);
  EXPECT_EQ(text.Search("", -1), 0);
  EXPECT_EQ(text.Search("", 2, ZELTextSearch::Backward), 2);
  EXPECT_EQ(ZELString().Search(""), 0);
}

TEST(ZELStringTest, SearchForALongerTextFindsNothing)
{
  EXPECT_EQ(ZELString("ab").Search("abc"), -1);
  EXPECT_EQ(ZELString("ab").Search("abc", 0, ZELTextSearch::Backward), -1);
  EXPECT_EQ(ZELString().Search("a"), -1);
}

TEST(ZELStringTest, SubStringTakesTheBytesOfTheRange)
{
  EXPECT_STREQ(ZELString("abcdef").SubString(2, 3).GetText(), "cde");
  EXPECT_STREQ(ZELString("abcdef").SubString(0, 6).GetText(), "abcdef");
}

TEST(ZELStringTest, SubStringLeavesOutWhatLiesOutside)
{
  const ZELString text("abcdef");
  EXPECT_STREQ(text.SubString(4, 100).GetText(), "ef");
  EXPECT_STREQ(text.SubString(-2, 4).GetText(), "ab");
  EXPECT_STREQ(text.SubString(6, 1).GetText(), "");
  EXPECT_STREQ(text.SubString(7, 1).GetText(), "");
  EXPECT_STREQ(text.SubString(2, 0).GetText(), "");
  EXPECT_STREQ(text.SubString(2, -1).GetText(), "");
  EXPECT_STREQ(text.SubString(2, 0x7FFFFFFF).GetText(), "cdef");
}

TEST(ZELStringTest, CaseMappingTouchesTheAlphabetOnly)
{
  EXPECT_STREQ(ZELString("aZ@[`{1\xE9").ToUpper().GetText(), "AZ@[`{1\xE9");
  EXPECT_STREQ(ZELString("aZ@[`{1\xC9").ToLower().GetText(), "az@[`{1\xC9");
  EXPECT_TRUE(ZELString().ToUpper().IsEmpty());
}

TEST(ZELStringTest, EqualTextsHaveEqualHashes)
{
  for (std::size_t length = 0; length < 70; ++length)
  {
    const std::string bytes(length, 'k');
    EXPECT_EQ(ZELString(bytes).ComputeHashKey(), (ZELString("_" + bytes)).SubString(1, 100).ComputeHashKey());
    EXPECT_EQ(ZELString(bytes).ComputeHashKey(), ZELTextHash(bytes));
  }
}

TEST(ZELStringTest, EveryByteOfATextCountsInItsHash)
{
  for (std::size_t length = 1; length < 70; ++length)
  {
    const std::string bytes(length, 'k');
    std::set<int> hashes{ZELTextHash(bytes)};
    for (std::size_t at = 0; at < length; ++at)
    {
      std::string changed = bytes;
      changed[at] = 'l';
      hashes.insert(ZELTextHash(changed));
    }
    EXPECT_EQ(hashes.size(), length + 1) << length;
  }
}

TEST(ZELStringTest, HashTellsZerosApartByTheirNumber)
{
  std::set<int> hashes;
  for (std::size_t length = 0; length < 70; ++length)
    hashes.insert(ZELTextHash(std::string(length, '\0')));
  EXPECT_EQ(hashes.size(), 70u);
}

namespace
{
// How many of i_buckets stay empty when numbered keys are put where some ten bits of their hash say.
int CountEmptyBuckets(unsigned i_shift)
{
  std::vector<int> buckets(1024);
  for (int key = 0; key < 10240; ++key)
    ++buckets[(static_cast<unsigned>(ZELTextHash("some/directory/name" + std::to_string(10000 + key))) >> i_shift) & 1023];
  int empty = 0;
  for (const int count : buckets)
    empty += count == 0;
  return empty;
}
} // namespace

TEST(ZELStringTest, HashIsSpreadOverAllItsBits)
{
  // Ten keys a bucket leave 0.05 of 1,024 buckets empty on average when they fall at random.
  for (unsigned shift = 0; shift <= 22; ++shift)
    EXPECT_LE(CountEmptyBuckets(shift), 3) << shift;
}

TEST(ZELStringTest, CopiesOfOneTextServeManyThreads)
{
  const ZELString text("a text that stands on the heap");
  std::vector<std::thread> threads;
  std::vector<int> lengths(4);
  for (int& length : lengths)
    threads.emplace_back(
        [&length, copy = text]
        {
          for (int count = 0; count < 10000; ++count)
          {
            ZELString own(copy);
            own += "!";
            length = own.GetLength();
          }
        });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(lengths, std::vector<int>(4, 31));
  EXPECT_STREQ(text.GetText(), "a text that stands on the heap");
}
