// OPXExplorerStdioServer: a tree session over standard input and output, one message a line.
// OPXExplorerStdioServer(source, source).Run();
#ifndef OPXExplorerStdioServer_H
#define OPXExplorerStdioServer_H

#include "OPXExplorerLineReader.h"
#include "OPXTreeSession.h"

#include <string>

class OPXExplorerStdioServer
{
public:
  // Both are borrowed for the life of the server.
  OPXExplorerStdioServer(ZELSYPAbstractDataSource& i_source, OPXTreeRowsSource& i_rows);
  OPXExplorerStdioServer(const OPXExplorerStdioServer&) = delete;
  OPXExplorerStdioServer& operator=(const OPXExplorerStdioServer&) = delete;

  // Serves until the input ends or nobody reads the answers any more.
  void Run();

private:
  void ServeLine();
  void Write(const std::string& i_message);

  OPXTreeSession _session;
  OPXExplorerLineReader _reader;
  bool _isRead = true;
};

#endif
