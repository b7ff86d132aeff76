#include "OPXCoreServices.h"
#include "ZELUnicodeString.h"

#include <gmock/gmock.h>

TEST(OPXCoreServices, SeesNoDebuggerWhereThereIsNone)
{
  EXPECT_FALSE(OPXCoreServices::IsDebuggerPresent());
}

TEST(OPXCoreServices, ConvertsATextUpToItsFirstZero)
{
  EXPECT_EQ(OPXCoreServices::StdStringFromZELUnicodeString(ZELUnicodeString("name")), "name");
  EXPECT_EQ(OPXCoreServices::StdStringFromZELUnicodeString(ZELUnicodeString()), "");
  const ZELUnicodeString withZero = ZELUnicodeString::FromUTF8(std::string_view("ab\0cd", 5));
  EXPECT_EQ(OPXCoreServices::StdStringFromZELUnicodeString(withZero), "ab");
}
