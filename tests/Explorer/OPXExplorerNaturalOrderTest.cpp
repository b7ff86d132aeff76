#include "OPXExplorerNaturalOrder.h"

#include <gtest/gtest.h>

namespace
{
std::string Key(std::string_view i_name)
{
  std::string key;
  OPXExplorerNaturalOrder::AppendKey(i_name, key);
  return key;
}

void ExpectOrder(std::initializer_list<std::string_view> i_names)
{
  for (const auto* pName = i_names.begin() + 1; pName != i_names.end(); ++pName)
    EXPECT_LT(Key(pName[-1]), Key(*pName)) << pName[-1] << " " << *pName;
}
} // namespace

TEST(OPXExplorerNaturalOrderTest, ARunOfDigitsCountsAsANumber)
{
  ExpectOrder({"file1", "file2", "file10", "file010a", "file100"});
}

TEST(OPXExplorerNaturalOrderTest, NumbersMayBeLongerThanAnyInteger)
{
  ExpectOrder({"a99999999999999999999999999999", "a100000000000000000000000000000"});
}

TEST(OPXExplorerNaturalOrderTest, CaseAndLeadingZerosDoNotCount)
{
  EXPECT_EQ(Key("FILE01"), Key("file1"));
  EXPECT_EQ(Key("0"), Key("000"));
  EXPECT_EQ(Key("\xC3\x89t\xC3\xA9"), Key("\xC3\xA9T\xC3\x89"));
}

TEST(OPXExplorerNaturalOrderTest, DigitsStandBetweenPunctuationAndLetters)
{
  ExpectOrder({"", "-", "0", "1", "9", "10", "_", "a", "a0", "b"});
}

TEST(OPXExplorerNaturalOrderTest, KeysHoldNoZeroByte)
{
  EXPECT_EQ(Key("a0b00c1\xFF" + std::string(300, '9')).find('\0'), std::string::npos);
}
