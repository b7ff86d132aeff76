// opx-explorer: the tree of a directory, for a person or for a tree view.

#include "OPXExplorerDirectorySource.h"
#include "OPXExplorerOptions.h"
#include "OPXExplorerOutput.h"
#include "OPXExplorerStdioServer.h"
#include "OPXExplorerTreePrinter.h"
#include "OPXTreeSession.h"
#include "ZELSysStandardStreams.h"

#include <utility>
#include <vector>

namespace
{
OPXExplorerOptions::ExitCode Serve(OPXExplorerDirectorySource& io_source, OPXExplorerOutput& io_output)
{
  OPXExplorerStdioServer(io_source, io_source, io_output).Run();
  return OPXExplorerOptions::Done;
}

OPXExplorerOptions::ExitCode Print(OPXExplorerDirectorySource& io_source, int i_rows, OPXExplorerOutput& io_output)
{
  const OPXTreeSession session(io_source);
  return OPXExplorerTreePrinter(session, i_rows, io_output).Print() ? OPXExplorerOptions::Done : OPXExplorerOptions::Failed;
}

OPXExplorerOptions::ExitCode Run(const std::vector<ZELUnicodeString>& i_arguments, OPXExplorerOutput& io_output)
{
  OPXExplorerOptions options;
  if (const auto code = options.Parse(i_arguments, io_output))
    return *code;
  ZELSysRootedDirectory root(ZELUnicodeString::FromUTF8(options.GetDirectory()));
  if (!root.IsOpen())
  {
    ZELSysWriteStandardError("opx-explorer: cannot read the directory " + options.GetDirectory() + "\n");
    return OPXExplorerOptions::Failed;
  }
  OPXExplorerDirectorySource source(std::move(root));
  return options.IsStdio() ? Serve(source, io_output) : Print(source, options.GetRows(), io_output);
}
} // namespace

int main(int i_count, char** i_pArguments)
{
  ZELSysPrepareStandardStreams();
  OPXExplorerOutput output;
  const OPXExplorerOptions::ExitCode code = Run(ZELSysGetArguments(i_count, i_pArguments), output);
  return output.HasFailed() ? OPXExplorerOptions::Failed : code;
}
