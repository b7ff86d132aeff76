// ZELSYPViewUpdatedEventArgs: what a data source tells when the view is to show something anew: the transactions to follow.
// ZELSYPViewUpdatedEventArgs args(ZELSYPAbstractDataSource::ViewUpdated(), {{"redraw", "a"}}, nullptr); source.Dispatch(&args);
#ifndef ZELSYPViewUpdatedEventArgs_H
#define ZELSYPViewUpdatedEventArgs_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPEventArgs.h"

#include <functional>
#include <nlohmann/json.hpp>

class OPXCORETOOLS_EXPORT ZELSYPViewUpdatedEventArgs : public ZELSYPEventArgs
{
  ZELDeclareClass;

public:
  // Given what the view answers once it has done it; it may change the value.
  using SuccessCallback = std::function<void(nlohmann::json& io_answer)>;

  // Null event: "i_pEvent", and there is no event. The callback may be empty: nobody waits for the view.
  ZELSYPViewUpdatedEventArgs(ZELSYPEvent* i_pEvent, nlohmann::json i_transactions, SuccessCallback i_successCallback);
  ~ZELSYPViewUpdatedEventArgs() override;

  // Valid while these arguments live.
  const nlohmann::json& GetTransactions() const noexcept { return _transactions; }
  // A copy.
  SuccessCallback GetSuccessCallback() const { return _successCallback; }

private:
  const nlohmann::json _transactions;
  const SuccessCallback _successCallback;
};

#endif
