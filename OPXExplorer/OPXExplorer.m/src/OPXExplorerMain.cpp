// opx-explorer: the tree of a directory, for a person or for a tree view.

#include "OPXExplorerDirectorySource.h"
#include "OPXExplorerOptions.h"
#include "OPXExplorerStdioServer.h"
#include "OPXExplorerTreePrinter.h"
#include "OPXTreeSession.h"
#include "ZELSysStandardStreams.h"

#include <utility>

namespace
{
OPXExplorerOptions::ExitCode Serve(OPXExplorerDirectorySource& io_source)
{
  OPXExplorerStdioServer(io_source, io_source).Run();
  return OPXExplorerOptions::Done;
}

OPXExplorerOptions::ExitCode Print(OPXExplorerDirectorySource& io_source, int i_rows)
{
  const OPXTreeSession session(io_source);
  return OPXExplorerTreePrinter(session, i_rows).Print() ? OPXExplorerOptions::Done : OPXExplorerOptions::NotReadable;
}
} // namespace

int main(int i_count, char** i_pArguments)
{
  ZELSysPrepareStandardStreams();
  OPXExplorerOptions options;
  if (const auto code = options.Parse(ZELSysGetArguments(i_count, i_pArguments)))
    return *code;
  ZELSysRootedDirectory root(ZELUnicodeString::FromUTF8(options.GetDirectory()));
  if (!root.IsOpen())
  {
    ZELSysWriteStandardError("opx-explorer: cannot read the directory " + options.GetDirectory() + "\n");
    return OPXExplorerOptions::NotReadable;
  }
  OPXExplorerDirectorySource source(std::move(root));
  return options.IsStdio() ? Serve(source) : Print(source, options.GetRows());
}
