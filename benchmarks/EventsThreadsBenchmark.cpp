// The cases of EventsBenchmark.cpp while a second thread lives, asleep, so that reference counts take locked instructions.
#include "Events/EventsCases.h"
#include "Threads/RunWithThreads.h"

int main(int i_argc, char** i_argv)
{
  return RunBesideSecondThread(i_argc, i_argv, RegisterEvents);
}
