#include "ChildProcess.h"
#include "ChildProgram.h"

#include <chrono>
#include <cstdio>
#include <gmock/gmock.h>
#include <iostream>
#include <stdexcept>
#include <string>
#include <thread>

OPX_CHILD_ENTRY(EchoBothWays)
{
  for (std::string line; std::getline(std::cin, line);)
  {
    std::cout << line << '\n';
    std::cerr << "error " << line << '\n';
  }
  return 3;
}

OPX_CHILD_ENTRY(PrintArguments)
{
  for (const std::string& argument : i_arguments)
    std::cout << '[' << argument << "]\n";
  return 0;
}

OPX_CHILD_ENTRY(NeverEnd)
{
  std::this_thread::sleep_for(std::chrono::hours(1));
  return 0;
}

OPX_CHILD_ENTRY(ReadNothing)
{
  return 0;
}

TEST(ChildProcessTest, TellsBothStreamsApartAndTheExitCode)
{
  const ChildResult result = ChildProcess::Self("EchoBothWays").Input("a\nb\n").Run();
  EXPECT_TRUE(result.ended);
  EXPECT_FALSE(result.Succeeded());
  EXPECT_EQ(result.code, 3);
  EXPECT_EQ(result.out, "a\nb\n");
  EXPECT_EQ(result.err, "error a\nerror b\n");
}

TEST(ChildProcessTest, MegabytesInAllDirectionsDoNotBlock)
{
  std::string input;
  for (int i = 0; i < 20000; ++i)
    input += std::string(99, 'x') + "\n";
  const ChildResult result = ChildProcess::Self("EchoBothWays").Input(input).Run();
  EXPECT_EQ(result.out.size(), input.size());
  EXPECT_EQ(result.err.size(), input.size() + 20000 * 6);
}

TEST(ChildProcessTest, ChildThatReadsNothingIsFine)
{
  EXPECT_TRUE(ChildProcess::Self("ReadNothing").Input(std::string(2000000, 'x')).Run().Succeeded());
}

TEST(ChildProcessTest, ArgumentsArriveUnchanged)
{
  const std::vector<std::string> arguments = {"", "two words", "a\"b", "back\\", "back\\\"quoted", "*"};
  EXPECT_EQ(ChildProcess::Self("PrintArguments", arguments).Run().out, "[]\n[two words]\n[a\"b]\n[back\\]\n[back\\\"quoted]\n[*]\n");
}

TEST(ChildProcessTest, ChildIsEndedWhenItsTimeIsOver)
{
  const ChildResult result = ChildProcess::Self("NeverEnd").TimeLimit(0.3).Run();
  EXPECT_TRUE(result.timedOut);
  EXPECT_FALSE(result.ended);
}

TEST(ChildProcessTest, UnknownEntryIsAFailure)
{
  const ChildResult result = ChildProcess::Self("NoSuchEntry").Run();
  EXPECT_EQ(result.code, 127);
  EXPECT_EQ(result.err, "no child entry NoSuchEntry\n");
}

TEST(ChildProcessTest, ProgramThatIsNotThereThrows)
{
  EXPECT_THROW(ChildProcess(ChildProcess::Beside("no-such-program")).Run(), std::runtime_error);
}
