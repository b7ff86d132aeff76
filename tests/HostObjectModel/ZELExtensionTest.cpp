#include "ZELExtension.h"

#include "Kitchen.h"

#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

namespace
{
std::string goings;

class Dishwasher : public ZELExtension<Washable>
{
public:
  explicit Dishwasher(int i_program = 60, const char* i_pName = "dishwasher ") : _program(i_program), _name(i_pName) {}
  ~Dishwasher() override { goings += _name; }
  int Wash() override { return _program; }

private:
  const int _program;
  const char* const _name;
};

class Hammer : public ZELExtension<Breakable>
{
public:
  ~Hammer() override { goings += "hammer "; }
  int Break() override { return CountOf(GetImpl(0)); }
};

// Has a record of its own below the interface that it offers.
class Sponge : public ZELExtension<Washable>
{
  ZELDeclareClass;
  int Wash() override { return 5; }
};
ZELImplementClass(Sponge, Washable, Kitchen);

// Lends itself out when the part of it that knows its owner is gone already.
class Mirror;
using Mirror_var = ZELHandle<Mirror>;
class Mirror : public ZELBaseUnknown
{
  ZELDeclareInterface;
  ~Mirror() override
  {
    CountOf(this);
    const Mirror_var lent(this);
    goings += "asked " + std::to_string(_asked) + " times for its owner ";
  }
  // Asked without end it answers another object in the end.
  ZELBaseUnknown* GetImpl(int) override
  {
    static Cup other;
    return ++_asked < 100 ? this : static_cast<ZELBaseUnknown*>(&other);
  }

private:
  int _asked = 0;
};
ZELImplementInterface(Mirror, ZELBaseUnknown, Kitchen, ZELClassId::FromText("5E1B90AF-6C23-4D5A-8E39-7A40C2D1F6B3"));

class ZELExtensionTest : public testing::Test
{
protected:
  struct Owner : Cup
  {
    ~Owner() override { goings += "owner "; }
  };
  ZELExtensionTest() { goings.clear(); }
  ~ZELExtensionTest() override { _owner = NULL_var; }

  ZELHandle<Cup> _owner = ZELHandle<Cup>::Adopt(new Owner);
};
} // namespace

TEST_F(ZELExtensionTest, OwnerOffersWhatItsExtensionOffers)
{
  EXPECT_FALSE(Washable_var(_owner));
  ZELAttachExtension<Dishwasher>(_owner, 40);
  const Washable_var washable(_owner);
  ASSERT_TRUE(washable);
  EXPECT_EQ(washable->Wash(), 40);
}

TEST_F(ZELExtensionTest, OneObjectOffersSeveralInterfaces)
{
  ZELAttachExtension<Dishwasher>(_owner);
  ZELAttachExtension<Hammer>(_owner);
  const Washable_var washable(_owner);
  const Breakable_var breakable(_owner);
  ASSERT_TRUE(washable && breakable);
  EXPECT_EQ(washable->Wash(), 60);
  EXPECT_EQ(breakable->Break(), 3);
}

TEST_F(ZELExtensionTest, QueryOnAnExtensionFindsItsOwnerAndTheOtherExtensions)
{
  ZELAttachExtension<Dishwasher>(_owner);
  Hammer* const pHammer = ZELAttachExtension<Hammer>(_owner);
  const Washable_var washable(_owner);
  EXPECT_EQ(ZELHandle<Cup>(washable), _owner);
  EXPECT_EQ(ZELHandle<Thing>(washable), _owner);
  EXPECT_EQ(Breakable_var(washable).Get(), pHammer);
  EXPECT_EQ(Washable_var(Breakable_var(washable)), washable);
}

TEST_F(ZELExtensionTest, QueryForTheRootAnswersTheOwner)
{
  const Washable* const pWashable = ZELAttachExtension<Dishwasher>(_owner);
  void* pFound = nullptr;
  ASSERT_EQ(const_cast<Washable*>(pWashable)->QueryInterface(ZELBaseUnknown::ClassId(), &pFound), 1);
  EXPECT_EQ(static_cast<ZELBaseUnknown*>(pFound), _owner.Get());
  _owner->Release();
}

TEST_F(ZELExtensionTest, ExtensionBelongsToItsOwner)
{
  Dishwasher* const pWasher = ZELAttachExtension<Dishwasher>(_owner);
  EXPECT_EQ(pWasher->GetImpl(), _owner.Get());
  EXPECT_EQ(pWasher->GetImpl(0), _owner.Get());
  EXPECT_EQ(pWasher->GetImpl(1), nullptr);
  EXPECT_EQ(_owner->GetImpl(0), _owner.Get());
}

TEST_F(ZELExtensionTest, OwnerAndExtensionsAreEqual)
{
  const Dishwasher* const pWasher = ZELAttachExtension<Dishwasher>(_owner);
  const Hammer* const pHammer = ZELAttachExtension<Hammer>(_owner);
  Cup another;
  const Dishwasher* const pAnother = ZELAttachExtension<Dishwasher>(&another);
  EXPECT_EQ(pWasher->IsEqual(_owner), 1);
  EXPECT_EQ(_owner->IsEqual(pWasher), 1);
  EXPECT_EQ(pWasher->IsEqual(pHammer), 1);
  EXPECT_EQ(pWasher->IsEqual(pAnother), 0);
  EXPECT_EQ(pWasher->IsEqual(nullptr), 0);
}

TEST_F(ZELExtensionTest, ExtensionIsOfItsOwnClass)
{
  ZELBaseUnknown* const pWasher = ZELAttachExtension<Dishwasher>(_owner);
  EXPECT_STREQ(pWasher->IsA(), "Washable");
  EXPECT_STREQ(ZELAttachExtension<Sponge>(_owner)->IsA(), "Sponge");
  EXPECT_EQ(pWasher->IsAKindOf(Cup::MetaObject()), 0);
}

TEST_F(ZELExtensionTest, SharesTheCountOfItsOwner)
{
  Dishwasher* const pWasher = ZELAttachExtension<Dishwasher>(_owner);
  EXPECT_EQ(CountOf(_owner), 1);
  EXPECT_EQ(pWasher->AddRef(), 2);
  EXPECT_EQ(_owner->AddRef(), 3);
  EXPECT_EQ(pWasher->Release(), 2);
  EXPECT_EQ(pWasher->Release(), 1);
}

TEST_F(ZELExtensionTest, WhoeverHoldsAnExtensionKeepsTheOwner)
{
  ZELAttachExtension<Dishwasher>(_owner, 40);
  Washable_var washable(_owner);
  _owner = NULL_var;
  EXPECT_EQ(goings, "");
  EXPECT_EQ(washable->Wash(), 40);
  EXPECT_STREQ(washable->GetImpl(0)->IsA(), "Cup");
  washable = NULL_var;
  EXPECT_EQ(goings, "dishwasher owner ");
}

TEST_F(ZELExtensionTest, OwnerTakesItsExtensionsAlongTheLastOneFirst)
{
  ZELAttachExtension<Dishwasher>(_owner);
  ZELAttachExtension<Hammer>(_owner);
  _owner = NULL_var;
  EXPECT_EQ(goings, "hammer dishwasher owner ");
}

TEST_F(ZELExtensionTest, OwnerOnTheStackTakesItsExtensionsAlong)
{
  {
    Cup cup;
    ZELAttachExtension<Hammer>(&cup);
    EXPECT_EQ(Breakable_var(&cup)->Break(), 2);
  }
  EXPECT_EQ(goings, "hammer ");
}

TEST_F(ZELExtensionTest, OwnerThatIsDeletedTakesItsExtensionsAlong)
{
  Cup* const pCup = new Cup;
  ZELAttachExtension<Hammer>(pCup);
  delete pCup;
  EXPECT_EQ(goings, "hammer ");
}

TEST_F(ZELExtensionTest, ExtensionOfAnExtensionExtendsTheOwner)
{
  Dishwasher* const pWasher = ZELAttachExtension<Dishwasher>(_owner);
  const Hammer* const pHammer = ZELAttachExtension<Hammer>(pWasher);
  EXPECT_EQ(const_cast<Hammer*>(pHammer)->GetImpl(0), _owner.Get());
  EXPECT_TRUE(Breakable_var(_owner));
}

TEST_F(ZELExtensionTest, FirstAttachedIsFoundFirst)
{
  Dishwasher* const pFirst = ZELAttachExtension<Dishwasher>(_owner, 1);
  ZELAttachExtension<Dishwasher>(_owner, 2);
  EXPECT_EQ(Washable_var(_owner).Get(), pFirst);
}

TEST_F(ZELExtensionTest, WhatTheClassOffersIsFoundBeforeAnyExtension)
{
  const auto plate = ZELHandle<Plate>::Adopt(new Plate);
  Sponge* const pSponge = ZELAttachExtension<Sponge>(plate.Get());
  EXPECT_EQ(Washable_var(ZELBaseUnknown_var(plate))->Wash(), 1);
  EXPECT_EQ(ZELHandle<Sponge>(plate).Get(), pSponge);
}

TEST_F(ZELExtensionTest, WithoutAnOwnerNothingIsMade)
{
  EXPECT_EQ(ZELAttachExtension<Dishwasher>(nullptr), nullptr);
  EXPECT_EQ(goings, "");
}

TEST_F(ZELExtensionTest, UnattachedIsAnObjectOfItsOwn)
{
  Dishwasher* const pWasher = new Dishwasher;
  EXPECT_EQ(pWasher->GetImpl(0), pWasher);
  EXPECT_EQ(pWasher->IsEqual(_owner), 0);
  EXPECT_EQ(pWasher->Release(), 0);
  EXPECT_EQ(goings, "dishwasher ");
}

TEST_F(ZELExtensionTest, OwnerIsWholeWhileItsExtensionsGo)
{
  struct Witness : ZELExtension<Washable>
  {
    ~Witness() override { goings += std::string(GetImpl(0)->IsA()) + (Breakable_var(GetImpl(0)) ? " breakable " : " unbreakable "); }
    int Wash() override { return 0; }
  };
  ZELAttachExtension<Hammer>(_owner);
  ZELAttachExtension<Witness>(_owner);
  _owner = NULL_var;
  EXPECT_EQ(goings, "Cup breakable hammer owner ");
}

TEST_F(ZELExtensionTest, ExtensionAttachedWhileTheOwnerGoesGoesToo)
{
  struct Phoenix : ZELExtension<Washable>
  {
    ~Phoenix() override { ZELAttachExtension<Hammer>(GetImpl(0)); }
    int Wash() override { return 0; }
  };
  ZELAttachExtension<Phoenix>(_owner);
  _owner = NULL_var;
  EXPECT_EQ(goings, "hammer owner ");
}

TEST_F(ZELExtensionTest, InterfaceCountsAloneOnceItsExtensionIsGone)
{
  ZELAttachExtension<ZELExtension<Mirror>>(_owner);
  _owner = NULL_var;
  EXPECT_EQ(goings, "asked 0 times for its owner owner ");
}

TEST_F(ZELExtensionTest, ReferenceTakenWhileTheExtensionIsMadeHoldsTheOwner)
{
  struct Famous : ZELExtension<Washable>
  {
    explicit Famous(Washable_var& o_handle) { o_handle = this; }
    int Wash() override { return 7; }
  };
  Washable_var handle;
  ZELAttachExtension<Famous>(_owner, handle);
  EXPECT_EQ(CountOf(_owner), 2);
  _owner = NULL_var;
  EXPECT_EQ(goings, "");
  EXPECT_EQ(handle->Wash(), 7);
  handle = NULL_var;
  EXPECT_EQ(goings, "owner ");
}

TEST_F(ZELExtensionTest, ManyThreadsAskAndAttachAtOnce)
{
  ZELAttachExtension<Dishwasher>(_owner);
  std::vector<std::thread> threads;
  for (int number = 0; number < 8; ++number)
    threads.emplace_back(
        [&]
        {
          const auto mine = ZELHandle<Cup>::Adopt(new Cup);
          for (int time = 0; time < 300; ++time)
          {
            const Washable_var washable(_owner);
            EXPECT_EQ(washable->Wash(), 60);
            ZELAttachExtension<Sponge>(mine);
          }
        });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(CountOf(_owner), 1);
}
