// What a reference taken and given back costs, beside a counter of the same kind. This process has one thread, which must
// stay so: no instruction is locked then. RefCountingThreadsBenchmark.cpp measures the same beside a second thread.
//
// Tried and dropped: asking for the count that is left, and comparing it with 0. The count costs an exchange (xadd) in
// place of a subtraction whose flags tell.
#include "RefCounting/RefCountingCases.h"

#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

#include <cstdio>

int main(int i_argc, char** i_argv)
{
  const int result = RunRefCountingBenchmark(i_argc, i_argv, "");
#if __has_include(<sys/single_threaded.h>)
  if (!__libc_single_threaded)
  {
    std::fprintf(stderr, "a thread was started: these are not the figures of a process with one thread\n");
    return 1;
  }
#endif
  return result;
}
