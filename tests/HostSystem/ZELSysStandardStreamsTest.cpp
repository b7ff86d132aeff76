#include "ZELSysStandardStreams.h"

#include "ChildProcess.h"
#include "ChildProgram.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace
{
// Every byte there is, the ones that a text stream would change or end at included.
std::string AllBytes()
{
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte)
    bytes += static_cast<char>(byte);
  return bytes;
}

std::string Repeat(const std::string& i_text, int i_count)
{
  std::string text;
  for (int i = 0; i < i_count; ++i)
    text += i_text;
  return text;
}
} // namespace

// Tells what it reads as numbers, since a text's line ends are not told apart on the way back.
OPX_CHILD_ENTRY(TellWhatIsRead)
{
  ZELSysPrepareStandardStreams();
  char block[7];
  while (const int count = ZELSysReadStandardInput(block, sizeof block))
    for (int i = 0; i < count; ++i)
      ZELSysWriteStandardOutput(std::to_string(static_cast<unsigned char>(block[i])) + " ");
  return ZELSysReadStandardInput(block, sizeof block);
}

OPX_CHILD_ENTRY(WriteMuchToBothStreams)
{
  ZELSysPrepareStandardStreams();
  const bool isOut = !ZELSysWriteStandardOutput(Repeat(AllBytes(), 8192));
  const bool isErr = !ZELSysWriteStandardError(Repeat("error ", 100000));
  return isOut && isErr && !ZELSysWriteStandardOutput({}) ? 0 : 1;
}

OPX_CHILD_ENTRY(TellArguments)
{
  std::vector<const char*> texts = {"program", ChildProgram::Option, "TellArguments"};
  for (const std::string& argument : i_arguments)
    texts.push_back(argument.c_str());
  for (const ZELUnicodeString& argument : ZELSysGetArguments(static_cast<int>(texts.size()), texts.data()))
    ZELSysWriteStandardOutput("[" + std::string(argument.GetUTF8()) + "]");
  return 0;
}

OPX_CHILD_ENTRY(TellWhetherAPersonLooks)
{
  return ZELSysIsStandardErrorTerminal() ? 1 : 0;
}

TEST(ZELSysStandardStreamsTest, InputIsReadByteForByteToItsEnd)
{
  std::string numbers;
  for (int byte = 0; byte < 256; ++byte)
    numbers += std::to_string(byte) + " ";
  const ChildResult result = ChildProcess::Self("TellWhatIsRead").Input(AllBytes()).Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.out, numbers);
}

TEST(ZELSysStandardStreamsTest, NoInputIsItsEnd)
{
  const ChildResult result = ChildProcess::Self("TellWhatIsRead").Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  EXPECT_EQ(result.out, "");
}

TEST(ZELSysStandardStreamsTest, MuchIsWrittenWholeToEitherStream)
{
  const ChildResult result = ChildProcess::Self("WriteMuchToBothStreams").Run();
  EXPECT_TRUE(result.Succeeded()) << result.code;
  EXPECT_TRUE(result.out == Repeat(AllBytes(), 8192)) << result.out.size();
  EXPECT_TRUE(result.err == Repeat("error ", 100000)) << result.err.size();
}

TEST(ZELSysStandardStreamsTest, ArgumentsOfEveryScriptComeWhole)
{
  EXPECT_EQ(ChildProcess::Self("TellArguments", {"a b", "", "\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80", "\"\\"}).Run().out,
            "[--child][TellArguments][a b][][\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80][\"\\]");
}

// The entries are each system's own, in posix/ and win32/: they answer 0 when the write tells what it should.
TEST(ZELSysStandardStreamsTest, AReaderThatHasGoneIsTellableAndEndsNothing)
{
  const ChildResult result = ChildProcess::Self("WriteToNobody").Run();
  EXPECT_TRUE(result.Succeeded()) << result;
}

TEST(ZELSysStandardStreamsTest, AnOutputThatTakesNothingTellsWhyInTheSystemsWords)
{
  const ChildResult result = ChildProcess::Self("WriteToWhatTakesNothing").Run();
  EXPECT_TRUE(result.Succeeded()) << result;
}

TEST(ZELSysStandardStreamsTest, APipeIsNoTerminal)
{
  EXPECT_EQ(ChildProcess::Self("TellWhetherAPersonLooks").Run().code, 0);
}
