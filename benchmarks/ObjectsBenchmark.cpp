// What it costs to ask an object what it is, and to hold it, beside the language's own answers. Objects are of a class four
// levels below the root; what is asked for stands in the middle of that line, or in another one.
#include "ZELBaseUnknown_var.h"
#include "ZELSysDynamicCast.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

namespace
{
class First : public ZELBaseUnknown
{
  ZELDeclareClass;
};
class Second : public First
{
  ZELDeclareClass;
};
class Third : public Second
{
  ZELDeclareClass;
};
class Fourth : public Third
{
  ZELDeclareClass;
};
class Other : public First
{
  ZELDeclareClass;
};
ZELImplementClass(First, ZELBaseUnknown, Benchmark);
ZELImplementClass(Second, First, Benchmark);
ZELImplementClass(Third, Second, Benchmark);
ZELImplementClass(Fourth, Third, Benchmark);
ZELImplementClass(Other, First, Benchmark);

constexpr int Objects = 256;

struct Project
{
  template <class T>
  static T* Ask(ZELBaseUnknown* i_pObject)
  {
    return ZELSysDynamicCast<T>(i_pObject);
  }
};
struct Language
{
  template <class T>
  static T* Ask(ZELBaseUnknown* i_pObject)
  {
    return dynamic_cast<T*>(i_pObject);
  }
};

template <class Contender, class T>
void Cast(benchmark::State& io_state)
{
  std::vector<ZELBaseUnknown_var> objects;
  for (int number = 0; number < Objects; ++number)
    objects.push_back(ZELBaseUnknown_var::Adopt(new Fourth));
  for (auto _ : io_state)
    for (const ZELBaseUnknown_var& object : objects)
      benchmark::DoNotOptimize(Contender::template Ask<T>(object));
  io_state.SetItemsProcessed(io_state.iterations() * Objects);
}

template <class Holder>
void Hold(benchmark::State& io_state, const Holder& i_held)
{
  for (auto _ : io_state)
  {
    const Holder copy(i_held);
    benchmark::DoNotOptimize(&*copy);
  }
}

void HoldHandle(benchmark::State& io_state)
{
  Hold(io_state, ZELHandle<First>::Adopt(new First));
}
void HoldShared(benchmark::State& io_state)
{
  Hold(io_state, std::make_shared<int>(0));
}

void MakeCounted(benchmark::State& io_state)
{
  for (auto _ : io_state)
    benchmark::DoNotOptimize(ZELHandle<First>::Adopt(new First).Get());
}
void MakeShared(benchmark::State& io_state)
{
  for (auto _ : io_state)
    benchmark::DoNotOptimize(std::make_shared<int>(0).get());
}
} // namespace

BENCHMARK_TEMPLATE(Cast, Project, Second)->Name("CastToABase/Project");
BENCHMARK_TEMPLATE(Cast, Language, Second)->Name("CastToABase/dynamic_cast");
BENCHMARK_TEMPLATE(Cast, Project, Other)->Name("CastToAnotherClass/Project");
BENCHMARK_TEMPLATE(Cast, Language, Other)->Name("CastToAnotherClass/dynamic_cast");
BENCHMARK(HoldHandle)->Name("CopyAndDropHandle/Project");
BENCHMARK(HoldShared)->Name("CopyAndDropHandle/std::shared_ptr");
BENCHMARK(MakeCounted)->Name("MakeAndDestroy/Project");
BENCHMARK(MakeShared)->Name("MakeAndDestroy/std::shared_ptr");
