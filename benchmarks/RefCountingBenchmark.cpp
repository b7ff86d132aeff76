// What a reference taken and given back costs, beside a counter of the same kind.
//
// Tried and dropped: nothing. Both are one locked addition and one locked subtraction; what is left to lose is a call,
// so both operations stand in the header.
#include "ZELSYPRefCounted.h"

#include <benchmark/benchmark.h>

#if OPX_PEER_BOOST
#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>
#endif

namespace
{
class Counted : public ZELSYPRefCounted
{
};

void AddRefRelease_Project(benchmark::State& io_state)
{
  Counted* pObject = new Counted;
  for (auto _ : io_state)
  {
    benchmark::DoNotOptimize(pObject);
    pObject->AddRef();
    benchmark::DoNotOptimize(pObject);
    pObject->Release();
  }
  pObject->Release();
}
BENCHMARK(AddRefRelease_Project)->Name("AddRefRelease/Project");

#if OPX_PEER_BOOST
class BoostCounted : public boost::intrusive_ref_counter<BoostCounted, boost::thread_safe_counter>
{
public:
  virtual ~BoostCounted() = default;
};

void AddRefRelease_Boost(benchmark::State& io_state)
{
  const boost::intrusive_ptr<BoostCounted> spObject(new BoostCounted);
  BoostCounted* pObject = spObject.get();
  for (auto _ : io_state)
  {
    benchmark::DoNotOptimize(pObject);
    intrusive_ptr_add_ref(pObject);
    benchmark::DoNotOptimize(pObject);
    intrusive_ptr_release(pObject);
  }
}
BENCHMARK(AddRefRelease_Boost)->Name("AddRefRelease/boost::intrusive_ptr");
#endif
} // namespace
