// DirectoryView: a tree view of a temporary directory, for a test: it asks a session for rows and shows what came.
// DirectoryView view(tree.SystemPath()); EXPECT_EQ(view.Names({}), (std::vector<std::string>{"a", "b"}));
#ifndef DirectoryView_H
#define DirectoryView_H

#include "OPXExplorerDirectorySource.h"
#include "OPXTreeSession.h"

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

class DirectoryView
{
public:
  using Path = std::vector<std::string>;

  explicit DirectoryView(const std::filesystem::path& i_directory)
      : _source(ZELSysRootedDirectory(ZELUnicodeString::FromUTF8(i_directory.u8string()))), _session(_source)
  {
  }

  nlohmann::json Ask(const std::string& i_method, const nlohmann::json& i_params) const
  {
    const nlohmann::json request{{"jsonrpc", "2.0"}, {"id", 1}, {"method", i_method}, {"params", i_params}};
    return nlohmann::json::parse(_session.Answer(request.dump()));
  }
  // The result for one directory.
  nlohmann::json AskRows(const Path& i_path, int i_first = 0, int i_last = 1000,
                         const nlohmann::json& i_sort = nlohmann::json::array()) const
  {
    return Ask("tree/rows", {{"startRow", i_first}, {"endRow", i_last}, {"groupKeys", i_path}, {"sortModel", i_sort}})["result"];
  }
  nlohmann::json Rows(const Path& i_path) const { return AskRows(i_path)["groupedRequestResult"]["rows"][0]; }
  std::vector<std::string> Names(const Path& i_path, int i_first = 0, int i_last = 1000,
                                 const nlohmann::json& i_sort = nlohmann::json::array()) const
  {
    std::vector<std::string> names;
    const nlohmann::json result = AskRows(i_path, i_first, i_last, i_sort);
    for (const nlohmann::json& row : result["groupedRequestResult"]["rows"][0])
      names.push_back(row["name"]);
    return names;
  }
  bool IsFound(const Path& i_path) const { return !AskRows(i_path).contains("notFound"); }

private:
  OPXExplorerDirectorySource _source;
  OPXTreeSession _session;
};

#endif
