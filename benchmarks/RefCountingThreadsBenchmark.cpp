// The cases of RefCountingBenchmark.cpp while a second thread lives, asleep, so that counts take locked instructions.
#include "RefCounting/RefCountingCases.h"

#include <future>
#include <thread>

int main(int i_argc, char** i_argv)
{
  std::promise<void> end;
  std::thread sleeper([&end] { end.get_future().wait(); });
  const int result = RunRefCountingBenchmark(i_argc, i_argv, "/Threads");
  end.set_value();
  sleeper.join();
  return result;
}
