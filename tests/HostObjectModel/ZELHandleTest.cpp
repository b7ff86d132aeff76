#include "ZELHandle.h"

#include "Kitchen.h"
#include "ZELSYPArray.h"

#include <gtest/gtest.h>
#include <utility>

namespace
{
static_assert(sizeof(ZELBaseUnknown_var) == sizeof(void*), "a handle is a pointer");
static_assert(std::is_nothrow_move_constructible_v<ZELBaseUnknown_var> && std::is_nothrow_move_assignable_v<ZELBaseUnknown_var>, "");
static_assert(!std::is_convertible_v<ZELBaseUnknown*, Washable_var>, "a question is asked on demand only");

struct Node : Thing
{
  using Thing::Thing;
  ZELHandle<Node> _next;
};

class ZELHandleTest : public testing::Test
{
protected:
  Cup _cup, _other;
  int CountOfCup() { return CountOf(&_cup); }
};
} // namespace

TEST_F(ZELHandleTest, IsNullAtFirst)
{
  const ZELBaseUnknown_var handle;
  EXPECT_EQ(handle.Get(), nullptr);
  EXPECT_FALSE(handle);
  EXPECT_TRUE(handle == NULL_var);
  EXPECT_TRUE(ZELBaseUnknown_var(NULL_var) == handle);
  EXPECT_TRUE(!ZELBaseUnknown_var(static_cast<Cup*>(nullptr)));
}

TEST_F(ZELHandleTest, HoldsOneReferenceWhileItLives)
{
  {
    const ZELBaseUnknown_var handle(&_cup);
    EXPECT_EQ(CountOfCup(), 2);
  }
  EXPECT_EQ(CountOfCup(), 1);
}

TEST_F(ZELHandleTest, LeadsToItsObject)
{
  const ZELHandle<Cup> handle(&_cup);
  EXPECT_EQ(handle.Get(), &_cup);
  EXPECT_EQ(&*handle, &_cup);
  EXPECT_STREQ(handle->IsA(), "Cup");
  const Cup* const pCup = handle;
  EXPECT_EQ(pCup, &_cup);
}

TEST_F(ZELHandleTest, CopyHoldsAReferenceOfItsOwn)
{
  const ZELBaseUnknown_var handle(&_cup);
  const ZELBaseUnknown_var copy(handle);
  EXPECT_EQ(CountOfCup(), 3);
  EXPECT_TRUE(copy == handle);
}

TEST_F(ZELHandleTest, MoveHandsTheReferenceOver)
{
  ZELBaseUnknown_var handle(&_cup);
  const ZELBaseUnknown_var moved(std::move(handle));
  EXPECT_EQ(CountOfCup(), 2);
  EXPECT_TRUE(moved == &_cup);
  EXPECT_TRUE(handle == NULL_var);
}

TEST_F(ZELHandleTest, AssignmentGivesTheReferenceOfBeforeBack)
{
  ZELBaseUnknown_var handle(&_cup);
  handle = &_other;
  EXPECT_EQ(CountOfCup(), 1);
  EXPECT_EQ(CountOf(&_other), 2);
  ZELBaseUnknown_var another(&_cup);
  handle = another;
  EXPECT_EQ(CountOfCup(), 3);
  handle = std::move(another);
  EXPECT_EQ(CountOfCup(), 2);
  handle = NULL_var;
  EXPECT_EQ(CountOfCup(), 1);
}

TEST_F(ZELHandleTest, AssignmentToItselfChangesNothing)
{
  ZELBaseUnknown_var handle(&_cup);
  ZELBaseUnknown_var& same = handle;
  handle = same;
  EXPECT_EQ(CountOfCup(), 2);
  handle = std::move(same);
  EXPECT_TRUE(handle == &_cup);
  EXPECT_EQ(CountOfCup(), 2);
}

TEST_F(ZELHandleTest, AssignmentFromWhatTheObjectOfBeforeHoldsKeepsIt)
{
  int deaths = 0;
  auto head = ZELHandle<Node>::Adopt(new Node(&deaths));
  head->_next = ZELHandle<Node>::Adopt(new Node(&deaths));
  head = head->_next;
  EXPECT_EQ(deaths, 1);
  EXPECT_EQ(CountOf(head), 1);
}

TEST_F(ZELHandleTest, AdoptTakesOverTheReferenceOfTheCaller)
{
  int deaths = 0;
  {
    const auto handle = ZELHandle<Thing>::Adopt(new Thing(&deaths));
    EXPECT_EQ(CountOf(handle), 1);
  }
  EXPECT_EQ(deaths, 1);
  EXPECT_TRUE(ZELHandle<Thing>::Adopt(nullptr) == NULL_var);
}

TEST_F(ZELHandleTest, DetachHandsTheReferenceToTheCaller)
{
  ZELBaseUnknown_var handle(&_cup);
  EXPECT_EQ(handle.Detach(), &_cup);
  EXPECT_TRUE(handle == NULL_var);
  EXPECT_EQ(CountOfCup(), 2);
  EXPECT_EQ(_cup.Release(), 1);
  EXPECT_EQ(handle.Detach(), nullptr);
}

TEST_F(ZELHandleTest, IsEqualWhenItLeadsToTheSameObject)
{
  const ZELBaseUnknown_var one(&_cup), same(&_cup), other(&_other);
  EXPECT_TRUE(one == same);
  EXPECT_FALSE(one != same);
  EXPECT_TRUE(one != other);
  EXPECT_TRUE(one == &_cup);
  EXPECT_TRUE(&_other != one);
  EXPECT_TRUE(one != nullptr);
  EXPECT_TRUE(NULL_var != one);
}

TEST_F(ZELHandleTest, OfABaseTakesAHandleOfADerivedClass)
{
  ZELHandle<Cup> cup(&_cup);
  const ZELHandle<Thing> thing = cup;
  EXPECT_TRUE(thing == &_cup);
  EXPECT_EQ(CountOfCup(), 3);
  const ZELBaseUnknown_var unknown = std::move(cup);
  EXPECT_TRUE(cup == NULL_var);
  EXPECT_EQ(CountOfCup(), 3);
  EXPECT_TRUE(unknown == thing);
}

TEST_F(ZELHandleTest, OfAnInterfaceAsksTheObjectForIt)
{
  Plate plate;
  const ZELBaseUnknown_var unknown(&plate);
  const Washable_var washable(unknown);
  ASSERT_TRUE(washable);
  EXPECT_EQ(washable->Wash(), 1);
  EXPECT_EQ(CountOf(&plate), 3);
  const ZELHandle<Plate> back(washable);
  EXPECT_EQ(back.Get(), &plate);
}

TEST_F(ZELHandleTest, OfAnInterfaceIsNullWhenTheObjectDoesNotOfferIt)
{
  const ZELBaseUnknown_var unknown(&_cup);
  EXPECT_FALSE(Washable_var(unknown));
  EXPECT_FALSE(Washable_var(&_cup));
  EXPECT_FALSE(Washable_var(ZELBaseUnknown_var()));
  EXPECT_FALSE(Washable_var(static_cast<ZELBaseUnknown*>(nullptr)));
  EXPECT_EQ(CountOfCup(), 2);
}

TEST_F(ZELHandleTest, OfAnInterfaceIsAssignedAndSetToNull)
{
  Plate plate, other;
  Washable_var washable;
  EXPECT_TRUE(washable == NULL_var);
  washable = &plate;
  EXPECT_EQ(CountOf(&plate), 2);
  washable = Washable_var(ZELBaseUnknown_var(&other));
  EXPECT_EQ(CountOf(&plate), 1);
  EXPECT_EQ(CountOf(&other), 2);
  washable = Washable_var(&_cup);
  EXPECT_TRUE(washable == NULL_var);
  washable = &plate;
  washable = NULL_var;
  EXPECT_EQ(CountOf(&plate), 1);
}

TEST_F(ZELHandleTest, OfAnInterfaceIsAnyObjectWithoutBeingAsked)
{
  Plate plate;
  const ZELHandle<Plate> known(&plate);
  const Washable_var washable = known;
  const ZELBaseUnknown_var unknown = washable;
  EXPECT_TRUE(washable == known);
  EXPECT_TRUE(unknown == washable);
  EXPECT_TRUE(Washable_var(&plate) == washable);
  EXPECT_TRUE(Washable_var(unknown) == washable);
  EXPECT_TRUE(unknown != &_cup);
  EXPECT_EQ(CountOf(&plate), 4);
}

TEST_F(ZELHandleTest, InAnArrayGivesBackEveryReference)
{
  {
    ZELSYPArray<ZELBaseUnknown_var> array;
    for (int time = 0; time < 100; ++time)
      array.Append(time % 2 ? &_cup : &_other);
    EXPECT_EQ(CountOfCup(), 51);
    const ZELSYPArray<ZELBaseUnknown_var> copy(array);
    EXPECT_EQ(CountOfCup(), 101);
    EXPECT_TRUE(array.RemoveAt(1) == &_cup);
    EXPECT_EQ(CountOfCup(), 100);
    EXPECT_TRUE(array[0] == copy[0]);
  }
  EXPECT_EQ(CountOfCup(), 1);
}
