#include "OPXExplorerOutput.h"

#include "ZELSysStandardStreams.h"

void OPXExplorerOutput::Write(const std::string& i_text)
{
  if (!IsOpen())
    return;
  _error = ZELSysWriteStandardOutput(i_text);
  if (HasFailed())
    ZELSysWriteStandardError("opx-explorer: cannot write the output: " + _error.message() +
                             "; mend that or send the output elsewhere, then run it again\n");
}
