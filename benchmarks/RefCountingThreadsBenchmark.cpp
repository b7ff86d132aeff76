// The cases of RefCountingBenchmark.cpp while a second thread lives, asleep, so that counts take locked instructions.
#include "RefCounting/RefCountingCases.h"
#include "Threads/RunWithThreads.h"

int main(int i_argc, char** i_argv)
{
  return RunBesideSecondThread(i_argc, i_argv, RegisterRefCounting);
}
