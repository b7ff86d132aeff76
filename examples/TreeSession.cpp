// A data source of two countries and their cities, and the session that answers a tree view's question about them.
#include "OPXTreeRowsSource.h"
#include "OPXTreeSession.h"
#include "ZELSYPAbstractDataSource.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Records = ZELSYPDataSourceParameters;

class Countries : public ZELSYPAbstractDataSource, public OPXTreeRowsSource
{
public:
  // A request names a parent and a range of its children; of a parent that is not there nothing is known.
  Records::TreeNodesAnswerParameters RequestRows(const Records::TreeNodesRequestParameters& i_request) override
  {
    std::vector<std::vector<Records::TreeNodeProperties>> rows(static_cast<std::size_t>(i_request.GetRequestCount()));
    std::vector<int> totals;
    for (int i = 0; i < i_request.GetRequestCount(); ++i)
    {
      const Names names = GetChildren(i_request.GroupKeys(i));
      const int total = static_cast<int>(names.size());
      for (int row = std::max(i_request.GetFirstNodeIndex(i), 0); row < std::min(i_request.GetLastNodeIndex(i), total); ++row)
        rows[static_cast<std::size_t>(i)].push_back(MakeRow(names[static_cast<std::size_t>(row)]));
      totals.push_back(total);
    }
    Records::TreeNodesAnswerParameters answer(std::move(rows), std::move(totals));
    for (int i = 0; i < i_request.GetRequestCount(); ++i)
      answer.SetNodeAsNotFound(GetChildren(i_request.GroupKeys(i)).empty(), i);
    return answer;
  }

  // This tree does not tell its structure.
  Records::TreeNodesModelStructureAnswerParameters RequestStructure(const Records::TreeNodesModelStructureParameters&) override
  {
    return {};
  }

private:
  using Names = std::vector<std::string>;

  Records::TreeNodeProperties MakeRow(const std::string& i_name) const
  {
    return {i_name, Records::Properties{{"id", i_name}, {"name", i_name}}, _children.count({i_name}) > 0, -1};
  }

  Names GetChildren(const Names& i_path) const
  {
    const auto children = _children.find(i_path);
    return children == _children.end() ? Names() : children->second;
  }

  const std::map<Names, Names> _children{{{}, {"France", "Japan"}}, {{"France"}, {"Lyon", "Paris"}}, {{"Japan"}, {"Kyoto"}}};
};

int main()
{
  Countries countries;
  const OPXTreeSession session(countries, [](const std::string& i_message) { std::puts(i_message.c_str()); });
  session.Receive(
      R"({"jsonrpc":"2.0","id":1,"method":"tree/rows","params":)"
      R"({"groupedRequest":[{"startRow":0,"endRow":1,"groupKeys":["France"]},{"startRow":0,"endRow":9,"groupKeys":["Atlantis"]}]}})");
}
