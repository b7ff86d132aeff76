#include "VirtualSlots.h"

#include "ZELSYPAbstractDataSource.h"
#include "ZELSYPClassEventHandlersSupport.h"
#include "ZELSYPEventArgs.h"
#include "ZELSYPEventDescriptor.h"
#include "ZELSYPEventFactory.h"
#include "ZELSYPEventHandler.h"
#include "ZELSYPEventHandlerInfo.h"
#include "ZELSYPEventHandlersSupport.h"
#include "ZELSYPEventMap.h"
#include "ZELSYPSingleEventPathBuilder.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace
{
// Builders whose operations a test can name.
class NamedBuilder : public ZELSYPEventPathBuilder
{
public:
  ZELSYPEventPathElt* BuildElement(ZELSYPEventArgs*, ZELBaseUnknown*) override { return NO_ELEMENT(); }
  ZELBaseUnknown* GetParent(ZELSYPEventArgs*, ZELBaseUnknown*) override { return nullptr; }
};

class NamedSupportsBuilder : public ZELSYPSupportsEventPathBuilder
{
public:
  ZELSYPEventPathElt* BuildElement(ZELSYPEventArgs*, ZELBaseUnknown*) override { return NO_ELEMENT(); }
  ZELBaseUnknown* GetParent(ZELSYPEventArgs*, ZELBaseUnknown*) override { return nullptr; }
  ZELSYPEventHandlersSupport* GetSupportForNode(ZELBaseUnknown*) override { return NO_SUPPORT(); }
  ZELSYPClassEventHandlersSupport* GetClassSupportForNode(ZELBaseUnknown*) override { return NO_CLASS_SUPPORT(); }
};

// The next virtual operation of a class.
template <class Class>
class Next : public Class
{
public:
  virtual void Operation() {}
};

template <class Class>
class OnlyDestructorTest : public testing::Test
{
};
typedef testing::Types<ZELSYPEventMap, ZELSYPEventFactory, ZELSYPEventHandlerInfoList, ZELSYPEventHandlersSupport,
                       ZELSYPClassEventHandlersSupport, ZELSYPEventPathElt, ZELSYPEventPath>
    ClassesWithADestructorOnly;
TYPED_TEST_SUITE(OnlyDestructorTest, ClassesWithADestructorOnly, );

template <class Class>
class VirtualDestructorTest : public testing::Test
{
};
typedef testing::Types<ZELSYPEvent, ZELSYPDescriptorBase, ZELSYPEventDescriptor, ZELSYPEventArgs, ZELSYPEventHandler,
                       ZELSYPEventHandlerInfo, ZELSYPEventHandlerInfoListData, ZELSYPEventPathBuilder, ZELSYPSupportsEventPathBuilder,
                       ZELSYPSingleEventPathBuilder, ZELSYPAbstractDataSource>
    ClassesWithAVirtualDestructor;
TYPED_TEST_SUITE(VirtualDestructorTest, ClassesWithAVirtualDestructor, );
} // namespace

TYPED_TEST(OnlyDestructorTest, IsVirtualAndAloneSo)
{
  EXPECT_TRUE(std::has_virtual_destructor_v<TypeParam>);
  EXPECT_EQ(SlotAfter(2), GetSlot(&Next<TypeParam>::Operation));
}

TYPED_TEST(VirtualDestructorTest, IsVirtual)
{
  EXPECT_TRUE(std::has_virtual_destructor_v<TypeParam>);
}

// What says what the event is stands where every object has it; nobody can derive from an event to see what comes next.
TEST(VirtualSlotsTest, EventHasThePlacesOfEveryObjectAndItsOwnOperationsHaveNone)
{
  EXPECT_EQ(GetSlot(&ZELBaseUnknown::GetMetaObject), GetSlot(&ZELSYPEvent::GetMetaObject));
  EXPECT_TRUE(IsVirtual(&ZELSYPEvent::GetMetaObject));
  EXPECT_FALSE(IsVirtual(&ZELSYPEvent::GetName));
  EXPECT_FALSE(IsVirtual(&ZELSYPEvent::GetPropagation));
  EXPECT_FALSE(IsVirtual(&ZELSYPEvent::GetArgumentType));
  EXPECT_FALSE(IsVirtual(&ZELSYPEvent::GetOwnerClass));
  EXPECT_TRUE(std::is_final_v<ZELSYPEvent>);
}

TEST(VirtualSlotsTest, HandlerIsRunThenAskedForItsArgumentsThenWhetherItMustBeRemoved)
{
  const std::ptrdiff_t place = SlotAfter(1) - SlotAfter(0);
  const std::ptrdiff_t handle = GetSlot(&ZELSYPEventHandler::Handle);
  EXPECT_LT(GetSlot(&ZELBaseUnknown::GetMetaObject), handle);
  EXPECT_EQ(handle + place, GetSlot(&ZELSYPEventHandler::GetArgumentsClass));
  EXPECT_EQ(handle + 2 * place, GetSlot(&ZELSYPEventHandler::MustBeRemoved));
}

TEST(VirtualSlotsTest, BuilderHasItsDestructorThenItsElementThenItsParent)
{
  EXPECT_EQ(SlotAfter(2), GetSlot(&NamedBuilder::BuildElement));
  EXPECT_EQ(SlotAfter(3), GetSlot(&NamedBuilder::GetParent));
}

TEST(VirtualSlotsTest, BuilderFromStoresAsksForThemAfterwardsTheNodesOwnFirst)
{
  EXPECT_EQ(SlotAfter(2), GetSlot(&NamedSupportsBuilder::BuildElement));
  EXPECT_EQ(SlotAfter(3), GetSlot(&NamedSupportsBuilder::GetParent));
  EXPECT_EQ(SlotAfter(4), GetSlot(&NamedSupportsBuilder::GetSupportForNode));
  EXPECT_EQ(SlotAfter(5), GetSlot(&NamedSupportsBuilder::GetClassSupportForNode));
}

TEST(VirtualSlotsTest, DescriptorHasItsDestructorThenItsAssignment)
{
  EXPECT_EQ(SlotAfter(2), GetSlot(&ZELSYPDescriptorBase::operator=));
}
