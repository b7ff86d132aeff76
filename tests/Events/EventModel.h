// EventModel: what routed events must do, told slowly with lists of numbers, to compare the real ones with.
// EventModel model; model.Add(model.AtNode(1), event, handler, false); model.TakeLists(stop, event, dispatch);
//
// Everything is a number: nodes, classes, events, handlers. Nothing is shared: every list is a copy.
#ifndef EventModel_H
#define EventModel_H

#include <iterator>
#include <map>
#include <set>
#include <vector>

class EventModel
{
public:
  typedef int Id;
  struct Registration
  {
    Id _handler;
    bool _handlesConsumed;
  };
  typedef std::vector<Registration> List;
  typedef std::map<Id, List> Store; // by event
  struct Run
  {
    Id _node;
    Id _handler;
    bool _handlesConsumed;
  };
  // One dispatch: what is to run is settled before any of it runs.
  class Dispatch
  {
  public:
    void Add(const Run& i_run) { _runs.push_back(i_run); }
    // What runs next, null at the end.
    const Run* Next();
    void Consume() { _isConsumed = true; }
    // The handler is passed by from now on. Answers how often.
    std::size_t PassBy(Id i_handler);
    bool WillRun(Id i_handler) const;

  private:
    bool Runs(const Run& i_run) const { return !_isConsumed || i_run._handlesConsumed; }

    std::vector<Run> _runs;
    std::size_t _next = 0;
    bool _isConsumed = false;
  };
  // A node of a route, with its classes, the most derived one first.
  struct Stop
  {
    Id _node;
    std::vector<Id> _classes;
  };

  Store& AtNode(Id i_node) { return _nodes[i_node]; }
  Store& AtClass(Id i_class) { return _classes[i_class]; }
  void ForgetNode(Id i_node) { _nodes.erase(i_node); }
  void ForgetClasses() { _classes.clear(); }
  // Forgets all others.
  void KeepDead(const std::set<Id>& i_handlers)
  {
    for (auto it = _dead.begin(); it != _dead.end();)
      it = i_handlers.count(*it) ? std::next(it) : _dead.erase(it);
  }

  static void Add(Store& io_store, Id i_event, Id i_handler, bool i_handlesConsumed);
  // Whether there was one. The first one goes.
  static bool Remove(Store& io_store, Id i_event, Id i_handler);
  void Kill(Id i_handler) { _dead.insert(i_handler); }
  bool IsDead(Id i_handler) const { return _dead.count(i_handler) > 0; }
  // The list for the event, without the dead, who are gone for good.
  List GetHandlers(Store& io_store, Id i_event);
  // The route reaches that node: everything that runs there is known now.
  void TakeLists(const Stop& i_stop, Id i_event, Dispatch& io_dispatch);

  int CountRegistrations() const;
  void AddHandlersTo(std::set<Id>& io_handlers) const;

private:
  template <class Visit>
  void VisitRegistrations(Visit i_visit) const;
  void AddRuns(Id i_node, Store& io_store, Id i_event, Dispatch& io_dispatch);

  std::map<Id, Store> _nodes;
  std::map<Id, Store> _classes;
  std::set<Id> _dead;
};

#endif
