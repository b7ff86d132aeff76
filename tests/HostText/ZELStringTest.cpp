#include "ZELString.h"

#include <gtest/gtest.h>

TEST(ZELStringTest, NullTextGivesTheEmptyString)
{
  const ZELString text(static_cast<const char*>(nullptr));
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_STREQ(text.GetText(), "");
}
