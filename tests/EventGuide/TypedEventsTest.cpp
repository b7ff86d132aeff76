#include "Door.h"

#include "ZELSYPTypedEvent.h"

#include <gmock/gmock.h>

class Gate : public ZELSYPSimpleEventListener
{
  ZELDeclareClass;
  static const ZELSYPTypedEvent<OpenedArgs>& OpenedEvent()
  {
    static const ZELSYPTypedEvent<OpenedArgs> s_event(GetEventFactory(), "Opened", ZELSYPEvent::NoPropagation, MetaObject());
    return s_event;
  }
};
ZELImplementClass(Gate, ZELSYPSimpleEventListener, MyLibrary);

TEST(TypedEvents, OneIsRaisedWithWhatItsArgumentsAreMadeOf)
{
  Gate gate;
  const ZELSYPSubscription greeting =
      Gate::OpenedEvent().Subscribe(gate, [](OpenedArgs* i_pArgs) { Diary() += "Hello " + i_pArgs->GetVisitor(); });
  Gate::OpenedEvent().Raise(gate, "Ada"); // Hello Ada
  EXPECT_EQ(TakeDiary(), "Hello Ada");
}

TEST(TypedEvents, ItsArgumentsAreMadeByItself)
{
  Gate gate;
  const ZELHandle<OpenedArgs> spArgs = Gate::OpenedEvent().MakeArguments("Ada");
  Gate::OpenedEvent().Dispatch(gate, spArgs);
  const bool taken = spArgs->IsConsumed() != 0;
  EXPECT_FALSE(taken);
}
