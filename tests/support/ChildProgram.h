// ChildProgram: entries at which a test program can be run again as a child of its own (see ChildProcess::Self).
// OPX_CHILD_ENTRY(FailOneCheck) { CheckFailure__("message", "file.cpp", 12, nullptr); return 0; }
//
// The entry's arguments are in i_arguments; what it answers is the exit code. main() of every test program is in here.
#ifndef ChildProgram_H
#define ChildProgram_H

#include <string>
#include <vector>

class ChildProgram
{
public:
  typedef int (*Entry)(const std::vector<std::string>& i_arguments);

  // The program's first argument when an entry is meant.
  static const char* const Option;

  // Registers an entry. A second one of the same name ends the program at its start.
  ChildProgram(const char* i_name, Entry i_entry);

  // Runs the entry, or complains and answers 127 when there is none of that name.
  static int Run(const std::string& i_name, const std::vector<std::string>& i_arguments);
};

#define OPX_CHILD_ENTRY(name)                                                                                                              \
  static int name##ChildEntry(const std::vector<std::string>& i_arguments);                                                                \
  static const ChildProgram name##ChildProgram(#name, &name##ChildEntry);                                                                  \
  static int name##ChildEntry([[maybe_unused]] const std::vector<std::string>& i_arguments)

#endif
