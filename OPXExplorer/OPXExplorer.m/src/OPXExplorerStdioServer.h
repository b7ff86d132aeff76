// OPXExplorerStdioServer: a tree session over standard input and output, one message a line.
// return OPXExplorerStdioServer(session).Run();
#ifndef OPXExplorerStdioServer_H
#define OPXExplorerStdioServer_H

#include "OPXExplorerLineReader.h"

class OPXTreeSession;

class OPXExplorerStdioServer
{
public:
  // The session is borrowed for the life of the server.
  explicit OPXExplorerStdioServer(const OPXTreeSession& i_session);

  // Serves until the input ends or nobody reads the answers any more.
  void Run();

private:
  std::string AnswerLine() const;

  const OPXTreeSession& _session;
  OPXExplorerLineReader _reader;
};

#endif
