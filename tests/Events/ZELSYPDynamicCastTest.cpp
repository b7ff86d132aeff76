#include "ZELSYPDynamicCast.h"

#include "EventWorld.h"

#include <gtest/gtest.h>

TEST(ZELSYPDynamicCastTest, ObjectOfTheClassOrOfADerivedOneIsAnswered)
{
  Door door;
  EXPECT_EQ(&door, SYPDynamicCast(Door::MetaObject(), &door));
  EXPECT_EQ(&door, SYPDynamicCast(ZELBaseUnknown::MetaObject(), &door));
  EXPECT_EQ(&door, SYPEventDynamicCast(Door::MetaObject(), &door));
}

TEST(ZELSYPDynamicCastTest, ObjectOfAnUnrelatedClassIsNot)
{
  Door door;
  EXPECT_EQ(nullptr, SYPDynamicCast(Gate::MetaObject(), &door));
  EXPECT_EQ(nullptr, SYPEventDynamicCast(Gate::MetaObject(), &door));
}

TEST(ZELSYPDynamicCastTest, ObjectOfABaseClassIsNot)
{
  ZELBaseUnknown object;
  EXPECT_EQ(nullptr, SYPDynamicCast(Door::MetaObject(), &object));
}

TEST(ZELSYPDynamicCastTest, NullIsNoKindOfAnything)
{
  Door door;
  EXPECT_EQ(nullptr, SYPDynamicCast(nullptr, &door));
  EXPECT_EQ(nullptr, SYPDynamicCast(Door::MetaObject(), nullptr));
}

TEST(ZELSYPDynamicCastTest, NoReferenceIsAdded)
{
  const auto door = ZELHandle<Door>::Adopt(new Door);
  SYPDynamicCast(Door::MetaObject(), door.Get());
  EXPECT_EQ(1, CountReferences(door.Get()));
}
