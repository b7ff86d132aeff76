#include "OPXExplorerDirectorySource.h"

#include "DirectoryView.h"
#include "SettledDirectory.h"
#include "TemporaryTree.h"

#include <gmock/gmock.h>

using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
json Sort(const std::string& i_attribute, const std::string& i_order)
{
  return json::array({{{"dataIndex", i_attribute}, {"sort", i_order}}});
}

// "d" and "e" are directories, "big" has 10 bytes, "file2" 2 and "file10" none; "file2" is the oldest, then "big".
struct SortedTree : TemporaryTree
{
  SortedTree()
  {
    AddFile("file10");
    AddFile("file2", "22");
    AddFile("big", "0123456789");
    AddDirectory("e");
    AddDirectory("d");
    SetTime("file2", 131000000000000000);
    SetTime("big", 132000000000000000);
  }
};

// Many names for one file, which are made sooner than as many files.
void AddLinkedFiles(TemporaryTree& io_tree, const std::string& i_directory, int i_count)
{
  const std::filesystem::path directory = io_tree.AddDirectory(i_directory);
  const std::filesystem::path first = io_tree.AddFile(i_directory + "\\0");
  for (int i = 1; i < i_count; ++i)
    std::filesystem::create_hard_link(first, directory / std::to_string(i));
}

// How many children each of the nodes shows.
std::vector<std::size_t> CountListed(const json& i_nodes)
{
  std::vector<std::size_t> counts;
  for (const json& node : i_nodes)
    counts.push_back(node.value("children", json::array()).size());
  return counts;
}
} // namespace

TEST(OPXExplorerDirectorySourceTest, ARowTellsIdNameKindSizeTimeAndWhetherItMayHaveChildren)
{
  TemporaryTree tree;
  tree.AddFile("note.txt", "hello");
  tree.SetTime("note.txt", 132539328001234567);
  tree.AddDirectory("sub");
  const json rows = DirectoryView(tree.SystemPath()).Rows({});
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0]["kind"], "directory");
  EXPECT_EQ(rows[0]["wux_group"], true);
  EXPECT_EQ(rows[1], json({{"id", "note.txt"},
                           {"name", "note.txt"},
                           {"kind", "file"},
                           {"size", 5},
                           {"modified", "2021-01-01T00:00:00Z"},
                           {"wux_group", false}}));
}

TEST(OPXExplorerDirectorySourceTest, ASizeOfMoreThanFourGigabytesIsToldWhole)
{
  TemporaryTree tree;
  tree.AddSparseFile("huge", 5000000000);
  EXPECT_EQ(DirectoryView(tree.SystemPath()).Rows({})[0]["size"], 5000000000);
}

TEST(OPXExplorerDirectorySourceTest, GroupKeysLeadDownFromTheTop)
{
  TemporaryTree tree;
  tree.AddFile("a\\b\\deep");
  const DirectoryView view(tree.SystemPath());
  EXPECT_THAT(view.Names({}), ElementsAre("a"));
  EXPECT_THAT(view.Names({"a"}), ElementsAre("b"));
  EXPECT_THAT(view.Names({"a", "b"}), ElementsAre("deep"));
}

TEST(OPXExplorerDirectorySourceTest, DirectoriesComeFirstAndNamesInNaturalOrder)
{
  SortedTree tree;
  EXPECT_THAT(DirectoryView(tree.SystemPath()).Names({}), ElementsAre("d", "e", "big", "file2", "file10"));
}

TEST(OPXExplorerDirectorySourceTest, NamesThatAreEqualInNaturalOrderStandInTheOrderOfTheirBytes)
{
  TemporaryTree tree;
  std::vector<std::string> names;
  for (std::size_t zeros = 10; zeros > 0; --zeros)
    names.push_back("FILE" + std::string(zeros + 10, '0') + "1");
  for (std::size_t zeros = 10; zeros > 0; --zeros)
    names.push_back("file" + std::string(zeros, '0') + "1");
  for (const std::string& name : names)
    tree.AddFile(name);
  EXPECT_EQ(DirectoryView(tree.SystemPath()).Names({}), names);
}

TEST(OPXExplorerDirectorySourceTest, EveryPropertySortsInBothDirections)
{
  SortedTree tree;
  const DirectoryView view(tree.SystemPath());
  for (const char* const name : {"name", "id"})
  {
    EXPECT_THAT(view.Names({}, 0, 9, Sort(name, "asc")), ElementsAre("d", "e", "big", "file2", "file10"));
    EXPECT_THAT(view.Names({}, 0, 9, Sort(name, "desc")), ElementsAre("e", "d", "file10", "file2", "big"));
  }
  EXPECT_THAT(view.Names({}, 2, 9, Sort("size", "asc")), ElementsAre("file10", "file2", "big"));
  EXPECT_THAT(view.Names({}, 2, 9, Sort("size", "desc")), ElementsAre("big", "file2", "file10"));
  EXPECT_THAT(view.Names({}, 2, 9, Sort("modified", "asc")), ElementsAre("file2", "big", "file10"));
  EXPECT_THAT(view.Names({}, 2, 9, Sort("modified", "desc")), ElementsAre("file10", "big", "file2"));
  EXPECT_THAT(view.Names({}, 0, 9, Sort("kind", "desc")), ElementsAre("d", "e", "big", "file2", "file10"));
}

TEST(OPXExplorerDirectorySourceTest, LaterSortEntriesDecideBetweenEqualRows)
{
  TemporaryTree tree;
  for (const char* const name : {"a", "b", "c"})
    tree.AddFile(name, name[0] == 'c' ? "" : "1");
  const json sort = json::array({{{"dataIndex", "size"}, {"sort", "asc"}}, {{"dataIndex", "name"}, {"sort", "desc"}}});
  EXPECT_THAT(DirectoryView(tree.SystemPath()).Names({}, 0, 9, sort), ElementsAre("c", "b", "a"));
}

TEST(OPXExplorerDirectorySourceTest, TimesDecideBetweenEqualSizesAndSizesBetweenEqualTimes)
{
  TemporaryTree tree;
  tree.AddFile("a", "1");
  tree.AddFile("b", "1");
  tree.AddFile("c");
  tree.SetTime("a", 132000000000000000);
  tree.SetTime("b", 131000000000000000);
  tree.SetTime("c", 132000000000000000);
  const DirectoryView view(tree.SystemPath());
  const json size{{"dataIndex", "size"}, {"sort", "asc"}};
  const json modified{{"dataIndex", "modified"}, {"sort", "asc"}};
  EXPECT_THAT(view.Names({}, 0, 9, json::array({size, modified})), ElementsAre("c", "b", "a"));
  EXPECT_THAT(view.Names({}, 0, 9, json::array({modified, size})), ElementsAre("b", "c", "a"));
}

TEST(OPXExplorerDirectorySourceTest, AnUnknownSortPropertyDoesNotCount)
{
  SortedTree tree;
  EXPECT_THAT(DirectoryView(tree.SystemPath()).Names({}, 0, 9, Sort("colour", "desc")), ElementsAre("d", "e", "big", "file2", "file10"));
}

TEST(OPXExplorerDirectorySourceTest, SizesAreAskedAnewWhenTheFirstRowIsAndNotBefore)
{
  SortedTree tree;
  WaitUntilSettled(tree.SystemPath());
  const DirectoryView view(tree.SystemPath());
  view.Names({}, 0, 9, Sort("size", "asc"));
  tree.AddFile("file10", "now it is the biggest");
  EXPECT_THAT(view.Names({}, 2, 9, Sort("size", "asc")), ElementsAre("file10", "file2", "big"));
  EXPECT_THAT(view.Names({}, 0, 9, Sort("size", "asc")), ElementsAre("d", "e", "file2", "big", "file10"));
  EXPECT_THAT(view.Names({}, 2, 9, Sort("size", "asc")), ElementsAre("file2", "big", "file10"));
}

TEST(OPXExplorerDirectorySourceTest, WithinAMessageADirectoryIsListedOnce)
{
  TemporaryTree tree;
  OPXExplorerDirectorySource source(Open(tree.SystemPath()));
  const auto countRows = [&source]
  {
    const ZELSYPDataSourceParameters::TreeNodesRequestParameters request(json::parse(R"({"startRow":0,"endRow":9,"groupKeys":[]})"));
    return source.RequestRows(request).ComputeJSON()["groupedRequestResult"]["numberOfChildren"][0].get<int>();
  };
  source.StartMessage();
  EXPECT_EQ(countRows(), 0);
  tree.AddFile("file");
  EXPECT_EQ(countRows(), 0);
  source.StartMessage();
  EXPECT_EQ(countRows(), 1);
}

TEST(OPXExplorerDirectorySourceTest, ARangeEndsBeforeItsLastRow)
{
  SortedTree tree;
  const DirectoryView view(tree.SystemPath());
  EXPECT_THAT(view.Names({}, 1, 3), ElementsAre("e", "big"));
  const json result = view.AskRows({}, 1, 3)["groupedRequestResult"];
  EXPECT_EQ(result["numberOfChildren"], json({5}));
  EXPECT_EQ(result["lastRow"], json({-1}));
}

TEST(OPXExplorerDirectorySourceTest, ARangeIsClippedToTheRowsThereAre)
{
  SortedTree tree;
  const DirectoryView view(tree.SystemPath());
  EXPECT_EQ(view.Names({}, -7, 2147483647).size(), 5u);
  EXPECT_THAT(view.Names({}, 4, 99), ElementsAre("file10"));
  EXPECT_THAT(view.Names({}, 3, 1), IsEmpty());
  EXPECT_THAT(view.Names({}, 2, 2), IsEmpty());
  EXPECT_THAT(view.Names({}, 2147483647, 2147483647), IsEmpty());
  EXPECT_THAT(view.Names({}, -9, -1), IsEmpty());
}

TEST(OPXExplorerDirectorySourceTest, SeveralParentsAreAnsweredAtOnce)
{
  TemporaryTree tree;
  tree.AddFile("a\\1");
  tree.AddFile("b\\2");
  const json request = json::parse(R"({"groupedRequest":[{"startRow":0,"endRow":9,"groupKeys":["b"]},)"
                                   R"({"startRow":0,"endRow":9,"groupKeys":["x"]},{"startRow":0,"endRow":9,"groupKeys":["a"]}]})");
  const json result = DirectoryView(tree.SystemPath()).Ask("tree/rows", request)["result"];
  EXPECT_EQ(result["groupedRequestResult"]["rows"][0][0]["id"], "2");
  EXPECT_EQ(result["groupedRequestResult"]["rows"][2][0]["id"], "1");
  EXPECT_EQ(result["notFound"], json({1}));
}

TEST(OPXExplorerDirectorySourceTest, HostileKeysLeadNowhere)
{
  TemporaryTree tree;
  tree.AddFile("root\\inside\\file");
  tree.AddFile("secret\\file");
  const DirectoryView view(tree.SystemPath("root"));
  EXPECT_TRUE(view.IsFound({"inside"}));
  for (const std::string& key : {std::string(".."),
                                 std::string("."),
                                 std::string(),
                                 std::string("../secret"),
                                 std::string("..\\secret"),
                                 std::string("inside/.."),
                                 std::string("inside\\.."),
                                 std::string("/"),
                                 std::string("/.."),
                                 std::string("/etc"),
                                 std::string("/%2E%2E"),
                                 std::string("\\"),
                                 std::string("//"),
                                 std::string("C:"),
                                 std::string("C:\\"),
                                 std::string("c:/"),
                                 std::string("inside/"),
                                 std::string("inside\0", 7),
                                 std::string("inside\0/..", 10),
                                 std::string("..\0", 3),
                                 std::string("inside::$INDEX_ALLOCATION"),
                                 std::string("\\\\?\\C:\\"),
                                 std::string(100000, 'x'),
                                 "inside" + std::string(32768, 'x'),
                                 std::string("%69nside"),
                                 std::string("/inside"),
                                 std::string("/%69nside"),
                                 std::string("/%"),
                                 std::string("/%F"),
                                 tree.SystemPath("secret").u8string()})
  {
    EXPECT_FALSE(view.IsFound({key})) << key.substr(0, 100);
    EXPECT_FALSE(view.IsFound({"inside", key})) << key.substr(0, 100);
    EXPECT_FALSE(view.IsFound({key, "secret"})) << key.substr(0, 100);
  }
}

TEST(OPXExplorerDirectorySourceTest, AFileHasNoRows)
{
  TemporaryTree tree;
  tree.AddFile("file");
  EXPECT_FALSE(DirectoryView(tree.SystemPath()).IsFound({"file"}));
}

TEST(OPXExplorerDirectorySourceTest, AMissingParentHasNoRowsAndIsMarked)
{
  TemporaryTree tree;
  EXPECT_EQ(DirectoryView(tree.SystemPath()).AskRows({"gone"}),
            json::parse(R"({"groupedRequestResult":{"lastRow":[0],"numberOfChildren":[0],"rows":[[]]},"notFound":[0]})"));
}

TEST(OPXExplorerDirectorySourceTest, ADirectoryThatVanishesIsNotFoundFromThenOn)
{
  TemporaryTree tree;
  tree.AddFile("a\\file");
  const DirectoryView view(tree.SystemPath());
  EXPECT_THAT(view.Names({"a"}), ElementsAre("file"));
  std::filesystem::remove_all(tree.SystemPath("a"));
  EXPECT_FALSE(view.IsFound({"a"}));
  EXPECT_THAT(view.Names({}), IsEmpty());
}

TEST(OPXExplorerDirectorySourceTest, ANewEntryIsSeenAtOnce)
{
  TemporaryTree tree;
  const DirectoryView view(tree.SystemPath());
  for (std::size_t i = 0; i < 30; ++i)
  {
    EXPECT_EQ(view.Names({}).size(), i);
    tree.AddFile("file" + std::to_string(i));
  }
}

TEST(OPXExplorerDirectorySourceTest, StructureShowsOneLevelUnlessMoreIsAsked)
{
  TemporaryTree tree;
  tree.AddFile("a\\b\\c\\file");
  tree.AddFile("note");
  const DirectoryView view(tree.SystemPath());
  const json one = json::parse(R"({"stringIdentifier":"","numberOfChildren":2,"children":[{"stringIdentifier":"a","numberOfChildren":1},)"
                               R"({"stringIdentifier":"note","numberOfChildren":0}]})");
  EXPECT_EQ(view.Ask("tree/structure", json::object())["result"], one);
  json none = one;
  none.erase("children");
  EXPECT_EQ(view.Ask("tree/structure", {{"expandNLevels", 0}})["result"], none);
  EXPECT_EQ(view.Ask("tree/structure", {{"expandNLevels", 2}})["result"]["children"][0]["children"],
            json::parse(R"([{"stringIdentifier":"b","numberOfChildren":1}])"));
  EXPECT_EQ(view.Ask("tree/structure", {{"expandNLevels", -1}})["result"]["children"][0]["children"][0]["children"][0]["children"][0],
            json::parse(R"({"stringIdentifier":"file","numberOfChildren":0})"));
}

TEST(OPXExplorerDirectorySourceTest, StructureStartsAtTheGroupKeysInTheOrderAsked)
{
  TemporaryTree tree;
  tree.AddFile("a\\1");
  tree.AddFile("a\\2");
  const json params{{"groupKeys", {"a"}}, {"sortModel", Sort("name", "desc")}};
  const json result = DirectoryView(tree.SystemPath()).Ask("tree/structure", params)["result"];
  EXPECT_EQ(result["stringIdentifier"], "a");
  EXPECT_EQ(result["children"][0]["stringIdentifier"], "2");
  EXPECT_EQ(DirectoryView(tree.SystemPath()).Ask("tree/structure", {{"groupKeys", {"x"}}})["result"], json());
}

TEST(OPXExplorerDirectorySourceTest, AStructureIsBoundInItsNodes)
{
  // The four at the top, a's and b's leave room for six of 10,000: c's are too many, d's just fit.
  TemporaryTree tree;
  for (const auto& [name, count] : {std::pair("a", 5000), {"b", 4990}, {"c", 7}, {"d", 6}})
    AddLinkedFiles(tree, name, count);
  const json result = DirectoryView(tree.SystemPath()).Ask("tree/structure", {{"expandNLevels", -1}})["result"];
  EXPECT_EQ(CountListed(result["children"]), (std::vector<std::size_t>{5000, 4990, 0, 6}));
  EXPECT_EQ(result["children"][2]["numberOfChildren"], 7);
  EXPECT_FALSE(result["children"][2].contains("children"));
}

TEST(OPXExplorerDirectorySourceTest, WhatCannotBeExpandedIsCollapsedAgain)
{
  TemporaryTree tree;
  tree.AddFile("a\\file");
  const json params = json::parse(R"({"nodesToExpand":[["a"],["a","file"],["gone"]],"nodesToCollapse":[["a"]]})");
  EXPECT_EQ(DirectoryView(tree.SystemPath()).Ask("tree/collapseExpand", params)["result"],
            json::parse(R"({"nodesToCollapse":[["a","file"],["gone"]],"nodesToExpand":[]})"));
}
