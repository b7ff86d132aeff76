#include "ZELSYPCheckFailureHandler.h"
#include "FailureHandlerInstaller.h"
#include "RecordingFailureHandler.h"
#include "ZELSYPCheck.h"

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
// Counts its reports, and tells when it is gone.
class CountingHandler : public ZELSYPCheckFailureHandler
{
public:
  CountingHandler(std::atomic<int>& io_reports, std::atomic<int>& io_destroyed) : _reports(io_reports), _destroyed(io_destroyed) {}
  void HandleFailure(const char*, const char*, int, const char*) override { ++_reports; }

protected:
  ~CountingHandler() override { ++_destroyed; }

private:
  std::atomic<int>& _reports;
  std::atomic<int>& _destroyed;
};

// Writes down what it is called with.
class CallLog : public ZELSYPCheckFailureHandler
{
public:
  explicit CallLog(std::vector<std::string>& io_calls) : _calls(io_calls) {}
  void HandleFailure(const char* i_message, const char*, int, const char*) override { _calls.push_back(i_message); }
  void SetExpectFailures() override { _calls.push_back("expect"); }
  void ResetExpectFailuresAndCheck(const char* i_file, int i_line) override
  {
    _calls.push_back(std::string("reset ") + i_file + ' ' + std::to_string(i_line));
  }
  void ResetExpectFailuresAndCheckMsg(const char* i_file, int i_line, int i_count, const char* i_text1, const char* i_text2) override
  {
    ResetExpectFailuresAndCheck(i_file, i_line);
    _calls.push_back(std::to_string(i_count) + ' ' + i_text1 + ' ' + i_text2);
  }

private:
  std::vector<std::string>& _calls;
};

// Fails a check while it reports one, and uninstalls itself.
class ReentrantHandler : public ZELSYPCheckFailureHandler
{
public:
  explicit ReentrantHandler(std::vector<std::string>& io_messages) : _messages(io_messages) {}
  void HandleFailure(const char* i_message, const char*, int, const char*) override
  {
    _messages.push_back(i_message);
    if (_messages.size() == 1)
      CheckFailure__("inner", "Some.cpp", 2, nullptr);
    FailureHandlerInstaller::SetFailureHandler(nullptr);
  }

private:
  std::vector<std::string>& _messages;
};

struct Life
{
  std::atomic<int> reports{0};
  std::atomic<int> destroyed{0};
  CountingHandler* New() { return new CountingHandler(reports, destroyed); }
};

const char* const NoFlag = "This handler does not support ExpectFailures flag";
const char* const NoAdvance = "This handler does not support advance functionalities of ExpectFailures";
} // namespace

TEST(ZELSYPCheckFailureHandler, GoesWithItsLastReference)
{
  Life life;
  CountingHandler* pHandler = life.New();
  pHandler->AddRef();
  pHandler->Release();
  EXPECT_EQ(life.destroyed, 0);
  pHandler->Release();
  EXPECT_EQ(life.destroyed, 1);
}

TEST(ZELSYPCheckFailureHandler, GoesWhenTheLastReferenceIsThatOfAReport)
{
  Life life;
  CountingHandler* pHandler = life.New();
  pHandler->AddRefAndMark();
  pHandler->Release();
  EXPECT_EQ(life.destroyed, 0);
  pHandler->ReleaseAndUnmark();
  EXPECT_EQ(life.destroyed, 1);
}

TEST(ZELSYPCheckFailureHandler, IsFreeAtFirst)
{
  Life life;
  CountingHandler* pHandler = life.New();
  pHandler->WaitForFreeEvent();
  pHandler->Release();
  EXPECT_EQ(life.destroyed, 1);
}

TEST(ZELSYPCheckFailureHandler, IsFreeOnceEveryMarkIsGone)
{
  Life life;
  CountingHandler* pHandler = life.New();
  pHandler->AddRefAndMark();
  pHandler->AddRefAndMark();
  std::atomic<bool> free{false};
  std::thread waiting([&] { pHandler->WaitForFreeEvent(), free = true; });
  pHandler->ReleaseAndUnmark();
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  EXPECT_FALSE(free);
  pHandler->ReleaseAndUnmark();
  waiting.join();
  EXPECT_TRUE(free);
  pHandler->Release();
}

TEST(ZELSYPCheckFailureHandler, BaseReportsAnEndOfExpectationsThatItDoesNotSupport)
{
  RecordingFailureHandler failures;
  FailureHandlerInstaller::SetExpectFailures();
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
  FailureHandlerInstaller::ResetExpectFailuresAndCheck("Some.cpp", 12);
  EXPECT_THAT(failures.GetFailures(), ElementsAre(RecordingFailureHandler::Failure{NoFlag, "Some.cpp", 12, std::nullopt}));
}

TEST(ZELSYPCheckFailureHandler, BaseReportsAdvancedExpectationsOnlyWhereSomeAreGiven)
{
  RecordingFailureHandler failures;
  FailureHandlerInstaller::ResetExpectFailuresAndCheckMsg("Some.cpp", 12, 0, "", "");
  EXPECT_THAT(failures.GetMessages(), ElementsAre(NoFlag));
  struct
  {
    int count;
    const char *text1, *text2;
  } const given[] = {{1, "", ""}, {-1, "", ""}, {0, "a", ""}, {0, "", "b"}};
  for (const auto& expected : given)
  {
    failures.Clear();
    FailureHandlerInstaller::ResetExpectFailuresAndCheckMsg("Some.cpp", 12, expected.count, expected.text1, expected.text2);
    EXPECT_THAT(failures.GetFailures(), ElementsAre(RecordingFailureHandler::Failure{NoFlag, "Some.cpp", 12, std::nullopt},
                                                    RecordingFailureHandler::Failure{NoAdvance, "Some.cpp", 12, std::nullopt}));
  }
}

TEST(ZELSYPCheckFailureHandlerSetter, HoldsAReferenceOnTheInstalledHandler)
{
  Life life;
  CountingHandler* pHandler = life.New();
  FailureHandlerInstaller::SetFailureHandler(pHandler);
  pHandler->Release();
  CheckFailure__("message", "Some.cpp", 1, nullptr);
  FailureHandlerInstaller::SetFailureHandler(pHandler); // changes nothing
  EXPECT_EQ(life.destroyed, 0);
  FailureHandlerInstaller::SetFailureHandler(nullptr);
  EXPECT_EQ(life.reports, 1);
  EXPECT_EQ(life.destroyed, 1);
}

TEST(ZELSYPCheckFailureHandlerSetter, ForwardsToTheInstalledHandlerWithAllArguments)
{
  std::vector<std::string> calls;
  auto* pHandler = new CallLog(calls);
  FailureHandlerInstaller::SetFailureHandler(pHandler);
  FailureHandlerInstaller::SetExpectFailures();
  FailureHandlerInstaller::ResetExpectFailuresAndCheck("Some.cpp", 12);
  FailureHandlerInstaller::ResetExpectFailuresAndCheckMsg("Other.cpp", 13, 2, "first", "second");
  FailureHandlerInstaller::SetFailureHandler(nullptr);
  pHandler->Release();
  EXPECT_THAT(calls, ElementsAre("expect", "reset Some.cpp 12", "reset Other.cpp 13", "2 first second"));
}

TEST(ZELSYPCheckFailureHandlerSetter, HandlerMayFailChecksAndUninstallItselfWhileItReports)
{
  std::vector<std::string> messages;
  auto* pHandler = new ReentrantHandler(messages);
  FailureHandlerInstaller::SetFailureHandler(pHandler);
  pHandler->Release();
  CheckFailure__("outer", "Some.cpp", 1, nullptr);
  EXPECT_THAT(messages, ElementsAre("outer", "inner"));
}

TEST(ZELSYPCheckFailureHandlerSetter, SixteenThreadsFailChecksWhileOthersReplaceTheHandler)
{
  const int reporters = 16, reports = 500;
  Life life;
  std::atomic<int> made{0};
  std::atomic<bool> done{false};
  CountingHandler* pFirst = life.New();
  FailureHandlerInstaller::SetFailureHandler(pFirst);
  pFirst->Release();

  std::vector<std::thread> replacing;
  for (int i = 0; i < 3; ++i)
    replacing.emplace_back(
        [&]
        {
          while (!done)
          {
            CountingHandler* pHandler = life.New();
            ++made;
            FailureHandlerInstaller::SetFailureHandler(pHandler);
            FailureHandlerInstaller::SetExpectFailures();
            pHandler->WaitForFreeEvent();
            pHandler->Release();
          }
        });
  std::vector<std::thread> reporting;
  for (int i = 0; i < reporters; ++i)
    reporting.emplace_back(
        [&]
        {
          for (int report = 0; report < reports; ++report)
            CheckFailure__("message", "Some.cpp", 1, nullptr);
        });
  for (std::thread& thread : reporting)
    thread.join();
  done = true;
  for (std::thread& thread : replacing)
    thread.join();
  FailureHandlerInstaller::SetFailureHandler(nullptr);

  EXPECT_EQ(life.reports, reporters * reports);
  EXPECT_EQ(life.destroyed, made + 1);
}
