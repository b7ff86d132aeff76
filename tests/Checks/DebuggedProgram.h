// DebuggedProgram: runs an entry of this test program (ChildProgram.h) under a debugger that goes on after every break.
// DebuggedProgram::Run("FailOneCheck", {}, {{"ZELDevelopmentStage", "1"}}).breaks == 1;
#ifndef DebuggedProgram_H
#define DebuggedProgram_H

#include <map>
#include <string>
#include <vector>

class DebuggedProgram
{
public:
  struct Result
  {
    // Breaks of the program's own: the one that the system makes at its start does not count.
    int breaks = 0;
    // It came to its own end and answered 0.
    bool succeeded = false;
    // What it wrote to either stream, among what the debugger says.
    std::string text;
  };

  // The program looks for libraries in the folder too, if one is given. Throws std::runtime_error when it cannot be started.
  static Result Run(const std::string& i_entry, const std::vector<std::string>& i_arguments,
                    const std::map<std::string, std::string>& i_environment, const std::string& i_libraries = {});
};

#endif
