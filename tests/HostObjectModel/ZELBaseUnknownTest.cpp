#include "ZELBaseUnknown_var.h"
#include "ZELSysDynamicCast.h"

#include <gtest/gtest.h>

namespace
{
class Thing : public ZELBaseUnknown
{
  ZELDeclareClass;
};
class Cup : public Thing
{
  ZELDeclareClass;
};
ZELImplementClass(Thing, ZELBaseUnknown, Kitchen);
ZELImplementCreatableClass(Cup, Thing, Kitchen);

TEST(ZELBaseUnknown, AnObjectKnowsItsClass)
{
  Cup cup;
  EXPECT_STREQ(cup.IsA(), "Cup");
  EXPECT_TRUE(cup.IsAKindOf("Thing"));
  EXPECT_TRUE(cup.IsAKindOf(ZELBaseUnknown::MetaObject()));
  EXPECT_FALSE(Thing().IsAKindOf(Cup::MetaObject()));
  EXPECT_EQ(ZELMetaClass::Find("Cup"), Cup::MetaObject());
  EXPECT_EQ(ZELSysDynamicCast<Cup>(&cup), &cup);
}

TEST(ZELBaseUnknown, ReleaseAnswersTheCountThatIsLeft)
{
  ZELBaseUnknown* pCup = Cup::CreateItself();
  ZELBaseUnknown_var held(pCup);
  EXPECT_EQ(pCup->Release(), 1);
  EXPECT_EQ(held->AddRef(), 2);
  EXPECT_EQ(held->Release(), 1);
}
} // namespace
