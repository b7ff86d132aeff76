#include "RefCountingCases.h"

#include "ZELSYPRefCounted.h"

#include <benchmark/benchmark.h>

#if OPX_PEER_BOOST
#include <boost/smart_ptr/intrusive_ref_counter.hpp>
#endif

namespace
{
class Counted : public ZELSYPRefCounted
{
};

struct Project
{
  static Counted* Create() { return new Counted; }
  static void AddRef(Counted* io_pObject) { io_pObject->AddRef(); }
  static void Release(Counted* io_pObject) { io_pObject->Release(); }
};

template <class Kind>
void AddRefRelease(benchmark::State& io_state)
{
  auto* pObject = Kind::Create();
  for (auto _ : io_state)
  {
    benchmark::DoNotOptimize(pObject);
    Kind::AddRef(pObject);
    benchmark::DoNotOptimize(pObject);
    Kind::Release(pObject);
  }
  Kind::Release(pObject);
}

#if OPX_PEER_BOOST
class BoostCounted : public boost::intrusive_ref_counter<BoostCounted, boost::thread_safe_counter>
{
public:
  virtual ~BoostCounted() = default;
};

struct Boost
{
  static BoostCounted* Create()
  {
    BoostCounted* const pObject = new BoostCounted;
    intrusive_ptr_add_ref(pObject);
    return pObject;
  }
  static void AddRef(BoostCounted* io_pObject) { intrusive_ptr_add_ref(io_pObject); }
  static void Release(BoostCounted* io_pObject) { intrusive_ptr_release(io_pObject); }
};
#endif

void Register(const std::string& i_contender, const std::string& i_state, void (*i_run)(benchmark::State&))
{
  benchmark::RegisterBenchmark(("AddRefRelease/" + i_contender + i_state).c_str(), i_run);
}
} // namespace

void RegisterRefCounting(const std::string& i_state)
{
  Register("Project", i_state, &AddRefRelease<Project>);
#if OPX_PEER_BOOST
  Register("boost::intrusive_ptr", i_state, &AddRefRelease<Boost>);
#endif
}
