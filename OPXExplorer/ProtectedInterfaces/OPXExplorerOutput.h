// OPXExplorerOutput: the standard output for as long as it takes what is written.
// OPXExplorerOutput output; output.Write("line\n"); return output.HasFailed() ? 1 : 0;
#ifndef OPXExplorerOutput_H
#define OPXExplorerOutput_H

#include <string>
#include <system_error>

class OPXExplorerOutput
{
public:
  // Nothing once it is not open. The first failure is told on standard error.
  void Write(const std::string& i_text);

  // Until nobody reads any more or a write has failed.
  bool IsOpen() const noexcept { return !_error; }
  // That nobody reads any more is no failure.
  bool HasFailed() const noexcept { return _error && _error != std::errc::broken_pipe; }

private:
  std::error_code _error;
};

#endif
