#include "OPXExplorerStdioServer.h"

#include "ZELSysStandardStreams.h"

OPXExplorerStdioServer::OPXExplorerStdioServer(ZELSYPAbstractDataSource& i_source, OPXTreeRowsSource& i_rows)
    : _session(i_source, i_rows, [this](const std::string& i_message) { Write(i_message); }),
      _reader(ZELSysReadStandardInput, OPXTreeSession::MaxMessageSize)
{
}

void OPXExplorerStdioServer::Run()
{
  while (_isRead && _reader.Next())
    ServeLine();
}

void OPXExplorerStdioServer::ServeLine()
{
  if (_reader.IsTooLong())
    Write(OPXTreeSession::AnswerOversized());
  else
    _session.Receive(_reader.GetLine());
}

void OPXExplorerStdioServer::Write(const std::string& i_message)
{
  _isRead = _isRead && ZELSysWriteStandardOutput(i_message + "\n");
}
