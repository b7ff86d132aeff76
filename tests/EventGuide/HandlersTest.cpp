#include "Door.h"

#include "ZELSYPMakeOnceHandler.h"
#include "ZELSYPMakeWeakHandler.h"
#include "ZELSYPSubscribe.h"

#include <gmock/gmock.h>

#include <memory>
#include <optional>

TEST(Handlers, AHandlerIsMadeOfACallable)
{
  Door door;
  door.AddHandler(Door::OpenedEvent(), ZELSYPMakeHandler<OpenedArgs>([](OpenedArgs* i_pArgs) { Diary() += i_pArgs->GetVisitor(); }), 0);
  door.AddHandler(Door::OpenedEvent(), ZELSYPMakeHandler([](ZELBaseUnknown* i_pNode, ZELSYPEventArgs*) { Diary() += i_pNode->IsA(); }), 0);
  door.Open("Ada"); // AdaDoor
  EXPECT_EQ(TakeDiary(), "AdaDoor");
}

namespace
{
class Porter
{
public:
  void OnOpened(OpenedArgs* i_pArgs) { Diary() += "Good day, " + i_pArgs->GetVisitor(); }
};

class Guest
{
public:
  explicit Guest(Door& io_door) { io_door.AddHandler(Door::OpenedEvent(), ZELSYPMakeWeakHandler(_weakTarget, this, &Guest::OnOpened), 0); }

private:
  void OnOpened(OpenedArgs* i_pArgs) { Diary() += "Nice to meet you, " + i_pArgs->GetVisitor(); }

  // The last member: it goes first.
  ZELSYPWeakTarget _weakTarget;
};
} // namespace

TEST(Handlers, AHandlerIsMadeOfAMethod)
{
  Door door;
  Porter porter;
  door.AddHandler(Door::OpenedEvent(), ZELSYPMakeMemberHandler(&porter, &Porter::OnOpened), 0);
  door.Open("Ada"); // Good day, Ada
  EXPECT_EQ(TakeDiary(), "Good day, Ada");
}

TEST(Handlers, AWeakHandlerRunsNothingOnceItsTargetIsGone)
{
  Door door;
  std::optional<Guest> guest(door);
  door.Open("Ada"); // Nice to meet you, Ada
  guest.reset();
  door.Open("Bob"); // nothing
  EXPECT_EQ(TakeDiary(), "Nice to meet you, Ada");
}

TEST(Handlers, AWeakHandlerWatchesASharedObject)
{
  Door door;
  auto pPorter = std::make_shared<Porter>();
  door.AddHandler(Door::OpenedEvent(), ZELSYPMakeWeakHandler(pPorter, &Porter::OnOpened), 0);
  pPorter.reset();
  door.Open("Ada"); // nothing
  EXPECT_EQ(TakeDiary(), "");
}

TEST(Handlers, AHandlerThatRemovesItselfTooLateRunsTwice)
{
  Door door;
  ZELHandle<ZELSYPEventHandler> spFirst;
  spFirst = ZELSYPMakeHandler<OpenedArgs>(
      [&](OpenedArgs* i_pArgs)
      {
        Diary() += i_pArgs->GetVisitor() + " ";
        if (i_pArgs->GetVisitor() == "Ada")
          door.Open("Bob"); // runs this handler again
        door.RemoveHandler(Door::OpenedEvent(), spFirst);
      });
  door.AddHandler(Door::OpenedEvent(), spFirst, 0);
  door.Open("Ada"); // Ada Bob
  EXPECT_EQ(TakeDiary(), "Ada Bob ");
}

TEST(Handlers, AHandlerThatRunsOnceDoesSoInNestedDispatchesToo)
{
  Door door;
  door.AddHandler(Door::OpenedEvent(),
                  ZELSYPMakeOnceHandler<OpenedArgs>(
                      [&](OpenedArgs* i_pArgs)
                      {
                        Diary() += i_pArgs->GetVisitor() + " ";
                        door.Open("Bob");
                      }),
                  0);
  door.Open("Ada"); // Ada
  EXPECT_EQ(TakeDiary(), "Ada ");
}
