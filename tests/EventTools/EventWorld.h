// The small world of these tests: two events, the arguments of the second one, a listener, and a list of what ran.
// Listener listener; Runs runs; listener.AddHandler(Opened(), runs.Note("first"), 0); Raise(listener);
#ifndef EventWorld_H
#define EventWorld_H

#include "ZELSYPEventArgs.h"
#include "ZELSYPMakeHandler.h"
#include "ZELSYPSimpleEventListener.h"

#include <string>
#include <utility>
#include <vector>

// Arguments with one number.
class NumberArgs : public ZELSYPEventArgs
{
  ZELDeclareClass;

public:
  explicit NumberArgs(ZELSYPEvent* i_pEvent, int i_number = 0) : ZELSYPEventArgs(i_pEvent), _number(i_number) {}
  int GetNumber() const { return _number; }

private:
  const int _number;
};

class Listener : public ZELSYPSimpleEventListener
{
  ZELDeclareClass;

public:
  using ZELSYPSimpleEventListener::GetEventFactory;
};

// From the origin to the root, with ZELSYPEventArgs.
ZELSYPEvent* Opened();
// From the root to the origin, with NumberArgs.
ZELSYPEvent* Counted();

// Dispatches arguments of Opened from the listener; whether they were consumed.
int Raise(Listener& io_listener);
// Dispatches arguments of Counted; what Dispatch answers.
int RaiseNumber(Listener& io_listener, int i_number);

// The names of the handlers that ran, in their order.
class Runs
{
public:
  void Add(const std::string& i_name) { _names.push_back(i_name); }
  // A callable that adds the name.
  auto Adding(const std::string& i_name)
  {
    return [this, i_name](ZELSYPEventArgs*) { Add(i_name); };
  }
  // A handler that does.
  auto Note(const std::string& i_name) { return ZELSYPMakeHandler(Adding(i_name)); }
  // What ran since the last call.
  std::vector<std::string> Take() { return std::exchange(_names, {}); }

private:
  std::vector<std::string> _names;
};

#endif
