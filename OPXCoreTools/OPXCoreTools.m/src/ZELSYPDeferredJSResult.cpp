#include "ZELSYPDeferredJSResult.h"

#include <chrono>
#include <utility>

namespace
{
template <class Result>
bool IsReady(const std::future<Result>& i_future)
{
  return i_future.valid() && i_future.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

// A default result when there is none to be had at once, whatever stands in its place.
template <class Result>
Result Take(std::future<Result>& io_future)
{
  try
  {
    return IsReady(io_future) ? io_future.get() : Result();
  }
  catch (...)
  {
    return Result();
  }
}
} // namespace

ZELSYPDeferredJSResult::ZELSYPDeferredJSResult(std::future<bool>&& i_completion, std::future<ZELSYPJSValue>&& i_value,
                                               std::future<ZELSYPJSError>&& i_error)
    : _completion(std::move(i_completion)), _value(std::move(i_value)), _error(std::move(i_error))
{
}

void ZELSYPDeferredJSResult::SettleWhenCompleted()
{
  if (_state == Pending && IsReady(_completion))
    _state = Take(_completion) ? Value : Error;
}

bool ZELSYPDeferredJSResult::HasValue()
{
  SettleWhenCompleted();
  return _state == Value;
}

bool ZELSYPDeferredJSResult::HasError()
{
  if (IsReady(_error))
    SettleWhenCompleted();
  return _state == Error;
}

ZELSYPJSValue ZELSYPDeferredJSResult::GetValue()
{
  return HasValue() ? Take(_value) : ZELSYPJSValue();
}

ZELSYPJSError ZELSYPDeferredJSResult::GetError()
{
  return HasError() ? Take(_error) : ZELSYPJSError();
}

void ZELSYPDeferredJSResult::WaitForResult(int i_milliseconds) const
{
  if (_completion.valid())
    _completion.wait_for(std::chrono::milliseconds(i_milliseconds));
}
