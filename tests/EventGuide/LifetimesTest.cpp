#include "Door.h"

#include "ZELSYPEventHandlersSupport.h"
#include "ZELSYPMakeHandler.h"

#include <gmock/gmock.h>

namespace
{
int g_bells = 0;

class Bell : public ZELSYPEventHandler
{
public:
  Bell() { ++g_bells; }
  ~Bell() override { --g_bells; }
  void Handle(ZELBaseUnknown*, ZELSYPEventArgs*) override { Diary() += "ring "; }
  ZELMetaClass* GetArgumentsClass() override { return ZELSYPEventArgs::MetaObject(); }
  int MustBeRemoved() override { return 0; }
};
} // namespace

TEST(Lifetimes, AHandlerLeaksWhenItsMakerKeepsTheFirstReference)
{
  Bell* pLeaked = nullptr;
  {
    Door door;
    Bell* pBell = new Bell;
    door.AddHandler(Door::OpenedEvent(), pBell, 0); // the door takes a reference of its own; yours is never given back
    pLeaked = pBell;
  }
  EXPECT_EQ(g_bells, 1);
  pLeaked->Release();
}

TEST(Lifetimes, AHandlerGoesWithItsStoreWhenAHandleGivesTheFirstReferenceBack)
{
  {
    Door door;
    door.AddHandler(Door::OpenedEvent(), ZELHandle<Bell>::Adopt(new Bell), 0);
    door.Open("Ada");
    EXPECT_EQ(TakeDiary(), "ring ");
  }
  EXPECT_EQ(g_bells, 0);
}

TEST(Lifetimes, AHandlerThatHoldsItsListenerKeepsItForEver)
{
  Door* pLeaked = nullptr;
  {
    const ZELHandle<Door> spDoor = ZELHandle<Door>::Adopt(new Door);
    const auto spAnswering = ZELSYPMakeHandler([spDoor](ZELSYPEventArgs*) { Diary() += spDoor->IsA(); });
    spDoor->AddHandler(Door::OpenedEvent(), spAnswering, 0); // the door holds the handler, the handler holds the door
    pLeaked = spDoor.Get();
    pLeaked->AddRef();
    spDoor->RemoveHandler(Door::OpenedEvent(), spAnswering);
    spDoor->AddHandler(Door::OpenedEvent(), spAnswering, 0);
  }
  EXPECT_EQ(pLeaked->AddRef(), 3);
  pLeaked->Release();
  pLeaked->GetHandlersSupport()->ReplaceHandlers(ZELSYPEventHandlersSupport());
  EXPECT_EQ(pLeaked->Release(), 0);
}

TEST(Lifetimes, AHandlerThatTakesItsNodeHoldsNothing)
{
  const ZELHandle<Door> spDoor = ZELHandle<Door>::Adopt(new Door);
  const auto spAnswering = ZELSYPMakeHandler([](ZELBaseUnknown* i_pNode, ZELSYPEventArgs*) { Diary() += i_pNode->IsA(); });
  spDoor->AddHandler(Door::OpenedEvent(), spAnswering, 0);
  spDoor->Open("Ada");
  EXPECT_EQ(TakeDiary(), "Door");
  EXPECT_EQ(spDoor->AddRef(), 2);
  spDoor->Release();
}
