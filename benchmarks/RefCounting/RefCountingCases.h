// The cases of RefCountingBenchmark.cpp, for the two programs that run them.
// return RunRefCountingBenchmark(argc, argv, "/Threads");
#ifndef RefCountingCases_H
#define RefCountingCases_H

#include <string>

// What main() is to answer. i_state goes to the end of each case's name.
int RunRefCountingBenchmark(int i_argc, char** i_argv, const std::string& i_state);

#endif
