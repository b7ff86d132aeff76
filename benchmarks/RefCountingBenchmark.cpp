// What a reference taken and given back costs, beside a counter of the same kind. This process has one thread, which must
// stay so: no instruction is locked then. RefCountingThreadsBenchmark.cpp measures the same beside a second thread.
//
// Tried and dropped: asking for the count that is left, and comparing it with 0. The count costs an exchange (xadd) in
// place of a subtraction whose flags tell.
#include "RefCounting/RefCountingCases.h"
#include "Threads/RunWithThreads.h"

int main(int i_argc, char** i_argv)
{
  return RunWithOneThread(i_argc, i_argv, RegisterRefCounting);
}
