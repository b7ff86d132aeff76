// opx-explorer as a program: command line, standard streams, exit codes.
#include "ChildProcess.h"
#include "LineMaker.h"
#include "OPXTreeSession.h"
#include "TemporaryTree.h"
#include "ZELSysRootedDirectory.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <sstream>

using nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{
ChildResult RunExplorer(const std::vector<std::string>& i_arguments, const std::string& i_input = {})
{
  return ChildProcess(ChildProcess::Beside("opx-explorer"), i_arguments).Input(i_input).Run();
}

ChildResult Serve(const TemporaryTree& i_tree, const std::string& i_input)
{
  return RunExplorer({"--stdio", i_tree.SystemPath().u8string()}, i_input);
}

std::vector<std::string> SplitLines(const std::string& i_text)
{
  std::istringstream stream(i_text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);)
    lines.push_back(line);
  return lines;
}

const std::string rows = R"({"jsonrpc":"2.0","id":1,"method":"tree/rows","params":{"startRow":0,"endRow":9,"groupKeys":[]}})";

bool IsNotification(const json& i_message)
{
  return i_message.is_object() && !i_message.contains("id") && i_message.value("jsonrpc", json()) == "2.0" &&
         i_message.value("method", json()).is_string() && i_message.value("params", json::object()).is_structured();
}

// What the protocol says, without the session: whether a line gets an answer.
bool IsAnswered(const std::string& i_line)
{
  if (i_line.empty() || !json::accept(i_line) || i_line.find('\0') != std::string::npos)
    return true;
  const json message = json::parse(i_line);
  if (!message.is_array())
    return !IsNotification(message);
  return message.empty() || !std::all_of(message.begin(), message.end(), IsNotification);
}
} // namespace

TEST(OPXExplorerProgramTest, ALineInGivesALineOut)
{
  TemporaryTree tree;
  tree.AddFile("one");
  const ChildResult result = Serve(tree, rows + "\n" + rows + "\n");
  EXPECT_TRUE(result.Succeeded()) << result;
  const std::vector<std::string> lines = SplitLines(result.out);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(json::parse(lines[0])["result"]["groupedRequestResult"]["rows"][0][0]["id"], "one");
  EXPECT_THAT(result.err, IsEmpty());
}

TEST(OPXExplorerProgramTest, NoInputEndsItQuietly)
{
  const ChildResult result = Serve(TemporaryTree(), "");
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.out + result.err, "");
}

TEST(OPXExplorerProgramTest, ALineWithoutTextIsNoJSONAndACarriageReturnBeforeItsEndIsIgnored)
{
  const ChildResult result = Serve(TemporaryTree(), "\n\r\n \n" + rows + "\r\n" + rows);
  std::vector<int> codes;
  for (const std::string& line : SplitLines(result.out))
    codes.push_back(json::parse(line).value("/error/code"_json_pointer, 0));
  EXPECT_THAT(codes, testing::ElementsAre(-32700, -32700, -32700, 0, 0));
  EXPECT_TRUE(result.Succeeded()) << result;
}

TEST(OPXExplorerProgramTest, EachBrokenLineGetsItsErrorAndTheNextOneIsServed)
{
  const std::string tooDeep(300, '[');
  const std::string unknown = R"({"jsonrpc":"2.0","id":1,"method":"no"})";
  const std::string wrong = R"({"jsonrpc":"2.0","id":1,"method":"tree/rows","params":{}})";
  const ChildResult result = Serve(TemporaryTree(), "x\n" + rows + "\n" + tooDeep + "\n" + unknown + "\n" + wrong + "\n" + rows + "\n");
  std::vector<int> codes;
  for (const std::string& line : SplitLines(result.out))
    codes.push_back(json::parse(line).value("/error/code"_json_pointer, 0));
  EXPECT_THAT(codes, testing::ElementsAre(-32700, 0, -32600, -32601, -32602, 0));
}

TEST(OPXExplorerProgramTest, ALineOverTheLimitGetsItsErrorAndTheNextOneIsServed)
{
  const ChildResult result = Serve(TemporaryTree(), std::string(OPXTreeSession::MaxMessageSize + 1, ' ') + "\n" + rows + "\n");
  const std::vector<std::string> lines = SplitLines(result.out);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], OPXTreeSession::AnswerOversized());
  EXPECT_TRUE(json::parse(lines[1]).contains("result"));
}

TEST(OPXExplorerProgramTest, TenThousandRandomLinesGetExactlyTheirAnswers)
{
  TemporaryTree tree;
  tree.AddFile("a\\b\\file");
  LineMaker maker;
  std::string input;
  std::size_t expected = 0;
  for (int i = 0; i < 10000; ++i)
  {
    const std::string line = maker.Make();
    input += line + "\n";
    expected += IsAnswered(line) ? 1 : 0;
  }
  const ChildResult result = Serve(tree, input);
  EXPECT_TRUE(result.Succeeded());
  EXPECT_THAT(result.err, IsEmpty());
  const std::vector<std::string> answers = SplitLines(result.out);
  EXPECT_EQ(answers.size(), expected);
  for (const std::string& answer : answers)
    ASSERT_TRUE(json::accept(answer)) << answer;
}

TEST(OPXExplorerProgramTest, TwoLevelsArePrintedForAPerson)
{
  TemporaryTree tree;
  tree.AddFile("sub\\inner\\hidden");
  tree.AddFile("sub\\text", std::string(1234, 'x'));
  tree.AddFile("text");
  tree.SetTime("text", 132539328000000000);
  const ChildResult result = RunExplorer({tree.SystemPath().u8string()});
  EXPECT_TRUE(result.Succeeded()) << result;
  const std::vector<std::string> lines = SplitLines(result.out);
  ASSERT_EQ(lines.size(), 4u) << result.out;
  EXPECT_EQ(lines[0].substr(0, 5), "sub/ ");
  EXPECT_EQ(lines[1].substr(0, 9), "  inner/ ");
  EXPECT_EQ(lines[2].substr(0, 54), "  text" + std::string(42, ' ') + "1.2 kB");
  EXPECT_EQ(lines[3], "text" + std::string(46, ' ') + "0 B   2021-01-01 00:00");
  EXPECT_THAT(result.err, IsEmpty());
}

TEST(OPXExplorerProgramTest, MoreRowsThanAPersonReadsAreCounted)
{
  TemporaryTree tree;
  for (int i = 0; i < 25; ++i)
    tree.AddFile("file" + std::to_string(i));
  const std::vector<std::string> lines = SplitLines(RunExplorer({tree.SystemPath().u8string()}).out);
  ASSERT_EQ(lines.size(), 11u);
  EXPECT_EQ(lines[10], "... and 15 more");
}

TEST(OPXExplorerProgramTest, HelpAndVersionGoToTheOutputAndAreASuccess)
{
  const ChildResult help = RunExplorer({"--help"});
  EXPECT_TRUE(help.Succeeded());
  EXPECT_THAT(help.out, HasSubstr("--stdio"));
  EXPECT_THAT(help.out, HasSubstr("Exit codes:"));
  EXPECT_THAT(help.out, HasSubstr("1  the directory cannot be read or not listed to its end, or the output cannot be written\n"));
  const ChildResult version = RunExplorer({"--version"});
  EXPECT_TRUE(version.Succeeded());
  EXPECT_THAT(version.out, testing::MatchesRegex("opx-explorer .*\n"));
}

TEST(OPXExplorerProgramTest, WrongUsageEndsWithTwo)
{
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{}, {"--stdio"}, {"--nonsense", "."}, {".", "."}})
  {
    const ChildResult result = RunExplorer(arguments);
    EXPECT_EQ(result.code, 2) << result;
    EXPECT_THAT(result.out, IsEmpty());
    EXPECT_THAT(result.err, testing::Not(IsEmpty()));
  }
}

TEST(OPXExplorerProgramTest, ADirectoryThatCannotBeReadEndsWithOneAndTheSystemsWords)
{
  TemporaryTree tree;
  tree.AddFile("file");
  for (const char* const name : {"gone", "file"})
  {
    const std::string path = tree.SystemPath(name).u8string();
    const ChildResult result = RunExplorer({"--stdio", path}, rows);
    EXPECT_EQ(result.code, 1) << result;
    std::error_code error;
    ZELSysRootedDirectory(ZELUnicodeString::FromUTF8(path), &error);
    EXPECT_NE(error.message(), std::error_code().message());
    EXPECT_EQ(result.err, "opx-explorer: cannot read the directory " + path + ": " + error.message() + "\n");
  }
}

TEST(OPXExplorerProgramTest, ADirectoryIsNamedInAnyLanguage)
{
  TemporaryTree tree;
  tree.AddFile("\xD1\x82\xE2\x82\xAC\\one");
  const ChildResult result = RunExplorer({tree.SystemPath("\xD1\x82\xE2\x82\xAC").u8string()});
  EXPECT_THAT(result.out, HasSubstr("one"));
}
