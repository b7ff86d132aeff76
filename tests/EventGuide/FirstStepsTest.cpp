#include "Door.h"

#include "ZELSYPSubscribe.h"

#include <gmock/gmock.h>

TEST(FirstSteps, ADoorIsOpenedAndAskedWhetherSomebodyTookIt)
{
  Door door;
  const ZELSYPSubscription greeting = ZELSYPSubscribe<OpenedArgs>(door, Door::OpenedEvent(),
                                                                  [](OpenedArgs* i_pArgs)
                                                                  {
                                                                    Diary() += "Hello " + i_pArgs->GetVisitor() + "! ";
                                                                    i_pArgs->Consume();
                                                                  });
  const bool greeted = door.Open("Ada");
  EXPECT_TRUE(greeted);
  EXPECT_EQ(TakeDiary(), "Hello Ada! ");
}
