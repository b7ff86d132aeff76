// ZELSYPDeferredJSResult: the result of a call into the script side that completes later.
// if (result.HasValue()) Use(result.GetValue().value); else if (result.HasError()) Tell(result.GetError().message);
//
// Any thread may fill the futures; the operations belong to one thread at a time. None of them blocks but WaitForResult,
// and none throws: a promise that is given up, or that holds an exception, counts as a failure without a value or error.
#ifndef ZELSYPDeferredJSResult_H
#define ZELSYPDeferredJSResult_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPJSError.h"
#include "ZELSYPJSValue.h"

#include <cstdint>
#include <future>

class OPXCORETOOLS_EXPORT ZELSYPDeferredJSResult
{
public:
  // Without futures: pending for ever.
  ZELSYPDeferredJSResult() = default;
  // i_completion: true when the call succeeded; the value or the error is there by then.
  ZELSYPDeferredJSResult(std::future<bool>&& i_completion, std::future<ZELSYPJSValue>&& i_value, std::future<ZELSYPJSError>&& i_error);
  ZELSYPDeferredJSResult(ZELSYPDeferredJSResult&&) = default;
  ZELSYPDeferredJSResult& operator=(ZELSYPDeferredJSResult&&) = default;

  // False while the call is pending.
  bool HasValue();
  // False while the call is pending, and as long as neither this nor the completion seen by HasValue tells of an error.
  bool HasError();
  // The value, once: it is taken out. A default one when there is none, or when it was taken before.
  ZELSYPJSValue GetValue();
  // The error, once: it is taken out. A default one when there is none, or when it was taken before.
  ZELSYPJSError GetError();
  // Returns when the call has completed, or after so many milliseconds; at once when there is nothing to wait for.
  void WaitForResult(int i_milliseconds) const;

private:
  enum State : std::int32_t
  {
    Pending = 0,
    Value = 1,
    Error = 2
  };

  void SettleWhenCompleted();

  // Moves once from pending to one of the others, and stays.
  State _state = Pending;
  std::future<bool> _completion;
  std::future<ZELSYPJSValue> _value;
  std::future<ZELSYPJSError> _error;
};

#endif
