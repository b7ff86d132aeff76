// What a check that holds costs, beside the branch that a programmer would write by hand; and, with no peer, what a check
// costs that fails and is reported to a handler that does nothing.
//
// Each check guards one element of an array that the cache holds, as the checks of an operation guard its arguments. The
// compiler is told to forget what it knows of the array before each walk, and each element's value goes out of its sight,
// so that neither loop is computed beforehand nor turned into one that treats several elements at once.
//
// Tried and dropped: reports not marked as cold. The compiler then lets the check that holds jump over the report's call,
// once a check, which is up to 1.08 times the hand-written branch. Now both loops are the same instructions, and what is
// measured between them is where they happen to stand.
#include "ZELSYPCheck.h"
#include "ZELSYPCheckFailureHandler.h"
#include "ZELSYPCheckFailureHandlerSetter.h"

#include <benchmark/benchmark.h>

#include <array>

namespace
{
const std::size_t Count = 1024;

// What the hand-written branch calls when it is taken.
[[gnu::noinline, gnu::cold]] void Refuse()
{
  benchmark::ClobberMemory();
}

struct Check
{
  static bool Pointer(const int* i_pElement) { return ZELSYP_CHECK_POINTER(i_pElement); }
  static bool True(bool i_element) { return ZELSYP_CHECK_TRUE(i_element); }
};

struct Branch
{
  static bool Pointer(const int* i_pElement) { return Holds(i_pElement != nullptr); }
  static bool True(bool i_element) { return Holds(i_element); }

private:
  static bool Holds(bool i_holds)
  {
    if (__builtin_expect(!i_holds, false))
    {
      Refuse();
      return false;
    }
    return true;
  }
};

template <class Element, class Guarded>
void Walk(benchmark::State& io_state, const std::array<Element, Count>& i_elements, Guarded i_guarded)
{
  for (auto _ : io_state)
  {
    benchmark::DoNotOptimize(i_elements.data());
    benchmark::ClobberMemory();
    for (const Element element : i_elements)
    {
      const int value = i_guarded(element);
      benchmark::DoNotOptimize(value);
    }
  }
  io_state.SetItemsProcessed(io_state.iterations() * static_cast<std::int64_t>(Count));
}

template <class Way>
void HoldingPointer(benchmark::State& io_state)
{
  int target = 1;
  std::array<const int*, Count> elements;
  elements.fill(&target);
  Walk(io_state, elements, [](const int* i_pElement) { return Way::Pointer(i_pElement) ? *i_pElement : 0; });
}
BENCHMARK_TEMPLATE(HoldingPointer, Check)->Name("HoldingPointerCheck/Project");
BENCHMARK_TEMPLATE(HoldingPointer, Branch)->Name("HoldingPointerCheck/branch");

template <class Way>
void HoldingTrue(benchmark::State& io_state)
{
  std::array<bool, Count> elements;
  elements.fill(true);
  Walk(io_state, elements, [](bool i_element) { return Way::True(i_element) ? 2 : 0; });
}
BENCHMARK_TEMPLATE(HoldingTrue, Check)->Name("HoldingTrueCheck/Project");
BENCHMARK_TEMPLATE(HoldingTrue, Branch)->Name("HoldingTrueCheck/branch");

class IgnoringHandler : public ZELSYPCheckFailureHandler
{
public:
  void HandleFailure(const char* i_message, const char*, int, const char*) override { benchmark::DoNotOptimize(i_message); }
};

class Setter : public ZELSYPCheckFailureHandlerSetter
{
public:
  using ZELSYPCheckFailureHandlerSetter::SetFailureHandler;
};

void Failing(benchmark::State& io_state)
{
  ZELSYPCheckFailureHandler* pHandler = new IgnoringHandler;
  Setter::SetFailureHandler(pHandler);
  pHandler->Release();
  const int* i_pElement = nullptr;
  for (auto _ : io_state)
  {
    benchmark::DoNotOptimize(i_pElement);
    bool holds = ZELSYP_CHECK_POINTER(i_pElement);
    benchmark::DoNotOptimize(holds);
  }
  Setter::SetFailureHandler(nullptr);
}
BENCHMARK(Failing)->Name("FailingPointerCheck/Project");
} // namespace
