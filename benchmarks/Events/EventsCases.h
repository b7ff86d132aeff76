// The cases every contender is put through, so that all are measured by the same lines: RegisterCases<World, Crowd>.
// void RegisterQt(const std::string& i_state) { RegisterCases<QtWorld, QtCrowd>("Qt", i_state); }
//
// A World(depth, observer) is a chain of nodes, 0 is the origin, and has
//   AddHandler(node)      one handler more, which tells the observer the payload's amount
//   RemoveHandler(node)   takes one of them away again
//   Raise()               makes the payload and raises the event at the origin, from there to the root
//   AddHandlerElsewhere() the same at a node that the event does not come by
//   AddClassHandler()     where a contender has handlers of a class (RegisterClassCases): one for all nodes
// A Crowd(count, observer) has room for many listeners and makes them one by one:
//   Add()                 one listener more, without a handler
//   AddHandlerToLast()    and with one: the observer's, the same for all where a contender can share it
#ifndef EventsCases_H
#define EventsCases_H

#include <benchmark/benchmark.h>
#include <string>

// What an event carries.
struct Payload
{
  long _amount;
};

// Whom the handlers tell.
struct Observer
{
  void Notice(long i_amount) { _sum += i_amount; }
  long _sum = 0;
};

// Bytes that malloc has given out by now, its own headers included.
long GetAllocatedBytes();

// Each contender's own cases. i_state stands at the end of their names.
void RegisterProject(const std::string& i_state);
void RegisterHandWritten(const std::string& i_state);
void RegisterSignals2(const std::string& i_state);
void RegisterQt(const std::string& i_state);
void RegisterSigc(const std::string& i_state);
void RegisterGSignal(const std::string& i_state);
// Says in the program's output that a peer is missing.
void AnnounceMissing(const char* i_peer);

// All of them.
void RegisterEvents(const std::string& i_state);

struct RaiseCase
{
  const char* _name;
  int _handlersAtOrigin;
  int _handlersAbove;
  int _classHandlers;
  bool _isHeardElsewhere;
};

template <class World>
int AddHandlers(World& io_world, const RaiseCase& i_case, int i_depth)
{
  for (int node = 0; node < i_depth; ++node)
    for (int count = node == 0 ? i_case._handlersAtOrigin : i_case._handlersAbove; count > 0; --count)
      io_world.AddHandler(node);
  if (i_case._isHeardElsewhere)
    io_world.AddHandlerElsewhere();
  return i_case._handlersAtOrigin + (i_depth - 1) * i_case._handlersAbove + i_depth * i_case._classHandlers;
}

template <class World>
void RaiseEvents(benchmark::State& io_state, World& io_world, const Observer& i_observer, int i_heardEach)
{
  for (auto _ : io_state)
    io_world.Raise();
  if (i_observer._sum != io_state.iterations() * i_heardEach)
    io_state.SkipWithError("not every handler ran");
}

template <class World>
void Raise(benchmark::State& io_state, const RaiseCase& i_case, int i_depth)
{
  Observer observer;
  World world(i_depth, observer);
  RaiseEvents(io_state, world, observer, AddHandlers(world, i_case, i_depth));
}

template <class World>
void RaiseWithClass(benchmark::State& io_state, const RaiseCase& i_case, int i_depth)
{
  Observer observer;
  World world(i_depth, observer);
  world.AddClassHandler();
  RaiseEvents(io_state, world, observer, AddHandlers(world, i_case, i_depth));
}

// One handler more and gone again, at a node that has some already.
template <class World>
void AddRemove(benchmark::State& io_state, int i_present)
{
  Observer observer;
  World world(1, observer);
  for (int count = 0; count < i_present; ++count)
    world.AddHandler(0);
  for (auto _ : io_state)
  {
    world.AddHandler(0);
    world.RemoveHandler(0);
  }
}

// What one listener of many takes, in bytes_each; the time is that of making them all.
template <class Crowd>
void MeasureMemory(benchmark::State& io_state, bool i_hasHandler)
{
  constexpr int count = 100'000;
  Observer observer;
  long bytes = 0;
  for (auto _ : io_state)
  {
    Crowd crowd(count, observer);
    const long before = GetAllocatedBytes();
    for (int each = 0; each < count; ++each)
    {
      crowd.Add();
      if (i_hasHandler)
        crowd.AddHandlerToLast();
    }
    bytes = GetAllocatedBytes() - before;
  }
  io_state.counters["bytes_each"] = static_cast<double>(bytes) / count;
}

template <class Function, class... Arguments>
void Register(const std::string& i_name, Function i_function, Arguments... i_arguments)
{
  benchmark::RegisterBenchmark(i_name.c_str(), i_function, i_arguments...);
}

constexpr int s_depths[] = {1, 10, 100};

template <class World, class Crowd>
void RegisterCases(const std::string& i_contender, const std::string& i_state)
{
  for (const int depth : s_depths)
  {
    const std::string place = "/" + i_contender + "/" + std::to_string(depth) + i_state;
    for (const RaiseCase& each : {RaiseCase{"RaiseUnheard", 0, 0, 0, false},
                                  {"RaiseHeardElsewhere", 0, 0, 0, true},
                                  {"RaiseHeardEverywhere", 1, 1, 0, false},
                                  {"RaiseTenAtOrigin", 10, 0, 0, false}})
      Register(each._name + place, Raise<World>, each, depth);
  }
  for (const int present : {0, 10})
    Register("AddRemoveHandler/" + i_contender + "/" + std::to_string(present) + i_state, AddRemove<World>, present);
  for (const bool hasHandler : {false, true})
    benchmark::RegisterBenchmark(((hasHandler ? "ListenerMemory/" : "IdleListenerMemory/") + i_contender + i_state).c_str(),
                                 MeasureMemory<Crowd>, hasHandler)
        ->Iterations(1);
}

// The same raises while the nodes' class has one handler.
template <class World>
void RegisterClassCases(const std::string& i_contender, const std::string& i_state)
{
  for (const int depth : s_depths)
  {
    const std::string place = "/" + i_contender + "/" + std::to_string(depth) + i_state;
    for (const RaiseCase& each : {RaiseCase{"RaiseClassUnheard", 0, 0, 1, false},
                                  {"RaiseClassHeardEverywhere", 1, 1, 1, false},
                                  {"RaiseClassTenAtOrigin", 10, 0, 1, false}})
      Register(each._name + place, RaiseWithClass<World>, each, depth);
  }
}

#endif
