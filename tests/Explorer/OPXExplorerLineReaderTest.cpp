#include "OPXExplorerLineReader.h"

#include <algorithm>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
// The lines of a text that comes in pieces of i_piece bytes, "!" for one over 4 bytes.
std::vector<std::string> Read(std::string i_text, std::size_t i_piece)
{
  OPXExplorerLineReader reader(
      [&](char* o_buffer, int)
      {
        const std::size_t count = i_text.copy(o_buffer, i_piece);
        i_text.erase(0, count);
        return static_cast<int>(count);
      },
      4);
  std::vector<std::string> lines;
  while (reader.Next())
    lines.push_back(reader.IsTooLong() ? "!" : std::string(reader.GetLine()));
  return lines;
}
} // namespace

TEST(OPXExplorerLineReaderTest, LinesComeWholeHoweverTheyArrive)
{
  for (const std::size_t piece : {1u, 2u, 3u, 100u})
  {
    EXPECT_THAT(Read("ab\ncd\r\n\nef", piece), ElementsAre("ab", "cd", "", "ef"));
    EXPECT_THAT(Read("ab\n", piece), ElementsAre("ab"));
    EXPECT_THAT(Read("", piece), IsEmpty());
  }
}

TEST(OPXExplorerLineReaderTest, ALineMayBeAsLongAsTheLimitWhateverItsEnd)
{
  for (const std::size_t piece : {1u, 2u, 3u, 100u})
    EXPECT_THAT(Read("1234\n1234\r\n12345\n12345\r\n12345678901234567890\nab\n12345", piece),
                ElementsAre("1234", "1234", "!", "!", "!", "ab", "!"));
}
