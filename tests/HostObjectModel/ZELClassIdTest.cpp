#include "ZELClassId.h"

#include <gtest/gtest.h>
#include <iterator>
#include <set>

namespace
{
constexpr ZELClassId Known = ZELClassId::FromText("A1FD0DB1-8269-4BEE-AF4C-9D67326E869D");
static_assert(Known._high == 0xA1FD0DB182694BEE && Known._low == 0xAF4C9D67326E869D, "a text is read when it is compiled");
static_assert(sizeof(ZELClassId) == 16, "");
} // namespace

TEST(ZELClassId, IsReadFromATextInEitherCase)
{
  EXPECT_TRUE(ZELClassId::FromText("a1fd0db1-8269-4bee-af4c-9d67326e869d") == Known);
  EXPECT_EQ(ZELClassId::FromText("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF")._low, ~0ULL);
}

TEST(ZELClassId, AnyOtherTextGivesTheNullId)
{
  const char* const wrong[] = {nullptr,
                               "",
                               "A1FD0DB1",
                               "A1FD0DB1-8269-4BEE-AF4C-9D67326E869",
                               "A1FD0DB1-8269-4BEE-AF4C-9D67326E869D0",
                               "A1FD0DB1-8269-4BEE-AF4C-9D67326E869G",
                               "A1FD0DB1-8269-4BEE-AF4C-9D67326E869@",
                               "A1FD0DB1-8269-4BEE-AF4C-9D67326E869`",
                               "A1FD0DB1 8269-4BEE-AF4C-9D67326E869D",
                               "A1FD0DB1-8269-4BEE-AF4C--D67326E869D",
                               "{A1FD0DB1-8269-4BEE-AF4C-9D67326E869D}"};
  for (const char* pText : wrong)
    EXPECT_TRUE(ZELClassId::FromText(pText).IsNull()) << (pText ? pText : "null");
  EXPECT_FALSE(Known.IsNull());
}

TEST(ZELClassId, IsOrderedAsItsText)
{
  const char* const ascending[] = {"00000000-0000-0000-0000-000000000000", "00000000-0000-0000-0000-000000000001",
                                   "00000000-0000-0000-8000-000000000000", "00000000-0000-0001-0000-000000000000",
                                   "80000000-0000-0000-0000-000000000000"};
  for (const char** pText = const_cast<const char**>(ascending); pText + 1 != std::end(ascending); ++pText)
  {
    EXPECT_TRUE(ZELClassId::FromText(pText[0]) < ZELClassId::FromText(pText[1]));
    EXPECT_FALSE(ZELClassId::FromText(pText[1]) < ZELClassId::FromText(pText[0]));
  }
  EXPECT_FALSE(Known < Known);
}

TEST(ZELClassId, OfANameIsTheSameInEveryRunAndOnEveryPlatform)
{
  constexpr ZELClassId id = ZELClassId::FromName("ZELBaseUnknown");
  EXPECT_EQ(id._high, 0xE9838AF28F535F65U);
  EXPECT_EQ(id._low, 0x10B1368097D12955U);
  EXPECT_TRUE(id == ZELClassId::FromName("ZELBaseUnknown"));
  EXPECT_TRUE(id != ZELClassId::FromName("ZELBaseUnknowm"));
}

TEST(ZELClassId, OfManyNamesAreAllDifferent)
{
  std::set<ZELClassId> ids;
  for (int number = 0; number < 100000; ++number)
    ids.insert(ZELClassId::FromName(("Class" + std::to_string(number)).c_str()));
  EXPECT_EQ(ids.size(), 100000u);
}
