// On this platform only: the other one starts threads of its own in every process.
#include "ZELAtomicCounter.h"

#include "ChildProcess.h"
#include "ChildProgram.h"

#include <gtest/gtest.h>
#include <thread>

OPX_CHILD_ENTRY(TellWhetherThereIsOneThread)
{
  const bool before = ZELAtomicCounter::ProcessHasOneThread();
  bool during = true;
  std::thread([&] { during = ZELAtomicCounter::ProcessHasOneThread(); }).join();
  std::printf("%d %d\n", before, during);
  return 0;
}

TEST(ZELAtomicCounter, KnowsThatAProcessHasOneThreadUntilItStartsAnother)
{
  EXPECT_EQ(ChildProcess::Self("TellWhetherThereIsOneThread").Run().out, "1 0\n");
}
