// The cases of RefCountingBenchmark.cpp, for the two programs that run them.
// return RunBesideSecondThread(argc, argv, RegisterRefCounting);
#ifndef RefCountingCases_H
#define RefCountingCases_H

#include <string>

// i_state goes to the end of each case's name.
void RegisterRefCounting(const std::string& i_state);

#endif
