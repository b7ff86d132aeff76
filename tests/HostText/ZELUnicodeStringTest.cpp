#include "ZELUnicodeString.h"
#include "NarrowTexts.h"
#include "ZELString.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace
{
ZELUnicodeString Text(std::string_view i_utf8)
{
  return ZELUnicodeString::FromUTF8(i_utf8);
}

// e with an acute accent (two bytes), the euro (three), a face (four), a lone high surrogate, a byte that is none.
const char* const Mixed = "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xED\xA0\x80\xFF";
} // namespace

TEST(ZELUnicodeStringTest, StartsEmpty)
{
  const ZELUnicodeString text;
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(text.GetLength(), 0);
  EXPECT_EQ(text.GetUTF8(), "");
  EXPECT_STREQ(text.GetNarrow(), "");
  EXPECT_TRUE(text.IsValidUTF8());
}

TEST(ZELUnicodeStringTest, NullTextGivesTheEmptyString)
{
  EXPECT_TRUE(ZELUnicodeString(static_cast<const char*>(nullptr)).IsEmpty());
}

TEST(ZELUnicodeStringTest, TakesTheNarrowText)
{
  EXPECT_EQ(ZELUnicodeString(NarrowTexts::Cafe), Text("caf\xC3\xA9"));
  EXPECT_EQ(ZELUnicodeString(ZELString(NarrowTexts::Cafe)), Text("caf\xC3\xA9"));
  EXPECT_EQ(ZELUnicodeString(NarrowTexts::Cafe).GetLength(), 4);
}

TEST(ZELUnicodeStringTest, GivesTheNarrowText)
{
  EXPECT_STREQ(Text("caf\xC3\xA9").GetNarrow(), NarrowTexts::Cafe);
  EXPECT_STREQ(Text("caf\xC3\xA9").ToNarrow().GetText(), NarrowTexts::Cafe);
  EXPECT_STREQ(Text("cafe").GetNarrow(), "cafe");
  EXPECT_STREQ(Text("cafe").ToNarrow().GetText(), "cafe");
}

TEST(ZELUnicodeStringTest, CharacterThatTheCodePageLacksBecomesItsReplacement)
{
  EXPECT_STREQ(Text("\xE2\x88\x9E").GetNarrow(), NarrowTexts::Infinity);
}

TEST(ZELUnicodeStringTest, BrokenByteStandsInTheNarrowTextAsItIs)
{
  EXPECT_STREQ(Text("a\xFF").GetNarrow(), "a\xFF");
  EXPECT_EQ(Text("\xFF\xC3\xA9\x80").ToNarrow().GetText(), "\xFF" + std::string(NarrowTexts::Cafe).substr(3) + "\x80");
}

TEST(ZELUnicodeStringTest, NarrowTextStaysWhileTheValueIsUnchanged)
{
  const ZELUnicodeString text = Text("caf\xC3\xA9");
  const char* const narrow = text.GetNarrow();
  EXPECT_EQ(text.GetNarrow(), narrow);
  {
    const ZELUnicodeString copy(text);
    EXPECT_STREQ(copy.GetNarrow(), narrow);
  }
  EXPECT_STREQ(narrow, NarrowTexts::Cafe);
}

TEST(ZELUnicodeStringTest, NarrowTextFollowsAChange)
{
  ZELUnicodeString text = Text("/caf\xC3\xA9");
  EXPECT_STREQ(text.GetNarrow(), (std::string("/") + NarrowTexts::Cafe).c_str());
  text.Replace('/', '\\');
  EXPECT_STREQ(text.GetNarrow(), (std::string("\\") + NarrowTexts::Cafe).c_str());
  text += "!";
  EXPECT_STREQ(text.GetNarrow(), (std::string("\\") + NarrowTexts::Cafe + "!").c_str());
  text += "!";
  EXPECT_STREQ(text.GetNarrow(), (std::string("\\") + NarrowTexts::Cafe + "!!").c_str());
}

TEST(ZELUnicodeStringTest, CopiesMayAskForTheNarrowTextOnManyThreads)
{
  const ZELUnicodeString text = Text("caf\xC3\xA9");
  std::vector<std::thread> threads;
  std::vector<std::string> narrow(4);
  for (std::string& own : narrow)
    threads.emplace_back([&own, copy = text] { own = copy.GetNarrow(); });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(narrow, std::vector<std::string>(4, NarrowTexts::Cafe));
}

TEST(ZELUnicodeStringTest, CopySharesTheBuffer)
{
  const ZELUnicodeString text("data");
  const ZELUnicodeString copy(text);
  EXPECT_EQ(copy.GetUTF8().data(), text.GetUTF8().data());
  EXPECT_EQ(text.ToNarrow().GetText(), text.GetUTF8().data());
}

TEST(ZELUnicodeStringTest, ChangedCopyLeavesTheOriginAlone)
{
  const ZELUnicodeString text("a/b");
  ZELUnicodeString replaced(text);
  replaced.Replace('/', '\\');
  ZELUnicodeString appended(text);
  appended += "!";
  EXPECT_EQ(replaced, ZELUnicodeString("a\\b"));
  EXPECT_EQ(appended, ZELUnicodeString("a/b!"));
  EXPECT_EQ(text, ZELUnicodeString("a/b"));
}

TEST(ZELUnicodeStringTest, MovedFromTextIsEmpty)
{
  ZELUnicodeString text("data");
  const ZELUnicodeString moved(std::move(text));
  EXPECT_EQ(moved.GetLength(), 4);
  EXPECT_TRUE(text.IsEmpty()); // NOLINT: what a moved-from text is, is the point
  EXPECT_EQ(text.GetLength(), 0);
}

TEST(ZELUnicodeStringTest, LengthCountsCharacters)
{
  EXPECT_EQ(Text("caf\xC3\xA9").GetLength(), 4);
  EXPECT_EQ(Text(Mixed).GetLength(), 5);
  EXPECT_EQ(Text("12345678\xE2\x82\xAC").GetLength(), 9);
}

TEST(ZELUnicodeStringTest, EachBrokenByteIsOneCharacter)
{
  EXPECT_EQ(Text("\xFF\xFE").GetLength(), 2);
  EXPECT_EQ(Text("\xE2\x82").GetLength(), 2);         // A character cut off at the end.
  EXPECT_EQ(Text("\xE2\x82z").GetLength(), 3);        // A character cut off by another.
  EXPECT_EQ(Text("\xC0\xAF").GetLength(), 2);         // A slash in two bytes.
  EXPECT_EQ(Text("\xE0\x80\xAF").GetLength(), 3);     // A slash in three bytes.
  EXPECT_EQ(Text("\xF4\x90\x80\x80").GetLength(), 4); // Above the last character.
  EXPECT_EQ(Text("\x80\x80\x80\x80").GetLength(), 4); // Continuations of nothing.
}

TEST(ZELUnicodeStringTest, ValidTextIsWhatEveryReaderAccepts)
{
  EXPECT_TRUE(Text("plain").IsValidUTF8());
  EXPECT_TRUE(Text("\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80").IsValidUTF8());
  EXPECT_TRUE(Text("\xF4\x8F\xBF\xBF").IsValidUTF8());
  EXPECT_FALSE(Text("plain\xFF").IsValidUTF8());
  EXPECT_FALSE(Text("\xED\xA0\x80").IsValidUTF8());
  EXPECT_FALSE(Text("\xED\xBF\xBF").IsValidUTF8());
  EXPECT_FALSE(Text("\xC0\xAF").IsValidUTF8());
  EXPECT_FALSE(Text("\xF4\x90\x80\x80").IsValidUTF8());
  EXPECT_FALSE(Text("12345678\xE2\x82").IsValidUTF8());
}

TEST(ZELUnicodeStringTest, GoesToUTF16AndBack)
{
  const std::u16string units = u"a\u00E9\u20AC\U0001F600\uFFFF";
  const ZELUnicodeString text = ZELUnicodeString::FromUTF16(units);
  EXPECT_EQ(text.GetUTF8(), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xEF\xBF\xBF");
  EXPECT_EQ(text.GetLength(), 5);
  EXPECT_EQ(text.ToUTF16(), units);
}

TEST(ZELUnicodeStringTest, LoneSurrogatesSurviveTheirWayThroughTheText)
{
  const char16_t units[] = {0xDC00, u'a', 0xD800, 0xD800, 0xDC00, 0xDC00, 0xDBFF};
  const std::u16string name(units, 7);
  const ZELUnicodeString text = ZELUnicodeString::FromUTF16(name);
  EXPECT_EQ(text.ToUTF16(), name);
  EXPECT_EQ(text.GetLength(), 6);
  EXPECT_EQ(text.ToUpper().ToLower().ToUTF16(), name);
}

TEST(ZELUnicodeStringTest, BrokenByteBecomesTheReplacementCharacterInUTF16)
{
  EXPECT_EQ(Text("a\xFFz").ToUTF16(), u"a\uFFFDz");
}

TEST(ZELUnicodeStringTest, EmptyUTF16GivesTheEmptyText)
{
  EXPECT_TRUE(ZELUnicodeString::FromUTF16({}).IsEmpty());
  EXPECT_TRUE(ZELUnicodeString().ToUTF16().empty());
}

TEST(ZELUnicodeStringTest, JoinHoldsItsPartsInOrder)
{
  const ZELUnicodeString text = ZELUnicodeString::Join("C:\\data", "\\", "caf\xC3\xA9");
  EXPECT_EQ(text.GetUTF8(), "C:\\data\\caf\xC3\xA9");
  EXPECT_EQ(text.GetLength(), 12);
  EXPECT_TRUE(ZELUnicodeString::Join({}, {}, {}).IsEmpty());
  EXPECT_EQ(ZELUnicodeString::Join({}, "x", {}).GetUTF8(), "x");
}

TEST(ZELUnicodeStringTest, SumHoldsBothTexts)
{
  EXPECT_EQ((ZELUnicodeString("a") + Text("\xC3\xA9")).GetUTF8(), "a\xC3\xA9");
  EXPECT_TRUE((ZELUnicodeString() + ZELUnicodeString()).IsEmpty());
}

TEST(ZELUnicodeStringTest, AppendCountsCharacters)
{
  ZELUnicodeString text("a");
  text += Text("\xC3\xA9");
  text += Text("\xE2\x82\xAC");
  text += ZELUnicodeString();
  EXPECT_EQ(text.GetUTF8(), "a\xC3\xA9\xE2\x82\xAC");
  EXPECT_EQ(text.GetLength(), 3);
}

TEST(ZELUnicodeStringTest, AppendsItself)
{
  ZELUnicodeString text = Text("a\xC3\xA9");
  text += text;
  text += text;
  EXPECT_EQ(text.GetUTF8(), "a\xC3\xA9\x61\xC3\xA9\x61\xC3\xA9\x61\xC3\xA9");
  EXPECT_EQ(text.GetLength(), 8);
}

TEST(ZELUnicodeStringTest, HalvesOfACharacterBecomeItWhenTheyMeet)
{
  ZELUnicodeString text = Text("\xE2\x82");
  EXPECT_EQ(text.GetLength(), 2);
  text += Text("\xAC");
  EXPECT_EQ(text.GetLength(), 1);
  EXPECT_EQ((Text("\xE2\x82") + Text("\xAC")).GetLength(), 1);
  EXPECT_TRUE(text.IsValidUTF8());
}

TEST(ZELUnicodeStringTest, OrdersByCodePoint)
{
  EXPECT_TRUE(Text("z") < Text("\xC3\xA9"));
  EXPECT_TRUE(Text("\xEF\xBF\xBF") < Text("\xF0\x9F\x98\x80"));
  EXPECT_TRUE(Text("a") < Text("ab"));
  EXPECT_FALSE(Text("a") < Text("a"));
  EXPECT_TRUE(Text("a") != Text("A"));
}

TEST(ZELUnicodeStringTest, SearchAnswersCharacters)
{
  const ZELUnicodeString text = Text("\xC3\xA9\\\xE2\x82\xAC\\x");
  EXPECT_EQ(text.Search("\\"), 1);
  EXPECT_EQ(text.Search("\\", 2), 3);
  EXPECT_EQ(text.Search("\\", 4), -1);
  EXPECT_EQ(text.Search("\\", 0, ZELTextSearch::Backward), 3);
  EXPECT_EQ(text.Search("\\", 2, ZELTextSearch::Backward), 1);
  EXPECT_EQ(text.Search("\\", 3, ZELTextSearch::Backward), 3);
  EXPECT_EQ(text.Search("x", 3, ZELTextSearch::Backward), -1);
  EXPECT_EQ(text.Search(Text("\xE2\x82\xAC")), 2);
  EXPECT_EQ(text.Search("y"), -1);
}

TEST(ZELUnicodeStringTest, BackwardSearchFromTheBeginningFindsTheLastSeparator)
{
  EXPECT_EQ(ZELUnicodeString("C:\\a\\b").Search("\\", 0, ZELTextSearch::Backward), 4);
  EXPECT_EQ(ZELUnicodeString("file").Search("\\", 0, ZELTextSearch::Backward), -1);
  EXPECT_EQ(ZELUnicodeString("\\x").Search("\\", 0, ZELTextSearch::Backward), 0);
}

TEST(ZELUnicodeStringTest, SearchFindsWholeCharactersOnly)
{
  const ZELUnicodeString text = Text("\xC3\xA9z\xA9");
  EXPECT_EQ(text.Search(Text("\xA9")), 2);
  EXPECT_EQ(text.Search(Text("\xC3")), -1);
  EXPECT_EQ(text.Search(Text("\xA9"), 1, ZELTextSearch::Backward), -1);
  EXPECT_EQ(Text("\xE2\x82\xAC").Search(Text("\xE2\x82")), -1);
}

TEST(ZELUnicodeStringTest, EmptyTextStandsAtTheStart)
{
  const ZELUnicodeString text = Text("\xC3\xA9\xC3\xA9");
  EXPECT_EQ(text.Search("", 1), 1);
  EXPECT_EQ(text.Search("", 2), 2);
  EXPECT_EQ(text.Search("", 3), -1);
  EXPECT_EQ(text.Search("", -3), 0);
  EXPECT_EQ(ZELUnicodeString("ab").Search("", 3, ZELTextSearch::Backward), -1);
}

TEST(ZELUnicodeStringTest, SearchTakesStartsOutsideTheText)
{
  const ZELUnicodeString text = Text("\xC3\xA9.b");
  EXPECT_EQ(text.Search(".", -5), 1);
  EXPECT_EQ(text.Search(".", 50), -1);
  EXPECT_EQ(text.Search(".", 50, ZELTextSearch::Backward), 1);
  EXPECT_EQ(text.Search(".", -5, ZELTextSearch::Backward), 1);
}

TEST(ZELUnicodeStringTest, SubStringTakesTheCharactersOfTheRange)
{
  EXPECT_EQ(Text(Mixed).SubString(1, 2).GetUTF8(), "\xE2\x82\xAC\xF0\x9F\x98\x80");
  EXPECT_EQ(Text(Mixed).SubString(1, 2).GetLength(), 2);
  EXPECT_EQ(Text(Mixed).SubString(3, 1).GetUTF8(), "\xED\xA0\x80");
  EXPECT_EQ(Text(Mixed).SubString(4, 1).GetUTF8(), "\xFF");
  EXPECT_EQ(ZELUnicodeString("abc").SubString(1, 1).GetUTF8(), "b");
}

TEST(ZELUnicodeStringTest, SubStringLeavesOutWhatLiesOutside)
{
  const ZELUnicodeString text = Text("\xC3\xA9z\xE2\x82\xAC");
  EXPECT_EQ(text.SubString(1, 100).GetUTF8(), "z\xE2\x82\xAC");
  EXPECT_EQ(text.SubString(-1, 2).GetUTF8(), "\xC3\xA9");
  EXPECT_TRUE(text.SubString(3, 1).IsEmpty());
  EXPECT_TRUE(text.SubString(50, 1).IsEmpty());
  EXPECT_TRUE(text.SubString(1, -1).IsEmpty());
  EXPECT_EQ(text.SubString(-100, 0x7FFFFFFF), text);
}

TEST(ZELUnicodeStringTest, ReplaceChangesEveryPlace)
{
  ZELUnicodeString text = Text("/a/\xC3\xA9/");
  text.Replace('/', '\\');
  EXPECT_EQ(text.GetUTF8(), "\\a\\\xC3\xA9\\");
  EXPECT_EQ(text.GetLength(), 5);
}

TEST(ZELUnicodeStringTest, ReplaceOfNothingKeepsTheSharedBuffer)
{
  const ZELUnicodeString text("data");
  ZELUnicodeString copy(text);
  copy.Replace('/', '\\');
  EXPECT_EQ(copy.GetUTF8().data(), text.GetUTF8().data());
}

TEST(ZELUnicodeStringTest, ReplaceLeavesBytesOfCharactersAlone)
{
  ZELUnicodeString text = Text("\xC3\xA9z");
  text.Replace('\xA9', 'x');
  text.Replace('z', '\xA9');
  EXPECT_EQ(text.GetUTF8(), "\xC3\xA9z");
}

TEST(ZELUnicodeStringTest, CaseMappingKnowsEveryAlphabet)
{
  // Latin, Greek and Cyrillic.
  EXPECT_EQ(Text("nam\xC3\xA9.\xCF\x89\xD0\xB6").ToUpper().GetUTF8(), "NAM\xC3\x89.\xCE\xA9\xD0\x96");
  EXPECT_EQ(Text("NAM\xC3\x89.\xCE\xA9\xD0\x96").ToLower().GetUTF8(), "nam\xC3\xA9.\xCF\x89\xD0\xB6");
}

TEST(ZELUnicodeStringTest, CaseMappingOfPlainTextTouchesTheAlphabetOnly)
{
  EXPECT_EQ(Text("aZ@[`{1").ToUpper().GetUTF8(), "AZ@[`{1");
  EXPECT_EQ(Text("aZ@[`{1").ToLower().GetUTF8(), "az@[`{1");
  EXPECT_TRUE(ZELUnicodeString().ToUpper().IsEmpty());
}

TEST(ZELUnicodeStringTest, CaseMappingKeepsBrokenBytes)
{
  EXPECT_EQ(Text("a\xFF\xE2\x82z").ToUpper().GetUTF8(), "A\xFF\xE2\x82Z");
  EXPECT_EQ(Text("\xC3\xA9\xFF\xED\xA0\x80\xE2\x82z").ToUpper().GetUTF8(), "\xC3\x89\xFF\xED\xA0\x80\xE2\x82Z");
}

TEST(ZELUnicodeStringTest, CaseMappingKeepsTheNumberOfCharactersEvenWhereTheirSizesDiffer)
{
  // An a with a stroke takes two bytes in upper case and three in lower case.
  const ZELUnicodeString upper = Text("\xC8\xBAX");
  EXPECT_EQ(upper.ToLower().GetUTF8(), "\xE2\xB1\xA5x");
  EXPECT_EQ(upper.ToLower().GetLength(), 2);
  EXPECT_EQ(upper.ToLower().ToUpper(), upper);
}

TEST(ZELUnicodeStringTest, EqualTextsHaveEqualHashes)
{
  EXPECT_EQ(Text(Mixed).ComputeHashKey(), (Text("\xC3\xA9") + Text(Mixed).SubString(1, 10)).ComputeHashKey());
  EXPECT_NE(Text("a").ComputeHashKey(), Text("b").ComputeHashKey());
  EXPECT_EQ(ZELUnicodeString("name").ComputeHashKey(), ZELString("name").ComputeHashKey());
}
