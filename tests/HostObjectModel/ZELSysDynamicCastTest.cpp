#include "ZELSysDynamicCast.h"

#include "Kitchen.h"

#include <gtest/gtest.h>

TEST(ZELSysDynamicCast, AnswersAnObjectThatIsAKindOfTheClassWithNoReferenceAdded)
{
  Mug mug;
  EXPECT_EQ(ZELSysDynamicCast(Cup::MetaObject(), &mug), &mug);
  EXPECT_EQ(ZELSysDynamicCast(Mug::MetaObject(), &mug), &mug);
  EXPECT_EQ(CountOf(&mug), 1);
}

TEST(ZELSysDynamicCast, AnswersNullForAnUnrelatedOrDerivedClass)
{
  Cup cup;
  EXPECT_EQ(ZELSysDynamicCast(Mug::MetaObject(), &cup), nullptr);
  EXPECT_EQ(ZELSysDynamicCast(Washable::MetaObject(), &cup), nullptr);
}

TEST(ZELSysDynamicCast, AnswersNullForNoObjectAndForNoClass)
{
  Cup cup;
  EXPECT_EQ(ZELSysDynamicCast(Cup::MetaObject(), nullptr), nullptr);
  EXPECT_EQ(ZELSysDynamicCast(nullptr, &cup), nullptr);
  EXPECT_EQ(ZELSysDynamicCast(nullptr, nullptr), nullptr);
  EXPECT_EQ(ZELSysDynamicCast<Cup>(nullptr), nullptr);
}

TEST(ZELSysDynamicCast, AnswersATypedPointerWhereverItsCountedPartBegins)
{
  Plate plate;
  ZELBaseUnknown* const pUnknown = &plate;
  EXPECT_EQ(ZELSysDynamicCast<Plate>(pUnknown), &plate);
  EXPECT_EQ(ZELSysDynamicCast<Washable>(pUnknown), &plate);
  EXPECT_EQ(ZELSysDynamicCast<Cup>(pUnknown), nullptr);
}
