#include "ChildProcess.h"

#include "ChildProgram.h"

#include <ostream>
#include <utility>

ChildProcess::ChildProcess(std::string i_program, std::vector<std::string> i_arguments)
    : _program(std::move(i_program)), _arguments(std::move(i_arguments))
{
}

ChildProcess ChildProcess::Self(const std::string& i_entry, const std::vector<std::string>& i_arguments)
{
  ChildProcess child(GetProgram(), {ChildProgram::Option, i_entry});
  child._arguments.insert(child._arguments.end(), i_arguments.begin(), i_arguments.end());
  return child;
}

ChildProcess& ChildProcess::Set(const std::string& i_name, const std::string& i_value)
{
  _environment[i_name] = i_value;
  return *this;
}

ChildProcess& ChildProcess::Unset(const std::string& i_name)
{
  _environment[i_name] = std::nullopt;
  return *this;
}

ChildProcess& ChildProcess::Input(std::string i_text)
{
  _input = std::move(i_text);
  return *this;
}

ChildProcess& ChildProcess::TimeLimit(double i_seconds)
{
  _seconds = i_seconds;
  return *this;
}

std::string ChildProcess::GetProgramFolder()
{
  const std::string program = GetProgram();
  return program.substr(0, program.find_last_of("/\\"));
}

std::ostream& operator<<(std::ostream& io_stream, const ChildResult& i_result)
{
  return io_stream << (i_result.ended      ? "exit code "
                       : i_result.timedOut ? "out of time, "
                                           : "ended by ")
                   << i_result.code << "\n--- standard output\n"
                   << i_result.out << "--- standard error\n"
                   << i_result.err << "---\n";
}
