// OPXExplorerStdioServer: a tree session over standard input and output, one message a line.
// OPXExplorerStdioServer(source, source, output).Run();
#ifndef OPXExplorerStdioServer_H
#define OPXExplorerStdioServer_H

#include "OPXExplorerLineReader.h"
#include "OPXExplorerOutput.h"
#include "OPXTreeSession.h"

class OPXExplorerStdioServer
{
public:
  // All three are borrowed for the life of the server.
  OPXExplorerStdioServer(ZELSYPAbstractDataSource& i_source, OPXTreeRowsSource& i_rows, OPXExplorerOutput& io_output);
  OPXExplorerStdioServer(const OPXExplorerStdioServer&) = delete;
  OPXExplorerStdioServer& operator=(const OPXExplorerStdioServer&) = delete;

  // Serves until the input ends or the output takes no more answers.
  void Run();

private:
  void ServeLine();

  OPXTreeSession _session;
  OPXExplorerLineReader _reader;
  OPXExplorerOutput& _output;
};

#endif
