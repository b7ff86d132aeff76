#include "VirtualSlots.h"

#include "ZELSYPDescriptorBase.h"
#include "ZELSYPEventHandler.h"
#include "ZELSYPSupportsEventPathBuilder.h"

#include <gtest/gtest.h>

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
} // namespace

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
