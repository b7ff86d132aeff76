// ChildProcess: runs a program to its end and tells what it wrote and how it ended.
// ChildResult result = ChildProcess::Self("FailOneCheck").Set("ZELDevelopmentStage", "1").Run(); EXPECT_EQ(result.err, "...");
//
// Self() runs this very test program again, at an entry that ChildProgram.h declares. Standard output and standard error
// are read at the same time as the input is written, so that no amount of either blocks.
#ifndef ChildProcess_H
#define ChildProcess_H

#include <map>
#include <optional>
#include <string>
#include <vector>

struct ChildResult
{
  // The program came to its own end: no signal (Linux), no exception code (Windows), no time limit.
  bool ended = false;
  bool timedOut = false;
  // The exit code; after an abnormal end the number of the signal (Linux) or the exception code (Windows).
  long code = -1;
  // What it wrote; line ends are "\n" on every platform.
  std::string out;
  std::string err;

  bool Succeeded() const { return ended && code == 0; }
};

// For a test's message.
std::ostream& operator<<(std::ostream& io_stream, const ChildResult& i_result);

class ChildProcess
{
public:
  explicit ChildProcess(std::string i_program, std::vector<std::string> i_arguments = {});
  // This program again, at the entry i_entry of ChildProgram.h.
  static ChildProcess Self(const std::string& i_entry, const std::vector<std::string>& i_arguments = {});

  // Changes to this process's environment, as the child sees it.
  ChildProcess& Set(const std::string& i_name, const std::string& i_value);
  ChildProcess& Unset(const std::string& i_name);
  // The child looks for libraries in this folder before it looks anywhere else.
  ChildProcess& SearchLibrariesIn(const std::string& i_folder);
  // The whole of its standard input; empty unless given.
  ChildProcess& Input(std::string i_text);
  // The child is ended after so many seconds; 60 unless given.
  ChildProcess& TimeLimit(double i_seconds);

  // Throws std::runtime_error when the program cannot be started.
  ChildResult Run() const;

  // The running program's own file and its folder, as the system writes them. Helper programs stand beside it, named
  // without their ending here: ChildProcess::Beside("opx-explorer").
  static std::string GetProgram();
  static std::string GetProgramFolder();
  static std::string Beside(const std::string& i_name);

private:
  // No value: the variable is taken away.
  typedef std::map<std::string, std::optional<std::string>> Changes;

  std::string _program;
  std::vector<std::string> _arguments;
  Changes _environment;
  std::string _input;
  double _seconds = 60;
};

#endif
