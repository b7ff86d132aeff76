#include "RunWithThreads.h"

#include <benchmark/benchmark.h>

#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

#include <cstdio>
#include <future>
#include <thread>

namespace
{
int Run(int i_argc, char** i_argv)
{
  benchmark::Initialize(&i_argc, i_argv);
  if (benchmark::ReportUnrecognizedArguments(i_argc, i_argv))
    return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
} // namespace

int RunWithOneThread(int i_argc, char** i_argv, Registration i_register)
{
  i_register("");
  const int result = Run(i_argc, i_argv);
#if __has_include(<sys/single_threaded.h>)
  if (!__libc_single_threaded)
  {
    std::fprintf(stderr, "a contender started a thread: these are not the figures of a process with one thread\n");
    return 1;
  }
#endif
  return result;
}

int RunBesideSecondThread(int i_argc, char** i_argv, Registration i_register)
{
  std::promise<void> end;
  std::thread sleeper([&end] { end.get_future().wait(); });
  i_register("/Threads");
  const int result = Run(i_argc, i_argv);
  end.set_value();
  sleeper.join();
  return result;
}
