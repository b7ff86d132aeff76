// RaisingSource: a data source that raises what a test asks of it, and answers its requests when the test wants it to.
// source.RaiseSelection({"a"}, callback); source.whenAsked = [&] { source.RaiseSelection({"a"}); };
#ifndef RaisingSource_H
#define RaisingSource_H

#include "OPXTreeRowsSource.h"
#include "ZELSYPAbstractDataSource.h"
#include "ZELSYPModelChangedEventArgs.h"
#include "ZELSYPSelectionChangedEventArgs.h"
#include "ZELSYPViewUpdatedEventArgs.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

class RaisingSource : public ZELSYPAbstractDataSource, public OPXTreeRowsSource
{
public:
  using SuccessCallback = std::function<void(nlohmann::json&)>;

  int RaiseModel(const nlohmann::json& i_transactions, SuccessCallback i_callback = nullptr)
  {
    ZELSYPModelChangedEventArgs args(ModelChanged(), i_transactions, std::move(i_callback));
    return Dispatch(&args);
  }
  int RaiseSelection(const std::vector<std::string>& i_added, SuccessCallback i_callback = nullptr)
  {
    ZELSYPSelectionChangedEventArgs args(SelectionChanged(), {i_added, {}}, std::move(i_callback));
    return Dispatch(&args);
  }
  int RaiseView(const nlohmann::json& i_transactions, SuccessCallback i_callback = nullptr)
  {
    ZELSYPViewUpdatedEventArgs args(ViewUpdated(), i_transactions, std::move(i_callback));
    return Dispatch(&args);
  }

  ZELSYPDataSourceParameters::TreeNodesAnswerParameters RequestRows(const ZELSYPDataSourceParameters::TreeNodesRequestParameters&) override
  {
    whenAsked();
    return {};
  }
  ZELSYPDataSourceParameters::TreeNodesModelStructureAnswerParameters
  RequestStructure(const ZELSYPDataSourceParameters::TreeNodesModelStructureParameters&) override
  {
    whenAsked();
    return {};
  }
  // Keeps the callback, to be called or dropped by the test.
  void RequestSelectionChange(const ZELSYPDataSourceParameters::SelectionChangeParameters&, SelectionChangeCallback i_callback) override
  {
    waiting.push_back(std::move(i_callback));
    whenAsked();
  }

  std::function<void()> whenAsked = [] {};
  std::vector<SelectionChangeCallback> waiting;
};

#endif
