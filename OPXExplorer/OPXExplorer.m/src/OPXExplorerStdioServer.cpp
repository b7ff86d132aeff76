#include "OPXExplorerStdioServer.h"

#include "ZELSysStandardStreams.h"

OPXExplorerStdioServer::OPXExplorerStdioServer(ZELSYPAbstractDataSource& i_source, OPXTreeRowsSource& i_rows, OPXExplorerOutput& io_output)
    : _session(i_source, i_rows, [&io_output](const std::string& i_message) { io_output.Write(i_message + "\n"); }),
      _reader(ZELSysReadStandardInput, OPXTreeSession::MaxMessageSize),
      _output(io_output)
{
}

void OPXExplorerStdioServer::Run()
{
  while (_output.IsOpen() && _reader.Next())
    ServeLine();
}

void OPXExplorerStdioServer::ServeLine()
{
  if (_reader.IsTooLong())
    _output.Write(OPXTreeSession::AnswerOversized() + "\n");
  else
    _session.Receive(_reader.GetLine());
}
