#include "OPXExplorerStdioServer.h"

#include "OPXTreeSession.h"
#include "ZELSysStandardStreams.h"

OPXExplorerStdioServer::OPXExplorerStdioServer(const OPXTreeSession& i_session)
    : _session(i_session), _reader(ZELSysReadStandardInput, OPXTreeSession::MaxMessageSize)
{
}

void OPXExplorerStdioServer::Run()
{
  bool isRead = true;
  while (isRead && _reader.Next())
  {
    const std::string answer = AnswerLine();
    isRead = answer.empty() || ZELSysWriteStandardOutput(answer + "\n");
  }
}

std::string OPXExplorerStdioServer::AnswerLine() const
{
  if (_reader.IsTooLong())
    return OPXTreeSession::AnswerOversized();
  return _session.Answer(_reader.GetLine());
}
