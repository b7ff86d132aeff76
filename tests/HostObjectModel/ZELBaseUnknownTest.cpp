#include "Kitchen.h"

#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace
{
static_assert(sizeof(ZELBaseUnknown) == 16, "an object is a table of operations, a count, and what its extensions need");

// Gives a reference on itself away and takes it back while it is destroyed.
class Lender : public Thing
{
public:
  using Thing::Thing;
  ~Lender() override { const ZELBaseUnknown_var lent(this); }
};

void HoldAndLetGo(ZELBaseUnknown* i_pObject, int i_times)
{
  for (int time = 0; time < i_times; ++time)
  {
    i_pObject->AddRef();
    i_pObject->Release();
  }
}
} // namespace

TEST(ZELBaseUnknown, CreatorHoldsTheFirstReference)
{
  int deaths = 0;
  EXPECT_EQ((new Thing(&deaths))->Release(), 0);
  EXPECT_EQ(deaths, 1);
}

TEST(ZELBaseUnknown, AddRefAndReleaseAnswerTheCountThatStandsThen)
{
  Thing* const pThing = new Thing;
  EXPECT_EQ(pThing->AddRef(), 2);
  EXPECT_EQ(pThing->AddRef(), 3);
  EXPECT_EQ(pThing->Release(), 2);
  EXPECT_EQ(pThing->Release(), 1);
  EXPECT_EQ(pThing->Release(), 0);
}

TEST(ZELBaseUnknown, LivesUntilItsLastReferenceIsGivenBack)
{
  int deaths = 0;
  Thing* const pThing = new Thing(&deaths);
  pThing->AddRef();
  pThing->Release();
  EXPECT_EQ(deaths, 0);
  pThing->Release();
  EXPECT_EQ(deaths, 1);
}

TEST(ZELBaseUnknown, SixteenThreadsLoseNoReference)
{
  int deaths = 0;
  Thing* const pThing = new Thing(&deaths);
  std::vector<std::thread> threads;
  for (int number = 0; number < 16; ++number)
    threads.emplace_back(HoldAndLetGo, pThing, 20000);
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(CountOf(pThing), 1);
  pThing->Release();
  EXPECT_EQ(deaths, 1);
}

TEST(ZELBaseUnknown, WhicheverThreadGivesTheLastReferenceBackDestroysItOnce)
{
  for (int round = 0; round < 200; ++round)
  {
    int deaths = 0;
    Thing* const pThing = new Thing(&deaths);
    for (int reference = 0; reference < 3; ++reference)
      pThing->AddRef();
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number)
      threads.emplace_back([=] { pThing->Release(); });
    for (std::thread& thread : threads)
      thread.join();
    ASSERT_EQ(deaths, 1);
  }
}

TEST(ZELBaseUnknown, MayStandOnTheStack)
{
  int deaths = 0;
  {
    Thing thing(&deaths);
    const ZELBaseUnknown_var held(&thing);
    EXPECT_EQ(CountOf(&thing), 2);
  }
  EXPECT_EQ(deaths, 1);
}

TEST(ZELBaseUnknown, MayLendItselfOutWhileItIsDestroyed)
{
  int deaths = 0;
  (new Lender(&deaths))->Release();
  EXPECT_EQ(deaths, 1);
}

TEST(ZELBaseUnknown, QueryForItsOwnClassAnswersTheObjectWithAReferenceAdded)
{
  Cup cup;
  void* pFound = nullptr;
  EXPECT_EQ(cup.QueryInterface(Cup::ClassId(), &pFound), 1);
  EXPECT_EQ(pFound, &cup);
  EXPECT_EQ(CountOf(&cup), 2);
  EXPECT_EQ(cup.Release(), 1);
}

TEST(ZELBaseUnknown, QueryForAnInterfaceThatItsClassComesFromFindsIt)
{
  Plate plate;
  ZELBaseUnknown* const pUnknown = &plate;
  void* pFound = nullptr;
  ASSERT_EQ(pUnknown->QueryInterface(IID_Washable, &pFound), 1);
  EXPECT_EQ(static_cast<Washable*>(pFound)->Wash(), 1);
  plate.Release();
}

TEST(ZELBaseUnknown, QueryAnswersAPointerOfTheClassAskedForWhereverItsCountedPartBegins)
{
  Plate plate;
  void* pFound = nullptr;
  ASSERT_EQ(plate.QueryInterface(Plate::ClassId(), &pFound), 1);
  EXPECT_EQ(static_cast<Plate*>(pFound), &plate);
  EXPECT_EQ(static_cast<Plate*>(pFound)->_thickness, 3);
  ASSERT_EQ(plate.Release(), 1);
  ASSERT_EQ(plate.QueryInterface(ZELBaseUnknown::ClassId(), &pFound), 1);
  EXPECT_EQ(static_cast<ZELBaseUnknown*>(pFound), &plate);
  plate.Release();
}

TEST(ZELBaseUnknown, QueryForWhatItDoesNotOfferAnswersNullAndAddsNoReference)
{
  Cup cup;
  void* pFound = &cup;
  EXPECT_EQ(cup.QueryInterface(IID_Washable, &pFound), 0);
  EXPECT_EQ(pFound, nullptr);
  pFound = &cup;
  EXPECT_EQ(cup.QueryInterface(Mug::ClassId(), &pFound), 0);
  EXPECT_EQ(pFound, nullptr);
  EXPECT_EQ(cup.QueryInterface(ZELIID(), &pFound), 0);
  EXPECT_EQ(CountOf(&cup), 1);
}

TEST(ZELBaseUnknown, QueryWithoutAPlaceForTheAnswerFindsNothing)
{
  Cup cup;
  EXPECT_EQ(cup.QueryInterface(Cup::ClassId(), nullptr), 0);
  EXPECT_EQ(CountOf(&cup), 1);
}

TEST(ZELBaseUnknown, BelongsToItselfAndToNoneForAnyOtherNumber)
{
  Cup cup;
  EXPECT_EQ(cup.GetImpl(), &cup);
  EXPECT_EQ(cup.GetImpl(0), &cup);
  EXPECT_EQ(cup.GetImpl(1), nullptr);
  EXPECT_EQ(cup.GetImpl(-1), nullptr);
  EXPECT_EQ(CountOf(&cup), 1);
}

TEST(ZELBaseUnknown, IsEqualToItselfOnly)
{
  Cup one, other;
  EXPECT_EQ(one.IsEqual(&one), 1);
  EXPECT_EQ(one.IsEqual(&other), 0);
  EXPECT_EQ(one.IsEqual(nullptr), 0);
}

TEST(ZELBaseUnknown, KnowsItsClassBehindAnyPointer)
{
  Mug mug;
  const ZELBaseUnknown& unknown = mug;
  EXPECT_STREQ(unknown.IsA(), "Mug");
  EXPECT_EQ(unknown.GetMetaObject(), Mug::MetaObject());
  EXPECT_STREQ(ZELBaseUnknown().IsA(), "ZELBaseUnknown");
}

TEST(ZELBaseUnknown, IsAKindOfItsClassAndOfEveryBase)
{
  Mug mug;
  EXPECT_EQ(mug.IsAKindOf(Mug::MetaObject()), 1);
  EXPECT_EQ(mug.IsAKindOf(Cup::MetaObject()), 1);
  EXPECT_EQ(mug.IsAKindOf(Thing::MetaObject()), 1);
  EXPECT_EQ(mug.IsAKindOf(ZELBaseUnknown::MetaObject()), 1);
}

TEST(ZELBaseUnknown, IsNoKindOfADerivedOrUnrelatedClassNorOfNone)
{
  Cup cup;
  EXPECT_EQ(cup.IsAKindOf(Mug::MetaObject()), 0);
  EXPECT_EQ(cup.IsAKindOf(Washable::MetaObject()), 0);
  EXPECT_EQ(cup.IsAKindOf(static_cast<const ZELMetaClass*>(nullptr)), 0);
}

TEST(ZELBaseUnknown, IsAKindOfEveryNameInItsLineAndOfNoOther)
{
  Mug mug;
  for (const char* pName : {"Mug", "Cup", "Thing", "ZELBaseUnknown"})
    EXPECT_EQ(mug.IsAKindOf(pName), 1) << pName;
  for (const char* pName : {"Washable", "mug", "", "Mu", "Mugs"})
    EXPECT_EQ(mug.IsAKindOf(pName), 0) << pName;
  EXPECT_EQ(mug.IsAKindOf(static_cast<const char*>(nullptr)), 0);
}

TEST(ZELBaseUnknown, ClassAnswersWithoutAnObject)
{
  EXPECT_STREQ(Cup::ClassName(), "Cup");
  EXPECT_TRUE(Cup::ClassId() == ZELClassId::FromName("Cup"));
  EXPECT_TRUE(Washable::ClassId() == IID_Washable);
}

TEST(ZELBaseUnknown, CreatableClassMakesAnObjectWhoseFirstReferenceTheCallerHolds)
{
  ZELBaseUnknown* const pCup = Cup::CreateItself();
  ASSERT_NE(pCup, nullptr);
  EXPECT_STREQ(pCup->IsA(), "Cup");
  EXPECT_EQ(pCup->Release(), 0);
}

TEST(ZELBaseUnknown, OtherClassesMakeNone)
{
  EXPECT_EQ(Mug::CreateItself(), nullptr);
  EXPECT_EQ(Washable::CreateItself(), nullptr);
  EXPECT_EQ(ZELBaseUnknown::CreateItself(), nullptr);
}
