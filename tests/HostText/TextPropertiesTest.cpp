// What holds for texts of any bytes, tried on many.
#include "ZELUnicodeString.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>

namespace
{
// Pieces that make whole, broken and completed characters likely.
const char* const Pieces[] = {"a",        "Z",        "\\",   "0123456789", "\xC3\xA9", "\xC3", "\xA9", "\xE2\x82\xAC",     "\xE2",
                              "\xE2\x82", "\xED\xA0", "\x80", "\xF0\x9F",   "\x98",     "\xFF", "\xC0", "\xF0\x9F\x98\x80", "\xC8\xBA"};

class TextPropertiesTest : public testing::Test
{
protected:
  int Draw(int i_below) { return static_cast<int>(_random() % static_cast<unsigned>(i_below)); }

  ZELUnicodeString DrawText(int i_maximum)
  {
    std::string bytes;
    for (int count = Draw(i_maximum + 1); count > 0; --count)
      bytes += Draw(4) != 0 ? Pieces[Draw(18)] : std::string(1, static_cast<char>(Draw(256)));
    return ZELUnicodeString::FromUTF8(bytes);
  }

  std::mt19937 _random{20240229};
};

// Whether i_part is what stands at i_position, character by character.
bool StandsAt(const ZELUnicodeString& i_text, const ZELUnicodeString& i_part, int i_position)
{
  for (int at = 0; at < i_part.GetLength(); ++at)
    if (i_text.SubString(i_position + at, 1) != i_part.SubString(at, 1))
      return false;
  return true;
}

int SearchNaively(const ZELUnicodeString& i_text, const ZELUnicodeString& i_part, int i_start, ZELTextSearch i_mode)
{
  if (i_part.IsEmpty())
    return i_start <= i_text.GetLength() ? i_start : -1;
  const bool isForward = i_mode == ZELTextSearch::Forward;
  int found = -1;
  for (int at = 0; at + i_part.GetLength() <= i_text.GetLength(); ++at)
  {
    const bool isInRange = isForward ? at >= i_start && found < 0 : i_start == 0 || at <= i_start;
    if (isInRange && StandsAt(i_text, i_part, at))
      found = at;
  }
  return found;
}
} // namespace

TEST_F(TextPropertiesTest, PiecesOfATextMakeTheText)
{
  for (int round = 0; round < 3000; ++round)
  {
    const ZELUnicodeString text = DrawText(12);
    ZELUnicodeString sum;
    for (int at = 0, length; at < text.GetLength(); at += length)
      sum += text.SubString(at, length = 1 + Draw(3));
    ASSERT_EQ(sum.GetUTF8(), text.GetUTF8());
    ASSERT_EQ(sum.GetLength(), text.GetLength());
  }
}

TEST_F(TextPropertiesTest, LengthDoesNotDependOnHowATextWasMade)
{
  for (int round = 0; round < 3000; ++round)
  {
    const ZELUnicodeString first = DrawText(4), second = DrawText(4), third = DrawText(4);
    ZELUnicodeString appended(first);
    appended += second;
    appended += third;
    const ZELUnicodeString joined = ZELUnicodeString::Join(first.GetUTF8(), second.GetUTF8(), third.GetUTF8());
    const ZELUnicodeString taken =
        ZELUnicodeString::FromUTF8(std::string(first.GetUTF8()).append(second.GetUTF8()).append(third.GetUTF8()));
    for (const ZELUnicodeString& text : {appended, joined, first + second + third})
    {
      ASSERT_EQ(text, taken);
      ASSERT_EQ(text.GetLength(), taken.GetLength());
      ASSERT_EQ(text.ComputeHashKey(), taken.ComputeHashKey());
    }
  }
}

TEST_F(TextPropertiesTest, SearchAgreesWithANaiveOne)
{
  for (int round = 0; round < 3000; ++round)
  {
    const ZELUnicodeString text = DrawText(8);
    const ZELUnicodeString part = Draw(2) != 0 ? DrawText(1) : text.SubString(Draw(8), 1 + Draw(2));
    const int start = Draw(text.GetLength() + 3);
    for (const ZELTextSearch mode : {ZELTextSearch::Forward, ZELTextSearch::Backward})
      ASSERT_EQ(text.Search(part, start, mode), SearchNaively(text, part, start, mode))
          << testing::PrintToString(std::string(text.GetUTF8())) << testing::PrintToString(std::string(part.GetUTF8())) << start;
  }
}

TEST_F(TextPropertiesTest, CaseMappingKeepsLengthAndIsDoneOnce)
{
  for (int round = 0; round < 3000; ++round)
  {
    const ZELUnicodeString text = DrawText(12);
    const ZELUnicodeString upper = text.ToUpper();
    ASSERT_EQ(upper.GetLength(), text.GetLength());
    ASSERT_EQ(ZELUnicodeString::FromUTF8(upper.GetUTF8()).GetLength(), upper.GetLength());
    ASSERT_EQ(upper.ToUpper(), upper);
    ASSERT_EQ(text.ToLower().ToLower(), text.ToLower());
  }
}

TEST_F(TextPropertiesTest, EveryCharacterIsMappedOnceAndSurvivesUTF16)
{
  std::u16string units;
  for (std::uint32_t unit = 0; unit < 0x10000; ++unit)
    units += static_cast<char16_t>(unit < 0xD800 || unit > 0xDFFF ? unit : 0xFFFD);
  for (std::uint32_t character = 0x10000; character < 0x110000; ++character)
  {
    units += static_cast<char16_t>(0xD7C0 + (character >> 10));
    units += static_cast<char16_t>(0xDC00 | (character & 0x3FF));
  }
  const ZELUnicodeString text = ZELUnicodeString::FromUTF16(units);
  EXPECT_EQ(text.GetLength(), 0x110000);
  EXPECT_TRUE(text.IsValidUTF8());
  EXPECT_TRUE(text.ToUTF16() == units);
  const ZELUnicodeString upper = text.ToUpper();
  EXPECT_TRUE(upper.IsValidUTF8());
  EXPECT_TRUE(upper.ToUpper() == upper);
  EXPECT_TRUE(upper.ToLower().ToLower() == upper.ToLower());
}

TEST_F(TextPropertiesTest, TextsSurviveUTF16UnlessTheyHoldBrokenBytes)
{
  for (int round = 0; round < 3000; ++round)
  {
    std::u16string units;
    for (int count = Draw(10); count > 0; --count)
      units += static_cast<char16_t>(Draw(2) != 0 ? 0xD800 + Draw(0x800) : Draw(0x10000));
    ASSERT_EQ(ZELUnicodeString::FromUTF16(units).ToUTF16(), units);
  }
}
