// The mains of two programs that run the same cases, one in a process of one thread, one in a process of two.
// int main(int i_argc, char** i_argv) { return RunWithOneThread(i_argc, i_argv, RegisterEvents); }
#ifndef RunWithThreads_H
#define RunWithThreads_H

#include <string>

// Registers the cases, with i_state at the end of their names.
typedef void (*Registration)(const std::string& i_state);

// What main() is to answer: an error, too, when a case started a thread, after which no figure is one of one thread.
int RunWithOneThread(int i_argc, char** i_argv, Registration i_register);
// While a second thread lives, asleep; the state is "/Threads".
int RunBesideSecondThread(int i_argc, char** i_argv, Registration i_register);

#endif
