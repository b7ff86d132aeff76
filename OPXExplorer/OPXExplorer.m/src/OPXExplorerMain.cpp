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
int Serve(ZELSysRootedDirectory i_root, const OPXExplorerOptions& i_options)
{
  OPXExplorerDirectorySource source(std::move(i_root));
  const OPXTreeSession session(source);
  if (!i_options.IsStdio())
    return OPXExplorerTreePrinter(session, i_options.GetRows()).Print() ? OPXExplorerOptions::Done : OPXExplorerOptions::NotReadable;
  OPXExplorerStdioServer(session).Run();
  return OPXExplorerOptions::Done;
}
} // namespace

int main(int i_count, char** i_pArguments)
{
  ZELSysPrepareStandardStreams();
  OPXExplorerOptions options;
  if (const auto code = options.Parse(ZELSysGetArguments(i_count, i_pArguments)))
    return *code;
  ZELSysRootedDirectory root(ZELUnicodeString::FromUTF8(options.GetDirectory()));
  if (root.IsOpen())
    return Serve(std::move(root), options);
  ZELSysWriteStandardError("opx-explorer: cannot read the directory " + options.GetDirectory() + "\n");
  return OPXExplorerOptions::NotReadable;
}
