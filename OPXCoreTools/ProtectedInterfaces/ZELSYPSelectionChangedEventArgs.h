// ZELSYPSelectionChangedEventArgs: what a data source tells when its selection changed: the nodes added and removed.
// ZELSYPSelectionChangedEventArgs args(ZELSYPAbstractDataSource::SelectionChanged(), change, nullptr); source.Dispatch(&args);
#ifndef ZELSYPSelectionChangedEventArgs_H
#define ZELSYPSelectionChangedEventArgs_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPDataSourceParameters.h"
#include "ZELSYPEventArgs.h"

#include <functional>
#include <nlohmann/json.hpp>

class OPXCORETOOLS_EXPORT ZELSYPSelectionChangedEventArgs : public ZELSYPEventArgs
{
  ZELDeclareClass;

public:
  // Given what the view answers once it has done it; it may change the value.
  using SuccessCallback = std::function<void(nlohmann::json& io_answer)>;

  // Null event: "i_pEvent", and there is no event. The callback may be empty: nobody waits for the view.
  ZELSYPSelectionChangedEventArgs(ZELSYPEvent* i_pEvent, ZELSYPDataSourceParameters::SelectionChangeParameters i_parameters,
                                  SuccessCallback i_successCallback);
  ~ZELSYPSelectionChangedEventArgs() override;

  // Valid while these arguments live.
  const ZELSYPDataSourceParameters::SelectionChangeParameters& GetParameters() const noexcept { return _parameters; }
  // A copy.
  SuccessCallback GetSuccessCallback() const { return _successCallback; }

private:
  const ZELSYPDataSourceParameters::SelectionChangeParameters _parameters;
  const SuccessCallback _successCallback;
};

#endif
