#include "RecordingFailureHandler.h"

#include "FailureHandlerInstaller.h"
#include "ZELSYPCheckFailureHandler.h"

#include <mutex>

class RecordingFailureHandler::Handler : public ZELSYPCheckFailureHandler
{
public:
  void HandleFailure(const char* i_message, const char* i_file, int i_line, const char* i_details) override
  {
    Failure failure{i_message, i_file, i_line, std::nullopt};
    if (i_details)
      failure.details = i_details;
    std::lock_guard<std::mutex> hold(_lock);
    _failures.push_back(failure);
  }

  std::vector<Failure> GetFailures() const
  {
    std::lock_guard<std::mutex> hold(_lock);
    return _failures;
  }

  void Clear()
  {
    std::lock_guard<std::mutex> hold(_lock);
    _failures.clear();
  }

private:
  mutable std::mutex _lock;
  std::vector<Failure> _failures;
};

bool RecordingFailureHandler::Failure::operator==(const Failure& i_other) const
{
  return message == i_other.message && file == i_other.file && line == i_other.line && details == i_other.details;
}

RecordingFailureHandler::RecordingFailureHandler() : _pHandler(new Handler)
{
  FailureHandlerInstaller::SetFailureHandler(_pHandler);
}

RecordingFailureHandler::~RecordingFailureHandler()
{
  FailureHandlerInstaller::SetFailureHandler(nullptr);
  _pHandler->WaitForFreeEvent();
  _pHandler->Release();
}

std::vector<RecordingFailureHandler::Failure> RecordingFailureHandler::GetFailures() const
{
  return _pHandler->GetFailures();
}

std::vector<std::string> RecordingFailureHandler::GetMessages() const
{
  std::vector<std::string> messages;
  for (const Failure& failure : GetFailures())
    messages.push_back(failure.message);
  return messages;
}

void RecordingFailureHandler::Clear()
{
  _pHandler->Clear();
}

std::ostream& operator<<(std::ostream& io_stream, const RecordingFailureHandler::Failure& i_failure)
{
  return io_stream << i_failure.file << ':' << i_failure.line << ": " << i_failure.message
                   << (i_failure.details ? " (" + *i_failure.details + ')' : std::string());
}
