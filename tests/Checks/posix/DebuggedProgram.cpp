// Under gdb.
#include "../DebuggedProgram.h"

#include "ChildProcess.h"
#include "ChildProgram.h"

static int Count(const std::string& i_text, const std::string& i_part)
{
  int count = 0;
  for (std::size_t at = i_text.find(i_part); at != std::string::npos; at = i_text.find(i_part, at + 1))
    ++count;
  return count;
}

DebuggedProgram::Result DebuggedProgram::Run(const std::string& i_entry, const std::vector<std::string>& i_arguments,
                                             const std::map<std::string, std::string>& i_environment, const std::string& i_libraries)
{
  // As often as any program here breaks, and once more, in vain, after the end.
  std::vector<std::string> arguments = {"-nx", "-batch", "-ex", "set debuginfod enabled off", "-ex", "run"};
  for (int number = 0; number < 3; ++number)
    arguments.insert(arguments.end(), {"-ex", "continue"});
  arguments.insert(arguments.end(), {"--args", ChildProcess::GetProgram(), ChildProgram::Option, i_entry});
  arguments.insert(arguments.end(), i_arguments.begin(), i_arguments.end());
  ChildProcess debugger("/usr/bin/gdb", arguments);
  debugger.Set("ASAN_OPTIONS", "detect_leaks=0");
  for (const auto& [name, value] : i_environment)
    debugger.Set(name, value);
  if (!i_libraries.empty())
    debugger.SearchLibrariesIn(i_libraries);
  const ChildResult result = debugger.Run();
  return {Count(result.out, "received signal SIGTRAP"), Count(result.out, "exited normally") == 1, result.out + result.err};
}
