// MemorySource: a small tree in memory: "a" with the children "a1" and "a2", and "b"; it writes down what it is told.
#ifndef MemorySource_H
#define MemorySource_H

#include "OPXTreeRowsSource.h"
#include "ZELSYPAbstractDataSource.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

class MemorySource : public ZELSYPAbstractDataSource, public OPXTreeRowsSource
{
public:
  ZELSYPDataSourceParameters::TreeNodesAnswerParameters
  RequestRows(const ZELSYPDataSourceParameters::TreeNodesRequestParameters& i_request) override
  {
    std::vector<std::vector<ZELSYPDataSourceParameters::TreeNodeProperties>> rows;
    std::vector<int> totals;
    std::vector<int> missing;
    for (int i = 0; i < i_request.GetRequestCount(); ++i)
    {
      const std::vector<std::string> keys = i_request.GroupKeys(i);
      told.push_back("rows " + std::to_string(i_request.GetFirstNodeIndex(i)) + " " + std::to_string(i_request.GetLastNodeIndex(i)));
      ThrowIfAsked(keys);
      const std::vector<std::string> names = GetChildren(keys);
      rows.emplace_back();
      for (const std::string& name : names)
        rows.back().emplace_back(name, ZELSYPDataSourceParameters::Properties{{"id", name}}, name == "a", -1);
      totals.push_back(static_cast<int>(names.size()));
      if (names.empty())
        missing.push_back(i);
    }
    ZELSYPDataSourceParameters::TreeNodesAnswerParameters answer(std::move(rows), std::move(totals));
    for (const int request : missing)
      answer.SetNodeAsNotFound(true, request);
    return answer;
  }

  ZELSYPDataSourceParameters::TreeNodesModelStructureAnswerParameters
  RequestStructure(const ZELSYPDataSourceParameters::TreeNodesModelStructureParameters& i_request) override
  {
    ThrowIfAsked(i_request.GroupKeys(0));
    told.push_back("structure " + std::to_string(i_request.GetExpandNbLevels()));
    return {};
  }

  void RequestPointerEvent(const ZELSYPDataSourceParameters::PointerEventParameters& i_event, PointerEventCallback i_callback) override
  {
    told.push_back("pointer " + std::to_string(i_event.GetIdsPath().size()) + " " + std::to_string(i_event.button()));
    i_callback({});
  }

  void RequestSelectionChange(const ZELSYPDataSourceParameters::SelectionChangeParameters& i_change,
                              SelectionChangeCallback i_callback) override
  {
    told.push_back("selection");
    i_callback(i_change);
  }

  std::vector<std::string> told;

private:
  static void ThrowIfAsked(const std::vector<std::string>& i_keys)
  {
    if (i_keys == std::vector<std::string>{"throw"})
      throw std::runtime_error("the disk is on fire \xFF");
    if (i_keys == std::vector<std::string>{"throw 7"})
      throw 7;
  }

  static std::vector<std::string> GetChildren(const std::vector<std::string>& i_keys)
  {
    if (i_keys.empty())
      return {"a", "b"};
    if (i_keys == std::vector<std::string>{"a"})
      return {"a1", "a2"};
    if (i_keys == std::vector<std::string>{"broken text"})
      return {"caf\xE9"};
    return {};
  }
};

#endif
