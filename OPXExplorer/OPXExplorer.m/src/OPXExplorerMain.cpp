// opx-explorer: the tree of a directory, for a person or for a tree view.

#include "OPXExplorerDirectorySource.h"
#include "OPXExplorerOptions.h"
#include "OPXExplorerOutput.h"
#include "OPXExplorerStdioServer.h"
#include "OPXExplorerTreePrinter.h"
#include "OPXTreeSession.h"
#include "ZELSysStandardStreams.h"

#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace
{
OPXExplorerOptions::ExitCode Fail(const std::string& i_what)
{
  ZELSysWriteStandardError("opx-explorer: cannot " + i_what + "\n");
  return OPXExplorerOptions::Failed;
}

OPXExplorerOptions::ExitCode Serve(OPXExplorerDirectorySource& io_source, OPXExplorerOutput& io_output)
{
  OPXExplorerStdioServer(io_source, io_source, io_output).Run();
  return OPXExplorerOptions::Done;
}

OPXExplorerOptions::ExitCode Print(OPXExplorerDirectorySource& io_source, const std::string& i_directory, OPXExplorerOutput& io_output)
{
  const OPXTreeSession session(io_source);
  if (OPXExplorerTreePrinter(session, io_output).Print())
    return OPXExplorerOptions::Done;
  return Fail("list the directory " + i_directory + " to its end; see that it can be reached, then run it again");
}

OPXExplorerOptions::ExitCode Run(const std::vector<ZELUnicodeString>& i_arguments, OPXExplorerOutput& io_output)
{
  OPXExplorerOptions options;
  if (const auto code = options.Parse(i_arguments, io_output))
    return *code;
  std::error_code error;
  ZELSysRootedDirectory root(ZELUnicodeString::FromUTF8(options.GetDirectory()), &error);
  if (!root.IsOpen())
    return Fail("read the directory " + options.GetDirectory() + ": " + error.message());
  OPXExplorerDirectorySource source(std::move(root));
  return options.IsStdio() ? Serve(source, io_output) : Print(source, options.GetDirectory(), io_output);
}
} // namespace

int main(int i_count, char** i_pArguments)
{
  ZELSysPrepareStandardStreams();
  OPXExplorerOutput output;
  const OPXExplorerOptions::ExitCode code = Run(ZELSysGetArguments(i_count, i_pArguments), output);
  return output.HasFailed() ? OPXExplorerOptions::Failed : code;
}
