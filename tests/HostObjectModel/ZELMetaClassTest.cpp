#include "ZELMetaClass.h"

#include "AskedEarly.h"
#include "ChildProcess.h"
#include "ChildProgram.h"
#include "ZELCommand.h"
#include "ZELEventSubscriber.h"
#include "ZELGetFunctionAddress.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

namespace
{
// A library of the tests brings a class of the same name.
class Twin : public Thing
{
  ZELDeclareClass;
};
ZELImplementCreatableClass(Twin, Thing, Kitchen);

bool answerOfAnInitialiser = AskedEarly::IsRight() && ZELMetaClass::Find("Mug") == Mug::MetaObject();

// Asks when everything else is gone.
struct LastToGo
{
  ~LastToGo() { std::printf("%d %d\n", AskedEarly::IsRight(), ZELMetaClass::Find("Mug") == Mug::MetaObject()); }
};

void LoadLateClasses()
{
  if (!ZELGetFunctionAddress("TouchLateClasses", "HostObjectModelTestLibrary", nullptr, -1, 1, 1))
    std::puts("not loaded");
}

ChildResult RunWithLibrary(const char* i_entry)
{
  return ChildProcess::Self(i_entry).SearchLibrariesIn(ChildProcess::GetProgramFolder() + "/libraries-of-tests/HostObjectModel").Run();
}
} // namespace

OPX_CHILD_ENTRY(AskWhenEverythingElseIsGone)
{
  static const LastToGo last;
  return 0;
}

OPX_CHILD_ENTRY(CreateAnObjectOfALateClass)
{
  std::printf("%d\n", ZELMetaClass::Find("LateCommand") != nullptr);
  LoadLateClasses();
  const ZELMetaClass* const pLate = ZELMetaClass::Find("LateCommand");
  const ZELBaseUnknown_var object = ZELBaseUnknown_var::Adopt(pLate->CreateObject());
  std::printf("%s of %s, a command: %d, found by id: %d\n", object->IsA(), pLate->GetModule(), object->IsAKindOf(ZELCommand::MetaObject()),
              ZELMetaClass::Find(pLate->GetClassId()) == pLate);
  return 0;
}

OPX_CHILD_ENTRY(LoadASecondClassOfOneName)
{
  LoadLateClasses();
  std::printf("%d %d\n", ZELMetaClass::Find("Twin") == Twin::MetaObject(), ZELMetaClass::Find(IID_Breakable) == Breakable::MetaObject());
  return 0;
}

TEST(ZELMetaClass, TellsNameModuleAndBase)
{
  EXPECT_STREQ(Cup::MetaObject()->GetName(), "Cup");
  EXPECT_STREQ(Cup::MetaObject()->GetModule(), "Kitchen");
  EXPECT_EQ(Cup::MetaObject()->GetBaseClass(), Thing::MetaObject());
  EXPECT_EQ(Thing::MetaObject()->GetBaseClass(), ZELBaseUnknown::MetaObject());
}

TEST(ZELMetaClass, RootHasNoBase)
{
  EXPECT_EQ(ZELBaseUnknown::MetaObject()->GetBaseClass(), nullptr);
  EXPECT_STREQ(ZELBaseUnknown::MetaObject()->GetName(), "ZELBaseUnknown");
  EXPECT_STREQ(ZELBaseUnknown::MetaObject()->GetModule(), "OPXHostRuntime");
}

TEST(ZELMetaClass, HostsOwnClassesAreRegistered)
{
  EXPECT_EQ(ZELMetaClass::Find("ZELCommand"), ZELCommand::MetaObject());
  EXPECT_EQ(ZELMetaClass::Find("ZELEventSubscriber"), ZELEventSubscriber::MetaObject());
  EXPECT_EQ(ZELCommand::MetaObject()->GetBaseClass(), ZELBaseUnknown::MetaObject());
  EXPECT_EQ(ZELEventSubscriber::MetaObject()->GetBaseClass(), ZELBaseUnknown::MetaObject());
}

TEST(ZELMetaClass, IsFoundByNameAndById)
{
  EXPECT_EQ(ZELMetaClass::Find("Cup"), Cup::MetaObject());
  EXPECT_EQ(ZELMetaClass::Find(Cup::ClassId()), Cup::MetaObject());
  EXPECT_EQ(ZELMetaClass::Find(IID_Washable), Washable::MetaObject());
}

TEST(ZELMetaClass, UnknownNameOrIdFindsNone)
{
  EXPECT_EQ(ZELMetaClass::Find("cup"), nullptr);
  EXPECT_EQ(ZELMetaClass::Find(""), nullptr);
  EXPECT_EQ(ZELMetaClass::Find(static_cast<const char*>(nullptr)), nullptr);
  EXPECT_EQ(ZELMetaClass::Find(ZELClassId()), nullptr);
}

TEST(ZELMetaClass, IsAKindOfItselfAndItsBases)
{
  EXPECT_EQ(Mug::MetaObject()->IsAKindOf(Mug::MetaObject()), 1);
  EXPECT_EQ(Mug::MetaObject()->IsAKindOf(ZELBaseUnknown::MetaObject()), 1);
  EXPECT_EQ(Mug::MetaObject()->IsAKindOf("Thing"), 1);
  EXPECT_EQ(Thing::MetaObject()->IsAKindOf(Mug::MetaObject()), 0);
  EXPECT_EQ(Mug::MetaObject()->IsAKindOf(Washable::MetaObject()), 0);
  EXPECT_EQ(Mug::MetaObject()->IsAKindOf(static_cast<const ZELMetaClass*>(nullptr)), 0);
}

TEST(ZELMetaClass, CreatesAnObjectOfACreatableClassOnly)
{
  const ZELBaseUnknown_var cup = ZELBaseUnknown_var::Adopt(ZELMetaClass::Find("Cup")->CreateObject());
  EXPECT_STREQ(cup->IsA(), "Cup");
  EXPECT_EQ(ZELMetaClass::Find("Mug")->CreateObject(), nullptr);
}

TEST(ZELMetaClass, AnswersWhileStaticObjectsAreMade)
{
  EXPECT_TRUE(AskedEarly::First());
  EXPECT_TRUE(AskedEarly::Last());
  EXPECT_TRUE(answerOfAnInitialiser);
}

TEST(ZELMetaClass, AnswersWhileStaticObjectsAreDestroyed)
{
  EXPECT_EQ(ChildProcess::Self("AskWhenEverythingElseIsGone").Run().out, "1 1\n");
}

TEST(ZELMetaClass, IsFoundOnManyThreadsAtOnce)
{
  std::vector<std::thread> threads;
  std::vector<int> found(8);
  for (int& each : found)
    threads.emplace_back(
        [&each]
        {
          for (int time = 0; time < 2000; ++time)
            each += ZELMetaClass::Find("Mug") == Mug::MetaObject() && ZELMetaClass::Find(IID_Washable) == Washable::MetaObject();
        });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(found, std::vector<int>(8, 2000));
}

TEST(ZELMetaClass, OfALibraryThatIsLoadedLaterIsFound)
{
  EXPECT_EQ(RunWithLibrary("CreateAnObjectOfALateClass").out, "0\nLateCommand of LateClasses, a command: 1, found by id: 1\n");
}

TEST(ZELMetaClass, FirstOfOneNameStaysAndTheSecondIsReported)
{
  const ChildResult result = RunWithLibrary("LoadASecondClassOfOneName");
  EXPECT_EQ(result.out, "1 1\n");
  EXPECT_EQ(result.err,
            "** Class Twin of module LateClasses has the name of class Twin of module Kitchen, which is registered already and stays\n"
            "** Class Usurper of module LateClasses has the id of class Breakable of module Kitchen, which is registered already and "
            "stays\n");
}
