#include "ChildProgram.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <cstdlib>
#include <map>

const char* const ChildProgram::Option = "--child";

namespace
{
std::map<std::string, ChildProgram::Entry>& Entries()
{
  static std::map<std::string, ChildProgram::Entry> entries;
  return entries;
}
} // namespace

ChildProgram::ChildProgram(const char* i_name, Entry i_entry)
{
  if (Entries().emplace(i_name, i_entry).second)
    return;
  std::fprintf(stderr, "two child entries %s\n", i_name);
  std::abort();
}

int ChildProgram::Run(const std::string& i_name, const std::vector<std::string>& i_arguments)
{
  const auto found = Entries().find(i_name);
  if (found != Entries().end())
    return found->second(i_arguments);
  std::fprintf(stderr, "no child entry %s\n", i_name.c_str());
  return 127;
}

int main(int argc, char** argv)
{
  if (argc > 2 && std::string(argv[1]) == ChildProgram::Option)
    return ChildProgram::Run(argv[2], std::vector<std::string>(argv + 3, argv + argc));
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
