// RecordingFailureHandler: while it lives, failed checks are recorded here instead of being reported.
// RecordingFailureHandler failures; Call(nullptr); EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_pEvent is NULL"));
//
// When it goes, no handler is installed. One at a time. Any thread may fail checks and read the records.
#ifndef RecordingFailureHandler_H
#define RecordingFailureHandler_H

#include <optional>
#include <ostream>
#include <string>
#include <vector>

class RecordingFailureHandler
{
public:
  struct Failure
  {
    std::string message;
    std::string file;
    int line = 0;
    // No value: the check gave none.
    std::optional<std::string> details;

    bool operator==(const Failure& i_other) const;
  };

  RecordingFailureHandler();
  // Waits until no report runs any more.
  ~RecordingFailureHandler();
  RecordingFailureHandler(const RecordingFailureHandler&) = delete;
  RecordingFailureHandler& operator=(const RecordingFailureHandler&) = delete;

  // What was recorded since the start, or since the last Clear, in the order it was reported.
  std::vector<Failure> GetFailures() const;
  std::vector<std::string> GetMessages() const;
  void Clear();

private:
  class Handler;

  Handler* const _pHandler;
};

// For a test's message.
std::ostream& operator<<(std::ostream& io_stream, const RecordingFailureHandler::Failure& i_failure);

#endif
