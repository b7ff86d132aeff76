#include "OPXExplorerOptions.h"

#include "ZELSysStandardStreams.h"

#include <CLI/CLI.hpp>
#include <sstream>

namespace
{
constexpr const char* purpose = "Shows the tree of a directory: its first two levels to a person, or all of it to a program.";

constexpr const char* footer = "Without --stdio the first ten rows of the directory and of its subdirectories are printed; times are UTC.\n"
                               "With --stdio each line of the input is a JSON-RPC 2.0 message, answered by a line of the output. Methods:\n"
                               "  tree/rows, tree/structure, tree/selectionChange, tree/collapseExpand, tree/pointerEvent, tree/succeeded\n"
                               "What changes is told by lines of the output that answer nothing: tree/selectionChanged\n"
                               "Exit codes:\n"
                               "  0  done; also when the input ends or nobody reads the output any more\n"
                               "  1  the directory cannot be read or not listed to its end, or the output cannot be written\n"
                               "  2  wrong usage";

// The parser takes the last argument first.
std::vector<std::string> MakeReversed(const std::vector<ZELUnicodeString>& i_arguments)
{
  std::vector<std::string> reversed;
  for (auto argument = i_arguments.rbegin(); argument != i_arguments.rend(); ++argument)
    reversed.emplace_back(argument->GetUTF8());
  return reversed;
}

OPXExplorerOptions::ExitCode Tell(const CLI::App& i_app, const CLI::ParseError& i_error, OPXExplorerOutput& io_output)
{
  std::ostringstream output;
  std::ostringstream errors;
  const bool isError = i_app.exit(i_error, output, errors) != 0;
  io_output.Write(output.str());
  ZELSysWriteStandardError(errors.str());
  return isError ? OPXExplorerOptions::WrongUsage : OPXExplorerOptions::Done;
}
} // namespace

std::optional<OPXExplorerOptions::ExitCode> OPXExplorerOptions::Parse(const std::vector<ZELUnicodeString>& i_arguments,
                                                                      OPXExplorerOutput& io_output)
{
  CLI::App app(purpose, "opx-explorer");
  app.footer(footer);
  app.set_version_flag("--version", "opx-explorer " OPX_VERSION);
  app.add_flag("--stdio", _isStdio, "Answer a tree view over standard input and output");
  app.add_option("DIRECTORY", _directory, "The directory to show; nothing outside it is")->required();
  try
  {
    app.parse(MakeReversed(i_arguments));
  }
  catch (const CLI::ParseError& error)
  {
    return Tell(app, error, io_output);
  }
  return std::nullopt;
}
