// What opx-explorer writes without having been asked.
#include "ChildProcess.h"
#include "TemporaryTree.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
std::string Serve(const std::string& i_input)
{
  TemporaryTree tree;
  tree.AddFile("d\\inner");
  tree.AddFile("file");
  const ChildResult result =
      ChildProcess(ChildProcess::Beside("opx-explorer"), {"--stdio", tree.SystemPath().u8string()}).Input(i_input).Run();
  EXPECT_TRUE(result.Succeeded()) << result;
  return result.out;
}

const std::string structure = R"({"jsonrpc":"2.0","id":1,"method":"tree/structure","params":{"groupKeys":["file"]}})"
                              "\n";
const std::string structureAnswer = R"({"jsonrpc":"2.0","id":1,"result":null})"
                                    "\n";
const std::string notification = R"({"jsonrpc":"2.0","method":"tree/selectionChanged","params":{"addedNodes":["d/inner"]}})"
                                 "\n";
} // namespace

TEST(OPXExplorerNotificationsTest, ALineThatSelectsANodeIsAnsweredAndThenToldAsANotification)
{
  const std::string select = R"({"jsonrpc":"2.0","id":2,"method":"tree/selectionChange","params":{"addedNodes":["d/inner"]}})"
                             "\n";
  EXPECT_EQ(Serve(structure + select + structure),
            structureAnswer + R"({"jsonrpc":"2.0","id":2,"result":{}})" + "\n" + notification + structureAnswer);
}

TEST(OPXExplorerNotificationsTest, ALineThatIsANotificationItselfIsToldAsWell)
{
  const std::string select = R"({"jsonrpc":"2.0","method":"tree/selectionChange","params":{"addedNodes":["d/inner"]}})"
                             "\n";
  EXPECT_EQ(Serve(select), notification);
}

TEST(OPXExplorerNotificationsTest, ABatchIsAnsweredBeforeWhatItsRequestsCaused)
{
  const std::string batch = R"([{"jsonrpc":"2.0","id":2,"method":"tree/selectionChange","params":{"addedNodes":["d/inner"]}},)"
                            R"({"jsonrpc":"2.0","id":3,"method":"tree/selectionChange","params":{"removedNodes":["d/inner"]}}])"
                            "\n";
  EXPECT_EQ(Serve(batch), R"([{"jsonrpc":"2.0","id":2,"result":{}},{"jsonrpc":"2.0","id":3,"result":{}}])"
                          "\n" +
                              notification + R"({"jsonrpc":"2.0","method":"tree/selectionChanged","params":{"removedNodes":["d/inner"]}})" +
                              "\n");
}

TEST(OPXExplorerNotificationsTest, AnAnswerToWhatWaitsForNoneIsAnError)
{
  EXPECT_EQ(Serve(R"({"jsonrpc":"2.0","id":4,"method":"tree/succeeded","params":{"answerTo":1,"result":true}})"
                  "\n"),
            R"({"jsonrpc":"2.0","id":4,"error":{"code":-32602,"data":{"place":"/answerTo","reason":"no notification has this number"},)"
            R"("message":"Invalid params"}})"
            "\n");
}
