// ZELSYPModelChangedEventArgs: what a data source tells when its model changed: the transactions that the view is to follow.
// ZELSYPModelChangedEventArgs args(ZELSYPAbstractDataSource::ModelChanged(), {{"add", "a"}}, nullptr); source.Dispatch(&args);
#ifndef ZELSYPModelChangedEventArgs_H
#define ZELSYPModelChangedEventArgs_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPEventArgs.h"

#include <functional>
#include <nlohmann/json.hpp>

class OPXCORETOOLS_EXPORT ZELSYPModelChangedEventArgs : public ZELSYPEventArgs
{
  ZELDeclareClass;

public:
  // Given what the view answers once it has done it; it may change the value.
  using SuccessCallback = std::function<void(nlohmann::json& io_answer)>;

  // Null event: "i_pEvent", and there is no event. The callback may be empty: nobody waits for the view.
  ZELSYPModelChangedEventArgs(ZELSYPEvent* i_pEvent, nlohmann::json i_transactions, SuccessCallback i_successCallback);
  ~ZELSYPModelChangedEventArgs() override;

  // Valid while these arguments live.
  const nlohmann::json& GetTransactions() const noexcept { return _transactions; }
  // A copy.
  SuccessCallback GetSuccessCallback() const { return _successCallback; }

private:
  const nlohmann::json _transactions;
  const SuccessCallback _successCallback;
};

#endif
