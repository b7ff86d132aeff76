// OPXExplorerOptions: what the command line asks of opx-explorer.
// OPXExplorerOptions options; if (auto code = options.Parse(arguments, output)) return *code;
#ifndef OPXExplorerOptions_H
#define OPXExplorerOptions_H

#include "OPXExplorerOutput.h"
#include "ZELUnicodeString.h"

#include <optional>
#include <string>
#include <vector>

class OPXExplorerOptions
{
public:
  enum ExitCode
  {
    Done = 0,
    Failed = 1,
    WrongUsage = 2
  };

  // The code to end with at once, after help, version or an error has been told; nothing when there is work to do.
  std::optional<ExitCode> Parse(const std::vector<ZELUnicodeString>& i_arguments, OPXExplorerOutput& io_output);

  const std::string& GetDirectory() const noexcept { return _directory; }
  bool IsStdio() const noexcept { return _isStdio; }

private:
  std::string _directory;
  bool _isStdio = false;
};

#endif
